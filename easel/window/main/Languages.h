// The language that the window speaks: the user's, as far as there are texts in it.
#pragma once

#include <QTranslator>

#include <string>
#include <vector>

namespace easel::window {

// The user's languages that come before English, in which all texts are written, best first: "de-AT", "de".
std::vector<std::string> languagesBeforeEnglish();

// While it lives, texts of the window and of Qt's own dialogs come in the first of these languages that has
// them, and numbers in the way of the user's country. Made after the application and before its first text.
class Languages {
  public:
    explicit Languages(const std::vector<std::string>& wanted);

  private:
    QTranslator dialogs_; // Qt's own
    QTranslator window_;
};

} // namespace easel::window
