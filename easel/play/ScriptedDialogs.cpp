// The dialogs, questions and lists that the user of a scenario answers.
#include "easel/play/Command.h"
#include "easel/play/ScriptedUser.h"
#include "easel/play/Session.h"
#include "easel/play/Waiting.h"
#include "easel/runtime/Alert.h"
#include "easel/runtime/DeletionList.h"
#include "easel/runtime/Dialog.h"

namespace easel::play {

namespace {

constexpr const char* kDialogOpen = "a dialog is open";
constexpr const char* kAlertOpen = "an alert is open";
constexpr const char* kPickerOpen = "the color picker is open";
constexpr const char* kListOpen = "the deletion dialog is open";

Arguments argumentsOf(const Step& step) {
    return Arguments({step.words.begin() + 1, step.words.end()});
}

runtime::Answer answerIn(Arguments& arguments) {
    const std::string word = arguments.text("yes or no");
    arguments.done();
    if (word != "yes" && word != "no")
        throw PlayError("\"" + word + "\" is neither yes nor no");
    return word == "yes" ? runtime::Answer::Yes : runtime::Answer::No;
}

// Nothing for a cancelled choice.
std::optional<RGBColor> colorIn(Arguments& arguments) {
    std::optional<RGBColor> color;
    if (!arguments.takeIf("cancel")) {
        const auto channel = [&arguments](const char* name) {
            return static_cast<std::uint16_t>(arguments.integer(name, 0, 65535));
        };
        color.emplace();
        color->red = channel("R");
        color->green = channel("G");
        color->blue = channel("B");
    }
    arguments.done();
    return color;
}

void selectRows(runtime::DeletionList& list, Arguments& arguments) {
    std::vector<int> rows;
    while (!arguments.empty())
        rows.push_back(static_cast<int>(arguments.integer("the row", 1, list.count())) - 1);
    if (list.mode() == runtime::SelectionMode::One && rows.size() > 1)
        throw PlayError("only one row can be selected");
    list.select(std::move(rows));
}

void giveCommand(runtime::DeletionList& list, Arguments& arguments) {
    const std::string word = arguments.text("ok or cancel");
    arguments.done();
    if (word != "ok" && word != "cancel")
        throw PlayError("\"" + word + "\" is neither ok nor cancel");
    list.command(word == "ok" ? runtime::DeletionCommand::Ok : runtime::DeletionCommand::Cancel);
}

} // namespace

void ScriptedUser::dialogShown(runtime::Dialog& dialog) {
    questions_.open(&dialog);
}

void ScriptedUser::dialogClosed(runtime::Dialog& dialog) {
    questions_.close(&dialog);
}

std::int16_t ScriptedUser::nextHit(runtime::Dialog& dialog) {
    for (;;) {
        if (const std::optional<int> hit = dialog.takeHit())
            return static_cast<std::int16_t>(*hit);
        if (input_.isTyping()) {
            input_.strikeKey(dialog);
            continue;
        }
        const auto played = waitFor<bool>(session_, session_.steps(), kDialogOpen,
                                          [&](const Step& step) -> std::optional<bool> {
                                              if (!input_.play(dialog, step))
                                                  throw outOfPlace(step, kDialogOpen);
                                              return true;
                                          });
        if (!played)
            return 0;
    }
}

bool ScriptedUser::movesOrLetsGo(const Step& step) {
    if (step.words[0] != "move" && step.words[0] != "release")
        return false;
    playMouseStep(session_, step);
    return true;
}

runtime::Answer ScriptedUser::confirm(const runtime::Alert& alert) {
    const QuestionScope open(questions_, &alert);
    if (alert.refusal)
        session_.say(alert.message());
    const auto answer = waitFor<runtime::Answer>(session_, session_.steps(), kAlertOpen,
                                                 [&](const Step& step) -> std::optional<runtime::Answer> {
                                                     if (movesOrLetsGo(step))
                                                         return std::nullopt;
                                                     if (step.words[0] != "answer")
                                                         throw outOfPlace(step, kAlertOpen);
                                                     Arguments arguments = argumentsOf(step);
                                                     return answerIn(arguments);
                                                 });
    return answer.value_or(runtime::Answer::No);
}

std::optional<RGBColor> ScriptedUser::pickColor(const std::string& prompt, const RGBColor& start) {
    const ColorQuestion question{prompt, start};
    const QuestionScope open(questions_, &question);
    using Choice = std::optional<RGBColor>;
    const auto choice = waitFor<Choice>(session_, session_.steps(), kPickerOpen,
                                        [&](const Step& step) -> std::optional<Choice> {
                                            if (movesOrLetsGo(step))
                                                return std::nullopt;
                                            if (step.words[0] != "color")
                                                throw outOfPlace(step, kPickerOpen);
                                            Arguments arguments = argumentsOf(step);
                                            return std::optional<Choice>(colorIn(arguments));
                                        });
    return choice.value_or(std::nullopt);
}

void ScriptedUser::runDeletion(runtime::DeletionList& list) {
    const QuestionScope open(questions_, &list);
    const auto closed =
        waitFor<bool>(session_, session_.steps(), kListOpen, [&](const Step& step) -> std::optional<bool> {
            if (movesOrLetsGo(step))
                return std::nullopt;
            Arguments arguments = argumentsOf(step);
            if (step.words[0] == "select")
                selectRows(list, arguments);
            else if (step.words[0] == "command")
                giveCommand(list, arguments);
            else
                throw outOfPlace(step, kListOpen);
            return list.isOpen() ? std::nullopt : std::optional<bool>(true);
        });
    if (!closed)
        list.command(runtime::DeletionCommand::Cancel);
}

} // namespace easel::play
