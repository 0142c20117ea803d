"""Which programs, cases and house rules a run of the tests looks at, and what must be built for them."""

import dataclasses
import json
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PRESETS = {"native": "native-sanitize", "windows-x64": "windows-x64", "windows-x86": "windows-x86"}
CASE = re.compile(r"^(?:TYPED_)?TEST(?:_F|_P)?\(\s*(\w+)\s*,\s*(\w+)\s*\)", re.MULTILINE)


@dataclasses.dataclass
class Program:
    """A test program of one build; `cases` are the wanted ones, or all of them when there are none."""
    part: str
    target: str
    sources: list
    cases: list = dataclasses.field(default_factory=list)

    @property
    def name(self):
        return f"{self.part}/{re.sub('^(win)?test_', '', self.target)}"

    @property
    def path(self):
        return ROOT / "build" / PRESETS[self.part] / "tests" / (self.target + ("" if self.part == "native" else ".exe"))

    def cases_with(self, word):
        texts = [source.read_text("utf-8") for source in self.sources]
        found = [f"{suite}.{case}" for text in texts for suite, case in CASE.findall(text)]
        return [case for case in found if word in case.lower()]


@dataclasses.dataclass
class Plan:
    programs: list
    rules: list

    def build(self):
        """Builds what the plan needs; raises CalledProcessError when something cannot be built."""
        for part, preset in PRESETS.items():
            targets = [program.target for program in self.programs if program.part == part]
            if targets:
                print(f"== building {preset}", file=sys.stderr, flush=True)
                subprocess.run([ROOT / "tools/build", preset, *targets, *(["dist"] if part != "native" else [])],
                               check=True)


def house_rules():
    return {f"house/{script.stem[6:]}": script for script in sorted((ROOT / "tests/house").glob("check_*.py"))}


def all_programs():
    for part, preset in PRESETS.items():
        for target in json.loads((ROOT / "build" / preset / "rooms.json").read_text("utf-8")):
            if target["type"] == "EXECUTABLE" and re.match("(win)?test_", target["target"]):
                folder = ROOT / target["dir"]
                sources = [folder / source for source in target["sources"] if source.endswith("_test.cpp")]
                if target["target"] != "test_headers":
                    yield Program(part, target["target"], sources)


def plan_for(words):
    """A word that names a program or a rule stands for all of it; any other for the cases whose name contains it.

    A program's name in full is that program alone, though other names may begin with it.
    """
    subprocess.run([ROOT / "tools/build", "--configure", *PRESETS.values()], check=True)
    programs = list(all_programs())
    rules = house_rules()
    whole, single = {}, {}
    wanted_rules = []
    for word in map(str.lower, words):
        named = ([program for program in programs if word == program.name] or
                 [program for program in programs if word in program.name])
        ruled = [name for name in rules if word in name]
        wanted_rules += ruled
        whole |= {program.name: program for program in named}
        if not named and not ruled:
            for program in programs:
                cases = program.cases_with(word)
                if cases:
                    single.setdefault(program.name, program).cases += cases
    chosen = list(({name: program for name, program in single.items() if name not in whole} | whole).values())
    for program in whole.values():
        program.cases = []
    return Plan(chosen, [rules[name] for name in dict.fromkeys(wanted_rules)])


def whole_plan():
    subprocess.run([ROOT / "tools/build", "--configure", *PRESETS.values()], check=True)
    return Plan(list(all_programs()), [script for name, script in house_rules().items()])


def build_everything():
    """Everything that is built anywhere, tested or not: the shipped programs, the tests and the benchmarks."""
    subprocess.run([ROOT / "tools/dist"], check=True)
    for preset in PRESETS.values():
        print(f"== building {preset}", file=sys.stderr, flush=True)
        subprocess.run([ROOT / "tools/build", preset], check=True)
