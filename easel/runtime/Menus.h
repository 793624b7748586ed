// The model of a menu: its entries and nothing of how they are shown.
#pragma once

#include <cstdint>
#include <deque>
#include <string>

namespace easel::runtime {

// One line of a menu. The text is shown character for character; nothing in it is syntax.
struct MenuEntry {
    std::string text;       // in the host's encoding, one byte a character
    bool enabled = true;    // a disabled entry is shown and cannot be chosen
    bool separator = false; // a line between groups; cannot be chosen either
};

// Entries are numbered from 1, as the host interface numbers them. Removing near the front and adding at the
// end take the same time in a menu of thousands as in one of ten.
class Menu {
  public:
    int count() const { return static_cast<int>(entries_.size()); }
    bool has(int number) const { return number >= 1 && number <= count(); }

    // The entry with that number, which must be there.
    const MenuEntry& entry(int number) const;
    // Its text in UTF-8.
    std::string text(int number) const;
    bool selectable(int number) const;
    // Whether it is what a list of templates is headed with: it stands between a line and a template's name.
    bool isHeading(int number) const;

    void append(MenuEntry entry);
    // These do nothing for a number that the menu lacks.
    void remove(int number);
    void setText(int number, std::string text);

    // Grows with every change, so a view can tell whether what it shows is the menu as it stands.
    std::uint64_t revision() const { return revision_; }

  private:
    std::deque<MenuEntry> entries_;
    std::uint64_t revision_ = 0;
};

} // namespace easel::runtime
