// Walks a deflate stream (RFC 1951) without unpacking it: only the lengths of its symbols are decoded.
#include "easel/export/DeflateStream.h"

#include <algorithm>
#include <array>

namespace easel::exports {
namespace {

constexpr unsigned kLongestCode = 15;

// What a code stands for, as far as walking needs to know. Codes for the lengths of codes stand for a number
// up to 18.
enum Meaning : std::uint8_t { kLiteral, kMatch, kEndOfBlock, kNoCode = 255 };

// What to do at a code: the bits it takes together with the extra bits that follow it.
struct Step {
    std::uint8_t bits = 0;
    std::uint8_t meaning = kNoCode;
};

class BitReader {
  public:
    explicit BitReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    std::size_t position() const { return position_; }
    bool overrun() const { return position_ > bytes_.size() * 8; }
    void skip(std::size_t bits) { position_ += bits; }
    void alignToByte() { position_ = (position_ + 7) / 8 * 8; }

    // The next bits without taking them: at least 56, zeros past the end.
    std::uint64_t peek() const {
        const std::size_t at = position_ / 8;
        std::uint64_t bits = 0;
        if (at + 8 <= bytes_.size()) {
            for (unsigned i = 0; i < 8; ++i)
                bits |= std::uint64_t{bytes_[at + i]} << (8 * i);
        } else {
            for (unsigned i = 0; at + i < bytes_.size(); ++i)
                bits |= std::uint64_t{bytes_[at + i]} << (8 * i);
        }
        return bits >> (position_ % 8);
    }
    unsigned take(unsigned bits) {
        const auto value = static_cast<unsigned>(peek() & ((1u << bits) - 1));
        skip(bits);
        return value;
    }

  private:
    std::span<const std::uint8_t> bytes_;
    std::size_t position_ = 0;
};

unsigned reversed(unsigned code, unsigned bits) {
    unsigned result = 0;
    for (unsigned i = 0; i < bits; ++i)
        result |= (code >> i & 1u) << (bits - 1 - i);
    return result;
}

// A step for each value that the next bits of the stream can have, as many of them as the longest code has.
class CodeTable {
  public:
    // Canonical codes of these lengths; false if they claim more codes than there are. `stepFor` gives the
    // extra bits and the meaning of a symbol.
    bool fill(std::span<const std::uint8_t> lengths, Step (*stepFor)(unsigned symbol)) {
        const unsigned longest = *std::max_element(lengths.begin(), lengths.end());
        std::array<unsigned, kLongestCode + 1> next{};
        if (!firstCodes(lengths, next))
            return false;
        mask_ = (std::size_t{1} << longest) - 1;
        std::fill_n(steps_.begin(), mask_ + 1, Step{});
        for (unsigned symbol = 0; symbol < lengths.size(); ++symbol) {
            const unsigned bits = lengths[symbol];
            if (bits == 0)
                continue;
            Step step = stepFor(symbol);
            step.bits = static_cast<std::uint8_t>(step.bits + bits);
            for (std::size_t i = reversed(next[bits]++, bits); i <= mask_; i += std::size_t{1} << bits)
                steps_[i] = step;
        }
        return true;
    }
    Step at(std::uint64_t bits) const { return steps_[bits & mask_]; }

  private:
    static bool firstCodes(std::span<const std::uint8_t> lengths,
                           std::array<unsigned, kLongestCode + 1>& first) {
        std::array<unsigned, kLongestCode + 1> count{};
        for (const std::uint8_t length : lengths)
            count[length] += length > 0;
        unsigned code = 0;
        for (unsigned bits = 1; bits <= kLongestCode; ++bits) {
            code = (code + count[bits - 1]) << 1;
            first[bits] = code;
            if (code + count[bits] > 1u << bits)
                return false;
        }
        return true;
    }

    std::size_t mask_ = 0;
    std::array<Step, std::size_t{1} << kLongestCode> steps_{};
};

Step literalOrLengthStep(unsigned symbol) {
    if (symbol < 256)
        return {0, kLiteral};
    if (symbol == 256)
        return {0, kEndOfBlock};
    if (symbol > 285)
        return {};
    const unsigned extra = symbol < 265 || symbol == 285 ? 0 : (symbol - 261) / 4;
    return {static_cast<std::uint8_t>(extra), kMatch};
}

Step distanceStep(unsigned symbol) {
    if (symbol > 29)
        return {};
    const unsigned extra = symbol < 4 ? 0 : symbol / 2 - 1;
    return {static_cast<std::uint8_t>(extra), kMatch};
}

Step plainStep(unsigned symbol) {
    return {0, static_cast<std::uint8_t>(symbol)};
}

class StreamWalk {
  public:
    explicit StreamWalk(std::span<const std::uint8_t> stream) : bits_(stream) {}

    std::optional<DeflateEnd> run() {
        for (;;) {
            const std::size_t block = bits_.position();
            const bool last = bits_.take(1) == 1;
            const unsigned type = bits_.take(2);
            const bool walked = type == 0   ? skipStored()
                                : type == 1 ? fixedCodes() && skipSymbols()
                                : type == 2 ? readCodes() && skipSymbols()
                                            : false;
            if (!walked || bits_.overrun())
                return std::nullopt;
            if (last)
                return DeflateEnd{block, bits_.position()};
        }
    }

  private:
    bool skipStored() {
        bits_.alignToByte();
        const unsigned length = bits_.take(16);
        const unsigned complement = bits_.take(16);
        bits_.skip(std::size_t{length} * 8);
        return (length ^ complement) == 0xFFFF;
    }

