#!/usr/bin/env python3
"""Windows headers stay in the rooms that talk to Windows, so that everything else builds and runs anywhere."""

import re

from project import CODE, files, finish, numbered

ROOMS = ("win32/", "addin/", "driver/", "host/", "tests/host/", "tests/windows/")
HEADER = re.compile(
    r"\s*#\s*include\s+<((win[a-z0-9]*|ole[a-z0-9]*|oaidl|objbase|objidl|ocidl|unknwn|wtypes|initguid|activscp|dispex"
    r"|comm(ctrl|dlg)|comdef|com[a-z]*utils?|shl[a-z]*|shell[a-z]*|uxtheme|dwmapi|gdiplus|richedit|htmlhelp|tlhelp32"
    r"|psapi|tchar|rpc[a-z]*|sql(ext|types|ucode)?)\.h)>", re.IGNORECASE)
MACRO = re.compile(r"\b(_WIN32|__MINGW32__)\b")


def main():
    problems = []
    for name in files(*CODE):
        if name.startswith(ROOMS):
            continue
        for number, line in numbered(name):
            match = HEADER.match(line)
            if match:
                problems.append(f"{name}:{number}: <{match.group(1)}> outside {', '.join(ROOMS[:4])}")
            elif MACRO.search(line):
                problems.append(f"{name}:{number}: code that is different on Windows belongs to {', '.join(ROOMS[:4])}")
    finish(problems)


main()
