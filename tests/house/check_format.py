#!/usr/bin/env python3
"""Every C++ file is laid out as .clang-format says."""

import concurrent.futures
import os
import subprocess

from project import CODE, ROOT, files, finish


def problems_of(names):
    done = subprocess.run(["clang-format", "--dry-run", "--Werror", "--style=file", *names], cwd=ROOT,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    output = done.stdout.decode("utf-8", "replace")
    if done.returncode != 0 and "error:" not in output:
        return [output]
    unlike = dict.fromkeys(line.split(":")[0] for line in output.splitlines() if "error:" in line)
    return [f"{name} is not laid out as clang-format -i would" for name in unlike]


def main():
    names = files(*CODE)
    parts = [names[start:start + 20] for start in range(0, len(names), 20)]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        finish([problem for found in pool.map(problems_of, parts) for problem in found])


main()
