#!/usr/bin/env python3
"""Builds and runs the tests: native programs, house rules, and Windows programs under Wine.

Usage: run_tests.py [--lint] [WORD...]
Ends with "N passed, N failed" (", N skipped" when there are any); every test case and every house rule counts as one.
"""

import concurrent.futures
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import threading
import time

import test_plan

ROOT = pathlib.Path(__file__).resolve().parent.parent
RESULTS = ROOT / "build" / "results"
PROGRAM_SECONDS = 660
# A program's exit code when the system lacks what its tests need; its last line is the reason.
SKIPPED = 77
SANITIZERS = {"ASAN_OPTIONS": "detect_leaks=1:strict_string_checks=1:detect_stack_use_after_return=1",
              "UBSAN_OPTIONS": "print_stacktrace=1:halt_on_error=1"}
# Looks at every file with every check, for minutes: its own rule for what is left out without --lint.
LINT = ("check_alone.py", "check_tidy.py")


class Tally:
    def __init__(self):
        self.passed = 0
        self.failed = 0
        self.skipped = 0
        self.failures = []
        self.lock = threading.Lock()

    def add(self, name, passed=0, failed=0, skipped=0, seconds=0.0, output=""):
        verdict = "FAILED" if failed else "ok"
        counts = f"{passed} passed" + (f", {failed} failed" if failed else "")
        counts += f", {skipped} skipped" if skipped else ""
        with self.lock:
            self.passed += passed
            self.failed += failed
            self.skipped += skipped
            print(f"{verdict:7}{name:45}{counts:28}{seconds:7.1f} s", flush=True)
            if failed:
                self.failures.append(name)
            if output.strip() and (failed or skipped):
                print(output.rstrip(), flush=True)

    def finish(self):
        for name in self.failures:
            print(f"failed: {name}")
        skipped = f", {self.skipped} skipped" if self.skipped else ""
        print(f"{self.passed} passed, {self.failed} failed{skipped}")
        return 1 if self.failed else 0


def run(command, env=None, seconds=PROGRAM_SECONDS):
    """Runs a command; returns its exit code, what it printed and how long it took."""
    start = time.monotonic()
    # A file and not a pipe: Wine's background programs hold a pipe open long after the program has ended.
    with tempfile.TemporaryFile() as printed:
        try:
            code = subprocess.run(command, env={**os.environ, **(env or {})}, cwd=ROOT, timeout=seconds,
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


def choice_of(cases):
    """Cases with parameters carry a prefix and a suffix."""
    return ["--gtest_filter=" + ":".join(f"{case}:*/{case}/*" for case in dict.fromkeys(cases))] if cases else []


def run_gtest(tally, program, command, env):
    report = RESULTS / f"{program.name.replace('/', '-')}.json"
    report.unlink(missing_ok=True)
    relative = report.relative_to(ROOT).as_posix()
    code, output, seconds = run([*command, f"--gtest_output=json:{relative}", *choice_of(program.cases)], env)
    report.with_suffix(".log").write_text(output, "utf-8")
    if code == SKIPPED:
        tally.add(program.name, skipped=1, seconds=seconds, output=output.rstrip().splitlines()[-1])
        return
    if not report.exists():
        tally.add(program.name, failed=1, seconds=seconds,
                  output=f"{output}\nended with code {code} and without a report")
        return
    passed, failed, skipped = gtest_cases(report)
    if passed + failed + skipped == 0:
        failed, output = 1, "no test case was run"
    if code != 0 and failed == 0:
        # A sanitizer's report at exit, or a crash after the last case.
        failed = 1
        output += f"\nended with code {code}"
    tally.add(program.name, passed, failed, skipped, seconds, failure_text(output) if failed else "")


def run_rule(tally, script, lint):
    options = ["--changed"] if script.name in LINT and not lint else []
    code, output, seconds = run([sys.executable, str(script), *options], seconds=3600)
    failed = int(code != 0)
    tally.add(f"house/{script.stem[6:]}", 1 - failed, failed, seconds=seconds, output=output)


def wine_path(path):
    return "Z:" + str(path).replace("/", "\\")


def run_windows(tally, programs):
    """One program after the other: they share a display and its focus."""
    with subprocess.Popen([ROOT / "tools/with-wine"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True) as wine:
        display, skip_x86 = wine.stdout.readline().strip(), wine.stdout.readline().strip()
        if not display:
            tally.add("windows", failed=1, output="no display or no Wine prefix could be set up")
            return
        for program in programs:
            arch = program.part.removeprefix("windows-")
            if arch == "x86" and skip_x86:
                tally.add(program.name, skipped=1, output=skip_x86)
                continue
            env = {"DISPLAY": display, "PELORIN_DIST": wine_path(ROOT / "dist" / arch),
                   "PELORIN_ROOT": wine_path(ROOT)}
            run_gtest(tally, program, [str(ROOT / "tools/wine-run"), arch, str(program.path)], env)
        wine.stdin.close()


def run_plan(tally, plan, lint):
    """Everything at once on all cores, the longest first; then the lint, which keeps all cores busy by itself."""
    native = [program for program in plan.programs if program.part == "native"]
    windows = [program for program in plan.programs if program.part != "native"]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count() + 1) as pool:
        started = [pool.submit(run_windows, tally, windows)] if windows else []
        for program in sorted(native, key=lambda one: "faults" not in one.name):
            started.append(pool.submit(run_gtest, tally, program, [str(program.path)], SANITIZERS))
        started += [pool.submit(run_rule, tally, script, lint) for script in plan.rules if script.name not in LINT]
        for result in started:
            result.result()
    for script in plan.rules:
        if script.name in LINT:
            run_rule(tally, script, lint)


def main():
    words = [word for word in sys.argv[1:] if not word.startswith("--")]
    options = set(sys.argv[1:]) - set(words)
    if options - {"--lint"}:
        sys.exit(f"unknown: {' '.join(sorted(options - {'--lint'}))}\n{__doc__}")
    try:
        plan = test_plan.plan_for(words) if words else test_plan.whole_plan()
        if words:
            plan.build()
        else:
            test_plan.build_everything()
    except subprocess.CalledProcessError as error:
        sys.exit(f"{error}\n0 passed, 1 failed")
    if not plan.programs and not plan.rules:
        sys.exit(f"nothing is named like {' or '.join(words)}\n0 passed, 1 failed")
    RESULTS.mkdir(parents=True, exist_ok=True)
    tally = Tally()
    run_plan(tally, plan, "--lint" in options)
    return tally.finish()


if __name__ == "__main__":
    sys.exit(main())