    bool fixedCodes() {
        std::array<std::uint8_t, 288> lengths;
        std::fill(lengths.begin(), lengths.begin() + 144, std::uint8_t{8});
        std::fill(lengths.begin() + 144, lengths.begin() + 256, std::uint8_t{9});
        std::fill(lengths.begin() + 256, lengths.begin() + 280, std::uint8_t{7});
        std::fill(lengths.begin() + 280, lengths.end(), std::uint8_t{8});
        std::array<std::uint8_t, 32> distances;
        distances.fill(5);
        return literals_.fill(lengths, literalOrLengthStep) && distances_.fill(distances, distanceStep);
    }

    bool readCodes() {
        const unsigned literals = bits_.take(5) + 257;
        const unsigned distances = bits_.take(5) + 1;
        const unsigned codeLengths = bits_.take(4) + 4;
        static constexpr std::array<std::uint8_t, 19> kOrder = {16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                                                11, 4,  12, 3, 13, 2, 14, 1, 15};
        std::array<std::uint8_t, 19> ownLengths{};
        for (unsigned i = 0; i < codeLengths; ++i)
            ownLengths[kOrder[i]] = static_cast<std::uint8_t>(bits_.take(3));
        std::array<std::uint8_t, 320> lengths{};
        const std::span<std::uint8_t> all = std::span(lengths).first(literals + distances);
        return literals_.fill(ownLengths, plainStep) && readLengths(all) &&
               literals_.fill(all.first(literals), literalOrLengthStep) &&
               distances_.fill(all.subspan(literals), distanceStep);
    }

    // The lengths are themselves packed: 16 repeats the one before, 17 and 18 are runs of zeros.
    bool readLengths(std::span<std::uint8_t> lengths) {
        for (std::size_t done = 0; done < lengths.size();) {
            const Step step = literals_.at(bits_.peek());
            bits_.skip(step.bits);
            if (step.meaning == kNoCode || (step.meaning == 16 && done == 0) || bits_.overrun())
                return false;
            if (step.meaning < 16) {
                lengths[done++] = step.meaning;
                continue;
            }
            const std::uint8_t repeated = step.meaning == 16 ? lengths[done - 1] : std::uint8_t{0};
            const std::size_t run = step.meaning == 16   ? bits_.take(2) + 3
                                    : step.meaning == 17 ? bits_.take(3) + 3
                                                         : bits_.take(7) + 11;
            if (run > lengths.size() - done)
                return false;
            std::fill_n(lengths.begin() + static_cast<std::ptrdiff_t>(done), run, repeated);
            done += run;
        }
        return true;
    }

    bool skipSymbols() {
        // Of the bits seen at once, those behind this many still hold a whole code.
        constexpr unsigned kRoomForLiterals = 56 - kLongestCode;
        while (!bits_.overrun()) {
            const std::uint64_t seen = bits_.peek();
            unsigned used = 0;
            Step step = literals_.at(seen);
            while (step.meaning == kLiteral && used + step.bits <= kRoomForLiterals) {
                used += step.bits;
                step = literals_.at(seen >> used);
            }
            bits_.skip(used + step.bits);
            if (step.meaning == kEndOfBlock)
                return true;
            if (step.meaning == kNoCode)
                return false;
            if (step.meaning == kMatch) {
                const Step distance = distances_.at(bits_.peek());
                bits_.skip(distance.bits);
                if (distance.meaning == kNoCode)
                    return false;
            }
        }
        return false;
    }

    BitReader bits_;
    CodeTable literals_;
    CodeTable distances_;
};

} // namespace

std::optional<DeflateEnd> findDeflateEnd(std::span<const std::uint8_t> stream) {
    return StreamWalk(stream).run();
}

bool makeDeflatePart(std::vector<std::uint8_t>& stream, StreamPart part) {
    if (part == StreamPart::Last)
        return true;
    const std::optional<DeflateEnd> end = findDeflateEnd(stream);
    if (!end)
        return false;
    stream[end->lastBlock / 8] =
        static_cast<std::uint8_t>(stream[end->lastBlock / 8] & ~(1u << end->lastBlock % 8));
    // An empty stored block brings the stream to a byte's end: three header bits of 0, zeros up to the byte,
    // its lengths.
    stream.resize((end->end + 3 + 7) / 8, 0);
    if (end->end % 8 != 0)
        stream[end->end / 8] = static_cast<std::uint8_t>(stream[end->end / 8] & ((1u << end->end % 8) - 1));
    constexpr std::array<std::uint8_t, 4> kNoBytes = {0x00, 0x00, 0xFF, 0xFF};
    stream.insert(stream.end(), kNoBytes.begin(), kNoBytes.end());
    return true;
}

std::uint32_t joinedAdler32(std::uint32_t first, std::uint32_t second, std::size_t secondLength) {
    constexpr std::uint64_t kBase = 65521;
    const std::uint64_t firstLow = first & 0xFFFF;
    const std::uint64_t length = secondLength % kBase;
    // The low sum starts at 1 in each piece; the high sum of the second misses the first's low sum once a
    // byte.
    const std::uint64_t low = (firstLow + (second & 0xFFFF) + kBase - 1) % kBase;
    const std::uint64_t high =
        ((first >> 16) + (second >> 16) + length * firstLow + kBase * kBase - length) % kBase;
    return static_cast<std::uint32_t>(high << 16 | low);
}

} // namespace easel::exports
