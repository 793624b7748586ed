// What is open in front of the drawing: dialogs, alerts, the color picker, the deletion list.
#pragma once

#include "easel/play/Json.h"
#include "host/Gradient.h"

#include <string>
#include <variant>
#include <vector>

namespace easel::runtime {
class DeletionList;
class Dialog;
struct Alert;
} // namespace easel::runtime

namespace easel::play {

// The color picker, which has no model of its own.
struct ColorQuestion {
    std::string prompt;
    RGBColor color;
};

using Question =
    std::variant<runtime::Dialog*, const runtime::Alert*, const ColorQuestion*, runtime::DeletionList*>;

class OpenQuestions {
  public:
    void open(Question question) { all_.push_back(question); }
    // Only pointers are copied, which cannot fail.
    // NOLINTNEXTLINE(bugprone-exception-escape)
    void close(Question question) noexcept { std::erase(all_, question); }

    // The dialog in front of the other dialogs, also while something else is open in front of it; or null.
    runtime::Dialog* frontDialog() const;
    // The front one as `print dialog` writes it; null when nothing is open.
    Json describeFront() const;

  private:
    std::vector<Question> all_; // the front one last
};

// Keeps a question open for a scope.
class QuestionScope {
  public:
    QuestionScope(OpenQuestions& open, Question question) : open_(open), question_(question) {
        open_.open(question_);
    }
    QuestionScope(const QuestionScope&) = delete;
    QuestionScope& operator=(const QuestionScope&) = delete;
    // NOLINTNEXTLINE(bugprone-exception-escape)
    ~QuestionScope() { open_.close(question_); }

  private:
    OpenQuestions& open_;
    Question question_;
};

} // namespace easel::play
