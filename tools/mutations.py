"""Finds the small faults that can be planted in a C++ source file: what tools/mutate tries one at a time.

It reads tokens, not syntax, and relies on the tree's format: binary operators stand between blanks and the brackets of
templates do not. A fault that does not compile costs one compilation and is not counted.
"""

import collections
import re

# Replaces text[start:end] by `new`. The kind is one word for the report.
Mutation = collections.namedtuple("Mutation", "start end new kind")
Token = collections.namedtuple("Token", "text start end")
# A statement without a block in it, from its first character to behind its semicolon.
Statement = collections.namedtuple("Statement", "tokens start end")

SKIPPED = r"//[^\n]*|/\*.*?\*/|^[ \t]*#[^\n]*"
TEXTS = r'"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\''
# Digits may stand in groups with an apostrophe between them.
NUMBERS = r"0[xX][0-9a-fA-F']+[uUlL]*|(?:\d[\d']*\.?\d*|\.\d+)(?:[eE][+-]?\d+)?[uUlLfF]*"
WORDS = r"[A-Za-z_]\w*"
SIGNS = r"<=>|<<=|>>=|->|::|\+\+|--|&&|\|\||[<>=!+\-*/%&|^]=|[^\s]"
TOKEN = re.compile(f"(?P<skip>{SKIPPED})|(?P<text>{TEXTS})|(?P<number>{NUMBERS})|{WORDS}|{SIGNS}", re.S | re.M)

RELATIONAL = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
ARITHMETIC = {"+": "-", "-": "+", "*": "/", "/": "*", "+=": "-=", "-=": "+="}
LOGICAL = {"&&": "||", "||": "&&"}
NO_STATEMENT = {"if", "for", "while", "switch", "return", "break", "continue", "case", "default", "else", "do", "using",
                "throw", "goto", "static_assert", "public", "private", "protected", "template", "typedef", "friend",
                "namespace", "struct", "class", "enum", "extern", "}"}
# Variables of these types are there for what they do at the end of their scope.
SCOPES = re.compile(r"^(St[A-Z]\w*|\w*(Scope|Guard|Saver|Changer|Restorer))$")


def tokens_of(text):
    found = []
    for match in TOKEN.finditer(text):
        if not match.group("skip"):
            found.append(Token(match.group(), match.start(), match.end()))
    return found


def stands_between_blanks(text, token):
    return text[token.start - 1] == " " and text[token.end:token.end + 1] in (" ", "\n")


def operator_mutations(text, tokens):
    for token in tokens:
        for table, kind in ((RELATIONAL, "relational"), (ARITHMETIC, "arithmetic"), (LOGICAL, "logical")):
            if token.text in table and stands_between_blanks(text, token):
                yield Mutation(token.start, token.end, table[token.text], kind)
        if token.text in ("++", "--"):
            yield Mutation(token.start, token.end, "--" if token.text == "++" else "++", "arithmetic")
        if token.text == "!":
            yield Mutation(token.start, token.end, "", "logical")
        if token.text in ("true", "false"):
            yield Mutation(token.start, token.end, "false" if token.text == "true" else "true", "truth")


def number_mutations(tokens):
    for before, token in zip(tokens, tokens[1:]):
        match = re.fullmatch(r"(0[xX][0-9a-fA-F]+|[\d.]+)([uUlLfF]*)", token.text.replace("'", ""))
        if not match or not token.text[0].isdigit() or before.text == "align":
            continue
        digits, suffix = match.groups()
        for step in (1, -1):
            if "." in digits:
                new = repr(float(digits) + step)
            else:
                # A leading zero makes it octal, as in the permissions of files.
                octal = re.fullmatch(r"0[0-7]+", digits)
                new = f"0{int(digits, 8) + step:o}" if octal else str(int(digits, 0) + step)
            yield Mutation(token.start, token.end, new + suffix, "constant")


def closing(tokens, opening):
    depth = 0
    for index in range(opening, len(tokens)):
        if tokens[index].text in "([{":
            depth += 1
        elif tokens[index].text in ")]}":
            depth -= 1
            if depth == 0:
                return index
    return len(tokens) - 1


