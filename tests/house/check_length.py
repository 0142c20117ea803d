#!/usr/bin/env python3
"""One topic a file: code stays under 300 lines, tests and scripts under 500; lines stay within 120 characters."""

from project import CODE, files, finish, text


def main():
    problems = []
    for name in files(*CODE, ".py", ".cmake", "CMakeLists.txt"):
        lines = text(name).splitlines()
        limit = 500 if name.startswith(("tests/", "benches/", "tools/")) else 300
        if len(lines) >= limit:
            problems.append(f"{name}: {len(lines)} lines, to be split below {limit}")
        for number, line in enumerate(lines, 1):
            if len(line) > 120:
                problems.append(f"{name}:{number}: {len(line)} characters")
    finish(problems)


main()
