// The user's templates as a menu.
#pragma once

#include "host/Gradient.h"

#include <QMenu>

#include <filesystem>

namespace easel::window {

// Reads the templates anew each time it opens.
class TemplateMenu : public QMenu {
    Q_OBJECT

  public:
    TemplateMenu(const QString& title, std::filesystem::path folder, QWidget* parent);

  Q_SIGNALS:
    void chosen(const CGradientData& gradient);

  private:
    void fill();

    std::filesystem::path folder_;
};

} // namespace easel::window
