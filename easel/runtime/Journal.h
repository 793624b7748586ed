// The list of the host operations that the plug-in called, for whoever wants to see their order.
#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace easel::runtime {

// Keeps one line an operation, such as `DWindow::SetUndo(3)`; off, and then free of cost, unless switched on.
class Journal {
  public:
    bool isOn() const { return on_; }
    void switchOn() { on_ = true; }
    void switchOff() { on_ = false; }

    // Notes an operation under the name that the interface gives it. Plain numbers, truth values and texts
    // (UTF-8) go in, in the order of the call; pointers, points, rectangles and objects are left out.
    template <class... Values> void note(std::string_view operation, const Values&... values);

    // Gives the lines written since the last call and forgets them.
    std::vector<std::string> take();

  private:
    std::vector<std::string> lines_;
    bool on_ = false;
};

// One argument as the journal writes it: numbers so that reading them back gives the same value, texts
// (UTF-8) in quotes.
std::string journalWord(bool value);
std::string journalWord(long long value);
std::string journalWord(unsigned long long value);
std::string journalWord(double value);
std::string journalWord(std::string_view text);

template <class Value> std::string journalArgument(const Value& value) {
    if constexpr (std::same_as<Value, bool>)
        return journalWord(value);
    else if constexpr (std::floating_point<Value>)
        return journalWord(static_cast<double>(value));
    else if constexpr (std::unsigned_integral<Value>)
        return journalWord(static_cast<unsigned long long>(value));
    else if constexpr (std::integral<Value>)
        return journalWord(static_cast<long long>(value));
    else
        return journalWord(std::string_view(value));
}

template <class... Values> void Journal::note(std::string_view operation, const Values&... values) {
    if (!on_)
        return;
    std::string line(operation);
    line += '(';
    [[maybe_unused]] const char* separator = "";
    ((line += separator, line += journalArgument(values), separator = ", "), ...);
    line += ')';
    lines_.push_back(std::move(line));
}

} // namespace easel::runtime
