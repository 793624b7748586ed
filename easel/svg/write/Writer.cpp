// Writes drawings as SVG files.
#include "easel/files/AtomicFile.h"
#include "easel/svg/Document.h"
#include "easel/svg/text/Number.h"
#include "easel/svg/text/Source.h"
#include "easel/svg/write/GradientText.h"
#include "easel/svg/write/ObjectText.h"
#include "easel/svg/write/Rewriter.h"

namespace easel::svg {

using drawing::Drawing;

namespace {

std::string newFile(const Drawing& drawing) {
    GradientBlock gradients({}, {});
    std::string objects;
    drawing.forEach([&](const drawing::ObjectPtr& object) {
        objects += "  " + objectText(*object, drawing::Affine(), {}, gradients) + '\n';
    });
    const std::string width = numberText(drawing.width());
    const std::string height = numberText(drawing.height());
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                       "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
                       width + "\" height=\"" + height + "\" viewBox=\"0 0 " + width + ' ' + height + "\">\n";
    if (!gradients.empty())
        text += std::string("  <defs ") + kOwnBlockAttribute + "=\"" + kOwnBlockValue + "\">" +
                gradients.text("\n    ") + "\n  </defs>\n";
    return text + objects + "</svg>\n";
}

} // namespace

std::string toBytes(const Drawing& drawing) {
    const auto* const source = dynamic_cast<const Source*>(drawing.source().get());
    return source ? Rewriter(drawing, *source).rewritten() : newFile(drawing);
}

std::optional<Failure> saveFile(Drawing& drawing, const std::filesystem::path& file) {
    try {
        if (const auto error = files::replaceFile(file, std::string_view(toBytes(drawing))))
            return Failure{Fault::CannotWrite, error->message()};
    } catch (const std::bad_alloc&) {
        return Failure{Fault::CannotWrite, file.string() + ": there is not enough memory to write it"};
    }
    drawing.markSaved();
    return std::nullopt;
}

} // namespace easel::svg
