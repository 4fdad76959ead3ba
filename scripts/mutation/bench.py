"""A copy of the tree in which one change at a time is built and tested."""

import collections
import json
import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import time

Verdict = collections.namedtuple("Verdict", "word program test")
KILLED, TIMED_OUT, SURVIVED, NOT_COMPILED = "killed", "timed out", "survived", "did not compile"

# The native build, so that the compiler's cache knows most of it; quicker to link, and what is changed quicker to compile.
OPTIONS = [
    "--preset=native",
    "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld",
    "-DCMAKE_MODULE_LINKER_FLAGS=-fuse-ld=lld",
    "-Wno-dev",
]
CHANGED_FLAGS = "-O0 -w"
BUILD_SECONDS = 1200
LEAST_SECONDS = 30.0  # for the tests of a program
# A changed program may allocate or write without end.
LIMITS = ["prlimit", "--as=8589934592", "--fsize=1073741824", "--core=0", "--"]


class BenchError(Exception):
    pass


class Program:
    """A test program, with the sources it is made of."""

    def __init__(self, name, path):
        self.name, self.path = name, path
        self.sources = []
        self.seconds = 0.0

    def distance(self, file):
        """How likely its tests are to notice a change of a file of src/: the smaller, the likelier."""
        folder = file.parent.parts[1 if file.parts[0] == "src" else 0 :]
        own = [source for source in self.sources if source.parent.parts[: len(folder) + 1] == ("tests", *folder)]
        if any(source.stem == f"tst_{file.stem.lower()}" for source in self.sources):
            return 0, self.seconds
        return 1 if own else 2, self.seconds


