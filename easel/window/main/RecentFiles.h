// The drawings opened last, kept from one run to the next.
#pragma once

#include <QStringList>

namespace easel::window {

class RecentFiles {
  public:
    // Absolute paths, the latest first. A file that is gone stays until it is asked for in vain: it may lie
    // on a disk that is not there now.
    QStringList files() const;
    void add(const QString& file);
    void remove(const QString& file);
    void clear();
};

} // namespace easel::window
