// A text that most things do not have: it takes the room of a pointer, and more only if there is one.
#pragma once

#include <memory>
#include <string>

namespace easel::drawing {

class Name {
  public:
    Name() = default;
    Name(const std::string& text) : text_(text.empty() ? nullptr : std::make_unique<std::string>(text)) {}
    Name(const char* text) : Name(std::string(text)) {}
    Name(const Name& other) : Name(other.text()) {}
    Name(Name&&) noexcept = default;
    Name& operator=(Name other) noexcept {
        text_.swap(other.text_);
        return *this;
    }
    ~Name() = default;

    bool empty() const { return !text_; }
    const std::string& text() const {
        static const std::string kNone;
        return text_ ? *text_ : kNone;
    }

  private:
    std::unique_ptr<std::string> text_;
};

} // namespace easel::drawing
