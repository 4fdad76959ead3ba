"""What is known of each mutant, kept in a file so that a run can be taken up again."""

import collections
import json

from bench import KILLED, NOT_COMPILED, SURVIVED, TIMED_OUT

Result = collections.namedtuple("Result", "file line column kind old new verdict program test")


def shown(text):
    """On one line, and not too long."""
    text = " ".join(text.split())
    return text if len(text) <= 70 else text[:50] + " … " + text[-17:]


class Results:
    """One line a mutant, in JSON, after one that tells the `run`: of what tree, drawn how."""

    def __init__(self, path, run):
        self.path, self.run = path, run
        self.results = []
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(json.dumps(run) + "\n", encoding="utf-8")

    @classmethod
    def read(cls, path):
        lines = path.read_text(encoding="utf-8").splitlines()
        results = cls.__new__(cls)
        results.path, results.run = path, json.loads(lines[0])
        lines = [line for line in lines if line.endswith("}")]  # the last may have been cut off
        results.results = [Result(**json.loads(line)) for line in lines[1:]]
        path.write_text("".join(line + "\n" for line in lines), encoding="utf-8")
        return results

    def add(self, result):
        self.results.append(result)
        with open(self.path, "a", encoding="utf-8") as file:
            file.write(json.dumps(result._asdict(), ensure_ascii=False) + "\n")

    def verdict(self, place, change):
        """The word, None when it isn't known."""
        wanted = place.file, place.line, place.column, change.old, change.new
        for r in self.results:
            if (r.file, r.line, r.column, r.old, r.new) == wanted:
                return r.verdict
        return None

    def summary(self):
        count = collections.Counter(result.verdict for result in self.results)
        noticed = count[KILLED] + count[TIMED_OUT]
        counted = noticed + count[SURVIVED]
        lines = [line_of(result) for result in self.results if result.verdict == SURVIVED]
        if lines:
            lines = ["", "Survivors:", *sorted(lines)]
        lines += [
            "",
            f"{noticed} of {counted} noticed: {100 * noticed / counted:.1f} %" if counted else "Nothing was changed.",
            f"({count[KILLED]} killed, {count[TIMED_OUT]} timed out, {count[SURVIVED]} survived;"
            f" {count[NOT_COMPILED]} more did not compile)",
        ]
        return "\n".join(lines)


def line_of(result):
    by = " ".join(word for word in (result.program, result.test) if word and result.verdict in (KILLED, TIMED_OUT))
    place = f"{result.file}:{result.line}:{result.column}"
    return f"{result.verdict}  {place}  {result.kind}: {shown(result.old)}  =>  {shown(result.new) or 'nothing'}" + (
        f"  [{by}]" if by else ""
    )
