#!/usr/bin/python3
"""Tests of scripts/mutants: tst_mutants.py FOLDER-OF-THE-PROJECT"""

import os
import pathlib
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
PROJECT = pathlib.Path(sys.argv.pop(1))
sys.path.insert(0, str(PROJECT / "scripts" / "mutation"))

import bench  # noqa: E402
from changes import Change, Place, places_of  # noqa: E402
from results import Result, Results  # noqa: E402
from source import Facts, Source  # noqa: E402


def places(text, facts=None):
    facts = facts or Facts()
    Source(text, facts)
    return places_of("src/a.cpp", Source(text, facts))


def changes(text, kind=None):
    """What becomes of each place: (old, new, new …) in the order of the text."""
    found = [place for place in places(text) if kind in (None, place.kind)]
    return [(place.changes[0].old, *(change.new for change in place.changes)) for place in found]


def in_function(body, kind=None):
    return changes(f"void f() {{\n{body}\n}}\n", kind)


class WhatIsChanged(unittest.TestCase):
    def test_operators(self):
        self.assertEqual(in_function("x = a == b;", "operator"), [("==", "!=")])
        self.assertEqual(in_function("x = a < b && !c;", "operator"), [("<", "<=", ">="), ("&&", "||"), ("!", "")])
        self.assertEqual(in_function("++i;", "operator"), [("++", "--")])

    def test_what_is_added_is_left_out(self):
        text = "void f() {\n    x = a + g(b, c) + d[1];\n}\n"
        added = [place.changes[-1] for place in places(text) if place.kind == "operator"]
        self.assertEqual([change.old for change in added], ["+ g(b, c)", "+ d[1]"])
        self.assertEqual([change.new for change in added], ["", ""])
        self.assertEqual(in_function("std::array<int, n + 1> x{};", "operator"), [("+", "-", "")])

    def test_numbers_and_truth(self):
        self.assertEqual(changes("constexpr int a = 10'000;", "constant"), [("10'000", "(10'000 + 1)", "(10'000 - 1)")])
        self.assertEqual(changes("constexpr int a = 0;", "constant"), [("0", "(0 + 1)")])
        self.assertEqual(changes("bool a = true;"), [("true", "false")])

    def test_named_constants_become_others_of_their_family(self):
        self.assertEqual(
            in_function("f(Hive::users, Qt::CaseInsensitive);\ng(Hive::localMachine);", "constant"),
            [("Hive::users", "Hive::localMachine"), ("Qt::CaseInsensitive", "Qt::CaseSensitive"),
             ("Hive::localMachine", "Hive::users")],
        )
        self.assertEqual(
            in_function("f(P::errorA, P::errorB, P::size);", "constant"),
            [("P::errorA", "P::errorB"), ("P::errorB", "P::errorA")],
        )

    def test_texts(self):
        self.assertEqual(in_function('f("abc", u"");', "text"), [('"abc"', '"~abc"', '""'), ('u""', 'u"~"')])
        self.assertEqual(in_function(r"""f(u'\0', R"x(a")x");""", "text"),
                         [(r"u'\0'", "u'~'"), ('R"x(a")x"', 'R"x(~a")x"', 'R"x()x"')])

    def test_conditions(self):
        self.assertEqual(in_function("if (a(b)) {\nc = d;\n}", "condition"), [("a(b)", "true", "false")])
        self.assertEqual(in_function("while (a) {\n}\nfor (int i = 0; i < 3; ++i) {\n}", "condition"),
                         [("a", "false"), ("i < 3", "false")])
        self.assertEqual(in_function("x = a ? b : (c ? d : e);", "condition"),
                         [("? b : (c ? d : e)", "? b : b", "? (c ? d : e) : (c ? d : e)"),
                          ("? d : e", "? d : d", "? e : e")])

    def test_statements(self):
        self.assertEqual(in_function("a = b;\nc(d);\ne->f();\n++g;\nA::h();\nbreak;\nreturn;", "statement"),
                         [(s, ";") for s in ("a = b;", "c(d);", "e->f();", "++g;", "A::h();", "break;", "return;")])
        self.assertEqual(changes("int f() {\n    return g();\n}", "statement"), [("return g();", "return {};")])

    def test_statements_within_others(self):
        self.assertEqual(in_function("const auto a = [&b](int c) { d(c); };", "statement"), [("d(c);", ";")])
        self.assertEqual(in_function("for (auto a : b) {\nif (c) {\nd();\n} else {\ne();\n}\n}", "statement"),
                         [("d();", ";"), ("e();", ";")])
        self.assertEqual(in_function("switch (a) {\ncase A::b:\nc();\ndefault:\nreturn;\n}", "statement"),
                         [("c();", ";"), ("return;", ";")])
        self.assertEqual(changes("class A {\npublic:\n    A() : b{1} { c(); }\n    void d() { e(); }\n};", "statement"),
                         [("c();", ";"), ("e();", ";")])

    def test_the_place_is_told(self):
        place, = places("// a comment\nvoid f() {\n    g();\n}\n")
        self.assertEqual((place.file, place.line, place.column, place.kind), ("src/a.cpp", 3, 5, "statement"))
        self.assertEqual(place.changes, [Change(28, 32, "g();", ";")])