def branch_mutations(text, tokens):
    """Turns the condition of an `if` round; what precedes a semicolon in it stays."""
    for index, token in enumerate(tokens[:-1]):
        if token.text == "if" and tokens[index + 1].text == "(":
            end = closing(tokens, index + 1)
            inner = tokens[index + 2:end]
            semicolons = [i for i, each in enumerate(inner) if each.text == ";"]
            first = inner[semicolons[-1] + 1] if semicolons else inner[0]
            condition = text[first.start:tokens[end].start]
            yield Mutation(first.start, tokens[end].start, f"!({condition})", "branch")


def is_block(tokens, index):
    """Whether the brace opens a block of statements rather than a class, a namespace or a list of values."""
    before = tokens[index - 1].text if index else ""
    if before in (")", "else", "do", "try", "]", "const", "override", "noexcept", "final", ";", "{", "}", ":"):
        start = index
        while start > 0 and tokens[start - 1].text not in (";", "{", "}"):
            start -= 1
        head = {token.text for token in tokens[start:index]}
        return not head & {"class", "struct", "namespace", "enum", "union"}
    return False


def blocks_of(tokens):
    """Lists of the simple statements that follow each other directly, with None where something else stands between."""
    for index, token in enumerate(tokens):
        if token.text == "{" and is_block(tokens, index):
            yield statements_in(tokens, index + 1, closing(tokens, index))


def statements_in(tokens, begin, end):
    found = []
    index = begin
    while index < end:
        stop = index
        simple = True
        while stop < end and tokens[stop].text != ";":
            if tokens[stop].text == "{":
                simple = simple and not is_block(tokens, stop)
                stop = closing(tokens, stop)
                if not simple:
                    break
            elif tokens[stop].text in "([":
                stop = closing(tokens, stop)
            elif tokens[stop].text == ":" and tokens[index].text in ("case", "default"):
                break
            stop += 1
        part = tokens[index:stop + 1]
        usable = simple and len(part) > 1 and part[-1].text == ";" and part[0].text not in NO_STATEMENT
        found.append(Statement(part, part[0].start, part[-1].end) if usable else None)
        index = stop + 1
    return found


def has_call(statement):
    return any(a.text == "(" for a in statement.tokens)


def declares(statement):
    """Whether a name follows a type, as in `T const& name`."""
    words = [token.text for token in statement.tokens]
    index = 0
    depth = 0
    while index < len(words) and (depth or re.fullmatch(WORDS, words[index]) or words[index] in ("::", "<", "[")):
        depth += words[index].count("<") + words[index].count("[") - words[index].count(">") - words[index].count("]")
        index += 1
        if depth == 0 and index < len(words) and re.fullmatch(WORDS, words[index]) and re.fullmatch(
                WORDS + "|>", words[index - 1]):
            return True
        while index < len(words) and depth == 0 and words[index] in ("*", "&"):
            index += 1
            if index < len(words) and re.fullmatch(WORDS, words[index]) and words[index - 2] not in ("(", "="):
                return True
    return False


def statement_mutations(text, tokens):
    for block in blocks_of(tokens):
        for statement in filter(None, block):
            if not declares(statement):
                yield Mutation(statement.start, statement.end, ";", "dropped")
            elif SCOPES.match(statement.tokens[0].text):
                yield Mutation(statement.start, statement.end, ";", "dropped-scope")
        for one, other in zip(block, block[1:]):
            if one and other and (has_call(one) or has_call(other)):
                swapped = (text[other.start:other.end] + text[one.end:other.start] + text[one.start:one.end])
                yield Mutation(one.start, other.end, swapped, "order")


def mutations_of(text):
    """All faults of a file, in the order of their places."""
    tokens = tokens_of(text)
    found = [*operator_mutations(text, tokens), *number_mutations(tokens), *branch_mutations(text, tokens),
             *statement_mutations(text, tokens)]
    return sorted(set(found), key=lambda each: (each.start, each.end, each.new))
