// The drawings opened last, kept from one run to the next.
#pragma once

#include <QObject>
#include <QStringList>

namespace easel::window {

class RecentFiles : public QObject {
    Q_OBJECT

  public:
    // Absolute paths, the latest first; files that are gone are left out.
    QStringList files() const;
    void add(const QString& file);
    void clear();
};

} // namespace easel::window
