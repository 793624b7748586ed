// What the server's windows show, and what programs have told it.
#include "tests/desktop/Screen.h"

#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/Xfixes.h>

#include <fstream>
#include <thread>

namespace desktop {
namespace {

Atom atom(Display* display, const char* name) {
    return XInternAtom(display, name, False);
}

struct Property {
    std::string bytes;
    unsigned long items = 0;
};

Property property(Display* display, ::Window window, Atom name) {
    Atom type = 0;
    int format = 0;
    unsigned long items = 0;
    unsigned long left = 0;
    unsigned char* data = nullptr;
    constexpr long kMost = 1 << 20;
    if (XGetWindowProperty(display, window, name, 0, kMost, False, AnyPropertyType, &type, &format, &items,
                           &left, &data) != Success ||
        !data)
        return {};
    const std::size_t size = format == 8 ? 1 : (format == 16 ? sizeof(short) : sizeof(long));
    Property result{std::string(reinterpret_cast<char*>(data), items * size), items};
    XFree(data);
    return result;
}

Area contentOf(Display* display, ::Window window) {
    XWindowAttributes attributes{};
    if (XGetWindowAttributes(display, window, &attributes) == 0)
        return {};
    int x = 0;
    int y = 0;
    ::Window child = 0;
    XTranslateCoordinates(display, window, DefaultRootWindow(display), 0, 0, &x, &y, &child);
    return {x, y, x + attributes.width, y + attributes.height};
}

} // namespace

std::optional<Area> Picture::find(std::uint32_t color) const {
    Area area{width, height, 0, 0};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            if (at({x, y}) == color)
                area = {std::min(area.left, x), std::min(area.top, y), std::max(area.right, x + 1),
                        std::max(area.bottom, y + 1)};
    return area.right == 0 ? std::nullopt : std::optional(area);
}

Picture Screen::picture() const {
    const ::Window root = DefaultRootWindow(display_);
    const int width = DisplayWidth(display_, DefaultScreen(display_));
    const int height = DisplayHeight(display_, DefaultScreen(display_));
    XImage* image = XGetImage(display_, root, 0, 0, static_cast<unsigned>(width),
                              static_cast<unsigned>(height), AllPlanes, ZPixmap);
    Picture result{width, height, {}};
    result.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        const auto* row =
            reinterpret_cast<const std::uint32_t*>(image->data + std::ptrdiff_t{image->bytes_per_line} * y);
        for (int x = 0; x < width; ++x)
            result.pixels.push_back(row[x] & 0xffffff);
    }
    XDestroyImage(image);
    return result;
}

void Screen::savePicture(const std::string& file) const {
    const Picture shown = picture();
    std::ofstream out(file, std::ios::binary);
    out << "P6 " << shown.width << ' ' << shown.height << " 255\n";
    for (const std::uint32_t pixel : shown.pixels)
        out.put(static_cast<char>(pixel >> 16))
            .put(static_cast<char>(pixel >> 8))
            .put(static_cast<char>(pixel));
}

std::vector<Window> Screen::windows() const {
    const Property list = property(display_, DefaultRootWindow(display_), atom(display_, "_NET_CLIENT_LIST"));
    const auto* ids = reinterpret_cast<const unsigned long*>(list.bytes.data());
    std::vector<Window> result;
    for (unsigned long i = 0; i < list.items; ++i) {
        XWindowAttributes attributes{};
        if (XGetWindowAttributes(display_, ids[i], &attributes) == 0 || attributes.map_state != IsViewable)
            continue;
        result.push_back({ids[i], property(display_, ids[i], atom(display_, "_NET_WM_NAME")).bytes,
                          contentOf(display_, ids[i])});
    }
    return result;
}

std::optional<Window> Screen::window(const std::function<bool(const Window&)>& wanted) const {
    for (const Window& window : windows())
        if (wanted(window))
            return window;
    return std::nullopt;
}

bool Screen::popupAt(Spot spot) const {
    ::Window root = 0;
    ::Window parent = 0;
    ::Window* children = nullptr;
    unsigned count = 0;
    XQueryTree(display_, DefaultRootWindow(display_), &root, &parent, &children, &count);
    bool found = false;
    for (unsigned i = 0; i < count && !found; ++i) {
        XWindowAttributes attributes{};
        found = XGetWindowAttributes(display_, children[i], &attributes) != 0 &&
                attributes.override_redirect != 0 && attributes.map_state == IsViewable &&
                attributes.c_class == InputOutput && contentOf(display_, children[i]).contains(spot);
    }
    if (children)
        XFree(children);
    return found;
}

unsigned long Screen::activeWindow() const {
    const Property id = property(display_, DefaultRootWindow(display_), atom(display_, "_NET_ACTIVE_WINDOW"));
    return id.items == 1 ? *reinterpret_cast<const unsigned long*>(id.bytes.data()) : 0;
}

void Screen::close(const Window& window) {
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = window.id;
    event.xclient.message_type = atom(display_, "_NET_CLOSE_WINDOW");
    event.xclient.format = 32;
    XSendEvent(display_, DefaultRootWindow(display_), False,
               SubstructureRedirectMask | SubstructureNotifyMask, &event);
    settle();
}

unsigned long Screen::cursorSerial() const {
    XFixesCursorImage* image = XFixesGetCursorImage(display_);
    const unsigned long serial = image->cursor_serial;
    XFree(image);
    return serial;
}

int Screen::bells() {
    XSync(display_, False);
    while (XPending(display_) > 0) {
        XEvent event{};
        XNextEvent(display_, &event);
        if (event.type == bellEvent_ && reinterpret_cast<XkbAnyEvent&>(event).xkb_type == XkbBellNotify)
            ++bells_;
    }
    return bells_;
}

std::string Screen::clipboard() {
    const Atom into = atom(display_, "TEST_CLIPBOARD");
    XConvertSelection(display_, atom(display_, "CLIPBOARD"), atom(display_, "UTF8_STRING"), into, listener_,
                      CurrentTime);
    XSync(display_, False);
    for (int tries = 0; tries < 100; ++tries) {
        XEvent event{};
        if (XCheckTypedWindowEvent(display_, listener_, SelectionNotify, &event) != 0)
            return event.xselection.property == None ? std::string()
                                                     : property(display_, listener_, into).bytes;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return {};
}

} // namespace desktop
