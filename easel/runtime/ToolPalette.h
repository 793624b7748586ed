// The tools that plug-ins have registered.
#pragma once

#include "host/Palette.h"

#include <deque>
#include <set>
#include <string>

namespace easel::runtime {

// Who fills a callback slot: nobody, the host (as it was handed out), or the plug-in.
enum class SlotOwner { None, Host, Plugin };

} // namespace easel::runtime

struct HostTool {
    HostTool(short number, const PaletteElement& element);
    HostTool(const HostTool&) = delete;
    HostTool& operator=(const HostTool&) = delete;

    // Slots are numbered from 1 to 8.
    easel::runtime::SlotOwner slotOwner(int slot) const;

    short number;
    PaletteElement element;
    std::string name; // UTF-8
    short nameCode = 0;
    std::set<short> flags; // those that are set
    ToolMethodRec methods;
    ToolRec record;
};

class TPalette {
  public:
    HostTool& add(const PaletteElement& element);
    // Null for a number that no tool has.
    HostTool* find(short number);
    // In the order in which they were added.
    const std::deque<HostTool>& tools() const { return tools_; }
    // To be called when the module behind the tools is unloaded. Numbers begin anew.
    void clear() { tools_.clear(); }

    // Takes what is written for a number that no tool has.
    HostTool& nobody() { return nobody_; }

  private:
    std::deque<HostTool> tools_;
    HostTool nobody_{0, PaletteElement{}};
};
