// A user of the editor who follows a list of steps.
#pragma once

#include "Gradient/ModalDialogs.h"
#include "easel/runtime/Dialog.h"
#include "tests/support/IdleUser.h"

#include <functional>
#include <vector>

namespace tests {

// Does one thing after the other, each once the dialog waits, and then closes it. Confirms what is asked.
class ScriptedUser : public IdleUser {
  public:
    using Step = std::function<void(easel::runtime::Dialog&)>;

    explicit ScriptedUser(std::vector<Step> steps) : steps_(std::move(steps)) {}

    std::int16_t nextHit(easel::runtime::Dialog& dialog) override {
        while (!dialog.hasHit() && next_ < steps_.size())
            steps_[next_++](dialog);
        return static_cast<std::int16_t>(dialog.takeHit().value_or(kOKItem));
    }
    easel::runtime::Answer confirm(const easel::runtime::Alert&) override {
        return easel::runtime::Answer::Yes;
    }

  private:
    std::vector<Step> steps_;
    std::size_t next_ = 0;
};

} // namespace tests
