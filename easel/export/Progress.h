// How long work tells how far it is, and hears whether it is still wanted.
#pragma once

#include <cstddef>
#include <exception>
#include <functional>
#include <utility>

namespace easel::exports {

// Thrown out of work that is no longer wanted.
class Cancelled : public std::exception {
  public:
    const char* what() const noexcept override { return "cancelled"; }
};

class Progress {
  public:
    // Called now and then, on whichever thread does the work, with the part that is done, 0 to 1. False
    // cancels.
    using Report = std::function<bool(double)>;

    // Work that nobody watches.
    Progress() = default;
    explicit Progress(Report report) : report_(std::move(report)) {}

    // `done` is 0 to 1. Throws Cancelled.
    void tell(double done) const {
        if (report_ && !report_(from_ + (to_ - from_) * done))
            throw Cancelled();
    }
    // The same for one step of the work, whose 0 and 1 are these parts of the whole.
    Progress part(double from, double to) const {
        Progress step = *this;
        step.from_ = from_ + (to_ - from_) * from;
        step.to_ = from_ + (to_ - from_) * to;
        return step;
    }

  private:
    Report report_;
    double from_ = 0;
    double to_ = 1;
};

// Tells of every few of many small pieces.
class PieceCount {
  public:
    PieceCount() = default;
    PieceCount(Progress progress, std::size_t pieces) : progress_(std::move(progress)), pieces_(pieces) {}

    // One piece is done. Throws Cancelled.
    void next() {
        if (++done_ % kTick == 0)
            progress_.tell(static_cast<double>(done_) / static_cast<double>(pieces_));
    }

  private:
    static constexpr std::size_t kTick = 256;

    Progress progress_;
    std::size_t pieces_ = 1;
    std::size_t done_ = 0;
};

} // namespace easel::exports
