#!/usr/bin/env python3
"""clang-tidy finds nothing in the rooms' sources, the Windows ones included.

With --changed only what changed since everything was clean; nothing where that never was.
"""

import re
import subprocess

from lint_units import ROOT, Memory, arguments, run_lint, units
from project import files

SHIM = ROOT / "tests/house/tidy_source_location.h"
MINGW = "/usr/lib/gcc/x86_64-w64-mingw32/12-posix/include/c++"
OTHERS = ("tests/", "benches/")
# Findings in headers count where the header is the project's.
FOLDERS = sorted({name.split("/")[0] for name in files(".h")})
HEADERS = f"--header-filter=^{ROOT}/({'|'.join(FOLDERS)})/"
EXTRA = {
    "native-alone": [],
    "windows-alone": ["--target=x86_64-w64-windows-gnu", "-nostdinc++", f"-isystem{MINGW}",
                      f"-isystem{MINGW}/x86_64-w64-mingw32", f"-isystem{MINGW}/backward"],
}


def settings():
    version = subprocess.run(["clang-tidy", "--version"], check=True, stdout=subprocess.PIPE).stdout
    return version + (ROOT / ".clang-tidy").read_bytes() + SHIM.read_bytes()


def look(unit):
    flags = [word for word in arguments(unit) if re.match(r"-(I|D|std=|W|isystem)", word)]
    flags += ["-Wno-unknown-warning-option", "-include", str(SHIM), *EXTRA[unit.preset]]
    done = subprocess.run(["clang-tidy", "--quiet", HEADERS, str(unit.file), "--", *flags], cwd=ROOT,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if done.returncode == 0:
        return []
    output = done.stdout.decode("utf-8", "replace").replace(f"{ROOT}/", "")
    output = re.sub(r"^\d+ warnings?( and \d+ errors?)? generated\.\n", "", output, flags=re.MULTILINE)
    return re.split(r"\n(?=\S+:\d+:\d+: (?:error|warning):)", output.rstrip())


def main():
    # The interface's header is made by the build.
    subprocess.run([ROOT / "tools/build", "windows-alone", "pelorin_idl_files"], check=True)
    run_lint(Memory("tidy"), units(lambda name: not name.startswith(OTHERS)), settings(), look)


main()
