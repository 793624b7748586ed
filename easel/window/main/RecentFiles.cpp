// Keeps the list in the settings.
#include "easel/window/main/RecentFiles.h"

#include <QSettings>

namespace easel::window {
namespace {

const char* const kKey = "recentFiles";
constexpr int kMost = 10;

} // namespace

QStringList RecentFiles::files() const {
    return QSettings().value(kKey).toStringList();
}

void RecentFiles::add(const QString& file) {
    QStringList files = this->files();
    files.removeAll(file);
    files.prepend(file);
    QSettings().setValue(kKey, QStringList(files.mid(0, kMost)));
}

void RecentFiles::remove(const QString& file) {
    QStringList files = this->files();
    files.removeAll(file);
    QSettings().setValue(kKey, files);
}

void RecentFiles::clear() {
    QSettings().remove(kKey);
}

} // namespace easel::window
