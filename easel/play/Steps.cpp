// Hands out the steps of a scenario.
#include "easel/play/Steps.h"

#include "easel/play/PlayError.h"

namespace easel::play {

std::optional<Step> Steps::next() {
    if (!outcome_)
        return std::nullopt;
    try {
        if (waiting_.empty() && script_.next())
            for (Step& step : stepsOf({script_.lineNumber(), script_.words()}))
                waiting_.push_back(std::move(step));
    } catch (const PlayError& error) {
        fail(script_.lineNumber(), error.what());
    }
    if (!outcome_ || waiting_.empty())
        return std::nullopt;
    Step step = std::move(waiting_.front());
    waiting_.pop_front();
    return step;
}

void Steps::fail(std::size_t line, const std::string& reason) {
    if (outcome_)
        outcome_ = tl::unexpected(ScenarioError{line, reason});
    waiting_.clear();
}

} // namespace easel::play
