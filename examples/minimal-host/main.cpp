// A host with a mouse but no eyes: loads the plug-in, clicks and drags on a drawing, and saves a picture of
// it.
#include "Drawing.h"
#include "Palette.h"
#include "Picture.h"

#include <dlfcn.h>

#include <cstdint>
#include <cstdio>
#include <exception>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr std::int16_t kStartUpMessage = 1;
constexpr std::int16_t kShutDownMessage = 2;
constexpr std::uint16_t kMouseDown = 1;

constexpr int kWidth = 240;
constexpr int kHeight = 120;

/// The plug-in's module, started for as long as this lives.
class Plugin {
  public:
    explicit Plugin(char const* file) : module_(dlopen(file, RTLD_NOW | RTLD_LOCAL)) {
        if (!module_) {
            throw std::runtime_error(dlerror());
        }
        entry_ = reinterpret_cast<XTNLEntry>(dlsym(module_.get(), "MainEntry"));
        if (entry_ == nullptr) {
            throw std::runtime_error(std::string(file) + " has no MainEntry");
        }
        entry_(kStartUpMessage, nullptr);
    }
    Plugin(Plugin const&) = delete;
    Plugin& operator=(Plugin const&) = delete;
    ~Plugin() {
        entry_(kShutDownMessage, nullptr);
        // The callbacks are the module's, and it does not take them back itself.
        TheTool() = HostTool();
    }

  private:
    struct Unload {
        void operator()(void* module) const { dlclose(module); }
    };

    std::unique_ptr<void, Unload> module_;
    XTNLEntry entry_ = nullptr;
};

void AddRectangle(TRect<double> const& box, SharedResourcePtr<CGradient> const& gradient) {
    auto const object = std::make_shared<HostObject>();
    object->box = box;
    object->gradient = gradient;
    TheWindow().drawing->objects.push_back(object);
}

SharedResourcePtr<CGradient> RedToBlueFromTheMiddle() {
    CGradientData record;
    record.SetType(kRadialGradient);
    record.ColorList() = {CGradientColor({65535, 0, 0}, 0), CGradientColor({0, 0, 65535}, 1)};
    return SharedResourcePtr<CGradient>(new CGradient(record));
}

/// A plain rectangle on the left, one with a radial gradient on the right.
void MakeDrawing() {
    AddRectangle({20, 20, 100, 110}, {});
    AddRectangle({20, 130, 100, 220}, RedToBlueFromTheMiddle());
}

/// The points of a gesture, "H,V" for a click and "H,V:H,V" and so on for a drag.
std::vector<TPoint<double>> ReadGesture(std::string const& text) {
    std::vector<TPoint<double>> path;
    for (std::size_t at = 0; at < text.size();) {
        double h = 0;
        double v = 0;
        int length = 0;
        if (std::sscanf(text.c_str() + at, "%lf,%lf%n", &h, &v, &length) != 2) {
            throw std::runtime_error("\"" + text + "\" is no gesture");
        }
        path.emplace_back(h, v);
        at += static_cast<std::size_t>(length) + 1;
    }
    return path;
}

void Play(std::string const& gesture) {
    std::vector<TPoint<double>> const path = ReadGesture(gesture);
    ToolClickProc const click = TheTool().methods.click;
    if (path.empty() || click == nullptr) {
        throw std::runtime_error("there is no gesture, or no tool to make it with");
    }
    EventRecord press;
    press.what = kMouseDown;
    TheMouse().Press(path);
    bool const handled = click(&TheWindowRef(), press, path.front());
    std::printf("%s: %s\n", gesture.c_str(), handled ? "handled" : "not handled");
}

void SavePicture(char const* file) {
    Picture picture(kWidth, kHeight);
    for (auto const& object : TheWindow().drawing->objects) {
        picture.Paint(*object);
    }
    picture.Save(file);
}

void Run(char const* module, char const* picture, std::vector<std::string> const& gestures) {
    MakeDrawing();
    {
        Plugin const plugin(module);
        std::printf("%s\n", TheTool().name.c_str());
        for (std::string const& gesture : gestures) {
            Play(gesture);
        }
    }
    // The module is gone by now; the gradients that it made are the drawing's.
    SavePicture(picture);
}

} // namespace

int main(int count, char** arguments) {
    if (count < 3) {
        std::fputs("Usage: minimal-host MODULE PICTURE.ppm [H,V | H,V:H,V ...]\n", stderr);
        return 2;
    }
    try {
        Run(arguments[1], arguments[2], {arguments + 3, arguments + count});
    } catch (std::exception const& error) {
        std::fprintf(stderr, "minimal-host: %s\n", error.what());
        return 1;
    }
    return 0;
}
