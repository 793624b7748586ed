// Paints a drawing into its window's image where it was marked.
#include "easel/runtime/DrawingWindow.h"

#include "easel/paint/BackgroundLayers.h"
#include "easel/paint/FilterPictures.h"
#include "easel/paint/Port.h"
#include "easel/paint/RenderDrawing.h"
#include "easel/paint/pixels/Surface.h"
#include "easel/runtime/Process.h"
#include "easel/runtime/User.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace easel::runtime {

namespace {

constexpr std::uint32_t kWhite = 0xffffffff;

// Many small marks are painted one by one; more of them than this are painted as one area.
constexpr std::size_t kMostMarks = 16;

View wholeDrawing(const drawing::Drawing& drawing) {
    return {
        .zoom = 1, .deviceScale = 1, .origin = {0, 0}, .width = drawing.width(), .height = drawing.height()};
}

// What a frame waits for what it shows for the first time, so that little things do not flicker.
constexpr std::chrono::milliseconds kPatience{12};

// In pixels, each way: what fits the image formats that windows and files use.
constexpr double kLargestImage = 32767;

int imageLength(double length, double scale) {
    const double pixels = std::max(1.0, std::ceil(length * scale));
    if (!(pixels <= kLargestImage))
        throw std::length_error("the window is too large to be painted");
    return static_cast<int>(pixels);
}

// Every pixel that the area touches.
paint::PixelRect pixelsOf(const drawing::Box& area, const drawing::Affine& toImage,
                          const paint::Surface& image) {
    const drawing::Point corner = toImage({area.left, area.top});
    const drawing::Point end = toImage({area.right, area.bottom});
    const auto pixel = [](double at, int limit) {
        return static_cast<int>(std::clamp(at, 0.0, static_cast<double>(limit)));
    };
    return {.left = pixel(std::floor(corner.x), image.width()),
            .top = pixel(std::floor(corner.y), image.height()),
            .right = pixel(std::ceil(end.x), image.width()),
            .bottom = pixel(std::ceil(end.y), image.height())};
}

bool encloses(const drawing::Box& outer, const drawing::Box& inner) {
    return outer.contains({inner.left, inner.top}) && outer.contains({inner.right, inner.bottom});
}

void whiten(paint::Surface& image, const paint::PixelRect& box) {
    for (int y = box.top; y < box.bottom; ++y)
        std::fill(image.row(y) + box.left, image.row(y) + box.right, kWhite);
}

} // namespace

DrawingWindow::DrawingWindow(drawing::Drawing drawing, Process& process)
    : process_(process),
      port_(std::make_unique<paint::Port>(paint::PixelRect{.right = 1, .bottom = 1}, 1.0, kWhite & 0xffffff)),
      drawing_(std::move(drawing)), view_(wholeDrawing(drawing_)),
      filterPictures_(std::make_unique<paint::FilterPictures>()) {
    process_.ports().add(*port_);
    mark(view_.seen());
    listen();
}

DrawingWindow::~DrawingWindow() {
    process_.ports().forget(*port_);
    if (process_.activeWindow() == this)
        process_.setActiveWindow(nullptr);
}

void DrawingWindow::activate() {
    process_.setActiveWindow(this);
}

void DrawingWindow::listen() {
    drawing_.setChangeListener([this](const drawing::Box& area) {
        mark(area);
        if (process_.hasUser())
            process_.user().repaint(*this, area);
    });
}

void DrawingWindow::setDrawing(drawing::Drawing drawing) {
    drawing_ = std::move(drawing);
    filterPictures_ = std::make_unique<paint::FilterPictures>();
    if (background_)
        background_->clear();
    listen();
    feedback_.clear();
    setView(view_);
}

void DrawingWindow::setView(const View& view) {
    view_ = view;
    if (background_)
        background_->beginView();
    marks_.clear();
    mark(view_.seen());
}

void DrawingWindow::mark(const drawing::Box& area) {
    const drawing::Box seen = area.intersection(view_.seen());
    if (seen.empty())
        return;
    // A change marks its object several times: as it was and as it is, selected and not.
    if (std::any_of(marks_.begin(), marks_.end(), [&](const auto& one) { return encloses(one, seen); }))
        return;
    std::erase_if(marks_, [&](const auto& one) { return encloses(seen, one); });
    marks_.push_back(seen);
    if (marks_.size() <= kMostMarks)
        return;
    drawing::Box all;
    for (const drawing::Box& one : marks_)
        all.add(one);
    marks_.assign(1, all);
}

void DrawingWindow::paintInBackground(std::function<void()> ready) {
    background_ = std::make_unique<paint::BackgroundLayers>(std::move(ready));
    mark(view_.seen());
}

void DrawingWindow::markReady() {
    if (background_)
        for (const drawing::Box& area : background_->takeReady())
            mark(area);
}

bool DrawingWindow::takeShortage() {
    return background_ && background_->takeShortage();
}

void DrawingWindow::paintAtOnce() {
    background_ = nullptr;
    mark(view_.seen());
}

void DrawingWindow::paintMarked() {
    if (background_)
        background_->beginFrame(kPatience);
    const int width = imageLength(view_.width, view_.deviceScale);
    const int height = imageLength(view_.height, view_.deviceScale);
    if (!image_ || image_->width() != width || image_->height() != height) {
        image_ = std::make_unique<paint::Surface>(width, height);
        marks_.assign(1, view_.seen());
    }
    for (const drawing::Box& mark : marks_) {
        const paint::PixelRect box = pixelsOf(mark, view_.toImage(), *image_);
        if (box.empty())
            continue;
        whiten(*image_, box);
        paint::renderDrawing(drawing_, image_->view().clippedTo(box), view_.toImage(), paint::usefulThreads(),
                             filterPictures_.get(), background_.get());
    }
    // Not before, as painting may find no memory.
    marks_.clear();
}

} // namespace easel::runtime
