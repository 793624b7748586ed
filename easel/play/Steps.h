// The steps of a scenario in their order, and how it ended.
#pragma once

#include "easel/play/Script.h"
#include "easel/play/Step.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <tl/expected.hpp>

namespace easel::play {

// What made the scenario stop before its end.
struct ScenarioError {
    std::size_t line = 0;
    std::string reason;
};

// Hands out one step after the other to whoever needs one: the session between calls of the plug-in, the user
// while the plug-in waits. After an error there are no more steps.
class Steps {
  public:
    explicit Steps(std::string script) : script_(std::move(script)) {}

    // Nothing at the end, and after an error.
    std::optional<Step> next();
    // Keeps the first error.
    void fail(std::size_t line, const std::string& reason);
    // The script is over where it must not be.
    void failAtEnd(const std::string& reason) { fail(script_.lineNumber(), reason); }
    const tl::expected<void, ScenarioError>& outcome() const { return outcome_; }

  private:
    Script script_;
    std::deque<Step> waiting_;
    tl::expected<void, ScenarioError> outcome_;
};

} // namespace easel::play
