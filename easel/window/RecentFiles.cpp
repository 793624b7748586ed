// Keeps the list in the settings.
#include "easel/window/RecentFiles.h"

#include <QFileInfo>
#include <QSettings>

#include <algorithm>

namespace easel::window {
namespace {

const char* const kKey = "recentFiles";
constexpr int kMost = 10;

} // namespace

QStringList RecentFiles::files() const {
    QStringList files = QSettings().value(kKey).toStringList();
    files.erase(std::remove_if(files.begin(), files.end(),
                               [](const QString& file) { return !QFileInfo::exists(file); }),
                files.end());
    return files;
}

void RecentFiles::add(const QString& file) {
    QStringList files = this->files();
    files.removeAll(file);
    files.prepend(file);
    QSettings().setValue(kKey, QStringList(files.mid(0, kMost)));
}

void RecentFiles::clear() {
    QSettings().remove(kKey);
}

} // namespace easel::window
