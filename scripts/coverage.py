"""The work of scripts/coverage.

tests/unreached.txt lists what no test can reach, by its text:

  == tools/Pipe.h                        the file, below ZRKCVSManager/

  - return false;                        a line that is never reached
  - never true: !frame                   a condition of which one side is never taken
  = why no test can reach them
"""

import collections
import json
import os
import subprocess
import sys
from pathlib import Path

HOUSE = Path(__file__).resolve().parent.parent
COMPONENT = HOUSE / "ZRKCVSManager"
REASONS = HOUSE / "tests" / "unreached.txt"
BUILD = HOUSE / "build" / "coverage"
PROFILES = BUILD / "profiles"
# Branches of the source as it is written: the compiler's own, for exceptions, are not among them.
FLAGS = "-O0 -w -fprofile-instr-generate -fcoverage-mapping"


def build_and_run():
    quietly = HOUSE / "scripts" / "logged"
    subprocess.run([quietly, "cmake", "-S", HOUSE, "-B", BUILD, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=",
                    "-DCMAKE_CXX_COMPILER=clang++", f"-DCMAKE_CXX_FLAGS={FLAGS}",
                    "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST"], check=True)
    subprocess.run([quietly, "cmake", "--build", BUILD, "--target", "component_tests"], check=True)
    PROFILES.mkdir(exist_ok=True)
    for old in PROFILES.iterdir():
        old.unlink()
    # One profile for each process: tests whose process ends on purpose start others.
    environment = {**os.environ, "LLVM_PROFILE_FILE": str(PROFILES / "%p.profraw")}
    subprocess.run([quietly, BUILD / "bin" / "component_tests", "--gtest_brief=1"], env=environment,
                   check=True)
    profiles = [path for path in PROFILES.glob("*.profraw") if path.stat().st_size > 0]
    subprocess.run(["llvm-profdata", "merge", "-sparse", "-o", PROFILES / "all.profdata", *profiles],
                   check=True)


def export(form):
    return subprocess.run(["llvm-cov", "export", f"-format={form}", "-skip-functions", "-instr-profile",
                           PROFILES / "all.profdata", BUILD / "bin" / "component_tests", COMPONENT],
                          check=True, stdout=subprocess.PIPE, text=True).stdout


def read_lines():
    """By file, how often each line of code was reached."""
    counts = {}
    for entry in export("lcov").splitlines():
        key, _, value = entry.partition(":")
        if key == "SF":
            current = counts.setdefault(Path(value).resolve(), {})
        elif key == "DA":
            line, count = value.split(",")[:2]
            current[int(line)] = int(count)
    return counts


def read_branches():
    """By file, how often each condition, by its place, was true and false."""
    counts = {}
    for file in json.loads(export("text"))["data"][0]["files"]:
        current = counts.setdefault(Path(file["filename"]).resolve(), {})
        # A template has its conditions once for each use.
        for *place, were_true, were_false, _, _, _ in file["branches"]:
            before = current.get(tuple(place), (0, 0))
            current[tuple(place)] = (before[0] + were_true, before[1] + were_false)
    return counts


def text_at(source, place):
    first_line, first_column, last_line, last_column = place
    lines = source[first_line - 1:last_line]
    lines[-1] = lines[-1][:last_column - 1]
    lines[0] = lines[0][first_column - 1:]
    return " ".join(line.strip() for line in lines)


def read_reasons():
    """By file and text, the reasons for what is not reached."""
    reasons = collections.defaultdict(list)
    file = None
    texts, reason = [], []
    for line in [*(REASONS.read_text().splitlines() if REASONS.exists() else []), ""]:
        if line.startswith("== "):
            file = line[3:].strip()
        elif line.startswith("- "):
            texts.append(line[2:])
        elif line.startswith("= "):
            reason.append(line[2:])
        elif not line.strip():
            for text in texts:
                reasons[file, text].append(" ".join(reason))
            texts, reason = [], []
        elif file is not None:
            sys.exit(f"{REASONS.name}: neither a text nor a reason: {line}")
    return reasons


def percentage(reached, count):
    return f"{100 * reached / count:6.1f}%" if count else "      -"


def main():
    build_and_run()
    lines, branches = read_lines(), read_branches()
    reasons = read_reasons()
    unreached = []
    totals = [0, 0, 0, 0]
    print(f"{'lines':>14} {'branches':>16}")

    def show(name, counts):
        line_part = f"{counts[0]:>5}/{counts[1]:<5}{percentage(counts[0], counts[1])}"
        print(f"{line_part} {counts[2]:>5}/{counts[3]:<5}{percentage(counts[2], counts[3])}  {name}")

    for file in sorted(path for path in lines if COMPONENT in path.parents):
        name = str(file.relative_to(COMPONENT))
        source = file.read_text().splitlines()
        of_file = lines[file]
        sides = branches.get(file, {})
        taken = sum((true > 0) + (false > 0) for true, false in sides.values())
        counts = [sum(count > 0 for count in of_file.values()), len(of_file), taken, 2 * len(sides)]
        totals = [total + count for total, count in zip(totals, counts)]
        show(name, counts)
        unreached += [(name, number, source[number - 1].strip())
                      for number, count in sorted(of_file.items()) if count == 0]
        for place, (true, false) in sorted(sides.items()):
            for side, count in (("true", true), ("false", false)):
                if count == 0:
                    unreached.append((name, place[0], f"never {side}: {text_at(source, place)}"))
    show("all", totals)

    without_reason = 0
    print("\nNot reached:")
    for name, number, text in unreached:
        known = reasons[name, text]
        reason = known.pop(0) if known else "NO REASON"
        without_reason += reason == "NO REASON"
        print(f"{name}:{number}: {text}  [{reason}]")
    not_needed = [key for key, left in reasons.items() for _ in left]
    for name, text in not_needed:
        print(f"{REASONS.name}: {name}: is reached, or is not there any more: {text}")
    return 1 if without_reason or not_needed else 0


if __name__ == "__main__":
    sys.exit(main())
