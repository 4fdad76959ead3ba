"""The changes to a source file, each of which makes one mutant."""

import collections
import re

# The text from `start` to `end` becomes `new`.
Change = collections.namedtuple("Change", "start end old new")
# One place of the source, with all that can be done to it.
Place = collections.namedtuple("Place", "file line column kind changes")

OPERATORS = {
    "==": ["!="],
    "!=": ["=="],
    "<": ["<=", ">="],
    ">": [">=", "<="],
    "<=": ["<", ">"],
    ">=": [">", "<"],
    "&&": ["||"],
    "||": ["&&"],
    "+": ["-"],
    "-": ["+"],
    "*": ["/"],
    "/": ["*"],
    "%": ["*"],
    "&": ["|"],
    "|": ["&"],
    "^": ["&"],
    "<<": [">>"],
    ">>": ["<<"],
    "+=": ["=", "-="],
    "-=": ["=", "+="],
    "|=": ["=", "&="],
    "&=": ["=", "|="],
    "++": ["--"],
    "--": ["++"],
}
STOPS = (",", ";", ")", "]", "}", "?", ":")
NAMED = {"true": ["false"], "false": ["true"]}
OPPOSITE = {"CaseInsensitive": ["CaseSensitive"], "SkipEmptyParts": ["KeepEmptyParts"]}
# What `return {};` is as good as, or the same change as another.
EMPTY = re.compile(r"|true|false|std :: nullopt|0|nullptr|\{ \}|(Q\w+|std :: \w+) \( \)")
# A declaration has two names one after the other; these have not.
EXPRESSION = re.compile(r"(\+\+|--|\*|\()|\w+( :: \w+)* (\.|->|\(|\[|\+\+|--|[-+*/%|&^]?=|<<=|>>=|<<) ")
KEEP = ("using", "static", "const", "constexpr", "auto", "typedef", "goto", "delete", "throw")


def places_of(file, source):
    """All places of a Source, in the order of the file."""
    return sorted(_Finder(file, source).places, key=lambda place: (place.line, place.column, place.kind))


class _Finder:
    def __init__(self, file, source):
        self.file = file
        self.source = source
        self.places = []
        for index, token in enumerate(source.tokens):
            if index not in source.skipped:
                self._token(index, token)
        for constant in source.constants:
            self._constant(*constant)
        for keyword, begin, end in source.conditions:
            self._condition(keyword, begin, end)
        for statement in source.statements:
            self._statement(statement)

    def _add(self, kind, spans):
        """`spans` are triples of offsets and the new text."""
        text = self.source.text
        changes = [Change(start, end, text[start:end], new) for start, end, new in spans]
        if changes:
            self.places.append(Place(self.file, *self.source.place(changes[0].start), kind, changes))

    def _token(self, index, token):
        replace = lambda news: [(token.start, token.end, new) for new in news]
        if token.kind == "string":
            self._add("text", replace(self._texts(token.text)))
        elif token.kind == "char":
            self._add("text", replace([token.text[: token.text.index("'")] + "'~'"]))
        elif token.kind == "number":
            self._add("constant", replace(self._numbers(token.text)))
        elif token.text in NAMED:
            self._add("constant", replace(NAMED[token.text]))
        elif token.text == "!":
            self._add("operator", replace([""]))
        elif token.text == "?":
            self._choice(index)
        elif token.text in OPERATORS and self._is_operator(index, token):
            spans = replace(OPERATORS[token.text])
            if token.text == "+":
                spans.append((token.start, self._operand_end(index + 1), ""))
            self._add("operator", spans)

    def _constant(self, first, last, qualifier, name):
        """Another one of the same name space; where names there begin alike (errorSuccess, errorMoreData), of those."""
        beginning = lambda constant: re.match(r"[A-Z]?[a-z]*", constant)[0]
        family = sorted(self.source.facts.constants[qualifier])
        if len({beginning(constant) for constant in family}) < len(family):
            family = [constant for constant in family if beginning(constant) == beginning(name)]
        others = OPPOSITE.get(name, [constant for constant in family if constant != name])
        start, end = self.source.tokens[first].start, self.source.tokens[last].end
        self._add("constant", [(start, end, f"{qualifier}::{other}") for other in others])

    @staticmethod
    def _texts(text):
        quote = text.index('"')
        begin, end = quote + 1, len(text) - 1
        if text[:quote].endswith("R"):
            begin, end = text.index("(") + 1, text.rindex(")")
        marked = text[:begin] + "~" + text[begin:]
        return [marked] if begin == end else [marked, text[:begin] + text[end:]]

    @staticmethod
    def _numbers(text):
        if "." in text and not text.startswith("0x"):
            return []
        is_zero = re.fullmatch(r"0[uUlL]*", text)
        return [f"({text} + 1)"] + ([] if is_zero else [f"({text} - 1)"])

    def _is_operator(self, index, token):
        """And not a bracket of a template, a pointer, a reference or a sign of a number."""
        text = self.source.text
        if token.text in ("++", "--"):
            return True
        return text[token.start - 1].isspace() and text[token.end].isspace() and self.source.word(index - 1) != "("

    def _operand_end(self, index):
        """Where what is added ends: before the next operator of the same expression."""
        source, last, templates = self.source, index, 0
        while source.word(index) not in STOPS:
            word = source.word(index)
            if word in OPERATORS and self._is_operator(index, source.tokens[index]):
                break
            templates += {"<": 1, ">": -1}.get(word, 0)
            if templates < 0:
                break
            last = source.close(index) if word in ("(", "[", "{") else index
            index = last + 1
        return source.tokens[last].end

    def _choice(self, index):
        """a ? b : c"""
        source, tokens = self.source, self.source.tokens
        colon = index + 1
        depth = 0
        while source.word(colon) != ":" or depth:
            depth += {"?": 1, ":": -1}.get(source.word(colon), 0)
            colon = source.close(colon) + 1 if source.word(colon) in ("(", "[", "{") else colon + 1
        last = colon + 1
        while source.word(last) not in (",", ";", ")", "]", "}"):
            last = source.close(last) + 1 if source.word(last) in ("(", "[", "{") else last + 1
        first = source.text[tokens[index + 1].start : tokens[colon - 1].end]
        second = source.text[tokens[colon + 1].start : tokens[last - 1].end]
        span = tokens[index].start, tokens[last - 1].end
        self._add("condition", [(*span, f"? {new} : {new}") for new in (first, second)])

    def _condition(self, keyword, begin, end):
        source = self.source
        start, stop = source.tokens[begin].start, source.tokens[end - 1].end
        if source.words(begin, end) in (["true"], ["false"]):
            return
        news = ["true", "false"] if keyword == "if" else ["false"]  # a loop that never ends tells nothing new
        self._add("condition", [(start, stop, new) for new in news])

    def _statement(self, statement):
        source = self.source
        words = " ".join(source.words(statement.begin, statement.end))
        start, stop = source.tokens[statement.begin].start, source.tokens[statement.end].end
        first = source.word(statement.begin)
        if first == "return" and words != "return":
            if not statement.in_reference and not EMPTY.fullmatch(words[len("return ") :]):
                self._add("statement", [(start, stop, "return {};")])
        elif first in ("return", "break", "continue") or (first not in KEEP and EXPRESSION.match(words + " ")):
            self._add("statement", [(start, stop, ";")])
