// Goes through the elements of a file in the order they are painted and gathers the objects.
#pragma once

#include "easel/svg/read/ClipReader.h"
#include "easel/svg/read/DrawingSize.h"
#include "easel/svg/read/EmbeddedDrawing.h"
#include "easel/svg/read/FilterReader.h"
#include "easel/svg/read/MarkerVertices.h"
#include "easel/svg/read/ObjectReader.h"
#include "easel/svg/read/PatternFrame.h"
#include "easel/svg/read/PictureReader.h"
#include "easel/svg/read/Scene.h"
#include "easel/svg/text/Source.h"

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace easel::svg {

struct TextShape;

class TreeReader {
  public:
    // `progress` may be empty. Spans and use instances are added to `source`, whose text the tree was made
    // from.
    TreeReader(const Scene& scene, Source& source, std::function<bool(double)> progress);

    // Reads everything. Throws ReadError.
    void readRoot();
    // The same as a part of another drawing, all objects belonging to no file. False if there is no place.
    bool readPlaced(const PlaceEmbedded& place);
    DrawingSize size() const { return size_; }
    std::vector<drawing::ObjectPtr> takeObjects() { return std::move(objects_); }

  private:
    // The groups of one element that are filtered, in the order in which the filters work: the first is the
    // innermost.
    using FilteredGroups = std::vector<drawing::SharedPtr<drawing::Group>>;

    // A group whose clip path or mask is a share of what the group holds, and so has to wait until that is
    // read.
    struct WaitingGroup {
        pugi::xml_node element;
        drawing::SharedPtr<drawing::Group> group; // null: none waits
        Place place;                              // inside the element, before what narrows its content
        std::size_t firstObject = 0;
        std::size_t firstHidden = 0;
        FilteredGroups filtered;
    };
    struct Inside {
        Place place;
        std::shared_ptr<const WaitingGroup> waiting; // null: none
    };
    // The last mask that depends on nothing but its place: neighbours often share it.
    struct KnownMask {
        pugi::xml_node element;
        drawing::Affine toDrawing;
        double viewportWidth = 0;
        double viewportHeight = 0;
        drawing::MaskPtr mask; // null: none is known

        bool isFor(pugi::xml_node asked, const Place& place) const;
    };
    // Elements that are left to be read in one place. A stack of these stands in for recursion, so that
    // elements may be nested as deep as memory goes.
    struct Work {
        Inside inside;
        pugi::xml_node next;
        bool siblingsToo = true;
        bool endsUseInstance = false; // the innermost of `open_`
    };

    // What a pattern showed on the last shape that had it: neighbors mostly show the same.
    struct ReadPattern {
        drawing::Affine contentToOwn;
        double width = 0, height = 0; // of what percentages are of
        bool showsOverflow = false;
        std::shared_ptr<const std::vector<drawing::ObjectPtr>> objects;
        drawing::PatternPtr last;
    };

    // In the element's own units.
    struct PictureFrame {
        drawing::Box viewport; // into which the picture is fitted
        drawing::Box shown;    // as far as it is not cut off
        drawing::Affine fit;   // from the units of the picture
    };

    void readAll();
    void finish(const Work& work);
    void readElement(pugi::xml_node element, const Place& place);
    void readContainer(pugi::xml_node element, std::string_view name, const Place& place);
    // What is said of an element, and its place with the style that is in force there. Nothing if it is not
    // displayed.
    struct Styled {
        StatedStyle stated;
        Place inside;
    };
    std::optional<Styled> styled(pugi::xml_node element, const Place& place) const;
    // Takes a shape that has been read out of the tree, if nothing can ask for it again.
    void forget(pugi::xml_node shape);
    // Hidden elements still count where somebody waits for the box of what they are in.
    bool isOutOfSight(const Styled& start) const;
    void readShapeElement(pugi::xml_node element, std::string_view name, const Place& place);
    void readImage(pugi::xml_node element, const Place& place);
    // Where a picture of that size lies, if it shows. Brings `inside` from the units around the element's
    // transform to those inside of it.
    std::optional<PictureFrame> framePicture(pugi::xml_node element, const StatedStyle& stated, Place& inside,
                                             double width, double height);
    // A picture of pixels, and one of shapes. `inside` is in the units around the element's transform.
    void addPicture(pugi::xml_node element, const StatedStyle& stated, Place inside,
                    std::shared_ptr<const drawing::Picture> picture);
    void addShapes(pugi::xml_node element, const StatedStyle& stated, Place inside,
                   const ShapePicture& picture);
    // The rectangle that a picture of pixels fills, as far as it is shown. `fit` goes from the pixels to
    // the units inside.
    std::optional<drawing::Object> pictureObject(pugi::xml_node element, const drawing::Box& shown,
                                                 const drawing::Affine& fit, double opacity,
                                                 const Place& inside,
                                                 std::shared_ptr<const drawing::Picture> picture);
    // Adds an object that was read of the element. `box` is that of the element in its own units, in which
    // `inside` is.
    void addObject(drawing::Object object, pugi::xml_node element, const StatedStyle& stated,
                   const drawing::Box& box, Place inside);
    void readTextElement(pugi::xml_node element, const Place& place);
    std::optional<drawing::Object> textObject(pugi::xml_node element, const TextShape& text, double opacity,
                                              const Place& place);
    static bool hasMarkers(const Shape& shape, const Place& place);
    void addMarkers(drawing::Object& object, const Shape& shape, const Place& place);
    void readMarker(pugi::xml_node marker, const MarkerVertex& vertex, const Place& shape,
                    std::vector<drawing::ObjectPtr>& markers);
    // The pattern on a shape; nothing where it disables painting.
    drawing::Paint readPattern(pugi::xml_node pattern, const PaintPlace& at);
    ReadPattern readPatternContent(pugi::xml_node content, const PatternFrame& frame);
    Place placeAround(pugi::xml_node element) const;
    // Adds what the element holds to other objects than the drawing's.
    void readApart(pugi::xml_node element, Inside inside, std::vector<drawing::ObjectPtr>& objects);
    void readApart(Work work, std::vector<drawing::ObjectPtr>& objects);
    void readUse(pugi::xml_node element, Inside inside);
    void readTarget(pugi::xml_node use, pugi::xml_node target, Inside inside);
    void readChildren(pugi::xml_node element, Inside inside);
    void readSwitch(pugi::xml_node element, Inside inside);
    bool leadsBack(pugi::xml_node use, pugi::xml_node target);
    // What the target of a `use` element, in which the place is, may be painted with; null for nothing.
    std::shared_ptr<const ContextPaints> contextOfUse(pugi::xml_node use, pugi::xml_node target,
                                                      const Place& place);
    // In the units of the `use` element, whose target it is.
    drawing::Box boxOfTarget(pugi::xml_node use, pugi::xml_node target, Place place) const;
    bool fileAsksForContext();

    void readFrom(const Place& outside);
    Place rootPlace();
    // The place inside a container; nothing if nothing of it is shown.
    std::optional<Inside> enter(pugi::xml_node element, const Place& outside);
    // The place inside the layer that the style makes of what an element holds, which begins with these of
    // the objects and hidden shapes. Who reads it counts it among those that wait if it does.
    Inside inLayer(pugi::xml_node element, const StatedStyle& stated, Place place, std::size_t firstObject,
                   std::size_t firstHidden);
    void finishGroup(const WaitingGroup& waiting);
    // The box of what was read since, in the group's own units, what is hidden included.
    drawing::Box boxOf(const WaitingGroup& waiting) const;
    bool asksForBox(const StatedStyle& stated) const;
    // What the style makes of a layer, but for its opacity. Of a box that is empty, no shares are taken.
    drawing::Group effectsOf(const StatedStyle& stated, const drawing::Box& box, const Place& place);
    // Puts what is read in this place into a layer with these effects, if they have any. The new group, else
    // null.
    drawing::SharedPtr<drawing::Group> addGroup(Place& place, drawing::Group effects);
    static void moveOpacity(drawing::Object& object, drawing::Group& group);
    // Adds groups for so many filters, the last of which is for the group that has been added already.
    FilteredGroups addFiltered(Place& place, const drawing::SharedPtr<drawing::Group>& group,
                               std::size_t count);
    // Gives them the filters that the style asks for; they hold the objects from this one on.
    void setFilters(const FilteredGroups& groups, const StatedStyle& stated, const drawing::Box& box,
                    const Place& place, std::size_t firstObject);
    // The objects that a filter shows which takes them from elsewhere: from an element of the file, or from a
    // picture that is fitted into the region. Null if there are none.
    using FilterImage = std::shared_ptr<const std::vector<drawing::ObjectPtr>>;
    FilterImage readFilterImage(pugi::xml_node effect, const drawing::Box& region, const Place& place);
    FilterImage readFilterTarget(pugi::xml_node target, const Place& place);
    FilterImage readFilterPicture(pugi::xml_node effect, const drawing::Box& region, const Place& place);
    void narrow(Place& place, std::shared_ptr<const drawing::ClipPath> clip);
    // The mask that the style asks for; null for none.
    drawing::MaskPtr maskFor(const StatedStyle& stated, const drawing::Box& box, const Place& place);
    drawing::MaskPtr readMask(pugi::xml_node mask, const drawing::Box& box, const Place& place);
    bool masksByBox(const StatedStyle& stated) const;
    // The place inside an element with a viewport of its own, which `use` may give another size.
    Place viewportPlace(pugi::xml_node element, pugi::xml_node use, const Place& outside);
    static bool showsOverflow(const StatedStyle& stated);
    void noteEffects(const StatedStyle& stated);
    // Keeps the box of a shape that is not shown for those that ask for the box of a group.
    void addHidden(drawing::Path outline, const Place& place);
    void addSource(drawing::Object& object, pugi::xml_node element, const Place& place);
    void addUseInstance(pugi::xml_node use, pugi::xml_node target, Place& place);
    void tick();

    const Scene& scene_;
    Source& source_;
    std::function<bool(double)> progress_;
    ClipReader clips_;
    FilterReader filters_;
    ObjectReader reader_;
    PictureReader pictures_;
    std::vector<drawing::ObjectPtr> objects_;
    std::vector<pugi::xml_node> open_;               // `use` elements whose targets are being read
    std::vector<pugi::xml_node> openMarkers_;        // that are being read
    std::vector<pugi::xml_node> openMasks_;          // that are being read
    std::vector<pugi::xml_node> openPatterns_;       // whose content is being read
    std::map<pugi::xml_node, ReadPattern> patterns_; // by the elements whose content they show
    std::vector<pugi::xml_node> openImages_;         // elements that filters show and that are being read
    KnownMask lastMask_;
    std::vector<drawing::Path> hidden_;      // outlines in the drawing, of a waiting group's hidden shapes
    std::size_t waiting_ = 0;                // groups that wait
    std::size_t apart_ = 0;                  // how often `readApart` is at work
    std::deque<Work> work_;                  // the last is the innermost
    bool measures_ = false;                  // whether only the boxes of what is read are wanted
    std::optional<bool> fileAsksForContext_; // unknown until it matters
    DrawingSize size_;                       // a side that is not known yet is 0
    std::size_t visited_ = 0;
};

} // namespace easel::svg
