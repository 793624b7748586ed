// How a scenario goes on while the plug-in waits for the user.
#pragma once

#include "easel/play/Command.h"
#include "easel/play/PlayError.h"
#include "easel/play/Steps.h"

#include <functional>
#include <optional>
#include <string>

namespace easel::play {

// Plays the step if it is one of those that are played at any time, and says whether it was. Throws PlayError
// for a command that does not exist.
bool playAtAnyTime(Session& session, const Step& step);

// Plays steps until one of them answers what the plug-in waits for. `play` gets those that are not played at
// any time: it gives an answer, or nothing to go on waiting, or throws PlayError for a step that is out of
// place. Nothing comes back if the scenario fails or ends first; `state` then tells the user what was still
// going on, as "a dialog is open".
template <class Answer>
std::optional<Answer> waitFor(Session& session, Steps& steps, const std::string& state,
                              const std::function<std::optional<Answer>(const Step&)>& play) {
    while (const auto step = steps.next()) {
        try {
            if (playAtAnyTime(session, *step))
                continue;
            if (auto answer = play(*step))
                return answer;
        } catch (const std::exception& error) {
            steps.fail(step->line, error.what());
        }
    }
    steps.failAtEnd("the scenario ends while " + state);
    return std::nullopt;
}

// What to throw for a step that does not fit.
inline PlayError outOfPlace(const Step& step, const std::string& state) {
    return PlayError("\"" + step.words[0] + "\" cannot be played while " + state);
}

} // namespace easel::play
