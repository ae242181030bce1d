"""The work of scripts/mutate."""

import json
import os
import queue
import re
import resource
import shutil
import signal
import subprocess
import sys
import threading
import time
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass, field
from pathlib import Path

HOUSE = Path(__file__).resolve().parent.parent
COMPONENT = "ZRKCVSManager"
LISTS = HOUSE / "tests" / "mutations"
COPIES = HOUSE / "build" / "mutate"
# By mutation, the test that noticed it last.
NOTICED = COPIES / "noticed.json"
# A run may take this many times as long as without a mutation, and this many seconds more.
TIME_FACTOR = 3
TIME_ALLOWANCE = 20
# A test of a room that takes longer, in seconds, waits for the run of all: it would hold up every mutation.
SLOW_TEST = 1
# What a program that never stops writing may take of the disk.
FILE_LIMIT = 256 << 20


@dataclass
class Mutation:
    file: str
    title: str
    original: list = field(default_factory=list)
    replacement: list = field(default_factory=list)
    reason: list = field(default_factory=list)

    @property
    def path(self):
        return f"{COMPONENT}/{self.file}"

    @property
    def name(self):
        return f"{self.file}: {self.title}"

    @property
    def room(self):
        return self.file.split("/")[0]

    def apply(self, text):
        """The file with the mutation; None when the original does not stand there exactly once."""
        original = "\n".join(self.original)
        if not original or text.count(original) != 1:
            return None
        return text.replace(original, "\n".join(self.replacement))


def read_list(path):
    mutations = []
    file = None
    current = None
    for number, line in enumerate(path.read_text().splitlines(), 1):
        kind, text = line[:1], line[2:]
        if not line.strip():
            current = None
        elif line.startswith("== "):
            file = line[3:].strip()
        elif kind == "#":
            pass
        elif current is None:
            current = Mutation(file, line)
            mutations.append(current)
        elif kind in "-+=":
            {"-": current.original, "+": current.replacement, "=": current.reason}[kind].append(text)
        else:
            sys.exit(f"{path.name}:{number}: neither a text nor a reason: {line}")
    return mutations


def wanted_mutations(names):
    mutations = [m for path in sorted(LISTS.glob("*.txt")) for m in read_list(path)]
    if not names:
        return mutations
    chosen = []
    for name in names:
        path = Path(name).resolve()
        found = [m for m in mutations if path in [HOUSE / m.path, *(HOUSE / m.path).parents]]
        if not found:
            sys.exit(f"mutate: no mutation of {name}")
        chosen += [m for m in found if m not in chosen]
    return chosen


def synchronize(source, target, left_out=()):
    """Makes the target the same as the source, without touching what is the same already."""
    target.mkdir(parents=True, exist_ok=True)
    entries = {entry.name: entry for entry in os.scandir(source) if entry.name not in left_out}
    for there in os.scandir(target):
        if there.name not in entries:
            shutil.rmtree(there.path) if there.is_dir() else os.remove(there.path)
    for name, entry in entries.items():
        there = target / name
        if entry.is_dir():
            synchronize(Path(entry.path), there)
        elif not there.exists() or there.read_bytes() != Path(entry.path).read_bytes():
            shutil.copy(entry.path, there)


def limit_files():
    resource.setrlimit(resource.RLIMIT_FSIZE, (FILE_LIMIT, FILE_LIMIT))


class Copy:
    """A tree in which one mutation at a time is built and tested."""

    def __init__(self, number):
        self.folder = COPIES / str(number)
        self.source = self.folder / "source"
        self.build = self.folder / "build"
        self.temporary = self.folder / "tmp"
        self.log = self.folder / "log"
        self.times = self.folder / "times.json"
        self.filters = {"*": "*"}
        self.baselines = {}
        self.process = None
        self.stopped = False

    def prepare(self):
        synchronize(HOUSE, self.source, left_out={"build", ".git"})
        # Building takes most of the time, so nothing is optimized, and the linker is the fastest there is; a
        # mutation may leave a variable unused. The tests are not listed after each build.
        configured = self.run(["cmake", "-S", self.source, "-B", self.build, "-G", "Ninja",
                               "-DCMAKE_BUILD_TYPE=", "-DCMAKE_CXX_FLAGS=-O0 -w",
                               "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld",
                               "-DCMAKE_SHARED_LINKER_FLAGS=-fuse-ld=lld",
                               "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST"])
        if configured != 0 or not self.make(os.cpu_count()):
            sys.exit(f"mutate: the tree does not build as it is: {self.log}")

    def run(self, command, time_limit=None):
        """Its exit code; None when it took too long."""
        shutil.rmtree(self.temporary, ignore_errors=True)
        self.temporary.mkdir()
        environment = {**os.environ, "TMPDIR": str(self.temporary)}
        with open(self.log, "wb") as log:
            self.process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=log, stderr=log,
                                            env=environment, cwd=self.folder, start_new_session=True,
                                            preexec_fn=limit_files)
            try:
                return self.process.wait(time_limit)
            except subprocess.TimeoutExpired:
                return None
            finally:
                # Also the clients that a test left behind.
                self.kill()
                self.process.wait()

    def kill(self):
        try:
            os.killpg(self.process.pid, signal.SIGKILL)
        except (AttributeError, ProcessLookupError):
            pass

    def stop(self):
        self.stopped = True
        self.kill()

    def make(self, jobs=1):
        return self.run(["cmake", "--build", self.build, "--target", "component_tests", "-j", str(jobs)]) == 0

    def test(self, names, time_limit=None):
        """What failed of the tests of these names; None when they pass."""
        code = self.run([self.build / "bin" / "component_tests", "--gtest_brief=1", "--gtest_fail_fast",
                         f"--gtest_output=json:{self.times}", f"--gtest_filter={names}"], time_limit)
        if code == 0:
            return None
        failed = re.search(r"\[  FAILED  \] (\S+?),? ", self.log.read_text(errors="replace"))
        if failed:
            return failed[1]
        return "a run without end" if code is None else f"the end of the program ({code})"

    def test_within_time(self, room, names=None):
        """What failed of the room's quick tests, with "*" of all, or of these; in a time that goes by what the
        room's take without a mutation."""
        return self.test(names or self.filters[room], self.baselines[room] * TIME_FACTOR + TIME_ALLOWANCE)

    def measure(self, room):
        start = time.monotonic()
        failed = self.test(self.filters[room])
        if failed:
            sys.exit(f"mutate: the tests fail without any mutation: {failed}")
        self.baselines[room] = time.monotonic() - start

    def measure_all(self, rooms):
        """Finds which tests are quick, and how long they take; good for all copies."""
        self.measure("*")
        slow = ":".join(slow_tests(self.times))
        for room in rooms:
            quick = filter_of(self.source / "tests" / "component" / room)
            self.filters[room] = f"{quick}-{slow}"
            self.measure(room)

    def try_out(self, mutation, likely):
        """(verdict, what noticed it); the tests of the names `likely` run first."""
        path = self.source / mutation.path
        original = path.read_text() if path.exists() else ""
        mutated = mutation.apply(original)
        if mutated is None:
            return "stale", None
        path.write_text(mutated)
        try:
            if not self.make():
                return "not built", None
            failed = likely and self.test_within_time(mutation.room, ":".join(sorted(likely)))
            failed = failed or self.test_within_time(mutation.room) or self.test_within_time("*")
            return ("noticed" if failed else "unnoticed"), failed
        finally:
            path.write_text(original)


