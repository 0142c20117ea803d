#!/usr/bin/env python3
"""What a product header declares, the product uses: a function that nobody calls, or tests alone, goes."""

import re
from collections import Counter
from pathlib import PurePosixPath

from project import CODE, files, finish, text

ELSEWHERE = ("tests/", "benches/")
# Made for the tests as much as for the product.
SHARED = ("driver/",)

# name -> why it stands without a caller in the product.
EXCEPTIONS = {
    "GetAddInID": "a procedure of the contract that no member calls",
    "GetFilterIndexByEventID": "a procedure of the contract that no window calls",
    "ZornGetFilterIndexByEventID": "a procedure of the contract that no window calls",
    "addedCount": "the contract has the picker count what it added, and nobody ask for it",
    "cancelButton": "a form tells its two buttons; the keyboard asks for the default one alone",
    "commandCall": "a command as the component hands it over, for tests to compare with",
    "copyInMemory": "the site database serves tests and benchmarks, too",
    "emptySite": "the site database serves tests and benchmarks, too",
    "inMemory": "the site database serves tests and benchmarks, too",
    "vendorType": "what the recorder's panel found out, which no control shows",
}

COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/", re.DOTALL)
LITERAL = re.compile(r'R"\(.*?\)"|"(?:\\.|[^"\\\n])*"', re.DOTALL)
WORD = re.compile(r"[A-Za-z_]\w*")
# A name before its parameters, after the type that it gives; constructors and macros give none. What has a lone value
# between its brackets is a variable that is constructed.
DECLARED = re.compile(
    r"^\s*(?:\[\[\w+\]\]\s*)?(?:template\s*<[^;{}]*?>\s*)?"
    r"(?:(?:static|virtual|inline|constexpr|explicit|friend|const|unsigned)\s+)*"
    r"[A-Za-z_][\w:]*(?:<[^;(){}]*>)?(?:::\w+)?(?:\s+const)?[\s*&]+(?P<name>[A-Za-z_]\w*)\s*\("
    r"(?!\*?(?!int|bool|double|long|char)[a-z]\w*\))", re.MULTILINE)
NO_TYPES = {"return", "throw", "new", "delete", "else", "case", "using", "namespace", "goto", "define", "if"}


def code_of(name):
    return LITERAL.sub('""', COMMENT.sub("", text(name)))


def declared_in(code):
    for match in DECLARED.finditer(code):
        first = WORD.search(match.group(0)).group(0)
        # Who overrides is called through what it overrides.
        rest = code[match.end():match.end() + 300]
        head = re.split(r"[;{]", rest, maxsplit=1)[0]
        if first in NO_TYPES or re.search(r"\b(override|final)\b", head):
            continue
        yield match.group("name")


def definitions_of(name, code):
    """Where it is declared or defined: a type stands before the name, which a call has not."""
    pattern = (rf"^(?![ \t]*(?:return|throw|else|case|co_return)\b)[ \t]*[A-Za-z_\[][\w:<>,*&\[\] \t]*[ \t\n*&]"
               rf"(?:\w+::)*{name}\s*\(")
    return len(re.findall(pattern, code, re.MULTILINE))


def main():
    product = {name: code_of(name) for name in files(*CODE) if not name.startswith(ELSEWHERE)}
    words = Counter()
    for code in product.values():
        words.update(WORD.findall(code))
    problems = []
    seen = set()
    for header, code in product.items():
        if not header.endswith(".h") or header.startswith(SHARED):
            continue
        for name in declared_in(code):
            if name in seen or name in EXCEPTIONS:
                continue
            seen.add(name)
            definitions = sum(definitions_of(name, other) for other in product.values() if name in other)
            if words[name] <= definitions:
                problems.append(f"{header}: {name} is used by nothing but tests")
    for name in EXCEPTIONS:
        if name not in seen and not any(name in declared_in(c) for c in product.values()):
            problems.append(f"{PurePosixPath(__file__).name}: {name} is excepted and no longer there")
    finish(sorted(problems))


main()
