#!/usr/bin/env python3
"""Runs the rooms' benchmarks and prints their ratios.

Usage: rooms.py [NAME...]     only the programs whose name contains a name
"""

import json
import pathlib
import subprocess
import sys

from table import print_table

ROOT = pathlib.Path(__file__).resolve().parent.parent
# What the benchmark library says of every benchmark; the rest are the counters that ours set.
OF_THE_LIBRARY = {"name", "family_index", "per_family_instance_index", "run_name", "run_type", "repetitions",
                  "repetition_index", "threads", "iterations", "real_time", "cpu_time", "time_unit"}


def rows_of(program):
    said = subprocess.run([program, "--benchmark_format=json"], check=True, stdout=subprocess.PIPE).stdout
    for run in json.loads(said)["benchmarks"]:
        if run.get("error_occurred"):
            sys.exit(f"{run['name']}: {run['error_message']}")
        cost = f"{run['real_time']:.1f} {run['time_unit']}"
        for counter, value in run.items():
            if counter not in OF_THE_LIBRARY:
                ratio = f"{value:.2f}" if "_to_" in counter else ""
                yield run["name"], cost, counter if ratio else f"{counter} {value:g}", ratio, ""


def main():
    subprocess.run([ROOT / "tools/build", "native", "bench"], check=True)
    programs = sorted((ROOT / "build/native/benches").glob("bench_*"))
    wanted = [program for program in programs if not sys.argv[1:] or any(name in program.name for name in sys.argv[1:])]
    print_table([row for program in wanted if program.is_file() for row in rows_of(program)])


if __name__ == "__main__":
    main()