def filter_of(folder):
    """The filter of the suites that stand in a folder of the tests."""
    suites = set()
    for path in folder.glob("*.cpp"):
        suites.update(re.findall(r"^(?:TYPED_)?TEST(?:_[FP])?\((\w+),", path.read_text(), re.MULTILINE))
    return ":".join(f"{suite}.*:*/{suite}.*:{suite}/*" for suite in sorted(suites))


def slow_tests(times):
    """What took long in the run of which these are the times."""
    return [f"{suite['name']}.{test['name']}" for suite in json.loads(times.read_text())["testsuites"]
            for test in suite["testsuite"] if float(test["time"].rstrip("s")) > SLOW_TEST]


def judge(mutation, verdict):
    """(what is printed of the mutation, whether it is as it should be)"""
    if mutation.reason and verdict == "unnoticed":
        return "no change", True
    if mutation.reason and verdict == "noticed":
        return "noticed all the same", False
    return verdict, verdict == "noticed"


def likely_tests(mutation, noticed):
    """What noticed it last time; without one, what noticed others of the same file."""
    if mutation.name in noticed:
        return {noticed[mutation.name]}
    return {test for name, test in noticed.items() if name.startswith(mutation.file + ": ")}


def work(copy, tasks, noticed, report):
    while not copy.stopped:
        try:
            mutations = tasks.get_nowait()
        except queue.Empty:
            return
        for mutation in mutations:
            if copy.stopped:
                return
            report(mutation, *copy.try_out(mutation, likely_tests(mutation, dict(noticed))))


def main():
    mutations = wanted_mutations(sys.argv[1:])
    by_file = {}
    for mutation in mutations:
        by_file.setdefault(mutation.file, []).append(mutation)

    copies = [Copy(number) for number in range(1, min(os.cpu_count(), len(by_file)) + 1)]
    rooms = {mutation.room for mutation in mutations}
    for copy in copies:
        copy.prepare()
    copies[0].measure_all(rooms)
    for copy in copies[1:]:
        copy.filters, copy.baselines = copies[0].filters, copies[0].baselines

    # The largest first, so that all processors end at about the same time.
    tasks = queue.Queue()
    for group in sorted(by_file.values(), key=len, reverse=True):
        tasks.put(group)
    counts = {}
    wrong = []
    noticed = json.loads(NOTICED.read_text()) if NOTICED.exists() else {}
    lock = threading.Lock()

    def report(mutation, verdict, failed):
        word, is_right = judge(mutation, verdict)
        remark = failed or " ".join(mutation.reason)
        line = f"{word:<10} {mutation.name}" + (f"  [{remark}]" if remark else "")
        with lock:
            counts[word] = counts.get(word, 0) + 1
            if failed and " " not in failed:
                noticed[mutation.name] = failed
                NOTICED.write_text(json.dumps(noticed, indent=1))
            if not is_right:
                wrong.append(line)
            print(line, flush=True)

    with ThreadPoolExecutor(len(copies)) as pool:
        try:
            for worker in [pool.submit(work, copy, tasks, noticed, report) for copy in copies]:
                worker.result()
        except BaseException:
            for copy in copies:
                copy.stop()
            raise

    figures = ", ".join(f"{count} {word}" for word, count in sorted(counts.items()))
    print(f"\n{len(mutations)} mutations: {figures}")
    if wrong:
        print("\n".join(["", "To be mended:", *wrong]))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
