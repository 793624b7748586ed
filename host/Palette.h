// The tool palette, the record of a tool with its callbacks, and the entry by which the host reaches a
// plug-in.
#pragma once

#include "host/Geometry.h"
#include "host/Strings.h"

#include <cstdint>

#pragma GCC visibility push(default)

/// Parameters of a message to a plug-in; the host's. Plug-ins of this interface read none, so a host may pass
/// null.
struct XTNLParmBlk;
/// A window of the toolbox; the host's.
struct OpaqueWindowPtr;
/// A tool palette; the host's.
class TPalette;
class DWindow;
struct EventRecord;

/// What a plug-in exports as `MainEntry`, with C linkage. Message 1 is sent after loading, once the plug-in's
/// resources can be read, message 2 before unloading; the plug-in's callbacks are called between the two
/// only. Other messages do nothing. The result is 0. A plug-in takes back nothing of what it registered:
/// after message 2 the host removes the tool, whose callbacks are code of the module, and only then unloads
/// the module.
using XTNLEntry = std::int32_t (*)(std::int16_t message, XTNLParmBlk* block);

/// A tool's place in the palette. Only the icon has to be understood; a host with a layout of its own may
/// keep the other members unread.
struct PaletteElement {
    /// Resource id of the tool's icon, among the plug-in's resources.
    std::int16_t icon;
    std::int16_t group;
    std::int16_t position;
    std::int32_t attributes;
    std::int16_t available;
    /// For the host, which gives them their values; a plug-in leaves them alone.
    std::int16_t hostData[4] = {};
};

/// A callback whose form this interface does not know.
using ToolProc = void (*)();
/// The mouse was pressed in a drawing window, at `where` in drawing coordinates, with the tool active; the
/// button is usually still held, and may be held or released when this returns. True if the tool made use of
/// the press. The tool reads modifier keys by NorvU::KeyIsDown and not from the event.
///
/// On entry to this and the other two any port may be current, or none; the one that is current is so again
/// on return.
using ToolClickProc = bool (*)(DWindow* window, EventRecord const& event, TPoint<double> const& where);
/// The user asked for the tool's options, which a modal dialog may show before this returns.
using ToolOptionsProc = void (*)();
/// The pointer is over a drawing window with the tool active: set that window's cursor. To be called when the
/// pointer enters the window or moves in it, and when a modifier key changes meanwhile.
using ToolCursorProc = void (*)(DWindow* window);

/// The callbacks of a tool, eight slots in a fixed order; null means none. The host fills them, with null or
/// with what it does itself, before it hands the record out, and calls nothing through a slot that the
/// plug-in cleared.
struct ToolMethodRec {
    ToolProc slot1;
    ToolClickProc click;
    ToolProc slot3;
    ToolOptionsProc options;
    ToolProc slot5;
    ToolProc slot6;
    ToolProc slot7;
    ToolCursorProc cursor;
};
static_assert(sizeof(ToolMethodRec) == 8 * sizeof(ToolProc), "the method record is a row of eight callbacks");

/// State of a tool; the host's.
struct HostTool;

/// A tool in the palette. The host makes it and keeps it.
class ToolRec {
  public:
    explicit ToolRec(HostTool& tool) : tool_(&tool) {}

    /// The tool's callbacks, to be written in place.
    [[nodiscard]] ToolMethodRec& ToolMethods();
    /// Sets one of the tool's flags. Flag 0: the tool works on the objects of a drawing window.
    void SetToolFlag(short flag, bool on);

  private:
    HostTool* tool_;
};

/// The window that holds the host's tool palette. Read when message 1 is handled; only handed back to
/// GetTPaletteFromWindowRef.
extern OpaqueWindowPtr* roloPalette;
/// The palette in a window; null if it holds none.
[[nodiscard]] TPalette* GetTPaletteFromWindowRef(OpaqueWindowPtr* window);
/// Adds a tool. `row` is where the palette put it, `toolNumber` the number it got. The result is 0 unless the
/// tool could not be added.
short AddTool(TPalette* palette, PaletteElement element, short& row, short& toolNumber);
/// Names a tool; `nameCode` is 1024 for tools of plug-ins.
void AddXTNLToolName(short nameCode, short toolNumber, CStr32 name);
/// The record of a tool number. For a number that no tool has, a record that is never used.
[[nodiscard]] ToolRec& GetTool(short toolNumber);

#pragma GCC visibility pop