class WhatIsNotChanged(unittest.TestCase):
    def test_comments_includes_and_checks_of_the_compiler(self):
        self.assertEqual(changes('#pragma once\n#include "a.h"\n#define A \\\n    1\n// 1 + 2\n/* "a"\n"b" */\n'), [])
        self.assertEqual(changes('static_assert(sizeof(int) == 4, "a");'), [])
        self.assertEqual(changes("void f(int a, ...) Q_ATTRIBUTE_FORMAT_PRINTF(1, 2);"), [])

    def test_declarations(self):
        self.assertEqual(changes("class A {\n    virtual void f() = 0;\n    A& operator=(A&& a) = default;\n};"), [])
        self.assertEqual(in_function("QString a(b);\nconst A& c = d;\nstd::vector<int*> e;\nchar* const f{};"), [])
        self.assertEqual(changes("template <class A, class B = C<A>>\nusing D = std::map<A, B>;"), [])

    def test_what_would_mean_the_same(self):
        self.assertEqual(in_function("return QString();", "statement"), [])
        self.assertEqual(changes("bool f() {\n    return false;\n}", "statement"), [])
        self.assertEqual(changes("const A& f() {\n    return m_a;\n}"), [])  # would be left with nothing to refer to


class WhatIsOfTheTrace(unittest.TestCase):
    def test_statements_that_tell_it(self):
        self.assertEqual(in_function('Trace::note("a %d", 1 + 2);\nm_traced.tell("b");'), [])
        self.assertEqual(in_function('Trace::IndexSection section("a");\nsection.set(1);'), [])

    def test_conditions_of_nothing_else(self):
        self.assertEqual(in_function('if (a == 1) {\nTrace::note("b");\n}'), [])
        self.assertEqual(in_function('if (Trace::isOn()) {\nQJsonObject a;\na.insert("b", 1);\n}'), [])
        self.assertEqual(in_function('if (a) {\nTrace::note("b");\nc();\n}'), [("a", "true", "false"), ("c();", ";")])

    def test_functions_and_classes_for_it(self):
        self.assertEqual(changes('void g(int a) {\n    Trace::note("a");\n}\nvoid f() {\n    g(1);\n}'), [])
        self.assertEqual(changes("class WalkTrace {\n    int a = 1;\n};\nvoid WalkTrace::add() {\n    b();\n}"), [])
        self.assertEqual(changes("bool tracedFind(int a) {\n    return a == 1;\n}"), [])
        self.assertEqual(in_function("if (tracedFind(1)) {\na();\n}"),
                         [("tracedFind(1)", "true", "false"), ("a();", ";")])


class TheProject(unittest.TestCase):
    def test_every_source_is_understood(self):
        facts, found = Facts(), []
        sources = sorted(path for path in (PROJECT / "src").rglob("*") if path.suffix in (".h", ".cpp"))
        texts = {path: path.read_bytes().decode() for path in sources}
        for path, text in texts.items():
            found += [(text, change) for place in places_of(str(path), Source(text, facts)) for change in place.changes]
        self.assertGreater(len(found), 1000)
        for text, change in found:
            self.assertEqual(text[change.start : change.end], change.old)
            self.assertNotEqual(change.old, change.new)


