"""Weaves many faults into one source, each of which can be chosen while the program runs: what tools/mutate --together does.

A fault takes the place of the smallest piece of text that can be replaced as a whole, a number, an expression or statements.
The piece becomes a choice between what it says with the fault and without. Like the module mutations this reads tokens, not
syntax: a piece that is told wrong does not compile, nor does a choice where the compiler wants a constant. What the compiler
says is taken for blame, and faults that get it are left out.
"""

import collections
import re

from mutations import Statement, declares, tokens_of

# Replaces text[start:end] if the fault with this number is chosen; the form is one of those below.
Piece = collections.namedtuple("Piece", "start end number new form")
# A choice in a woven text, from its first line to its last one.
Choice = collections.namedtuple("Choice", "first last number")

STATEMENTS = "{{ if (plantedFault({number})) {{ {new} }} else {{ {rest} }} }}"
EXPRESSION = "(plantedFault({number}) ? ({new}) : ({rest}))"
CONDITION = "(plantedFault({number}) ? ({new}) : static_cast<bool>({rest}))"

ASSIGNMENTS = {"=", "+=", "-=", "*=", "/=", "%=", "&=", "|=", "^=", "<<=", ">>="}
BEFORE_EXPRESSION = ASSIGNMENTS | {"(", "[", "{", ",", ";", "?", ":", "return", "throw", "case", "else", "do"}
BEHIND_EXPRESSION = {")", "]", "}", ",", ";", "?", ":"}
BEHIND_ASSIGNMENT = BEHIND_EXPRESSION - {"?", ":"}
# Constants that a fault is chosen for are no constants any more.
VARIABLES = [(r"\bstatic constexpr ", "static inline const "), (r"\bconstexpr ", "const ")]
BEFORE_CONDITION = {"if", "for", "while", "switch", "constexpr"}


def partners_of(tokens):
    """The index of the other bracket for the index of each."""
    found, open_ones = {}, []
    for index, token in enumerate(tokens):
        if token.text in "([{":
            open_ones.append(index)
        elif token.text in ")]}" and open_ones:
            other = open_ones.pop()
            found[index], found[other] = other, index
    return found


def ends_before(tokens, partners, index):
    """Whether an expression cannot reach back over the token."""
    text = tokens[index].text
    if text == ")":
        return tokens[partners[index] - 1].text in BEFORE_CONDITION
    if text == "}":
        # Values in braces follow their type directly, blocks do not.
        opening = tokens[partners[index]]
        return tokens[partners[index] - 1].end != opening.start
    return text in BEFORE_EXPRESSION


def expression_around(tokens, index):
    """Where the expression begins and ends that is sure to hold all that the operator works on."""
    partners = partners_of(tokens)
    first = last = index
    while first > 0 and not ends_before(tokens, partners, first - 1):
        first = partners.get(first - 1, first - 1)
    behind = BEHIND_ASSIGNMENT if tokens[index].text in ASSIGNMENTS else BEHIND_EXPRESSION
    while last + 1 < len(tokens) and tokens[last + 1].text not in behind:
        last = partners.get(last + 1, last + 1)
    return tokens[first].start, tokens[last].end


def has_declaration(tokens):
    """Whether one of the statements declares something, which would end with the block it is woven into."""
    first = 0
    for index, token in enumerate(tokens):
        if token.text == ";":
            if declares(Statement(tokens[first:index + 1], 0, 0)):
                return True
            first = index + 1
    return False


def piece_of(text, tokens, number, mutation):
    """None if the mutation has to be tried alone."""
    start, end, form = mutation.start, mutation.end, EXPRESSION
    if mutation.kind == "dropped-scope":
        return None
    if mutation.kind in ("dropped", "order"):
        form = STATEMENTS
        if has_declaration([each for each in tokens if start <= each.start < end]):
            return None
    elif mutation.kind == "branch":
        form = CONDITION
    elif mutation.kind in ("relational", "arithmetic", "logical"):
        start, end = expression_around(tokens, next(i for i, each in enumerate(tokens) if each.start == mutation.start))
    new = text[start:mutation.start] + mutation.new + text[mutation.end:end]
    return Piece(start, end, number, new, form)


def put_together(text, start, end, pieces):
    """The text with the pieces in it, which are sorted; each holds those behind it entirely or not at all."""
    found, at = [], start
    while pieces:
        outer, pieces = pieces[0], pieces[1:]
        inside = [each for each in pieces if each.end <= outer.end]
        pieces = pieces[len(inside):]
        rest = put_together(text, outer.start, outer.end, inside)
        found.append(text[at:outer.start])
        found.append(outer.form.format(number=outer.number, new=outer.new, rest=rest))
        at = outer.end
    return "".join(found) + text[at:end]


def weave(text, mutations, header):
    """The text with all mutations (by their numbers) that can be chosen, and the numbers of these."""
    tokens = tokens_of(text)
    pieces = [piece_of(text, tokens, *each) for each in mutations.items()]
    chosen, ends = [], []
    for piece in sorted(filter(None, pieces), key=lambda each: (each.start, -each.end)):
        ends = [end for end in ends if end > piece.start]
        if all(piece.end <= end for end in ends):
            chosen.append(piece)
            ends.append(piece.end)
    woven = put_together(text, 0, len(text), chosen)
    for before, behind in VARIABLES:
        woven = re.sub(before + r"(?=[^;()]*[={][^;]*plantedFault)", behind, woven)
    return f'#include "{header}"\n{woven}', {each.number for each in chosen}


def choices_in(woven):
    tokens = tokens_of(woven)
    partners = partners_of(tokens)
    for index, token in enumerate(tokens):
        if token.text == "plantedFault":
            opening = index - 3 if tokens[index - 2].text == "if" else index - 1
            lines = [woven.count("\n", 0, tokens[each].start) + 1 for each in (opening, partners[opening])]
            yield Choice(*lines, int(tokens[index + 2].text))


def innermost(choices, line):
    around = [each for each in choices if each.first <= line <= each.last]
    least = min((each.last - each.first for each in around), default=0)
    return {each.number for each in around if each.last - each.first == least}


def blamed(texts, output):
    """The numbers of faults in the woven texts (by the names of their files) that a compiler's output complains of."""
    choices = {name: list(choices_in(text)) for name, text in texts.items()}
    lines = [(name, int(line), kind) for file, line, kind in re.findall(r"^(\S+?):(\d+):\d+: +(.*error)?", output, re.M)
             for name in texts if file.endswith(name)]
    errors = [(name, line) for name, line, kind in lines if kind]
    # Where an error has no choice around it, a note may tell of one, and otherwise it is one somewhere in the file.
    for places in (errors, [(name, line) for name, line, _ in lines]):
        found = set().union(*(innermost(choices[name], line) for name, line in places))
        if found:
            return found
    return {each.number for name, _ in errors for each in choices[name]}
