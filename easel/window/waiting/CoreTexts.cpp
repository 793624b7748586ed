// The list of sentences is for the tool that collects texts; it is kept like those of the core by a check.
#include "easel/window/waiting/CoreTexts.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

#include <array>
#include <optional>

namespace easel::window {
namespace {

constexpr const char* kContext = "core";
constexpr const char* kSystemContext = "system";

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
    QT_TRANSLATE_NOOP(
        "core", "Fonts are read from the folder of the drawing and those below it, and from nowhere else."),
    QT_TRANSLATE_NOOP("core", "Fonts that are damaged or of unknown kinds are replaced by others."),
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
    QT_TRANSLATE_NOOP("core", "the name of a file cannot hold ':'"),
    QT_TRANSLATE_NOOP("core", "the name of a file cannot begin with '._'"),
    QT_TRANSLATE_NOOP("core", "it cannot be the name of a file"),
    QT_TRANSLATE_NOOP("core", "its folder is not there"),
    QT_TRANSLATE_NOOP("core", "not a name for a folder"),
    QT_TRANSLATE_NOOP("core", "it has no name for the template folder"),
    QT_TRANSLATE_NOOP("core", "its resources are damaged"),
    QT_TRANSLATE_NOOP("core", "its resources are larger than a resource file can be"),
    QT_TRANSLATE_NOOP("core", "the defaults are larger than a resource file can be"),
    QT_TRANSLATE_NOOP("core", "the header file is cut short"),
    QT_TRANSLATE_NOOP("core", "it is no AppleDouble header file"),
    QT_TRANSLATE_NOOP("core", "it has an AppleDouble version other than 1 and 2"),
    QT_TRANSLATE_NOOP("core", "an entry of the header file does not lie within it"),
    QT_TRANSLATE_NOOP("core", "entries of the header file overlap"),
    QT_TRANSLATE_NOOP("core", "the name is taken"),
    QT_TRANSLATE_NOOP("core", "the compressor's output is not a deflate stream"),
    QT_TRANSLATE_NOOP("core", "unknown error of the dynamic linker"),
    QT_TRANSLATE_NOOP("core", "It could not be read."),
    QT_TRANSLATE_NOOP("core", "The change was not kept."),
    QT_TRANSLATE_NOOP("core", "The current gradient and templates will not be kept."),
    QT_TRANSLATE_NOOP("core", "Nothing was saved."),
};

// Those with a value in them, each of which is a sentence of the core, or nobody's.
constexpr std::array kWithValues{
    QT_TRANSLATE_NOOP("core", "it is no well-formed XML: %1"),
    QT_TRANSLATE_NOOP("core", "it is not well-formed XML (line %1)"),
    QT_TRANSLATE_NOOP("core", "cannot be loaded: %1"),
    QT_TRANSLATE_NOOP("core", "the picture would have %1 by %2 pixels; no side can be longer than %3"),
    QT_TRANSLATE_NOOP("core", "a picture of %1 by %2 pixels needs %3 MB of memory, and %4 MB are free"),
    QT_TRANSLATE_NOOP("core", "%1; nothing was saved"),
    QT_TRANSLATE_NOOP("core", "it could not be opened again: %1"),
    QT_TRANSLATE_NOOP("core", "it would hold %1 objects instead of %2"),
    QT_TRANSLATE_NOOP("core", "the fill of %1 would not be read back as it is now"),
    QT_TRANSLATE_NOOP("core", "the stroke of %1 would not be read back as it is now"),
    QT_TRANSLATE_NOOP("core", "object %1"),
    QT_TRANSLATE_NOOP("core", "the object \"%1\""),
};

// The C library says them in the desktop's language only where its texts in that language are installed.
[[maybe_unused]] constexpr std::array kOfSystem{
    QT_TRANSLATE_NOOP("system", "No such file or directory"),
    QT_TRANSLATE_NOOP("system", "Permission denied"),
    QT_TRANSLATE_NOOP("system", "Operation not permitted"),
    QT_TRANSLATE_NOOP("system", "No space left on device"),
    QT_TRANSLATE_NOOP("system", "Read-only file system"),
    QT_TRANSLATE_NOOP("system", "Disk quota exceeded"),
    QT_TRANSLATE_NOOP("system", "Input/output error"),
    QT_TRANSLATE_NOOP("system", "File too large"),
    QT_TRANSLATE_NOOP("system", "Not a directory"),
    QT_TRANSLATE_NOOP("system", "Is a directory"),
    QT_TRANSLATE_NOOP("system", "File exists"),
    QT_TRANSLATE_NOOP("system", "File name too long"),
    QT_TRANSLATE_NOOP("system", "Too many open files"),
    QT_TRANSLATE_NOOP("system", "Too many open files in system"),
    QT_TRANSLATE_NOOP("system", "Cannot allocate memory"),
    QT_TRANSLATE_NOOP("system", "Too many levels of symbolic links"),
    QT_TRANSLATE_NOOP("system", "Device or resource busy"),
    QT_TRANSLATE_NOOP("system", "Text file busy"),
    QT_TRANSLATE_NOOP("system", "No such device"),
    QT_TRANSLATE_NOOP("system", "No such device or address"),
    QT_TRANSLATE_NOOP("system", "Stale file handle"),
    QT_TRANSLATE_NOOP("system", "Host is down"),
    QT_TRANSLATE_NOOP("system", "Connection timed out"),
    QT_TRANSLATE_NOOP("system", "Transport endpoint is not connected"),
    QT_TRANSLATE_NOOP("system", "Invalid cross-device link"),
    QT_TRANSLATE_NOOP("system", "Invalid argument"),
    QT_TRANSLATE_NOOP("system", "Operation not supported"),
    QT_TRANSLATE_NOOP("system", "Directory not empty"),
};

// What stands for %1, %2 ... in the sentence; nothing if it is another one.
std::optional<QStringList> valuesIn(const QString& sentence, const char* withValues) {
    static const QRegularExpression kPlace(QStringLiteral("%\\d"));
    QStringList parts;
    for (const QString& part : QString::fromLatin1(withValues).split(kPlace))
        parts << QRegularExpression::escape(part);
    const QRegularExpression form(QRegularExpression::anchoredPattern(parts.join(QStringLiteral("(.*?)"))),
                                  QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = form.match(sentence);
    return match.hasMatch() ? std::optional(match.capturedTexts().mid(1)) : std::nullopt;
}

QString translated(const QString& sentence);

// A value may be a sentence of its own.
QString filled(const QString& withPlaces, const QStringList& values) {
    QString text;
    for (qsizetype i = 0; i < withPlaces.size(); ++i)
        if (withPlaces[i] == QLatin1Char('%'))
            text += translated(values.value(withPlaces[++i].digitValue() - 1));
        else
            text += withPlaces[i];
    return text;
}

QString translated(const QString& sentence) {
    const QByteArray key = sentence.toUtf8();
    for (const char* context : {kContext, kSystemContext})
        if (QString text = QCoreApplication::translate(context, key); text != sentence)
            return text;
    for (const char* withValues : kWithValues)
        if (const auto values = valuesIn(sentence, withValues))
            return filled(QCoreApplication::translate(kContext, withValues), *values);
    return sentence;
}

} // namespace

QString inUsersLanguage(const std::string& sentence) {
    return translated(QString::fromStdString(sentence));
}

QString inUsersLanguage(const files::Error& error) {
    return QString::fromStdString(error.file.string()) + QLatin1String(": ") + inUsersLanguage(error.reason);
}

QString inUsersLanguage(const files::Error& error, const std::string& outcome) {
    return QStringLiteral("%1. %2").arg(inUsersLanguage(error), inUsersLanguage(outcome));
}

} // namespace easel::window
