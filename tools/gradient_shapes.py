"""Finds the closed shapes of an SVG drawing that a gradient fills, without any help from Easel.

It reads the file by itself, as far as that question needs: elements, style sheets and inherited fills, and the
gradients that fills name. Shapes count where the drawing shows them, not where it only defines them (below defs,
symbol, pattern and the like), and not if they are not displayed.
"""

import collections
import gzip
import re
import xml.parsers.expat

CONTAINERS = {"svg", "g", "a", "switch"}
SHAPES = {"path", "rect", "circle", "ellipse", "polygon"}
GRADIENTS = {"linearGradient", "radialGradient"}
NUMBER = re.compile(r"[-+]?(?:\d+\.?\d*|\.\d+)(?:[eE][-+]?\d+)?")
URL = re.compile(r"url\(\s*[\"']?#([^\"')]+)[\"']?\s*\)")
COMPOUND = re.compile(r"([.#]?)([\w-]+)")


class Element:
    def __init__(self, tag, attributes, parent, place):
        self.name = tag.rpartition(":")[2]
        self.attributes = attributes
        self.parent = parent
        self.children = []
        self.text = ""
        # Where in the file another attribute can be written.
        self.room = place + 1 + len(tag.encode())
        self.style = {}

    def href(self):
        return self.attributes.get("href") or self.attributes.get("xlink:href", "")


class Drawing:
    """A file as a tree, each element with the declarations that apply to it; raises ExpatError or OSError."""

    def __init__(self, data):
        self.data = gzip.decompress(data) if data[:2] == b"\x1f\x8b" else data
        self.elements = []
        open_elements = [None]
        parser = xml.parsers.expat.ParserCreate()

        def start(tag, attributes):
            element = Element(tag, attributes, open_elements[-1], parser.CurrentByteIndex)
            if element.parent:
                element.parent.children.append(element)
            self.elements.append(element)
            open_elements.append(element)

        def text(characters):
            if open_elements[-1]:
                open_elements[-1].text += characters

        parser.StartElementHandler = start
        parser.EndElementHandler = lambda tag: open_elements.pop()
        parser.CharacterDataHandler = text
        parser.Parse(self.data, True)
        self.root = self.elements[0]
        self.by_id = {}
        for element in self.elements:
            self.by_id.setdefault(element.attributes.get("id"), element)
        rules = [rule for element in self.elements if element.name == "style" for rule in style_rules(element.text)]
        for element in self.elements:
            element.style = declared(element, rules)


def declarations(text):
    pairs = (part.partition(":") for part in text.split(";"))
    return {name.strip(): value.strip() for name, colon, value in pairs if colon}


def style_rules(text):
    """(specificity, selector, declarations) of each rule, those within at-rules left out; the weakest first."""
    text = re.sub(r"/\*.*?\*/|<!--|-->|@import[^;]*;", "", text, flags=re.DOTALL)
    text = re.sub(r"@[^{]*\{(?:[^{}]*\{[^}]*\})*[^}]*\}", "", text)
    found = []
    for selectors, body in re.findall(r"([^{}]+)\{([^}]*)\}", text):
        for selector in selectors.split(","):
            marks = [mark for mark, _ in COMPOUND.findall(selector)]
            weight = (marks.count("#"), marks.count("."), marks.count(""))
            found.append((weight, selector.replace(">", " > ").split(), declarations(body)))
    return sorted(found, key=lambda rule: rule[0])


def fits_compound(element, compound):
    if re.sub(COMPOUND, "", compound) not in ("", "*"):
        return False  # Attribute selectors and states of elements do not occur in fills that matter here.
    wanted = {"": [element.name], ".": element.attributes.get("class", "").split(), "#": [element.attributes.get("id")]}
    return all(word in wanted[mark] for mark, word in COMPOUND.findall(compound))


def fits(element, selector):
    if not selector or not fits_compound(element, selector[-1]):
        return False
    above = selector[:-1]
    if not above:
        return True
    if above[-1] == ">":
        return element.parent is not None and fits(element.parent, above[:-1])
    while (element := element.parent) is not None:
        if fits(element, above):
            return True
    return False


