#!/usr/bin/env python3
"""Windows headers stay in the rooms that talk to Windows, so that everything else builds and runs anywhere."""

import re

from project import CODE, files, finish, numbered

ROOMS = ("win32/", "addin/", "host/", "tests/win32/", "tests/addin/", "tests/host/", "tests/windows/")
HEADER = re.compile(
    r"\s*#\s*include\s+<((win[a-z0-9]*|ole[a-z0-9]*|oaidl|objbase|objidl|ocidl|comm(ctrl|dlg)|comdef|shl[a-z]*"
    r"|shell[a-z]*|uxtheme|unknwn|tlhelp32|rpc[a-z]*|htmlhelp|initguid|activscp|dispex|com[a-z]*utils?|sql(ext|types|ucode)?|tchar"
    r"|richedit|psapi|dwmapi|gdiplus|wtypes)\.h)>", re.IGNORECASE)
MACRO = re.compile(r"\b(_WIN32|__MINGW32__)\b")


def main():
    problems = []
    for name in files(*CODE):
        if name.startswith(ROOMS):
            continue
        for number, line in numbered(name):
            match = HEADER.match(line)
            if match:
                problems.append(f"{name}:{number}: <{match.group(1)}> outside {', '.join(ROOMS[:3])}")
            elif MACRO.search(line):
                problems.append(f"{name}:{number}: code that is different on Windows belongs to {', '.join(ROOMS[:3])}")
    finish(problems)


main()
