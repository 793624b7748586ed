// The steps of one filter, and how they take in each other's pictures.
#pragma once

#include "easel/svg/read/FilterAttributes.h"
#include "easel/svg/read/FilteredElement.h"

#include <map>
#include <string_view>
#include <utility>
#include <vector>

namespace easel::svg {

class FilterSteps {
  public:
    // All of them outlive this. `region` is that of the filter.
    FilterSteps(const Scene& scene, const FilteredElement& on, const FilterUnits& units,
                const drawing::Box& region, const ReadFilterImage& readImage)
        : scene_(scene), on_(on), units_(units), region_(region), readImage_(readImage) {}

    // Adds the step that the element stands for, if it stands for one.
    void add(pugi::xml_node element);
    bool empty() const { return steps_.empty(); }
    std::vector<drawing::FilterStep> take() { return std::move(steps_); }

  private:
    std::optional<drawing::FilterEffect> effectOf(std::string_view name, const FilterAttributes& attributes);
    std::vector<drawing::FilterInput> inputsOf(const drawing::FilterEffect& effect,
                                               const FilterAttributes& attributes);
    drawing::FilterInput input(std::string_view name);
    drawing::FilterInput paintInput(const PaintSpec& paint, double opacity);
    drawing::FilterInput last() const;
    drawing::Box stepRegion(const drawing::FilterStep& step, const FilterAttributes& attributes) const;
    drawing::Box usualRegion(const drawing::FilterStep& step) const;
    bool inLinearLight(pugi::xml_node element) const;

    const Scene& scene_;
    const FilteredElement& on_;
    const FilterUnits& units_;
    const drawing::Box& region_;
    const ReadFilterImage& readImage_;
    std::vector<drawing::FilterStep> steps_;
    std::map<std::string_view, std::size_t> named_; // the last step with each name
    std::optional<std::size_t> last_;               // the step before
};

} // namespace easel::svg
