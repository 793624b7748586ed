// A drawing and the window that shows it, as far as the host knows about it: its view, its image and the
// feedback on top.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/runtime/HostWindow.h"
#include "easel/runtime/View.h"
#include "host/Windows.h"

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace easel::paint {
class BackgroundLayers;
class FilterPictures;
class Port;
class Surface;
} // namespace easel::paint

namespace easel::runtime {

// A line that the host shows on top of a drawing while the user is dragging, in drawing coordinates.
struct ConstructionLine {
    drawing::Point from;
    drawing::Point to;
};

class Process;

class DrawingWindow {
  public:
    // The view shows the whole drawing at scale 1 until it is set. The process outlives the window.
    DrawingWindow(drawing::Drawing drawing, Process& process);
    ~DrawingWindow();
    DrawingWindow(const DrawingWindow&) = delete;
    DrawingWindow& operator=(const DrawingWindow&) = delete;

    Process& process() const { return process_; }
    drawing::Drawing& drawing() { return drawing_; }
    const drawing::Drawing& drawing() const { return drawing_; }
    // Another drawing takes the place of the one shown, of which nothing stays; the view does.
    void setDrawing(drawing::Drawing drawing);

    // Makes this the front drawing window.
    void activate();

    // Setting the view marks everything for repainting.
    const View& view() const { return view_; }
    void setView(const View& view);

    // The image holds what has been painted: white paper with the drawing on it, in the pixels of the view.
    // Areas (in drawing coordinates) are marked when they change and painted by `paintMarked`, so that the
    // image never changes behind the back of a tracking loop. Changes of the drawing mark their areas
    // themselves and tell the user.
    void mark(const drawing::Box& area);
    // The marked areas: few, even if many objects changed.
    const std::vector<drawing::Box>& marks() const { return marks_; }
    // Paints what is marked. Throws std::length_error or std::bad_alloc if the view is too large for an
    // image.
    void paintMarked();
    bool painted() const { return image_ != nullptr; }
    // From now on `paintMarked` leaves what takes long to other threads, and shows what was there before, or
    // nothing, in its place. One of them calls `ready` each time that more can be shown by `markReady`.
    void paintInBackground(std::function<void()> ready);
    // Marks what has been painted in the background since this was last called.
    void markReady();
    // Whether something was left out for want of memory since this was last asked.
    bool takeShortage();
    // Gives up what is under way in the background; all is painted at once again.
    void paintAtOnce();
    // Painted at least once before this is asked for.
    const paint::Surface& image() const { return *image_; }

    // The window as the host interface names it.
    DWindow& ref() { return ref_; }
    // Holds the state of the pen while the window is the current port; what is drawn in it is not shown.
    paint::Port& port() { return *port_; }

    // What is to be seen on top of the image; it takes the place of what was there.
    const std::vector<ConstructionLine>& feedback() const { return feedback_; }
    void setFeedback(std::vector<ConstructionLine> lines) { feedback_ = std::move(lines); }

    // The resource id of the cursor last set, if any.
    std::optional<long> cursor() const { return cursor_; }
    void setCursor(long id) { cursor_ = id; }

  private:
    void listen();

    Process& process_;
    HostWindow handle_{this};
    DWindow ref_{handle_};
    std::unique_ptr<paint::Port> port_;
    drawing::Drawing drawing_;
    View view_;
    std::unique_ptr<paint::Surface> image_;
    std::unique_ptr<paint::FilterPictures> filterPictures_; // as last painted
    std::unique_ptr<paint::BackgroundLayers> background_;   // null: all is painted at once
    std::vector<drawing::Box> marks_;
    std::vector<ConstructionLine> feedback_;
    std::optional<long> cursor_;
};

} // namespace easel::runtime
