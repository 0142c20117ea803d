#!/usr/bin/env python3
"""What a newcomer and a tester wait for, in CPU seconds (user and system) of the whole process tree.

Usage: build.py [COMMIT]     measures the last commit of this folder, and with a commit's name that one, too.
Each is measured in a fresh clone, without a compiler cache; packages are installed before. Takes half an hour.
"""

import ctypes
import os
import pathlib
import resource
import subprocess
import sys
import tempfile

from table import print_table, verdict

ROOT = pathlib.Path(__file__).resolve().parent.parent
# Those of them that a commit has are measured.
PORTABLE_ROOMS = ("base", "controls", "database", "common", "catalog", "summary", "editor", "location", "site")
HEADER = "controls/control.h"
# Of the commit that is compared with; an absolute goal stands beside it.
RATIOS = {"./run --play": 0.3, "./test": 0.33}
GOALS = {"./run --play": 240, "./test": 900, "changed .cpp": 10, "changed header": 120}


def cpu_seconds(folder, *command):
    """Runs a command with all that it leaves behind; its CPU seconds. Ends this program when the command fails."""
    reading, writing = os.pipe()
    child = os.fork()
    if child == 0:
        os.close(reading)
        # Daemons (Wine's server) are handed to this process when their parent ends, and so they count.
        ctypes.CDLL(None).prctl(36, 1, 0, 0, 0)
        code = subprocess.Popen(command, cwd=folder, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                env={**os.environ, "CCACHE_DISABLE": "1"}).wait()
        while True:
            try:
                os.wait()
            except ChildProcessError:
                break
        used = resource.getrusage(resource.RUSAGE_CHILDREN)
        os.write(writing, f"{code} {used.ru_utime + used.ru_stime}".encode())
        os._exit(0)
    os.close(writing)
    with os.fdopen(reading) as told:
        code, seconds = told.read().split()
    os.waitpid(child, 0)
    if int(code) != 0:
        sys.exit(f"{' '.join(map(str, command))} failed in {folder}")
    return float(seconds)


def clone(commit, folder):
    subprocess.run(["git", "clone", "--quiet", ROOT, folder], check=True)
    subprocess.run(["git", "checkout", "--quiet", commit], cwd=folder, check=True)


def change(path):
    with path.open("a", encoding="utf-8") as file:
        file.write("// changed\n")


def tests_of_room(folder, room):
    if (folder / "tools/test_plan.py").exists():
        return ["./test", f"native/{room}"]
    return ["bash", "-c", f"tools/build native-sanitize test_{room} && build/native-sanitize/tests/test_{room}"]


def all_native_tests(folder):
    if (folder / "tools/test_plan.py").exists():
        return ["./test", "native/"]
    return ["bash", "-c", "tools/build native-sanitize && python3 tools/run_tests.py native"]


def measure(commit):
    """Name of the row -> (its name in full, CPU seconds)."""
    found = {}
    with tempfile.TemporaryDirectory(prefix="pelorin-bench-") as place:
        played, tested = pathlib.Path(place, "play"), pathlib.Path(place, "test")
        clone(commit, played)
        found["./run --play"] = ("./run --play in a fresh clone", cpu_seconds(played, "./run", "--play"))
        clone(commit, tested)
        found["./test"] = ("./test in a fresh clone", cpu_seconds(tested, "./test"))
        slowest = (0.0, "")
        for room in filter(lambda name: (tested / name).is_dir(), PORTABLE_ROOMS):
            change(min((tested / room).glob("*.cpp")))
            slowest = max(slowest, (cpu_seconds(tested, *tests_of_room(tested, room)), room))
        found["changed .cpp"] = (f"one changed .cpp to its room's tests (slowest: {slowest[1]})", slowest[0])
        change(tested / HEADER)
        found["changed header"] = (f"{HEADER} changed to all native tests",
                                   cpu_seconds(tested, *all_native_tests(tested)))
    return found


def main():
    here = measure("HEAD")
    other = measure(sys.argv[1]) if len(sys.argv) > 1 else {}
    rows = []
    for row, (name, seconds) in here.items():
        goal = verdict(seconds, GOALS[row], " s")
        against = ratio = ""
        if other:
            before = other[row][1]
            against, ratio = f"{before:.1f} s ({sys.argv[1]})", f"{seconds / before:.2f}"
            if row in RATIOS:
                goal = verdict(seconds / before, RATIOS[row]) + ", " + goal
        rows.append((name, f"{seconds:.1f} s", against, ratio, goal))
    print_table(rows)


if __name__ == "__main__":
    main()
