// Elements and attributes of text in any order. An input is a list of lines that make a drawing: "+NAME"
// opens an element,
// "-" closes one, "@NAME=VALUE" gives the one opened last an attribute, and other lines are text.
#include "easel/svg/Document.h"
#include "tests/fuzz/Fuzzing.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

using fuzzing::escaped;
using fuzzing::require;
using namespace easel;

bool isName(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-';
    });
}

class DrawingMaker {
  public:
    void add(std::string_view line) {
        const std::string_view rest = line.empty() ? line : line.substr(1);
        const std::size_t equals = rest.find('=');
        if (line.starts_with('+') && isName(rest)) {
            endTag();
            text_ += '<' + std::string(rest);
            open_.emplace_back(rest);
            inTag_ = true;
        } else if (line == "-" && !open_.empty()) {
            close();
        } else if (line.starts_with('@') && inTag_ && equals != std::string_view::npos &&
                   isName(rest.substr(0, equals))) {
            text_ +=
                ' ' + std::string(rest.substr(0, equals + 1)) + '"' + escaped(rest.substr(equals + 1)) + '"';
        } else {
            endTag();
            text_ += escaped(line) + '\n';
        }
    }

    std::string made() {
        while (!open_.empty())
            close();
        return "<svg xmlns='http://www.w3.org/2000/svg' width='100' height='100'><path id='p' d='M0 50c30-90 "
               "60 "
               "90 90 0z'/><clipPath id='c'><text x='5' y='50'>clip</text></clipPath><text>" +
               text_ + "</text></svg>";
    }

  private:
    void endTag() {
        if (inTag_)
            text_ += '>';
        inTag_ = false;
    }
    void close() {
        endTag();
        text_ += "</" + open_.back() + '>';
        open_.pop_back();
    }

    std::string text_;
    std::vector<std::string> open_;
    bool inTag_ = false;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view input(reinterpret_cast<const char*>(data), size);
    DrawingMaker maker;
    while (!input.empty()) {
        const std::size_t end = std::min(input.find('\n'), input.size());
        maker.add(input.substr(0, end));
        input.remove_prefix(std::min(end + 1, input.size()));
    }
    const auto drawing = svg::readBytes(maker.made(), {});
    if (!drawing)
        return 0;
    drawing->forEach([](const drawing::ObjectPtr& object) {
        for (const drawing::Point p : object->outline.points())
            require(std::isfinite(p.x) && std::isfinite(p.y));
        if (object->markers)
            for (const drawing::ObjectPtr& part : *object->markers)
                require(part->kind == drawing::Kind::Text && !part->outline.empty());
    });
    return 0;
}
