"""What of a C++ source file can be changed: its tokens, statements and conditions, the trace's own left out.

Leans on the format that clang-format keeps, and on the style of this project: all bodies have braces, spaces stand
around binary operators and around nothing else.
"""

import bisect
import collections
import re

TOKEN = re.compile(
    r"""
    (?P<gap>//(?:\\\n|[^\n])*|/\*.*?\*/|^[ \t]*\#(?:\\\n|[^\n])*|\s+)
    |(?P<string>(?:u8|[uUL])?(?:R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"))
    |(?P<char>(?:u8|[uUL])?'(?:\\.|[^'\\\n])+')
    |(?P<number>\d(?:'[\da-fA-F]|[\w.])*)
    |(?P<name>[A-Za-z_]\w*)
    |(?P<sign><<=|>>=|\.\.\.|::|->|\+\+|--|<<|>>|[<>=!+\-*/%&|^]=|&&|\|\||[{}()\[\];:,.?<>=+\-*/%&|^!~])
    """,
    re.VERBOSE | re.DOTALL | re.MULTILINE,
)

CLOSING = {"(": ")", "[": "]", "{": "}"}
TRACE_NAME = re.compile(r"[Tt]race")
AFTER_VALUE = (",", ";", ")", "]", "}", "==", "!=", "?", ":", "&&", "||", "|")
# Have no say in what is done: checks of the compiler, and attributes.
SILENT_MACRO = re.compile(r"static_assert|alignas|Q_(ATTRIBUTE|DISABLE|DECL)\w*")


class Token:
    def __init__(self, match):
        self.kind = match.lastgroup if match.lastgroup != "mark" else "string"
        self.text = match.group()
        self.start, self.end = match.span()


def tokens_of(text):
    result, position = [], 0
    while position < len(text):
        match = TOKEN.match(text, position)
        if not match:
            raise ValueError(f"unknown character {text[position]!r} at {position}")
        if not match.group("gap"):
            result.append(Token(match))
        position = match.end()
    return result


class Statement:
    """A simple one, from its first token to its semicolon."""

    def __init__(self, begin, end, in_reference):
        self.begin, self.end = begin, end
        self.in_reference = in_reference  # in a function that returns a reference


class Facts:
    """What the files of a tree tell of each other: each Source adds to it, and uses what those before it have added."""

    def __init__(self):
        self.trace_functions = set()  # which do nothing but tell the trace
        self.constants = collections.defaultdict(set)  # names by what they are qualified with


