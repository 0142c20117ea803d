#!/usr/bin/env python3
"""The built DLL needs nothing but the operating system, and exports the four entry points under their plain names."""

import re
import subprocess

from project import ROOT, finish

SYSTEM = {
    "advapi32.dll", "comctl32.dll", "comdlg32.dll", "gdi32.dll", "kernel32.dll", "msvcrt.dll", "ole32.dll",
    "oleacc.dll", "oleaut32.dll", "shell32.dll", "shlwapi.dll", "user32.dll", "uxtheme.dll",
}
EXPORTS = {"DllCanUnloadNow", "DllGetClassObject", "DllRegisterServer", "DllUnregisterServer"}


def problems_of(dll):
    name = dll.relative_to(ROOT).as_posix()
    if not dll.is_file():
        return [f"{name} was not built"]
    listing = subprocess.run(["x86_64-w64-mingw32-objdump", "-p", str(dll)], check=True,
                             stdout=subprocess.PIPE).stdout.decode("utf-8", "replace")
    needed = {match.lower() for match in re.findall(r"DLL Name: (\S+)", listing)}
    exported = set(re.findall(r"^\s*\[\s*\d+\](?: \+base\[\s*\d+\]\s+[0-9a-f]+)? (\w\S*)\s*$", listing, re.MULTILINE))
    problems = [f"{name} needs {extra}" for extra in sorted(needed - SYSTEM)]
    problems += [f"{name} does not export {missing}" for missing in sorted(EXPORTS - exported)]
    problems += [f"{name} exports {extra}" for extra in sorted(exported - EXPORTS - {"DllInstall"})]
    return problems


finish([problem for arch in ("x64", "x86") for problem in problems_of(ROOT / "dist" / arch / "Pelorin.dll")])
