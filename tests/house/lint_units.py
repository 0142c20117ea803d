"""What the lint rules share: every source file with the command that compiles it alone, and a memory of what was clean.

A clean result is remembered under .cache/ by the contents of the source, of the project's headers it includes, of the
settings and of the command, so that a second run only looks at what changed.
"""

import concurrent.futures
import functools
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

from project import ROOT, finish

# Portable sources as built natively, and what only the Windows build has.
PRESETS = ("native-alone", "windows-alone")
INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)
GENERATED = {"Pelorin.h": ROOT / "addin/Pelorin.idl"}


class Unit:
    """One source file as one preset compiles it."""

    def __init__(self, preset, entry):
        self.preset = preset
        self.file = pathlib.Path(entry["file"])
        self.folder = entry["directory"]
        self.name = self.file.relative_to(ROOT).as_posix()
        self.command = entry["command"]

    def key(self, settings):
        digest = hashlib.sha256(settings)
        digest.update("\0".join([self.name, self.preset, self.command]).encode())
        for path in sorted(closure(self.file)):
            digest.update(path.read_bytes())
        return digest.hexdigest()


@functools.lru_cache(maxsize=None)
def includes(path):
    """The project's own files that a file names; those are always named from the root."""
    found = set()
    for name in INCLUDE.findall(path.read_text("utf-8")):
        included = GENERATED.get(name, ROOT / name)
        if included.is_file():
            found.add(included)
    return found


def closure(path):
    seen = {path}
    open_ends = [path]
    while open_ends:
        for included in includes(open_ends.pop()) - seen:
            seen.add(included)
            open_ends.append(included)
    return seen


def units(wanted=lambda name: True):
    seen = set()
    subprocess.run([ROOT / "tools/build", "--configure", *PRESETS], check=True)
    for preset in PRESETS:
        for entry in json.loads((ROOT / "build" / preset / "compile_commands.json").read_text("utf-8")):
            path = pathlib.Path(entry["file"])
            if path.suffix != ".cpp" or not path.is_relative_to(ROOT) or path.is_relative_to(ROOT / "build"):
                continue
            if path not in seen and wanted(path.relative_to(ROOT).as_posix()):
                seen.add(path)
                yield Unit(preset, entry)


class Memory:
    """Keys of clean units, and the contents that the last wholly clean run saw."""

    def __init__(self, name):
        self.folder = ROOT / ".cache" / name
        self.folder.mkdir(parents=True, exist_ok=True)
        self.last = self.folder / "last-clean.json"

    def knows(self, key):
        return (self.folder / key).exists()

    def remember(self, key):
        (self.folder / key).touch()

    def changed_since(self):
        """Files that differ from the last wholly clean run; None when there never was one."""
        if not self.last.is_file():
            return None
        before = json.loads(self.last.read_text("utf-8"))
        return {name for name, digest in contents().items() if before.get(name) != digest}

    def all_clean(self, keys):
        self.last.write_text(json.dumps(contents()), "utf-8")
        for old in {path.name for path in self.folder.iterdir()} - set(keys) - {self.last.name}:
            (self.folder / old).unlink()


@functools.lru_cache(maxsize=None)
def contents():
    listed = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", "*.cpp", "*.h"], cwd=ROOT,
                            check=True, stdout=subprocess.PIPE).stdout.decode().split()
    return {name: hashlib.sha256((ROOT / name).read_bytes()).hexdigest() for name in listed if (ROOT / name).is_file()}


def touched_by(candidates, changed):
    """The changed sources, and for each changed header one source that includes it."""
    chosen = {unit.name: unit for unit in candidates if unit.name in changed}
    for header in sorted(name for name in changed if name.endswith(".h")):
        path = ROOT / header
        readers = [unit for unit in candidates if path in closure(unit.file)]
        own = [unit for unit in readers if unit.file == path.with_suffix(".cpp")]
        for unit in (own or readers)[:1]:
            chosen[unit.name] = unit
    return list(chosen.values())


def run_lint(memory, candidates, settings, look):
    """Runs `look` (unit -> findings) over every unit not known to be clean, or with --changed over what changed since
    everything was clean; ends the program."""
    only_changed = "--changed" in sys.argv[1:]
    changed = memory.changed_since() if only_changed else None
    if only_changed and changed is None:
        print("never clean as a whole: nothing to compare with")
        finish([])
    candidates = list(candidates)
    wanted = touched_by(candidates, changed) if only_changed else candidates
    keys = [unit.key(settings) for unit in wanted]

    def findings(unit, key):
        found = [] if memory.knows(key) else look(unit)
        if not found:
            memory.remember(key)
        return found

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        # A header's fault is found from every source that includes it.
        problems = dict.fromkeys(one for found in pool.map(findings, wanted, keys) for one in found)
    if not problems and not only_changed:
        memory.all_clean(keys)
    finish(problems)


def arguments(unit):
    """What a compiler needs to read the file as the build would."""
    return shlex.split(unit.command.replace("-isystem ", "-isystem"))
