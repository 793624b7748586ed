// Runs the steps of a filter (SVG 1.1, 15.5 to 15.7): what each takes in, in which colors, and where it
// shows.
#include "easel/paint/filter/FilterRun.h"

#include "easel/paint/filter/FilterUses.h"
#include "easel/paint/filter/LinearLight.h"
#include "easel/paint/filter/PixelLoops.h"
#include "easel/paint/filter/StepPicture.h"

#include <memory>
#include <utility>
#include <vector>

namespace easel::paint {

namespace {

using drawing::FilterInput;

// A picture that several steps may take in, in either kind of colors.
class Held {
  public:
    Held(Surface picture, bool linearLight) {
        (linearLight ? linear_ : srgb_) = std::make_shared<const Surface>(std::move(picture));
    }
    std::shared_ptr<const Surface> in(bool linearLight) {
        if (linearLight && !linear_)
            linear_ = std::make_shared<const Surface>(inLinearLight(*srgb_));
        if (!linearLight && !srgb_)
            srgb_ = std::make_shared<const Surface>(inSrgb(*linear_));
        return linearLight ? linear_ : srgb_;
    }

  private:
    std::shared_ptr<const Surface> srgb_;
    std::shared_ptr<const Surface> linear_;
};

class FilterRun {
  public:
    FilterRun(const drawing::Filter& filter, Surface source, const FilterSpace& space,
              const ImagePainting& paintImage, const Unwanted* unwanted)
        : filter_(filter), space_(space), paintImage_(paintImage), unwanted_(unwanted), uses_(filter),
          results_(filter.steps.size()) {
        if (uses_.sourceAlpha)
            sourceAlpha_ = std::make_unique<Held>(
                mapped(source, [](std::uint32_t pixel) { return pixel & 0xFF000000; }), false);
        if (uses_.source)
            source_ = std::make_unique<Held>(std::move(source), false);
    }

    std::shared_ptr<const Surface> result() {
        for (std::size_t i = 0; i < filter_.steps.size(); ++i)
            if (uses_.lastUse[i] > i)
                run(i);
        return filter_.steps.empty() ? nothing() : results_.back()->in(false);
    }

  private:
    std::shared_ptr<const Surface> nothing() const {
        return std::make_shared<const Surface>(space_.width, space_.height);
    }

    void run(std::size_t i) {
        endIfUnwanted(unwanted_);
        const drawing::FilterStep& step = filter_.steps[i];
        StepInputs inputs;
        for (const FilterInput& input : step.inputs)
            inputs.pictures.push_back(picture(input, step.linearLight));
        if (!step.inputs.empty())
            inputs.firstRegion = regionOf(step.inputs.front());
        Surface made = stepPicture(step, inputs, space_, paintImage_);
        clearOutside(made, pixelsOf(step.region, space_));
        results_[i] = std::make_unique<Held>(std::move(made), step.linearLight && !isImage(step));
        for (std::size_t earlier = 0; earlier < i; ++earlier)
            if (uses_.lastUse[earlier] == i)
                results_[earlier].reset();
    }

    static bool isImage(const drawing::FilterStep& step) {
        return std::holds_alternative<drawing::ImageEffect>(step.effect);
    }

    std::shared_ptr<const Surface> picture(const FilterInput& input, bool linearLight) {
        switch (input.kind) {
        case FilterInput::Kind::Source:
            return source_->in(linearLight);
        case FilterInput::Kind::SourceAlpha:
            // Black is the same in both kinds of colors.
            return sourceAlpha_->in(false);
        case FilterInput::Kind::Step:
            return results_[input.step]->in(linearLight);
        case FilterInput::Kind::Nothing:
            break;
        }
        return nothing();
    }

    PixelRect regionOf(const FilterInput& input) const {
        const bool isStep = input.kind == FilterInput::Kind::Step;
        return pixelsOf(isStep ? filter_.steps[input.step].region : filter_.region, space_);
    }

    const drawing::Filter& filter_;
    const FilterSpace& space_;
    const ImagePainting& paintImage_;
    const Unwanted* unwanted_;
    FilterUses uses_;
    std::unique_ptr<Held> source_;
    std::unique_ptr<Held> sourceAlpha_;
    std::vector<std::unique_ptr<Held>> results_;
};

} // namespace

std::shared_ptr<const Surface> filtered(const drawing::Filter& filter, Surface source,
                                        const FilterSpace& space, const ImagePainting& paintImage,
                                        const Unwanted* unwanted) {
    return FilterRun(filter, std::move(source), space, paintImage, unwanted).result();
}

} // namespace easel::paint
