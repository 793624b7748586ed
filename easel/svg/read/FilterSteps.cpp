// The steps of one filter: SVG 1.1, 15.7.
#include "easel/svg/read/FilterSteps.h"

#include "easel/svg/read/FilterEffects.h"
#include "easel/svg/text/Scanner.h"

namespace easel::svg {

using namespace drawing;

namespace {

// What a step costs of the budget, beside what its numbers take.
constexpr std::size_t kStepCost = 8;

// Each takes as long as painting all that the filter shows.
constexpr std::size_t kMostSteps = 256;

std::size_t inputCount(const FilterEffect& effect) {
    if (std::holds_alternative<FloodEffect>(effect) || std::holds_alternative<TurbulenceEffect>(effect) ||
        std::holds_alternative<ImageEffect>(effect))
        return 0;
    const bool two = std::holds_alternative<BlendEffect>(effect) ||
                     std::holds_alternative<CompositeEffect>(effect) ||
                     std::holds_alternative<DisplacementEffect>(effect);
    return two ? 2 : 1;
}

} // namespace

void FilterSteps::add(pugi::xml_node element) {
    const std::string_view name = scene_.tree.svgName(element);
    if (name.substr(0, 2) != "fe")
        return;
    if (steps_.size() >= kMostSteps)
        return scene_.notes.add(Unsupported::DeepLayer);
    const FilterAttributes attributes(scene_, element, units_);
    auto effect = effectOf(name, attributes);
    if (!effect)
        return;
    std::size_t size = kStepCost;
    for (const pugi::xml_attribute attribute : element.attributes())
        size += std::string_view(attribute.value()).size() / 4;
    scene_.budget.spend(size);
    FilterStep step;
    step.inputs = inputsOf(*effect, attributes);
    step.effect = std::move(*effect);
    step.region = stepRegion(step, attributes);
    step.linearLight = inLinearLight(element);
    last_ = steps_.size();
    steps_.push_back(std::move(step));
    if (const std::string_view result = attributes.text("result"); !result.empty())
        named_[result] = *last_;
}

std::optional<FilterEffect> FilterSteps::effectOf(std::string_view name, const FilterAttributes& attributes) {
    if (name != "feImage")
        return filterEffect(name, attributes);
    const Box region = stepRegion(FilterStep{FloodEffect{}, {}, {}}, attributes);
    auto objects = readImage_(attributes.element(), region, on_.place);
    return objects ? FilterEffect(ImageEffect{std::move(objects)}) : FilterEffect(FloodEffect{{}, 0});
}

std::vector<FilterInput> FilterSteps::inputsOf(const FilterEffect& effect,
                                               const FilterAttributes& attributes) {
    std::vector<FilterInput> inputs;
    if (std::holds_alternative<MergeEffect>(effect)) {
        for (const pugi::xml_node child : attributes.element().children())
            if (scene_.tree.svgName(child) == "feMergeNode")
                inputs.push_back(input(trimmed(child.attribute("in").value())));
        return inputs;
    }
    const std::size_t count = inputCount(effect);
    if (count > 0)
        inputs.push_back(input(attributes.text("in")));
    if (count > 1)
        inputs.push_back(input(attributes.text("in2")));
    return inputs;
}

FilterInput FilterSteps::last() const {
    return last_ ? FilterInput{FilterInput::Kind::Step, *last_} : FilterInput{};
}

// A name that no earlier step has counts as none given.
FilterInput FilterSteps::input(std::string_view name) {
    if (name.empty())
        return last();
    if (const auto found = named_.find(name); found != named_.end())
        return {FilterInput::Kind::Step, found->second};
    if (name == "SourceGraphic")
        return {};
    if (name == "SourceAlpha")
        return {FilterInput::Kind::SourceAlpha, 0};
    if (name == "BackgroundImage" || name == "BackgroundAlpha")
        return {FilterInput::Kind::Nothing, 0};
    const ComputedStyle& style = on_.place.style;
    if (name == "FillPaint")
        return paintInput(style.fill, style.fillOpacity);
    if (name == "StrokePaint")
        return paintInput(style.stroke, style.strokeOpacity);
    return last();
}

// A plain color becomes a step of its own; other paints have no extent that a filter could show.
FilterInput FilterSteps::paintInput(const PaintSpec& paint, double opacity) {
    const bool current = paint.kind == PaintSpec::Kind::CurrentColor;
    if (!current && paint.kind != PaintSpec::Kind::Color)
        return {FilterInput::Kind::Nothing, 0};
    const ColorPaint& color = current ? on_.place.style.color : paint.color;
    scene_.budget.spend(kStepCost);
    steps_.push_back({FloodEffect{color.color, color.opacity * opacity}, {}, region_, false});
    return {FilterInput::Kind::Step, steps_.size() - 1};
}

// Where nothing is stated, a step reaches as far as what it takes in, or as the filter.
Box FilterSteps::usualRegion(const FilterStep& step) const {
    Box box;
    if (std::holds_alternative<TileEffect>(step.effect))
        return region_;
    for (const FilterInput& in : step.inputs) {
        if (in.kind != FilterInput::Kind::Step)
            return region_;
        box.add(steps_[in.step].region);
    }
    return step.inputs.empty() ? region_ : box;
}

Box FilterSteps::stepRegion(const FilterStep& step, const FilterAttributes& attributes) const {
    const Box usual = usualRegion(step);
    const auto side = [&](const char* name, Axis axis, bool isPlace) {
        return statedSide(attributes.text(name), axis, isPlace, units_, units_.sharesOfBox);
    };
    const auto x = side("x", Axis::Horizontal, true);
    const auto y = side("y", Axis::Vertical, true);
    const auto width = side("width", Axis::Horizontal, false);
    const auto height = side("height", Axis::Vertical, false);
    if (!x && !y && !width && !height)
        return usual;
    const double left = x.value_or(usual.left);
    const double top = y.value_or(usual.top);
    const Box box{left, top, left + width.value_or(usual.width()), top + height.value_or(usual.height())};
    return box.width() > 0 && box.height() > 0 ? box : Box();
}

// The property is inherited, where the element stands in the file.
bool FilterSteps::inLinearLight(pugi::xml_node element) const {
    for (; element.type() == pugi::node_element; element = element.parent()) {
        const std::string_view stated = scene_.cascade.of(element)[Property::ColorInterpolationFilters];
        if (equalIgnoringCase(stated, "sRGB"))
            return false;
        if (!stated.empty() && !equalIgnoringCase(stated, "inherit"))
            return true;
    }
    return true;
}

} // namespace easel::svg
