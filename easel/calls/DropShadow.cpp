// The shadow that lifts a swatch off its dialog.
#include "host/Drawing.h"

#include "easel/paint/Port.h"
#include "easel/runtime/CurrentPort.h"
#include "easel/runtime/Journal.h"
#include "easel/runtime/OpenDialogs.h"
#include "easel/runtime/ThemeColor.h"

namespace {

constexpr int kShadowWidth = 2;

} // namespace

// Two bars, below and to the right, as if the light came from the upper left.
void DrawDropShadow(TRect<short> rect) {
    easel::runtime::journal("DrawDropShadow");
    easel::paint::Port& port = easel::runtime::currentPort();
    const easel::runtime::Dialog* dialog = easel::runtime::openDialogs().owning(port);
    const easel::runtime::DialogTheme theme =
        dialog != nullptr ? dialog->screen().theme : easel::runtime::DialogTheme{};
    const easel::paint::PortState saved = port.state();
    port.state().pen = {};
    port.state().foreground = easel::runtime::portColorOf(theme.shadow);
    port.paintRect(
        {rect.top + kShadowWidth, rect.right, rect.bottom + kShadowWidth, rect.right + kShadowWidth});
    port.paintRect({rect.bottom, rect.left + kShadowWidth, rect.bottom + kShadowWidth, rect.right});
    port.state() = saved;
}
