// Finds the files of texts beside the program's other data, and Qt's where Qt keeps them.
#include "easel/window/main/Languages.h"

#include "easel/files/ProgramFolders.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>

namespace easel::window {
namespace {

// Whether there was a file. Files are named after languages as in NAME_de.qm and NAME_pt_BR.qm.
bool loadFirst(QTranslator& translator, const std::vector<std::string>& languages, const QString& name,
               const QString& folder) {
    for (const std::string& language : languages) {
        const QString suffix = QString::fromStdString(language).replace(QLatin1Char('-'), QLatin1Char('_'));
        if (translator.load(name + QLatin1Char('_') + suffix, folder))
            return true;
    }
    return false;
}

} // namespace

std::vector<std::string> languagesBeforeEnglish() {
    std::vector<std::string> languages;
    for (const QString& language : QLocale::system().uiLanguages()) {
        const QString plain = language.section(QLatin1Char('-'), 0, 0);
        if (plain == QLatin1String("en") || plain == QLatin1String("C"))
            break;
        languages.push_back(language.toStdString());
    }
    return languages;
}

Languages::Languages(const std::vector<std::string>& wanted) {
    QLocale numbers = QLocale::system();
    numbers.setNumberOptions(QLocale::OmitGroupSeparator);
    QLocale::setDefault(numbers);
    const QString folder = QFile::decodeName(files::sharedFile("easel/languages").c_str());
    if (loadFirst(dialogs_, wanted, QStringLiteral("qtbase"),
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&dialogs_);
    if (loadFirst(window_, wanted, QStringLiteral("easel"), folder))
        QCoreApplication::installTranslator(&window_);
}

} // namespace easel::window
