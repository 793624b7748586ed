// An entry with a picture for each template.
#include "easel/window/main/TemplateMenu.h"

#include "easel/exchange/TemplateShelf.h"
#include "easel/window/look/GradientIcon.h"

#include <utility>

namespace easel::window {

TemplateMenu::TemplateMenu(const QString& title, std::filesystem::path folder, QWidget* parent)
    : QMenu(title, parent), folder_(std::move(folder)) {
    connect(this, &QMenu::aboutToShow, this, &TemplateMenu::fill);
}

void TemplateMenu::fill() {
    clear();
    const exchange::TemplateShelf shelf(folder_, {});
    for (const std::string& name : shelf.names()) {
        const auto gradient = shelf.load(name);
        // What cannot be read is the editor's to complain about.
        if (!gradient)
            continue;
        QString text = QString::fromStdString(name);
        QAction* action = addAction(gradientIcon(*gradient, devicePixelRatioF()),
                                    text.replace(QLatin1Char('&'), QLatin1String("&&")));
        action->setIconVisibleInMenu(true);
        connect(action, &QAction::triggered, this, [this, record = *gradient] { Q_EMIT chosen(record); });
    }
    if (isEmpty())
        addAction(tr("No templates"))->setEnabled(false);
}

} // namespace easel::window
