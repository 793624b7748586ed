// The markers of the color stops below the ramp.
#include "Gradient/editor/DrawingScopes.h"
#include "Gradient/editor/EditorState.h"
#include "Gradient/editor/Swatches.h"
#include "Gradient/model/Colors.h"
#include "Gradient/model/Pixels.h"

namespace {

constexpr Pattern kBlackPattern{{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}};
constexpr short kBandHeight = 12;
constexpr short kMarkerSize = 5;
constexpr short kUnderlineDrop = 8;
/// Markers at the ends reach beyond the ramp; the band that is erased covers them.
constexpr short kEraseMargin = 7;

TPoint<short> ApexAt(TRect<short> const& band, double percent) {
    return {TruncateToPixel(band.left + band.Width() * percent), band.top};
}

short Offset(short coordinate, int by) {
    return static_cast<short>(coordinate + by);
}

void DrawActiveMarker(TPoint<short> const& apex) {
    DrawTriangleTick(apex, kMarkerSize, kBlackRGBColor, kFilledTick);
    short const underline = Offset(apex.v, kUnderlineDrop);
    QD::MoveTo(Offset(apex.h, -kMarkerSize), underline);
    QD::LineTo(Offset(apex.h, kMarkerSize), underline);
}

} // namespace

void DrawTicks(TPoint<short> const& origin, std::int32_t width, CGradientData const& gradient) {
    TRect<short> band(Offset(origin.v, 1), origin.h, Offset(origin.v, kBandHeight), Offset(origin.h, width));
    band.Outset(kEraseMargin, 0);
    QD::EraseRect(band);
    band.Inset(kEraseMargin, 0);

    StForeColor const foreColor;
    StPenState const pen;
    QD::RGBForeColor(&kBlackRGBColor);
    QD::PenSize(1, 1);
    for (CGradientColor const& stop : gradient.ColorList()) {
        DrawTriangleTick(ApexAt(band, stop.Percent()), kMarkerSize, kBlackRGBColor, kOpenTick);
    }
    DrawActiveMarker(ApexAt(band, gDialogActivePercent));
}

void DrawTriangleTick(TPoint<short> const& apex, short size, RGBColor const& color, KTickFill fill) {
    StForeColor const foreColor;
    StPenState const pen;
    QD::RGBForeColor(&color);
    QD::PenSize(1, 1);
    QD::PenMode(kPatternCopy);
    QD::PenPat(&kBlackPattern);

    OpaquePolyHandle* const triangle = QD::OpenPoly();
    short const base = Offset(apex.v, size);
    QD::MoveTo(apex.h, apex.v);
    QD::LineTo(Offset(apex.h, size), base);
    QD::LineTo(Offset(apex.h, -size), base);
    QD::LineTo(apex.h, apex.v);
    QD::ClosePoly();
    if (fill == kFilledTick) {
        QD::PaintPoly(triangle);
    }
    QD::FramePoly(triangle);
    QD::KillPoly(triangle);
}
