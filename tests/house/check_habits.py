#!/usr/bin/env python3
"""Habits that the code does without, each with the place where it is allowed after all."""

import os
import re

from project import CODE, ROOT, files, finish, numbered, text

# The guard turns an error into a report; at the boundaries nothing may pass into foreign code.
CATCHERS = ("base/", "database/", "common/", "component/", "addin/", "win32/", "driver/", "host/", "site/", "tests/",
            "benches/", "tools/")
PRINTERS = ("host/", "site/", "tests/", "benches/", "tools/")
OUTSIDE = ("host/", "driver/", "site/", "tests/", "benches/", "tools/")
BOUNDARIES = ("win32/", "addin/", "driver/", "host/", "tests/")
CLOCK = r"(\bGetTickCount\(|\w+_clock\b|\bQueryPerformanceCounter|\bclock_gettime|\btimeGetTime)"

RULES = [
    (r"\bcatch\s*\(", lambda name: not name.startswith(CATCHERS), "an error is caught by the guard, not here"),
    (r"\b(sleep_for|sleep_until|usleep|nanosleep|Sleep|SleepEx)\s*\(",
     lambda name: name.startswith("tests/"),
     "a test waits for what it expects, not for a time"),
    (CLOCK, lambda name: name.startswith("tests/") and not name.startswith("tests/windows/"),
     "a native test needs no clock"),
    (rf"\b(EXPECT|ASSERT)_(LT|LE|GT|GE|NEAR)\(.*({CLOCK}|std::chrono|\b(elapsed|passed)\b)",
     lambda name: name.startswith("tests/"),
     "speed is shown by a benchmark, never by a test"),
    (r"\bDISABLED_|\bGTEST_SKIP\b", lambda name: name.startswith("tests/") and not name.startswith("tests/windows/"),
     "a test runs"),
    (r"\bNOLINT\w*(?!\w*\([a-z])", lambda name: True, "name the check that is silenced"),
    (r"\b(TODO|FIXME|XXX|HACK)\b", lambda name: True, "finish it, or write down elsewhere that it is open"),
    (r"\busing\s+namespace\s+std\s*;", lambda name: True, "no using namespace std"),
    (r"#\s*pragma\s+GCC\s+diagnostic\s+ignored", lambda name: not name.startswith(BOUNDARIES),
     "mend the warning"),
    # Everything happens on the host's thread, in the host's time.
    (r"\bstd::(thread|jthread|async|packaged_task|mutex|\w+_mutex|condition_variable\w*)\b"
     r"|\b(_?beginthread(ex)?|CreateThread|CreateRemoteThread\w*|QueueUserWorkItem|QueueUserAPC\w*"
     r"|\w+Threadpool\w+|RegisterWaitForSingleObject\w*|CriticalSection|CRITICAL_SECTION|SRWLOCK\w*)\b"
     r"|\b(SetTimer|SetCoalescableTimer|timeSetEvent|\w*WaitableTimer\w*|CreateTimerQueue\w*|WM_TIMER)\b",
     lambda name: not name.startswith(OUTSIDE), "the component makes no thread, no timer and no lock"),
    (r"\b(printf|std::cout|std::cerr)\b", lambda name: not name.startswith(PRINTERS),
     "the component does not print"),
]


def code_problems(name):
    for number, line in numbered(name):
        for pattern, applies, advice in RULES:
            if applies(name) and re.search(pattern, line):
                yield f"{name}:{number}: {advice}: {line.strip()}"
    if name.endswith(".h") and "#pragma once" not in text(name):
        yield f"{name}: no #pragma once"
    own_header = (ROOT / name).with_suffix(".h")
    if not text(name).startswith("//") and (name.endswith(".h") or not own_header.is_file()):
        yield f"{name}: begins with a line that says what it is for"


def names_of_cases(name):
    """Suites and cases of tests are named in PascalCase."""
    for case in re.finditer(r"^(?:TEST|TEST_F|TEST_P|TYPED_TEST|TYPED_TEST_P)\(\s*(\w+),\s*(\w+)\)", text(name), re.M):
        if not all(re.fullmatch(r"[A-Z][A-Za-z0-9]*", part) for part in case.groups()):
            line = text(name).count("\n", 0, case.start()) + 1
            yield f"{name}:{line}: a test is named TEST(Suite, Behaviour): {case[0]}"


def places_of_this_machine(name):
    """Absolute paths of whoever works on the project do not belong into it."""
    local = {str(ROOT), os.path.expanduser("~")} - {"/"}
    try:
        lines = list(numbered(name))
    except UnicodeDecodeError:
        return
    for number, line in lines:
        foreign = re.search(r"/(home|Users)/\w+/", line)
        if foreign or any(re.search(re.escape(path) + r"(/|\b)", line) for path in local):
            yield f"{name}:{number}: a path of one machine: {line.strip()}"


def main():
    problems = [problem for name in files(*CODE) for problem in code_problems(name)]
    problems += [problem for name in files(*CODE, under="tests/") for problem in names_of_cases(name)]
    problems += [problem for name in files() for problem in places_of_this_machine(name)]
    finish(problems)


main()
