#!/usr/bin/env python3
"""Includes follow the link lists, link lists make no circle, and the forms do not know each other."""

import re
from pathlib import PurePosixPath

from project import CODE, ROOT, files, finish, numbered, targets

INCLUDE = re.compile(r'\s*#\s*include\s+"([^"]+)"')
FORMS = {"summary", "editor", "location"}


def libraries_by_folder(all_targets):
    """Folder -> the libraries declared in it; test programs are free to use everything."""
    folders = {}
    for target in all_targets.values():
        if target["dir"] and not target["dir"].startswith(("tests", "benches")):
            folders.setdefault(target["dir"], []).append(target)
    return folders


def folder_of(name, folders):
    """The nearest folder above a file that declares a library."""
    return next((parent for parent in parents(name) if parent in folders), None)


def parents(name):
    return [str(parent) for parent in PurePosixPath(name).parents if str(parent) != "."]


def bad_includes(folders):
    allowed = {}
    by_library = {t["target"]: folder for folder, ts in folders.items() for t in ts}
    for folder, declared in folders.items():
        links = {link for target in declared for link in target["links"]}
        allowed[folder] = {by_library[link] for link in links if link in by_library} | {folder}
    for name in files(*CODE):
        for number, line in numbered(name):
            match = INCLUDE.match(line)
            if not match:
                continue
            included = match.group(1)
            place = f"{name}:{number}: "
            if "/" not in included:
                # Generated from IDL or resource numbers, not a file of the tree.
                if any((ROOT / folder / included).is_file() for folder in [*folders, *parents(name)]):
                    yield place + f'"{included}" is to be included from the root, with its folder'
                continue
            if not (ROOT / included).is_file():
                yield place + f'"{included}" does not exist'
                continue
            source, goal = folder_of(name, folders), folder_of(included, folders)
            if source and goal and goal not in allowed[source]:
                yield place + f'{source} includes "{included}" but does not link {goal}'
            if source and not goal and included.startswith(("tests/", "benches/")):
                yield place + f"{source} must not include {included}"


def circles(all_targets):
    """Walks the link lists; a target met again on its own way down is a circle."""
    done = set()

    def walk(name, way):
        if name in way:
            yield "circle of libraries: " + " -> ".join([*way[way.index(name):], name])
            return
        if name in done or name not in all_targets:
            return
        for link in all_targets[name]["links"]:
            yield from walk(link, [*way, name])
        done.add(name)

    for name in all_targets:
        yield from walk(name, [])


def linked_forms(folders):
    for form in FORMS & set(folders):
        for target in folders[form]:
            for other in (FORMS - {form}) & set(target["links"]):
                yield f"{form} links {other}: forms open each other through callbacks only"


def main():
    all_targets = targets()
    folders = libraries_by_folder(all_targets)
    finish([*bad_includes(folders), *circles(all_targets), *linked_forms(folders)])


main()
