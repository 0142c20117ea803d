#!/usr/bin/env python3
"""Every source file compiles by itself, as GCC reads it: in the unity builds one file could live on another's includes.

With --changed only what changed since everything was clean; nothing where that never was.
"""

import subprocess

from lint_units import ROOT, Memory, arguments, run_lint, units


def settings():
    return b"".join(subprocess.run([compiler, "--version"], check=True, stdout=subprocess.PIPE).stdout
                    for compiler in ("c++", "x86_64-w64-mingw32-g++-posix"))


def look(unit):
    words = arguments(unit)
    # The launcher of a compiler cache has nothing to answer with here.
    words = words[1:] if words[0].endswith("ccache") else words
    words = [word for word in words if word not in ("-MD", "-c")]
    for option in ("-o", "-MT", "-MF"):
        while option in words:
            at = words.index(option)
            del words[at:at + 2]
    done = subprocess.run([*words, "-fsyntax-only"], cwd=unit.folder, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if done.returncode == 0:
        return []
    said = done.stdout.decode("utf-8", "replace").replace(f"{ROOT}/", "")
    return [f"{unit.name} does not compile by itself:\n{said}"]


def main():
    # The interface's header is made by the build.
    subprocess.run([ROOT / "tools/build", "windows-alone", "pelorin_idl_files"], check=True)
    run_lint(Memory("alone"), units(), settings(), look)


main()
