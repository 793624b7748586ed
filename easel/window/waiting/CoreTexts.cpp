// The list of sentences is for the tool that collects texts; it is kept like those of the core by a check.
#include "easel/window/waiting/CoreTexts.h"

#include <QCoreApplication>

#include <array>

namespace easel::window {
namespace {

constexpr const char* kContext = "core";

[[maybe_unused]] constexpr std::array kTranslated{
    QT_TRANSLATE_NOOP("core", "Some of the text is kept in the file but not shown."),
    QT_TRANSLATE_NOOP("core", "Videos and canvases are kept in the file but not shown."),
    QT_TRANSLATE_NOOP(
        "core", "Pictures that are neither PNG, JPEG, GIF, WebP nor SVG are kept in the file but not shown."),
    QT_TRANSLATE_NOOP("core", "Pictures that are damaged are kept in the file but not shown."),
    QT_TRANSLATE_NOOP("core", "Pictures of more than 25 million pixels are kept in the file but not shown."),
    QT_TRANSLATE_NOOP(
        "core",
        "Pictures are read from the folder of the drawing and those below it, and from nowhere else."),
    QT_TRANSLATE_NOOP("core", "Pictures in files that cannot be read are not shown."),
    QT_TRANSLATE_NOOP("core", "Content in other languages than SVG is kept in the file but not shown."),
    QT_TRANSLATE_NOOP("core", "Scripts are kept in the file but not run."),
    QT_TRANSLATE_NOOP("core", "Animations are kept in the file but not played."),
    QT_TRANSLATE_NOOP(
        "core", "Filters of other kinds than those of SVG and CSS are kept in the file but not applied."),
    QT_TRANSLATE_NOOP("core", "Masks other than mask elements are kept in the file but not applied."),
    QT_TRANSLATE_NOOP(
        "core", "Vector effects other than strokes of fixed width are kept in the file but not applied."),
    QT_TRANSLATE_NOOP("core", "Clip paths other than outlines are kept in the file but not applied."),
    QT_TRANSLATE_NOOP("core", "Style sheets outside the file are not read."),
    QT_TRANSLATE_NOOP("core", "Content outside the file is not read."),
    QT_TRANSLATE_NOOP("core",
                      "References that lead back to themselves are kept in the file but not followed."),
    QT_TRANSLATE_NOOP("core", "Shapes with numbers out of range are kept in the file but not shown."),
    QT_TRANSLATE_NOOP("core",
                      "Groups and use elements nested very deep are kept in the file but not shown as such."),
    QT_TRANSLATE_NOOP("core", "Gradients between colors in linear light are drawn between those of sRGB."),
    QT_TRANSLATE_NOOP("core", "no such file"),
    QT_TRANSLATE_NOOP("core", "not a file"),
    QT_TRANSLATE_NOOP("core", "the file is too large"),
    QT_TRANSLATE_NOOP("core", "it is a folder"),
    QT_TRANSLATE_NOOP("core", "it is not a regular file"),
    QT_TRANSLATE_NOOP("core", "the file is larger than memory"),
    QT_TRANSLATE_NOOP("core", "the file is empty"),
    QT_TRANSLATE_NOOP("core", "the file is too large when it is unpacked"),
    QT_TRANSLATE_NOOP("core", "it is compressed, and what it holds is damaged or cut off"),
    QT_TRANSLATE_NOOP("core", "there is not enough memory for it"),
    QT_TRANSLATE_NOOP("core", "there is not enough memory to write it"),
    QT_TRANSLATE_NOOP("core", "there is not enough memory for the picture"),
    QT_TRANSLATE_NOOP("core", "it is not XML: it has no element"),
    QT_TRANSLATE_NOOP("core", "it is not complete: it ends inside an element"),
    QT_TRANSLATE_NOOP("core", "it is not XML: it holds characters that no text has"),
    QT_TRANSLATE_NOOP("core", "it is XML, but not an SVG drawing"),
    QT_TRANSLATE_NOOP("core", "it is not XML: an entity is defined by way of itself"),
    QT_TRANSLATE_NOOP("core", "its entities expand without measure"),
    QT_TRANSLATE_NOOP("core", "it repeats its shapes so often that they do not fit into memory"),
    QT_TRANSLATE_NOOP("core", "it states more custom properties than fit into memory"),
    QT_TRANSLATE_NOOP("core", "the name of a picture must end in .png, .pdf or .svg"),
    QT_TRANSLATE_NOOP("core", "no name for a temporary file could be found"),
    QT_TRANSLATE_NOOP("core", "the trash holds too many files of that name"),
    QT_TRANSLATE_NOOP("core", "not a plug-in: it has no MainEntry"),
    QT_TRANSLATE_NOOP("core", "it has no <resources>"),
};

} // namespace

QString inUsersLanguage(const std::string& sentence) {
    return QCoreApplication::translate(kContext, sentence.c_str());
}

QString inUsersLanguage(const files::Error& error) {
    return QString::fromStdString(error.file.string()) + QLatin1String(": ") + inUsersLanguage(error.reason);
}

} // namespace easel::window
