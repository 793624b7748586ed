// The shadow that lifts a swatch off its dialog.
#include "host/Drawing.h"

#include "easel/interface/CurrentPort.h"
#include "easel/interface/Journal.h"
#include "easel/interface/OpenDialogs.h"
#include "easel/interface/ThemeColor.h"
#include "easel/paint/Port.h"

namespace {

constexpr int kShadowWidth = 2;

} // namespace

// Two bars, below and to the right, as if the light came from the upper left.
void DrawDropShadow(TRect<short> rect) {
    easel::host::journal("DrawDropShadow");
    easel::paint::Port& port = easel::host::currentPort();
    const easel::host::Dialog* dialog = easel::host::openDialogs().owning(port);
    const easel::host::DialogTheme theme =
        dialog != nullptr ? dialog->screen().theme : easel::host::DialogTheme{};
    const easel::paint::PortState saved = port.state();
    port.state().pen = {};
    port.state().foreground = easel::host::portColorOf(theme.shadow);
    port.paintRect(
        {rect.top + kShadowWidth, rect.right, rect.bottom + kShadowWidth, rect.right + kShadowWidth});
    port.paintRect({rect.bottom, rect.left + kShadowWidth, rect.bottom + kShadowWidth, rect.right});
    port.state() = saved;
}
