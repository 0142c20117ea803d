#!/usr/bin/env python3
"""Runs every test that is built: native programs, house rules, and Windows programs under Wine.

Usage: run_tests.py [part ...]     parts: native house windows-x64 windows-x86; all of them when none is named.
Ends with "N passed, N failed" (", N skipped" when there are any); every test case and every house rule counts as one.
"""

import concurrent.futures
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
RESULTS = ROOT / "build" / "results"
PROGRAM_SECONDS = 660
# A program's exit code when the system lacks what its tests need; its last line is the reason.
SKIPPED = 77


class Tally:
    def __init__(self):
        self.passed = 0
        self.failed = 0
        self.skipped = 0
        self.failures = []

    def add(self, name, passed=0, failed=0, skipped=0, seconds=0.0, output=""):
        self.passed += passed
        self.failed += failed
        self.skipped += skipped
        verdict = "FAILED" if failed else "ok"
        counts = f"{passed} passed" + (f", {failed} failed" if failed else "")
        counts += f", {skipped} skipped" if skipped else ""
        print(f"{verdict:7}{name:45}{counts:28}{seconds:7.1f} s", flush=True)
        if failed:
            self.failures.append(name)
            print(output.rstrip(), flush=True)


def run(command, env=None, seconds=PROGRAM_SECONDS, cwd=ROOT):
    """Runs a command; returns its exit code, what it printed and how long it took."""
    start = time.monotonic()
    # A file and not a pipe: Wine's background programs hold a pipe open long after the program has ended.
    with tempfile.TemporaryFile() as printed:
        try:
            code = subprocess.run(command, env={**os.environ, **(env or {})}, cwd=cwd, timeout=seconds,
                                  stdin=subprocess.DEVNULL, stdout=printed, stderr=subprocess.STDOUT).returncode
            late = ""
        except subprocess.TimeoutExpired:
            code, late = -1, f"\nended after {seconds} seconds"
        printed.seek(0)
        output = printed.read().decode("utf-8", "replace") + late
    return code, output, time.monotonic() - start


def gtest_cases(report):
    """Counts passed, failed and skipped cases in a GoogleTest JSON report."""
    passed = failed = skipped = 0
    for suite in json.loads(report.read_text("utf-8"))["testsuites"]:
        for case in suite["testsuite"]:
            if case.get("result") == "SKIPPED":
                skipped += 1
            elif case.get("status") != "RUN" or case.get("failures"):
                failed += 1
            else:
                passed += 1
    return passed, failed, skipped


def failure_text(output):
    """Leaves out of a GoogleTest log what passed."""
    return "\n".join(line for line in output.splitlines() if not line.startswith(("[       OK", "[ RUN", "[---")))


def run_gtest(tally, name, command, env):
    report = RESULTS / f"{name.replace('/', '-')}.json"
    report.unlink(missing_ok=True)
    relative = report.relative_to(ROOT).as_posix()
    code, output, seconds = run([*command, f"--gtest_output=json:{relative}"], env)
    report.with_suffix(".log").write_text(output, "utf-8")
    if code == SKIPPED:
        print(f"SKIPPED {name}: {output.rstrip().splitlines()[-1]}", flush=True)
        tally.add(name, skipped=1, seconds=seconds)
        return
    if not report.exists():
        tally.add(name, failed=1, seconds=seconds, output=f"{output}\nended with code {code} and without a report")
        return
    passed, failed, skipped = gtest_cases(report)
    if passed + failed + skipped == 0:
        failed, output = 1, "the program holds no test case"
    if code != 0 and failed == 0:
        # A sanitizer's report at exit, or a crash after the last case.
        failed = 1
        output += f"\nended with code {code}"
    tally.add(name, passed, failed, skipped, seconds, failure_text(output))


def run_native(tally):
    env = {"ASAN_OPTIONS": "detect_leaks=1:strict_string_checks=1:detect_stack_use_after_return=1",
           "UBSAN_OPTIONS": "print_stacktrace=1:halt_on_error=1"}
    programs = sorted((ROOT / "build/native-sanitize/tests").glob("test_*"))
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        list(pool.map(lambda p: run_gtest(tally, f"native/{p.name[5:]}", [str(p)], env), programs))
    if not programs:
        tally.add("native", failed=1, output="no native test program was built")


def run_house(tally):
    for script in sorted((ROOT / "tests/house").glob("check_*.py")):
        code, output, seconds = run([sys.executable, str(script)], seconds=3600)
        failed = int(code != 0)
        tally.add(f"house/{script.stem[6:]}", 1 - failed, failed, seconds=seconds, output=output)


def wine_path(path):
    return "Z:" + str(path).replace("/", "\\")


def run_windows(tally, arch):
    name = f"windows-{arch}"
    programs = sorted((ROOT / f"build/{name}/tests").glob("wintest_*.exe"))
    reason = os.environ.get("PELORIN_SKIP_X86", "") if arch == "x86" else ""
    if reason:
        print(f"SKIPPED {name}: {reason}", flush=True)
        tally.skipped += max(1, len(programs))
        return
    if not programs:
        tally.add(name, failed=1, output="no Windows test program was built")
    env = {"PELORIN_DIST": wine_path(ROOT / "dist" / arch), "PELORIN_ROOT": wine_path(ROOT)}
    wine = [str(ROOT / "tools/wine-run"), arch]
    for program in programs:
        run_gtest(tally, f"{name}/{program.stem[8:]}", [*wine, str(program)], env)


PARTS = {
    "native": run_native,
    "house": run_house,
    "windows-x64": lambda tally: run_windows(tally, "x64"),
    "windows-x86": lambda tally: run_windows(tally, "x86"),
}


def main():
    RESULTS.mkdir(parents=True, exist_ok=True)
    tally = Tally()
    for part in sys.argv[1:] or PARTS:
        PARTS[part](tally)
    for name in tally.failures:
        print(f"failed: {name}")
    skipped = f", {tally.skipped} skipped" if tally.skipped else ""
    print(f"{tally.passed} passed, {tally.failed} failed{skipped}")
    return 1 if tally.failed else 0


if __name__ == "__main__":
    sys.exit(main())
