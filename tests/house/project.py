"""What the house checks share: the project's files, its targets, and one way to report."""

import json
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
CODE = (".cpp", ".h", ".c")


def files(*suffixes, under=""):
    """The project's own files (committed or about to be), as paths relative to its root."""
    listed = subprocess.run(
        ["git", "ls-files", "--cached", "--others", "--exclude-standard", "-z"],
        cwd=ROOT, check=True, stdout=subprocess.PIPE).stdout.decode("utf-8")
    names = sorted(set(listed.split("\0")) - {""})
    return [name for name in names
            if name.startswith(under) and (not suffixes or name.endswith(suffixes)) and (ROOT / name).is_file()]


def text(name):
    return (ROOT / name).read_text("utf-8")


def numbered(name):
    """The lines of a file with their numbers."""
    return enumerate(text(name).splitlines(), 1)


def targets(*presets):
    """The targets of the built presets, by name: type, dir, sources, links. Later presets win."""
    found = {}
    for preset in presets or ("native-sanitize", "windows-x64"):
        rooms = ROOT / "build" / preset / "rooms.json"
        if not rooms.is_file():
            sys.exit(f"{rooms.relative_to(ROOT)} is missing: run tools/build {preset}")
        for target in json.loads(rooms.read_text("utf-8")):
            found[target["target"]] = target
    return found


def finish(problems):
    """Prints the problems and ends with 1 when there is any."""
    for problem in problems:
        print(problem)
    sys.exit(1 if problems else 0)
