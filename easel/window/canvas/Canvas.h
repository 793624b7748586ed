// The drawing on the screen: shows it, scrolls and zooms it, and brings the mouse to the active tool.
#pragma once

#include "easel/runtime/DrawingWindow.h"
#include "easel/window/canvas/CanvasTool.h"
#include "easel/window/canvas/OpenCanvases.h"
#include "easel/window/waiting/PointerSurface.h"

#include <QAbstractScrollArea>
#include <QMouseEvent>

#include <memory>
#include <optional>
#include <vector>

class QNativeGestureEvent;

namespace easel::window {

struct Interaction;

class Canvas : public QAbstractScrollArea, public PointerSurface {
    Q_OBJECT

  public:
    // None of them is owned; all outlive the canvas.
    Canvas(runtime::DrawingWindow& window, Interaction& interaction, OpenCanvases& canvases,
           QWidget* parent = nullptr);
    ~Canvas() override;

    runtime::DrawingWindow& drawingWindow() { return window_; }
    const runtime::DrawingWindow& drawingWindow() const { return window_; }

    // The tool that presses go to; not owned.
    void setTool(CanvasTool* tool);

    double zoom() const { return zoom_; }
    // Keeps the drawing point at this place of the viewport where it is.
    void zoomAbout(QPointF place, double zoom);
    void zoomAboutMiddle(double zoom);
    void fit();
    // A drawing opens at its own size, or fitted to the window if it is too large for that or smaller than
    // half of it. To be called when the window has been given another drawing.
    void showAnew();

    // What of the drawing is marked for painting is repainted when there is time, and so is what is marked
    // until then.
    void marked();
    // The drawing, its selection or its history changed.
    void reportChange() { Q_EMIT changed(); }
    // A plug-in's tool gets a press at this place of the viewport, and is through with it.
    void reportPress(QPointF place) { Q_EMIT toolPressed(toLocal(place)); }
    void reportRelease() { Q_EMIT toolReleased(); }
    // The next click goes to no tool but picks something up.
    void pickUpNext();
    // Shows at once what the window's image and feedback now hold.
    void presentNow();
    // Shows the cursor with this resource id while the pointer is over the canvas.
    void showCursor(long id);
    // Asks the tool for its cursor again.
    void refreshCursor();
    // A rectangle in viewport coordinates that is being dragged open; none to take it away.
    void showMarquee(std::optional<QRectF> marquee);
    // Scrolls, if need be, until the middle of the box is well in sight.
    void bringIntoView(const drawing::Box& box);
    // Selects this object alone, shows it and says which it is.
    void selectOnly(std::size_t index);
    // Flashes the edge of the canvas, where nobody hears a beep.
    void flash();

    // --- PointerSurface, for positions in the viewport
    // What the box covers of the screen.
    QRect onScreen(const drawing::Box& box) const;
    drawing::Point toLocal(QPointF position) const override;
    double pixelsPerUnit() const override { return zoom_; }
    void scrollTowards(QPointF position) override;
    bool wouldScroll(QPointF position) const override;

  Q_SIGNALS:
    void changed();
    void zoomChanged(double zoom);
    void pointerAt(QPointF inDrawing);
    void pointerLeft();
    void toolPressed(easel::drawing::Point inDrawing);
    void toolReleased();
    void shapeChosen(std::size_t index);
    void pickedUp(easel::drawing::Point inDrawing);
    // There is no memory to paint the drawing, or all of it, at this zoom.
    void cannotPaint();

  protected:
    bool viewportEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void paintMarked();
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* event) override;
    // The second click of two quick ones is as good as any.
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    // Tab goes from shape to shape, and behind the last one on to what lies beside the canvas.
    bool focusNextPrevChild(bool next) override;

  private:
    bool panning() const { return panFrom_.has_value(); }
    void startPan(QPointF from);
    void endPan();
    void pickUp(QPointF place);
    void breakOff();
    void updateScrollBars();
    void showMiddle();
    void updateView();
    QPointF origin() const;
    QRectF page() const;
    QRectF inViewport(const drawing::Box& box) const;
    QRegion markedRegion() const;
    QRect feedbackArea() const;
    void pinch(const QNativeGestureEvent& event);
    bool holdsBack(const QEvent& event);
    void handOverHeld();

    runtime::DrawingWindow& window_;
    Interaction& interaction_;
    OpenCanvases::Entry entry_;
    CanvasTool* tool_ = nullptr;
    double zoom_ = 1;
    bool everSized_ = false;
    std::optional<QPointF> panFrom_;
    QPoint panStart_;
    bool spaceDown_ = false;
    bool picksUp_ = false;
    std::optional<QRectF> marquee_;
    bool canPaint_ = true;
    QRect shownFeedback_;
    double flash_ = 0;
    bool updateDue_ = false;
    std::vector<std::unique_ptr<QMouseEvent>> held_; // the next gesture's, in the order of their coming
};

} // namespace easel::window
