// Offers what was not saved when the program ended without being asked to.
#pragma once

#include "easel/recovery/Journal.h"

#include <QDialog>

#include <cstddef>
#include <cstdint>
#include <vector>

class QDialogButtonBox;
class QListWidget;

namespace easel::window {

class RecoveryDialog : public QDialog {
    Q_OBJECT

  public:
    enum class Choice : std::uint8_t { Later, Open, SaveAs, ThrowAway };

    // The journals outlive the dialog.
    RecoveryDialog(const std::vector<recovery::Journal>& journals, QWidget* parent);

    // What is to be done, and with which of the journals: at least one, and for Save As just one.
    Choice choice() const { return choice_; }
    std::vector<std::size_t> chosen() const;

  private:
    void addButtons(QDialogButtonBox& buttons);
    void close(Choice choice);
    void drawNextPicture();

    const std::vector<recovery::Journal>& journals_;
    QListWidget* list_;
    int pictures_ = 0; // drawn so far
    Choice choice_ = Choice::Later;
};

} // namespace easel::window
