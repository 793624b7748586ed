// Paints a page.
#include "easel/window/main/PrintDrawing.h"

#include "easel/drawing/Drawing.h"
#include "easel/export/PdfFile.h"
#include "easel/files/AtomicFile.h"
#include "easel/paint/RenderDrawing.h"
#include "easel/window/waiting/BackgroundWork.h"
#include "easel/window/waiting/CoreTexts.h"
#include "easel/window/waiting/Interaction.h"
#include "easel/window/waiting/TellProblem.h"

#include <QFile>
#include <QImage>
#include <QObject>
#include <QPainter>
#include <QPrinter>
#include <QString>

#include <algorithm>
#include <cmath>
#include <new>

namespace easel::window {
namespace {

// Finer than this no printer shows a gradient, and the picture grows with the square.
constexpr double kPrintResolution = 300; // dots per inch
constexpr double kPointsPerInch = 72;

exports::PdfPage pageFor(const drawing::Drawing& drawing, const QPrinter& printer) {
    const QPageLayout layout = printer.pageLayout();
    const QRectF paper = layout.fullRect(QPageLayout::Point);
    const QRectF printable = layout.paintRect(QPageLayout::Point);
    const double points = std::min({exports::kPointsPerUnit, printable.width() / drawing.width(),
                                    printable.height() / drawing.height()});
    const QPointF from = printable.center() - QPointF(drawing.width(), drawing.height()) * points / 2;
    return {paper.width(), paper.height(), from.x(), from.y(), points};
}

QImage pictureOf(const drawing::Drawing& drawing, double scale, const exports::Progress& progress) {
    const auto pixels = [scale](double length) {
        return std::max(1, static_cast<int>(std::ceil(length * scale)));
    };
    QImage image(pixels(drawing.width()), pixels(drawing.height()), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        throw std::bad_alloc();
    image.fill(Qt::white);
    const paint::SurfaceView view(reinterpret_cast<std::uint32_t*>(image.bits()), image.width(),
                                  image.height(), image.bytesPerLine());
    paint::renderDrawing(drawing, view, drawing::Affine::scaling(scale, scale));
    progress.tell(1);
    return image;
}

Printed notPrinted(Interaction& interaction, const QString& problem) {
    tellProblem(problem, interaction.dialogs);
    return Printed::No;
}

// Whether the printer could be started.
bool paintPage(const drawing::Drawing& drawing, const exports::PdfPage& page, const QImage& image,
               QPrinter& printer) {
    // Positions count from the paper's corner.
    printer.setFullPage(true);
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    const double dots = printer.resolution() / kPointsPerInch;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(page.left * dots, page.top * dots, drawing.width() * page.pointsAUnit * dots,
                             drawing.height() * page.pointsAUnit * dots),
                      image);
    return true;
}

} // namespace

void turnPage(const drawing::Drawing& drawing, QPrinter& printer) {
    printer.setPageOrientation(drawing.width() > drawing.height() ? QPageLayout::Landscape
                                                                  : QPageLayout::Portrait);
}

Printed printDrawing(const drawing::Drawing& drawing, QPrinter& printer, Interaction& interaction,
                     QWidget* over) {
    const exports::PdfPage page = pageFor(drawing, printer);
    const bool asPdf =
        printer.outputFormat() == QPrinter::PdfFormat && printer.colorMode() == QPrinter::Color;
    const std::filesystem::path file = QFile::encodeName(printer.outputFileName()).toStdString();
    files::Result<> written;
    QImage image;
    try {
        runInBackground(interaction, QObject::tr("Printing %1 \u2026").arg(printer.docName()), over,
                        [&](const exports::Progress& progress) {
                            if (asPdf)
                                written = files::replaceFile(file, encodePdf(drawing, page, progress));
                            else
                                image = pictureOf(
                                    drawing, page.pointsAUnit * kPrintResolution / kPointsPerInch, progress);
                        });
        if (!written)
            return notPrinted(interaction, inUsersLanguage(written.error()));
        if (!asPdf && !paintPage(drawing, page, image, printer))
            return notPrinted(interaction, QObject::tr("The printer cannot be started."));
    } catch (const exports::Cancelled&) {
        return Printed::Cancelled;
    } catch (const std::bad_alloc&) {
        return notPrinted(interaction, QObject::tr("There is not enough memory to print this drawing."));
    }
    return Printed::Yes;
}

} // namespace easel::window
