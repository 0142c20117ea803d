#!/usr/bin/env python3
"""clang-tidy finds nothing in the rooms' sources, the Windows ones included.

A clean result is remembered under .cache/tidy by the contents of the source, of the project's headers it includes, of
the settings and of the command, so that a second run only looks at what changed.
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

from project import ROOT, finish

CACHE = ROOT / ".cache" / "tidy"
SHIM = ROOT / "tests/house/tidy_source_location.h"
MINGW = "/usr/lib/gcc/x86_64-w64-mingw32/12-posix/include/c++"
ROOMS = ("controls/", "common/", "catalog/", "summary/", "editor/", "location/", "site/", "win32/", "addin/", "host/")
EXTRA = {
    "native-sanitize": [],
    "windows-x64": ["--target=x86_64-w64-windows-gnu", "-nostdinc++", f"-isystem{MINGW}",
                    f"-isystem{MINGW}/x86_64-w64-mingw32", f"-isystem{MINGW}/backward"],
}


class Unit:
    """One source file as one preset compiles it."""

    def __init__(self, preset, entry, headers):
        self.preset = preset
        self.file = pathlib.Path(entry["file"])
        self.name = self.file.relative_to(ROOT).as_posix()
        words = shlex.split(entry["command"].replace("-isystem ", "-isystem"))
        self.arguments = [word for word in words if re.match(r"-(I|D|std=|W|isystem)", word)]
        self.arguments += ["-Wno-unknown-warning-option", "-include", str(SHIM), *EXTRA[preset]]
        self.headers = headers

    def key(self, settings):
        """Names a clean result; none for a source that was never built, whose headers are unknown."""
        if self.headers is None:
            return None
        digest = hashlib.sha256(settings)
        digest.update("\0".join([self.name, *self.arguments]).encode())
        for path in [self.file, *self.headers]:
            digest.update(path.read_bytes())
        return digest.hexdigest()


def headers_by_object(build):
    """What ninja saw each object include, of the project's own files and what is generated into the build."""
    listing = subprocess.run(["ninja", "-t", "deps"], cwd=build, check=True, stdout=subprocess.PIPE).stdout.decode()
    found = {}
    current = []
    for line in listing.splitlines():
        if line and not line.startswith(" "):
            current = found.setdefault(line.split(":")[0], [])
        elif line.strip():
            path = (build / line.strip()).resolve()
            if path.is_relative_to(ROOT) and not path.is_relative_to(ROOT / ".cache") and path.is_file():
                current.append(path)
    return found


def units():
    """Portable sources as built natively, and what only the Windows build has."""
    seen = set()
    for preset in EXTRA:
        build = ROOT / "build" / preset
        headers = headers_by_object(build)
        for entry in json.loads((build / "compile_commands.json").read_text("utf-8")):
            path = pathlib.Path(entry["file"])
            if not path.is_relative_to(ROOT) or path in seen:
                continue
            if path.relative_to(ROOT).as_posix().startswith(ROOMS) and path.suffix == ".cpp":
                seen.add(path)
                yield Unit(preset, entry, headers.get(object_of(entry)))


def object_of(entry):
    words = entry["command"].split()
    return words[words.index("-o") + 1]


def settings():
    version = subprocess.run(["clang-tidy", "--version"], check=True, stdout=subprocess.PIPE).stdout
    return version + (ROOT / ".clang-tidy").read_bytes() + SHIM.read_bytes()


def look(unit, key):
    if key and (CACHE / key).exists():
        return []
    done = subprocess.run(["clang-tidy", "--quiet", str(unit.file), "--", *unit.arguments], cwd=ROOT,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if done.returncode == 0:
        if key:
            (CACHE / key).touch()
        return []
    output = done.stdout.decode("utf-8", "replace").replace(f"{ROOT}/", "")
    output = re.sub(r"^\d+ warnings?( and \d+ errors?)? generated\.\n", "", output, flags=re.MULTILINE)
    return re.split(r"\n(?=\S+:\d+:\d+: (?:error|warning):)", output.rstrip())


def main():
    CACHE.mkdir(parents=True, exist_ok=True)
    common = settings()
    wanted = [unit for unit in units() if not sys.argv[1:] or unit.name.startswith(tuple(sys.argv[1:]))]
    keys = [unit.key(common) for unit in wanted]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        findings = list(pool.map(look, wanted, keys))
    # A header's fault is found from every source that includes it.
    problems = dict.fromkeys(finding for found in findings for finding in found)
    if not sys.argv[1:]:
        for old in {path.name for path in CACHE.iterdir()} - set(filter(None, keys)):
            (CACHE / old).unlink()
    finish(problems)


main()
