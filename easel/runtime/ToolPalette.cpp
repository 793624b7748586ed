// Keeps the tools that plug-ins have registered.
#include "easel/runtime/ToolPalette.h"

#include <algorithm>
#include <array>
#include <cstring>

using easel::runtime::SlotOwner;

namespace {

// What a tool does in the slots that its plug-in leaves alone: nothing.
void idle() {}
void idleOptions() {}
void idleCursor(DWindow*) {}
bool idleClick(DWindow*, const EventRecord&, const TPoint<double>&) {
    return false;
}

constexpr ToolMethodRec kHostMethods{idle, idleClick, idle, idleOptions, idle, idle, idle, idleCursor};

constexpr int kSlots = 8;

// The address in a slot, whatever form of callback the slot takes.
std::array<void*, kSlots> addressesOf(const ToolMethodRec& methods) {
    std::array<void*, kSlots> addresses{};
    static_assert(sizeof(addresses) == sizeof(ToolMethodRec));
    std::memcpy(addresses.data(), &methods, sizeof(methods));
    return addresses;
}

} // namespace

HostTool::HostTool(short toolNumber, const PaletteElement& paletteElement)
    : number(toolNumber), element(paletteElement), methods(kHostMethods), record(*this) {}

SlotOwner HostTool::slotOwner(int slot) const {
    const auto index = static_cast<std::size_t>(slot - 1);
    void* const address = addressesOf(methods)[index];
    if (!address)
        return SlotOwner::None;
    return address == addressesOf(kHostMethods)[index] ? SlotOwner::Host : SlotOwner::Plugin;
}

HostTool& TPalette::add(const PaletteElement& element) {
    return tools_.emplace_back(static_cast<short>(tools_.size() + 1), element);
}

HostTool* TPalette::find(short number) {
    const auto found = std::find_if(tools_.begin(), tools_.end(),
                                    [&](const HostTool& tool) { return tool.number == number; });
    return found == tools_.end() ? nullptr : &*found;
}