class TheVerdict(unittest.TestCase):
    """Of test programs that are scripts."""

    def setUp(self):
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.bench = bench.Bench(self.folder / "copy")
        self.addCleanup(self.bench.end)
        self.least, bench.LEAST_SECONDS = bench.LEAST_SECONDS, 1.0

    def tearDown(self):
        bench.LEAST_SECONDS = self.least

    def verdict(self, script):
        path = self.folder / "tst_a"
        noted = f'runs={self.folder}/runs; echo "$*" >>$runs'
        path.write_text(f"#!/bin/bash\n{noted}\necho '[ RUN      ] A.b'\n{script}\n")
        path.chmod(0o755)
        return self.bench._try(bench.Program("tst_a", path))

    def runs(self):
        return (self.folder / "runs").read_text().splitlines()

    def test_a_failing_test_kills_when_it_also_fails_alone(self):
        self.assertEqual(self.verdict("echo '[  FAILED  ] A.b (3 ms)'; exit 1"), ("killed", "tst_a", "A.b"))
        self.assertEqual(self.runs(), ["--gtest_fail_fast", "--gtest_filter=A.b"])

    def test_a_crash_kills(self):
        self.assertEqual(self.verdict("kill -SEGV $$"), ("killed", "tst_a", "A.b"))

    def test_a_test_that_fails_by_chance_does_not(self):
        self.assertIsNone(self.verdict("[[ $(wc -l <$runs) -gt 1 ]] || { echo '[  FAILED  ] A.b'; exit 1; }"))
        self.assertEqual(self.runs(), ["--gtest_fail_fast", "--gtest_filter=A.b", "--gtest_fail_fast"])

    def test_passing_tests_do_not(self):
        self.assertIsNone(self.verdict("exit 0"))

    def test_time_runs_out(self):
        self.assertEqual(self.verdict("sleep 60"), ("timed out", "tst_a", "A.b"))

    def test_nothing_of_a_run_is_left(self):
        self.verdict(f"pwd >{self.folder}/here; touch file $HOME/file $TMPDIR/file")
        self.assertFalse(os.path.exists((self.folder / "here").read_text().strip()))

    def test_the_copy_is_as_before(self):
        file = self.bench.tree / "src/a.cpp"
        file.parent.mkdir(parents=True)
        file.write_text("int a = 1;\n")
        for outcome in (bench.Verdict("survived", None, None), bench.BenchError("a")):
            seen = []

            def judge(_):
                seen.append(file.read_text())
                if isinstance(outcome, Exception):
                    raise outcome
                return outcome

            self.bench._judge = judge
            try:
                self.bench.judge("src/a.cpp", Change(8, 9, "1", "2"))
            except bench.BenchError:
                pass
            self.assertEqual(seen, ["int a = 2;\n"])
            self.assertEqual(file.read_text(), "int a = 1;\n")

    def test_the_likeliest_program_comes_first(self):
        def program(source, seconds):
            result = bench.Program(source, source)
            result.sources = [pathlib.PurePath("tests/common/main.cpp"), pathlib.PurePath(source)]
            result.seconds = seconds
            return result

        programs = [program("tests/a/tst_x.cpp", 1), program("tests/b/tst_y.cpp", 3), program("tests/b/tst_z.cpp", 2),
                    program("tests/c/tst_f.cpp", 9), program("tests/d/tst_w.cpp", 0.5)]
        programs.sort(key=lambda p: p.distance(pathlib.PurePath("src/b/F.cpp")))
        self.assertEqual([p.name[6:] for p in programs],
                         ["c/tst_f.cpp", "b/tst_z.cpp", "b/tst_y.cpp", "d/tst_w.cpp", "a/tst_x.cpp"])


class TheResults(unittest.TestCase):
    def result(self, verdict, line):
        return Result("src/a.cpp", line, 1, "constant", "1", "2", verdict, "tst_a", "A.b")

    def test_are_read_again_without_a_line_that_was_cut_off(self):
        path = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory())) / "b" / "results"
        results = Results(path, {"seed": 5})
        results.add(self.result("killed", 1))
        with open(path, "a", encoding="utf-8") as file:
            file.write('{"file": "src')
        again = Results.read(path)
        again.add(self.result("survived", 2))
        again = Results.read(path)
        self.assertEqual(again.run, {"seed": 5})
        self.assertEqual(again.results, [self.result("killed", 1), self.result("survived", 2)])
        place = Place("src/a.cpp", 2, 1, "constant", [])
        self.assertEqual(again.verdict(place, Change(0, 1, "1", "2")), "survived")
        self.assertIsNone(again.verdict(place, Change(0, 1, "1", "3")))

    def test_the_score_counts_time_outs_and_not_what_does_not_compile(self):
        path = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory())) / "results"
        results = Results(path, {})
        for line, verdict in enumerate(["killed", "killed", "timed out", "survived", "did not compile"]):
            results.add(self.result(verdict, line))
        self.assertEqual(results.summary().splitlines(), [
            "", "Survivors:", "survived  src/a.cpp:3:1  constant: 1  =>  2", "",
            "3 of 4 noticed: 75.0 %", "(2 killed, 1 timed out, 1 survived; 1 more did not compile)"])


unittest.main()