def declared(element, rules):
    style = dict(element.attributes)
    for _, selector, body in rules:
        if fits(element, selector):
            style |= body
    style |= declarations(element.attributes.get("style", ""))
    return {name: value.replace("!important", "").strip() for name, value in style.items()}


def inherited(element, name):
    while element is not None:
        value = element.style.get(name, "inherit")
        if value != "inherit":
            return value
        element = element.parent
    return None


def displayed(element):
    while element.style.get("display") != "none":
        if element.parent is None:
            return element.name == "svg"
        element = element.parent
        if element.name not in CONTAINERS:
            return False
    return False


def chain(drawing, gradient):
    """A gradient and those it takes over from, nearest first."""
    found = []
    while gradient is not None and gradient.name in GRADIENTS and gradient not in found:
        found.append(gradient)
        gradient = drawing.by_id.get(gradient.href().removeprefix("#")) if gradient.href() else None
    return found


def stops(drawing, gradient):
    for source in chain(drawing, gradient):
        listed = [child for child in source.children if child.name == "stop"]
        if listed:
            return listed
    return []


def ends_of_subpaths(data):
    """(first point, last point, ends with a close) of each subpath that has a segment."""
    found, here, start, drawn = [], (0.0, 0.0), (0.0, 0.0), False
    size = {"m": 2, "l": 2, "h": 1, "v": 1, "c": 6, "s": 4, "q": 4, "t": 2, "a": 7}
    for command, text in re.findall(r"([a-zA-Z])([^a-df-zA-DF-Z]*)", data):
        low, base = command.lower(), command.islower()
        if low == "z":
            found.append((start, here, True))
            here, drawn = start, False
            continue
        values = arguments(low, text)
        step = size.get(low, 0)
        for i in range(0, len(values) - step + 1 if step else 0, step or 1):
            if low == "m" and i == 0 and drawn:
                found.append((start, here, False))
            dx, dy = here if base else (0.0, 0.0)
            here = {"h": (values[i] + dx, here[1]), "v": (here[0], values[i] + dy)}.get(
                low, (values[i + step - 2] + dx, values[i + step - 1] + dy) if step > 1 else here)
            drawn = low != "m" or i > 0
            start = here if not drawn else start
    return found + [(start, here, False)] * drawn


def arguments(command, text):
    if command != "a":
        return [float(number) for number in NUMBER.findall(text)]
    # The flags of an arc may stand without blanks around them.
    pattern = re.compile(rf"({NUMBER.pattern})[\s,]*" * 3 + r"([01])[\s,]*([01])[\s,]*" + rf"({NUMBER.pattern})[\s,]*" * 2)
    return [float(number) for arc in pattern.findall(text) for number in arc]


def closed(shape):
    """Whether the outline is one without ends: each subpath closes or comes back to where it began."""
    if shape.name == "path":
        ends = ends_of_subpaths(shape.attributes.get("d", ""))
        near = lambda a, b: abs(a[0] - b[0]) + abs(a[1] - b[1]) <= 1e-4 * (1 + abs(a[0]) + abs(a[1]))
        return bool(ends) and all(shut or near(first, last) for first, last, shut in ends)
    needed = {"rect": ("width", "height"), "circle": ("r",), "ellipse": ("rx", "ry"), "polygon": ("points",)}[shape.name]
    sizes = [NUMBER.search(shape.attributes.get(name, "")) for name in needed]
    return shape.name == "polygon" or all(size and float(size.group()) > 0 for size in sizes)


Filled = collections.namedtuple("Filled", "shape gradient")


def gradient_filled(drawing):
    """The closed shapes that are filled with a gradient that has stops, in the file's order."""
    found = []
    for shape in drawing.elements:
        if shape.name not in SHAPES or not displayed(shape) or not closed(shape):
            continue
        named = URL.match(inherited(shape, "fill") or "")
        gradient = drawing.by_id.get(named.group(1).strip()) if named else None
        if gradient is not None and gradient.name in GRADIENTS and stops(drawing, gradient):
            found.append(Filled(shape, gradient))
    return found