class Bench:
    def __init__(self, folder):
        self.folder = folder
        self.tree = folder / "tree"
        self.tree.mkdir(parents=True, exist_ok=True)
        self.build = self.tree / "build" / "native"
        # In memory where there is some: the tests write many small files and wait for none to reach a disk.
        memory = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
        self._scratch = tempfile.TemporaryDirectory(prefix="mutants-", dir=memory)
        self.programs = []
        self._process = None

    def end(self):
        """Also ends what still runs."""
        if self._process:
            self._end(self._process)
        self._scratch.cleanup()

    def prepare(self, root, files):
        """Brings the copy up to date and builds its tests, which must pass. Keeps what is up to date already."""
        self._copy(root, files)
        if not (self.build / "build.ninja").exists():
            launcher = self.tree / "scripts" / "mutation" / "compiler"
            self._must(["cmake", *OPTIONS, f"-DCCACHE={launcher}"])
        self._must(["cmake", "--build", self.build, "--target", "build.ninja"])
        self.programs = self._list_programs()
        self._must(["ninja", "-C", self.build, *(program.name for program in self.programs)])
        for program in self.programs:
            began = time.monotonic()
            status, output = self._test(program, [], 600)
            program.seconds = time.monotonic() - began
            if status != 0:
                raise BenchError(f"{program.name} fails without any change:\n{output[-3000:]}")

    def built_files(self):
        """The files of the tree that the tests are made of."""
        _, output = self._run(["ninja", "-C", self.build, "-t", "deps"], 60)
        paths = {os.path.normpath(self.build / line.strip()) for line in output.splitlines() if line.startswith(" ")}
        return {os.path.relpath(path, self.tree) for path in paths if path.startswith(f"{self.tree}/")}

    def judge(self, file, change):
        """What the tests say of a change; the copy is afterwards as it was before."""
        path = self.tree / file
        original = path.read_bytes()
        changed = original.decode()
        if changed[change.start : change.end] != change.old:
            raise BenchError(f"{file} has changed since the run began")
        changed = changed[: change.start] + change.new + changed[change.end :]
        try:
            path.write_text(changed, encoding="utf-8", newline="")
            return self._judge(pathlib.PurePath(file))
        finally:
            path.write_bytes(original)

    def _judge(self, file):
        for program in sorted(self.programs, key=lambda program: program.distance(file)):
            command = ["env", f"MUTANT_FLAGS={CHANGED_FLAGS}", "ninja", "-C", self.build, program.name]
            status, output = self._run(command, BUILD_SECONDS)
            if status != 0:
                if "error:" not in output or "Killed signal" in output:
                    raise BenchError(f"cannot build:\n{output[-3000:]}")
                return Verdict(NOT_COMPILED, program.name, None)
            verdict = self._try(program)
            if verdict:
                return verdict
        return Verdict(SURVIVED, None, None)

    def _try(self, program):
        """None when all tests of the program pass. A test fails only if it fails again when it is run alone."""
        most = max(LEAST_SECONDS, 10 * program.seconds)
        for _ in range(2):
            status, output = self._test(program, ["--gtest_fail_fast"], most)
            if status is None:
                return Verdict(TIMED_OUT, program.name, self._last_test(output))
            if status == 0:
                return None
            test = self._last_test(output)
            if test is None or self._test(program, [f"--gtest_filter={test}"], most)[0] != 0:
                return Verdict(KILLED, program.name, test)
        return Verdict(KILLED, program.name, test)

    @staticmethod
    def _last_test(output):
        """The one that failed, or that the program did not come back from."""
        began = re.findall(r"^\[ RUN      \] (\S+)", output, re.MULTILINE)
        failed = re.findall(r"^\[  FAILED  \] ([^\s,]+)", output, re.MULTILINE)
        return (failed or began or [None])[0 if failed else -1]

    def _test(self, program, arguments, seconds):
        """The status, None when the time ran out, and what was printed. Nothing that the program leaves is kept."""
        keep = {name: value for name, value in os.environ.items() if not name.startswith(("XDG_", "LURULUDRI_"))}
        with tempfile.TemporaryDirectory(dir=self._scratch.name, ignore_cleanup_errors=True) as scratch:
            for name in ("home", "tmp", "here"):
                os.mkdir(os.path.join(scratch, name))
            environment = {**keep, "HOME": os.path.join(scratch, "home"), "TMPDIR": os.path.join(scratch, "tmp")}
            here = os.path.join(scratch, "here")
            return self._run([*LIMITS, program.path, *arguments], seconds, environment, here)

    def _list_programs(self):
        """CTest's tests that are programs of the build; the others are of its form, which no change here touches."""
        listed = json.loads(self._must(["ctest", "--test-dir", self.build, "--show-only=json-v1"]))
        names = {test["name"] for test in listed["tests"]}
        targets = self._must(["ninja", "-C", self.build, "-t", "targets", "all"])
        linked = set(re.findall(r"^tests/(\w+): CXX_EXECUTABLE_LINKER", targets, re.MULTILINE))
        by_name = {name: Program(name, self.build / "tests" / name) for name in sorted(names & linked)}
        for entry in json.loads((self.build / "compile_commands.json").read_text()):
            target = re.search(r" -o \S*CMakeFiles/(\w+)\.dir/", entry["command"])
            if target and target[1] in by_name:
                by_name[target[1]].sources.append(pathlib.PurePath(os.path.relpath(entry["file"], self.tree)))
        if not by_name:
            raise BenchError("there are no test programs")
        return list(by_name.values())

    def _copy(self, root, files):
        """Touches only what differs, so that no more is built than must be."""
        wanted = {self.tree / file for file in files}
        for path in list(self.tree.rglob("*")):
            if path not in wanted and self.build.parent not in path.parents and not path.is_dir():
                path.unlink()
        for file in files:
            source, target = root / file, self.tree / file
            if not target.exists() or target.read_bytes() != source.read_bytes():
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source, target)

    def _must(self, command):
        status, output = self._run(command, 3600)
        if status != 0:
            raise BenchError(f"failed: {' '.join(map(str, command))}\n{output[-3000:]}")
        return output

    def _run(self, command, seconds, environment=None, folder=None):
        """The status, None when the time ran out, and the output. Ends all that the command has started."""
        if environment is None:
            # The copies are alike but for where they lie.
            environment = {"CCACHE_BASEDIR": str(self.folder.parent), **os.environ, "CCACHE_NOHASHDIR": "1"}
        log = self.folder / "output"
        with open(log, "wb") as output:
            self._process = process = subprocess.Popen(
                [str(word) for word in command],
                stdin=subprocess.DEVNULL,
                stdout=output,
                stderr=subprocess.STDOUT,
                env=environment,
                cwd=folder or self.tree,
                start_new_session=True,
            )
            try:
                status = process.wait(seconds)
            except subprocess.TimeoutExpired:
                status = None
            finally:
                self._end(process)
                self._process = None
        return status, log.read_text(encoding="utf-8", errors="replace")

    @staticmethod
    def _end(process):
        try:
            os.killpg(process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        process.wait()
