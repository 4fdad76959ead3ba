"""scripts/mutants: docs/testing.md tells what it does."""

import argparse
import contextlib
import hashlib
import os
import pathlib
import queue
import random
import re
import subprocess
import sys
import threading

from bench import NOT_COMPILED, Bench, BenchError
from changes import places_of
from results import Result, Results, line_of
from source import Facts, Source

ROOT = pathlib.Path(__file__).resolve().parents[2]
WORK = ROOT / "build" / "mutants"
# The seam, with what is on both sides of it, and the trace.
LEFT_OUT = re.compile(r"/platform/|/[^/]*Trace[^/]*$")


def options():
    parser = argparse.ArgumentParser(prog="scripts/mutants", description="Plants faults and tells what tests notice.")
    parser.add_argument("-n", "--count", type=int, default=300, help="how many places are drawn (default: 300)")
    parser.add_argument("-s", "--seed", type=int, help="draws the same places again")
    parser.add_argument("-j", "--jobs", type=int, default=os.cpu_count(), help="how many are tried at the same time")
    parser.add_argument("-p", "--place", action="append", metavar="FILE:LINE[:COLUMN]", help="tries all changes there, "
                        "instead of drawing; may be given more than once")
    parser.add_argument("--folder", action="append", metavar="FOLDER", help="changes the sources in this folder "
                        "(default: src); may be given more than once")
    parser.add_argument("--list", action="store_true", help="lists all places, and does nothing else")
    parser.add_argument("--resume", action="store_true", help="goes on with the run that the results file is of")
    parser.add_argument("--results", type=pathlib.Path, default=WORK / "results.jsonl", metavar="FILE",
                        help="(default: build/mutants/results.jsonl)")
    return parser.parse_args()


def tree_files():
    """All that is part of the project, new files included."""
    command = ["git", "-C", ROOT, "ls-files", "--cached", "--others", "--exclude-standard", "-z"]
    names = subprocess.run(command, check=True, capture_output=True, text=True).stdout.split("\0")
    return sorted({name for name in names if name and (ROOT / name).is_file()})


def digest_of(files):
    digest = hashlib.sha256()
    for file in files:
        digest.update(f"{file}\0{hashlib.sha256((ROOT / file).read_bytes()).hexdigest()}\n".encode())
    return digest.hexdigest()[:16]


def all_places(files, folders):
    chosen = [
        file for file in files
        if file.startswith(tuple(f"{folder.rstrip('/')}/" for folder in folders))
        and file.endswith((".cpp", ".h")) and not LEFT_OUT.search(file)
    ]
    facts = Facts()
    texts = {file: (ROOT / file).read_bytes().decode() for file in chosen}
    for text in texts.values():
        Source(text, facts)
    return [place for file, text in texts.items() for place in places_of(file, Source(text, facts))]


def drawn(places, seed):
    """All places in an order drawn by lot, each with its changes: the first that compiles is the one that counts."""
    lot = random.Random(seed)
    places = lot.sample(places, len(places))
    return [(place, lot.sample(place.changes, len(place.changes))) for place in places]


def given(places, wanted):
    """Each change of the places that are named, by itself."""
    result = []
    for name in wanted:
        found = [place for place in places if name in (f"{place.file}:{place.line}",
                                                       f"{place.file}:{place.line}:{place.column}")]
        if not found:
            sys.exit(f"mutants: there is nothing to change at {name} (--list shows where there is)")
        result += [(place, [change]) for place in found for change in place.changes]
    return result


class Run:
    """Takes mutants from the list until enough of them are counted, in several copies of the tree at once."""

    def __init__(self, results, mutants, count):
        self.results, self.count = results, count
        self.mutants = iter(mutants)
        self.counted = self.pending = 0
        self.errors = queue.Queue()
        self.changed = threading.Condition()

    def work(self, bench):
        try:
            while True:
                mutant = self._next()
                if mutant is None:
                    return
                compiles = any(self._try(bench, mutant[0], change) != NOT_COMPILED for change in mutant[1])
                with self.changed:
                    self.pending -= 1
                    self.counted += compiles
                    self.changed.notify_all()
        except BaseException as error:
            self.errors.put(error)
            with self.changed:
                self.count = 0
                self.changed.notify_all()

    def _next(self):
        """None when there are enough. Waits where it depends on one that is being tried."""
        with self.changed:
            while self.counted < self.count and self.counted + self.pending >= self.count:
                self.changed.wait()
            mutant = next(self.mutants, None) if self.counted < self.count else None
            self.pending += mutant is not None
            return mutant

    def _try(self, bench, place, change):
        with self.changed:
            known = self.results.verdict(place, change)
        if known:
            return known
        verdict = bench.judge(place.file, change)
        result = Result(*place[:4], change.old, change.new, *verdict)
        with self.changed:
            self.results.add(result)
            print(line_of(result), flush=True)
        return verdict.word


def say(text):
    print(f"==> {text}", file=sys.stderr, flush=True)


def prepared(jobs, files, stack):
    """The first copy is built before the others, which find its objects in the compiler's cache."""
    benches = []
    for number in range(1, jobs + 1):
        bench = Bench(WORK / f"copy-{number}")
        stack.callback(bench.end)
        say(f"Building and running the tests in {bench.folder}")
        bench.prepare(ROOT, files)
        benches.append(bench)
    return benches


def results_of(arguments, files):
    tree = digest_of(files)
    if not arguments.resume:
        seed = arguments.seed if arguments.seed is not None else random.randrange(1_000_000)
        run = {"tree": tree, "seed": seed, "count": arguments.count, "places": arguments.place,
               "folders": arguments.folder or ["src"]}
        return Results(arguments.results, run)
    if not arguments.results.exists():
        sys.exit(f"mutants: there is no run to go on with: {arguments.results}")
    results = Results.read(arguments.results)
    if results.run["tree"] != tree:
        sys.exit("mutants: the sources are no longer those of the run; begin a new one")
    return results


def run_of(results, places):
    if results.run["places"]:
        mutants = given(places, results.run["places"])
        return Run(results, mutants, len(mutants))
    say(f"Trying {results.run['count']} of {len(places)} places, drawn with the seed {results.run['seed']}")
    return Run(results, drawn(places, results.run["seed"]), results.run["count"])


def main():
    arguments = options()
    files = tree_files()
    if arguments.list:
        for place in all_places(files, arguments.folder or ["src"]):
            news = " | ".join(" ".join(change.new.split()) or "nothing" for change in place.changes)
            old = " ".join(place.changes[0].old.split())
            print(f"{place.file}:{place.line}:{place.column}  {place.kind}: {old}  =>  {news}")
        return
    results = results_of(arguments, files)
    places = all_places(files, results.run["folders"])
    with contextlib.ExitStack() as stack:
        benches = prepared(max(1, arguments.jobs), files, stack)
        built = benches[0].built_files()
        run = run_of(results, [place for place in places if place.file in built])
        threads = [threading.Thread(target=run.work, args=(bench,), daemon=True) for bench in benches]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
    if not run.errors.empty():
        raise run.errors.get()
    print(results.summary())


try:
    main()
except BenchError as error:
    sys.exit(f"mutants: {error}")
except KeyboardInterrupt:
    sys.exit(130)
