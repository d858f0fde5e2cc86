"""Small faults in C++ sources: what a tired engineer would have written instead."""

import collections
import dataclasses
import re

_TOKEN = re.compile(
    r'(?P<skip>//[^\n]*|/\*.*?\*/|^[ \t]*\#(?:\\\n|[^\n])*|R"(?P<delimiter>[^(]*)\(.*?\)(?P=delimiter)"|"(?:\\.|[^"\\\n])*"|'
    r"'(?:\\.|[^'\\\n])+'|\s+)"
    r"|(?P<number>\b\d[\w.']*)|(?P<name>[A-Za-z_]\w*)"
    r"|(?P<mark><<=|>>=|<=>|->|::|\+\+|--|&&|\|\||[-+*/%&|^=!<>]=|<<|>>|[^\w\s])",
    re.DOTALL | re.MULTILINE)

_NEGATED = {"==": "!=", "!=": "==", "&&": "||", "||": "&&", "true": "false", "false": "true"}
_OFF_BY_ONE = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "+": "-", "-": "+", "++": "--", "--": "++", "+=": "-=", "-=": "+="}
_NO_STATEMENT = re.compile(r"(return|using|typedef|friend|break|continue|throw|static_assert|TRN_ASSERT_NEVER|case|default)\b")


@dataclasses.dataclass(frozen=True)
class Mutation:
    """The text from begin to end, and what stands there instead."""
    sort: str
    begin: int
    end: int
    text: str

    def applied(self, source):
        return source[:self.begin] + self.text + source[self.end:]


@dataclasses.dataclass
class _Token:
    kind: str
    text: str
    begin: int
    end: int


def _code(source):
    """The tokens within bodies of functions."""
    tokens = []
    blocks = []
    previous = ""
    for match in _TOKEN.finditer(source):
        if match.lastgroup == "skip" or match.group("skip"):
            continue
        text = match.group()
        if text == "{":
            body = previous in (")", "const", "noexcept", "override", "else", "do", "try")
            blocks.append(body or (bool(blocks) and blocks[-1]))
        elif text == "}" and blocks:
            blocks.pop()
        elif blocks and blocks[-1]:
            tokens.append(_Token(match.lastgroup, text, match.start(), match.end()))
        previous = text
    return tokens


def _family(name):
    """Names that may be taken for each other start alike; None for a name that stands for itself."""
    match = re.match(r"(STR_|k(?=[A-Z])|m_)", name)
    return match.group() if match else None


def _conditions(source, tokens):
    """The parentheses after "if" and "while"."""
    for index, token in enumerate(tokens[:-1]):
        if token.text not in ("if", "while") or tokens[index + 1].text != "(":
            continue
        depth = 0
        for inner in tokens[index + 1:]:
            depth += {"(": 1, ")": -1}.get(inner.text, 0)
            if depth == 0:
                yield tokens[index + 1].end, inner.begin
                break


def _statements(source, tokens):
    """Statements that are a line of their own, as begin and end of the text without its indentation."""
    inside = {token.begin for token in tokens}
    for match in re.finditer(r"^[ \t]+(\S[^\n{}]*;)$", source, re.MULTILINE):
        text = match.group(1)
        if match.start(1) in inside and not _NO_STATEMENT.match(text) and text.count("(") == text.count(")"):
            before = source[:match.start()].rstrip()
            if before.endswith((";", "{", "}", ")", ":", "else")):  # and not the end of a longer one
                yield match.start(1), match.end(1)


def mutations(source):
    """Every mutation of the text of a source file, by sort."""
    found = collections.defaultdict(list)

    def add(sort, begin, end, text):
        if source[begin:end] != text:
            found[sort].append(Mutation(sort, begin, end, text))

    tokens = _code(source)
    families = collections.defaultdict(list)
    for token in tokens:
        family = token.kind == "name" and _family(token.text)
        if family and token.text not in families[family]:
            families[family].append(token.text)

    for begin, end in _conditions(source, tokens):
        add("negated condition", begin, end, f"!({source[begin:end]})")
    for index, token in enumerate(tokens):
        spaced = source[token.begin - 1:token.begin] == " " and source[token.end:token.end + 1] == " "
        if token.text in _NEGATED:
            add("negated condition", token.begin, token.end, _NEGATED[token.text])
        elif token.text == "!":
            add("negated condition", token.begin, token.end, "")
        elif token.text in _OFF_BY_ONE and (spaced or token.text in ("++", "--")):
            add("off by one", token.begin, token.end, _OFF_BY_ONE[token.text])
        elif token.kind == "number" and token.text.isdigit():
            add("off by one", token.begin, token.end, str(int(token.text) + 1))
        elif token.kind == "name" and _family(token.text):
            others = families[_family(token.text)]
            add("swapped name", token.begin, token.end, others[(others.index(token.text) + 1) % len(others)])
        names = tokens[index:index + 5]
        if [name.text for name in names[::2]] == ["(", ",", ")"] and names[1].kind == names[3].kind == "name":
            add("swapped order", names[1].begin, names[3].end, f"{names[3].text}, {names[1].text}")

    statements = list(_statements(source, tokens))
    for begin, end in statements:
        add("dropped statement", begin, end, ";")
    for (begin, middle), (next_begin, end) in zip(statements, statements[1:]):
        between = source[middle:next_begin]
        if between.count("\n") == 1 and between.strip() == "":
            add("swapped order", begin, end, source[next_begin:end] + between + source[begin:middle])
    return found
