"""Text as outlines, from a TrueType font, for pictures that look the same in programs that draw no text."""
import struct

FONT = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"

# Bits of a point's flags, and of a part's in a glyph put together from others.
ON_CURVE, X_SHORT, Y_SHORT, REPEAT, X_SAME, Y_SAME = 1, 2, 4, 8, 16, 32
WORDS, MORE = 1, 32


class Font:
    def __init__(self, file=FONT):
        with open(file, "rb") as source:
            self.bytes = source.read()
        self.tables = {}
        for i in range(self.u16(4)):
            tag, _, at, _ = struct.unpack_from(">4sIII", self.bytes, 12 + 16 * i)
            self.tables[tag.decode()] = at
        self.em = self.u16(self.tables["head"] + 18)
        self.long_places = self.u16(self.tables["head"] + 50)
        self.widths = self.u16(self.tables["hhea"] + 34)

    def u16(self, at):
        return struct.unpack_from(">H", self.bytes, at)[0]

    def i16s(self, at, count):
        return struct.unpack_from(f">{count}h", self.bytes, at)

    def glyph_of(self, character):
        """By the table of segments that every font has for Unicode."""
        cmap = self.tables["cmap"]
        for i in range(self.u16(cmap + 2)):
            platform, encoding, at = struct.unpack_from(">HHI", self.bytes, cmap + 4 + 8 * i)
            if (platform, encoding) == (3, 1):
                break
        table, code = cmap + at, ord(character)
        length = self.u16(table + 6)  # of each list, in bytes
        for place in range(table + 14, table + 14 + length, 2):
            if self.u16(place) < code:
                continue
            begin, delta, offset = place + length + 2, place + 2 * length + 2, place + 3 * length + 2
            if self.u16(begin) > code:
                return 0
            if self.u16(offset) == 0:
                return (code + self.u16(delta)) & 0xffff
            return self.u16(offset + self.u16(offset) + 2 * (code - self.u16(begin)))
        return 0

    def width(self, text):
        """In units of the font's size."""
        hmtx = self.tables["hmtx"]
        return sum(self.u16(hmtx + 4 * min(self.glyph_of(c), self.widths - 1)) for c in text) / self.em

    def contours(self, glyph):
        """Lists of points (x, y, whether on the curve)."""
        loca, glyf = self.tables["loca"], self.tables["glyf"]
        if self.long_places:
            begin, end = struct.unpack_from(">II", self.bytes, loca + 4 * glyph)
        else:
            begin, end = (2 * n for n in struct.unpack_from(">HH", self.bytes, loca + 2 * glyph))
        if begin == end:
            return []
        at = glyf + begin
        count = self.i16s(at, 1)[0]
        return self.simple(at + 10, count) if count >= 0 else self.composed(at + 10)

    def composed(self, at):
        contours, flags = [], MORE
        while flags & MORE:
            flags, part = struct.unpack_from(">HH", self.bytes, at)
            x, y = struct.unpack_from(">hh" if flags & WORDS else ">bb", self.bytes, at + 4)
            contours += [[(px + x, py + y, on) for px, py, on in contour] for contour in self.contours(part)]
            at += 8 if flags & WORDS else 6
        return contours

    def simple(self, at, count):
        ends = struct.unpack_from(f">{count}H", self.bytes, at)
        at += 2 * count
        at += 2 + self.u16(at)  # past the instructions
        flags = []
        while len(flags) <= ends[-1]:
            flag, times = self.bytes[at], 1
            at += 1
            if flag & REPEAT:
                times += self.bytes[at]
                at += 1
            flags += [flag] * times
        columns, at = self.coordinates(at, flags, X_SHORT, X_SAME)
        rows, at = self.coordinates(at, flags, Y_SHORT, Y_SAME)
        points = [(x, y, flag & ON_CURVE) for x, y, flag in zip(columns, rows, flags)]
        return [points[first:last + 1] for first, last in zip((0, *(end + 1 for end in ends)), ends)]

    def coordinates(self, at, flags, short, same):
        values, value = [], 0
        for flag in flags:
            if flag & short:
                value += self.bytes[at] if flag & same else -self.bytes[at]
                at += 1
            elif not flag & same:
                value += self.i16s(at, 1)[0]
                at += 2
            values.append(value)
        return values, at

    def outline(self, text, x, y, size):
        """Path data of the text, its base line beginning at this point."""
        parts = []
        for character in text:
            for contour in self.contours(self.glyph_of(character)):
                parts.append(path_of([(x + px * size / self.em, y - py * size / self.em, on) for px, py, on in contour]))
            x += self.width(character) * size
        return "".join(parts)


def path_of(points):
    """Two points off the curve have one on it halfway between them."""
    whole = []
    for i, (x, y, on) in enumerate(points):
        before_x, before_y, before_on = points[i - 1]
        if not on and not before_on:
            whole.append(((x + before_x) / 2, (y + before_y) / 2, 1))
        whole.append((x, y, on))
    first = next(i for i, point in enumerate(whole) if point[2])
    whole = whole[first:] + whole[:first + 1]
    data = f"M{whole[0][0]:.2f} {whole[0][1]:.2f}"
    control = None
    for x, y, on in whole[1:]:
        if not on:
            control = (x, y)
        elif control is None:
            data += f"L{x:.2f} {y:.2f}"
        else:
            data += f"Q{control[0]:.2f} {control[1]:.2f} {x:.2f} {y:.2f}"
            control = None
    return data + "Z"
