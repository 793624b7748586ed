// Goes through the elements of a file in the order they are painted and gathers the objects.
#pragma once

#include "easel/svg/read/ClipReader.h"
#include "easel/svg/read/ObjectReader.h"
#include "easel/svg/read/Scene.h"
#include "easel/svg/text/Source.h"

#include <functional>
#include <string>
#include <vector>

namespace easel::svg {

struct DrawingSize {
    double width = 0;
    double height = 0;
};

class TreeReader {
  public:
    // `progress` may be empty. Spans and repetitions are added to `source`, whose text the tree was made
    // from.
    TreeReader(const Scene& scene, Source& source, std::function<bool(double)> progress);

    // Reads everything. Throws ReadError.
    void readRoot();
    DrawingSize size() const { return size_; }
    std::vector<drawing::ObjectPtr> takeObjects() { return std::move(objects_); }

  private:
    void readElement(pugi::xml_node element, const Place& place);
    void readContainer(pugi::xml_node element, std::string_view name, const Place& place);
    void readShapeElement(pugi::xml_node element, std::string_view name, const Place& place);
    void readUse(pugi::xml_node element, const Place& place);
    void readTarget(pugi::xml_node use, pugi::xml_node target, const Place& place);
    void readChildren(pugi::xml_node element, const Place& place);
    void readSwitch(pugi::xml_node element, const Place& place);

    Place rootPlace();
    // The place inside a container; false if nothing of it is shown.
    bool enter(pugi::xml_node element, const Place& outside, Place& inside);
    // The place inside an element with a viewport of its own, which `use` may give another size.
    Place viewportPlace(pugi::xml_node element, pugi::xml_node use, const Place& outside);
    void noteEffects(const StatedStyle& stated);
    void addRepetition(pugi::xml_node use, pugi::xml_node target, Place& place);
    void tick();

    const Scene& scene_;
    Source& source_;
    std::function<bool(double)> progress_;
    ClipReader clips_;
    ObjectReader reader_;
    std::vector<drawing::ObjectPtr> objects_;
    std::vector<pugi::xml_node> open_; // targets of `use` elements that are being read
    DrawingSize size_;
    std::size_t visited_ = 0;
};

} // namespace easel::svg