class Source:
    def __init__(self, text, facts):
        self.text = text
        self.tokens = tokens_of(text)
        self.statements = []
        self.conditions = []  # (keyword, first token, token after the last)
        self.skipped = set()  # indexes of tokens that are not to be changed
        self.facts = facts
        self._trace_variables = {"m_traced"}
        self._in_reference = False
        self._lines = [m.start() for m in re.finditer("^", text, re.MULTILINE)]
        self._close, self._open = self._pairs()
        self._skip_silent()
        self._scope(0, len(self.tokens), True)
        self.statements = [s for s in self.statements if s.begin not in self.skipped]
        self.conditions = [c for c in self.conditions if c[1] - 1 not in self.skipped]
        self.constants = [c for c in self._constants() if c[0] not in self.skipped]
        for _, _, qualifier, name in self.constants:
            facts.constants[qualifier].add(name)

    def place(self, offset):
        """The line and the column, both from 1."""
        line = bisect.bisect_right(self._lines, offset)
        return line, offset - self._lines[line - 1] + 1

    def word(self, index):
        return self.tokens[index].text if index < len(self.tokens) else ""

    def words(self, begin, end):
        return [token.text for token in self.tokens[begin:end]]

    def close(self, index):
        """The bracket that closes the one at `index`."""
        return self._close[index]

    def _constants(self):
        """Where a name like Hive::users is used as a value: first and last token, qualifier, name."""
        index = 0
        while index < len(self.tokens):
            first = index
            while self.tokens[index].kind == "name" and self.word(index + 1) == "::":
                index += 2
            if index > first and self.tokens[index].kind == "name" and self.word(index + 1) in AFTER_VALUE:
                yield first, index, "".join(self.words(first, index - 1)), self.word(index)
            index += 1

    def _pairs(self):
        close, opened = {}, []
        for index, token in enumerate(self.tokens):
            if token.kind != "sign":
                continue
            if token.text in CLOSING:
                opened.append(index)
            elif opened and token.text == CLOSING[self.word(opened[-1])]:
                close[opened.pop()] = index
        return close, {last: first for first, last in close.items()}

    def _skip(self, begin, end):
        self.skipped.update(range(begin, end))

    def _skip_silent(self):
        for index, token in enumerate(self.tokens):
            if self.word(index + 1) == "(" and (
                SILENT_MACRO.fullmatch(token.text) or re.fullmatch(r"traced\w*", token.text)
            ):
                self._skip(index, self._close[index + 1] + 1)
            elif token.text in ("operator", "extern"):
                self._skip(index, index + 2)
            elif token.text == "=" and self.words(index + 1, index + 3) == ["0", ";"]:
                if self.word(index - 1) in (")", "const", "noexcept"):  # a pure virtual function
                    self._skip(index, index + 2)

    # Namespaces and classes

    def _scope(self, begin, end, is_namespace):
        head = index = begin
        while index < end:
            word = self.word(index)
            if word in ("(", "["):
                index = self._close[index]
            elif word == ";" or (word == ":" and self.word(index - 1) in ("public", "protected", "private")):
                head = index + 1
            elif word == "{":
                if self._body(head, index, is_namespace):
                    head = self._close[index] + 1
                index = self._close[index]
            index += 1

    def _body(self, head, brace, is_namespace):
        """What is in the braces after the tokens from `head`. False when it is the value of something."""
        words, close = self.words(head, brace), self._close[brace]
        if "namespace" in words or words[:1] == ["extern"]:
            self._scope(brace + 1, close, True)
            return True
        if "(" not in words and not {"class", "struct", "union"} & set(words):
            self._lambdas(head, close, head)
            return False
        before = words[: words.index("(")] if "(" in words else words
        if any(TRACE_NAME.search(word) for word in before):
            self._skip(head, close + 1)
        elif "(" not in words:
            self._scope(brace + 1, close, False)
        elif self._is_value(words):
            self._lambdas(head, close, head)
            return False
        else:
            self._function(before, brace, is_namespace)
        return True

    @staticmethod
    def _is_value(words):
        """Whether the brace after these begins a member's value among the initialisers, or a variable's."""
        last = words[-1]
        return last == "=" or (re.fullmatch(r"\w+", last) and last not in ("const", "noexcept", "override", "final"))

    def _function(self, before, brace, is_namespace):
        self._in_reference = "&" in before
        only_trace = self._block(brace + 1, self._close[brace])
        if only_trace and is_namespace and self.word(brace - 1) == ")" and "::" not in before:
            self.facts.trace_functions.add(before[-1])

    # Statements; each method tells whether they do nothing but tell the trace

    def _block(self, begin, end):
        index, traces = begin, []
        while index < end:
            index, is_trace = self._statement(index, end)
            traces.append(is_trace)
        return bool(traces) and all(traces)

    def _statement(self, index, end):
        word = self.word(index)
        if word == "{":
            return self._close[index] + 1, self._block(index + 1, self._close[index])
        if word in ("if", "while", "switch"):
            return self._branch(index, end)
        if word == "for":
            return self._for(index, end)
        if word == "do":
            after, is_trace = self._statement(index + 1, end)  # `while` follows
            self.conditions.append(("while", after + 2, self._close[after + 1]))
            return self._close[after + 1] + 2, is_trace
        if word in ("case", "default"):
            while self.word(index) != ":":
                index += 1
            return self._statement(index + 1, end)
        return self._simple(index, end)

    def _branch(self, index, block_end):
        begin = index + 1 if self.word(index + 1) == "(" else index + 2  # if constexpr
        end = self._close[begin]
        condition = self.words(begin + 1, end)
        self._lambdas(begin, end, begin)
        after, is_trace = self._statement(end + 1, block_end)
        if self.word(after) == "else":
            after, is_other_trace = self._statement(after + 1, block_end)
            is_trace = is_trace and is_other_trace
        is_trace = is_trace or self._mentions(condition, ["Trace", "::", "isOn"])
        if is_trace:
            self._skip(index, after)
        elif self.word(index) != "switch" and "=" not in condition and ";" not in condition:
            self.conditions.append((self.word(index), begin + 1, end))
        return after, is_trace

    def _for(self, index, block_end):
        begin, end = index + 1, self._close[index + 1]
        parts = [i for i in range(begin + 1, end) if self.word(i) == ";"]
        if len(parts) == 2 and parts[1] > parts[0] + 1:
            self.conditions.append(("for", parts[0] + 1, parts[1]))
        return self._statement(end + 1, block_end)

    def _simple(self, index, end):
        begin = index
        while self.word(index) != ";":
            index = self._close.get(index, index) + 1
            if index >= end:  # a macro that brings its own semicolon
                return end, False
        self._lambdas(begin, index, begin)
        if self._is_trace(begin, index):
            self._skip(begin, index + 1)
            return index + 1, True
        self.statements.append(Statement(begin, index, self._in_reference))
        return index + 1, False

    def _is_trace(self, begin, end):
        words = self.words(begin, end)
        declared = re.match(r"(?:const )?(?:\w*Trace|Trace :: \w+) (\w+) \(", " ".join(words))
        if declared:
            self._trace_variables.add(declared[1])
        return (
            bool(declared)
            or self._mentions(words, ["Trace", "::"])
            or words[0] in self._trace_variables
            or self._mentions(words, ["m_traced", "="])
            or (words[0] in self.facts.trace_functions and words[1:2] == ["("])
        )

    @staticmethod
    def _mentions(words, wanted):
        return any(words[i : i + len(wanted)] == wanted for i in range(len(words)))

    # Expressions

    def _lambdas(self, begin, end, first):
        """The bodies of the lambdas between two tokens; `first` is the first token of the expression."""
        index = begin
        while index < end:
            if self.word(index) == "{" and self._is_lambda(index, first):
                in_reference, self._in_reference = self._in_reference, False
                self._block(index + 1, self._close[index])
                self._in_reference = in_reference
                index = self._close[index]
            index += 1

    def _is_lambda(self, brace, first):
        index, plain = brace - 1, True
        while index > first and self.word(index) not in (")", "]"):
            token = self.tokens[index]
            if token.kind != "name" and token.text not in ("->", "::", "<", ">", "&", "*"):
                return False
            plain = plain and token.text not in ("->", "mutable", "noexcept")
            index -= 1
        if plain and index != brace - 1:
            return False
        return self.word(index) == "]" or self.word(self._open.get(index, 0) - 1) == "]"
