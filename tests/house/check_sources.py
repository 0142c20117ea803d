#!/usr/bin/env python3
"""Every source file is built, and by one target alone."""

from project import ROOT, files, finish, targets


def sources_of(preset):
    for target in targets(preset).values():
        for source in target["sources"]:
            path = (ROOT / target["dir"] / source).resolve()
            if path.is_relative_to(ROOT):
                yield target["target"], path.relative_to(ROOT).as_posix()


def main():
    problems = []
    built = set()
    for preset in ("native-sanitize", "windows-x64"):
        owners = {}
        for target, source in sources_of(preset):
            if source.endswith(".cpp"):
                owners.setdefault(source, []).append(target)
        built |= set(owners)
        for source, names in sorted(owners.items()):
            if len(names) > 1:
                problems.append(f"{source} is listed by {' and '.join(sorted(names))} ({preset})")
    for source in files(".cpp"):
        if source not in built:
            problems.append(f"{source} is built by nobody")
    finish(problems)


main()
