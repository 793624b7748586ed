// Scenarios: any text is cut into steps, and what it says about objects and gradients is refused or can be
// drawn.
#include "easel/drawing/Drawing.h"
#include "easel/drawing/GradientFit.h"
#include "easel/play/Command.h"
#include "easel/play/NewObject.h"
#include "easel/play/PlayError.h"
#include "easel/play/Steps.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace drawing = easel::drawing;
namespace play = easel::play;

namespace {

// Objects of a scenario, with the last gradient it named.
struct Scene {
    drawing::Drawing drawing = drawing::Drawing::create(200, 200);
    CGradientData gradient;
};

void playInScene(Scene& scene, const play::Step& step) {
    play::Arguments arguments({step.words.begin() + 1, step.words.end()});
    if (step.words[0] == "gradient") {
        arguments.text("ID");
        scene.gradient = play::gradientRecord(arguments);
    } else if (step.words[0] == "add") {
        const drawing::ObjectPtr object = sealed(play::newObject(arguments));
        static_cast<void>(drawing::fitGradient(scene.gradient, nullptr, object->outline));
        scene.drawing.insert(scene.drawing.size(), object);
        if (scene.drawing.indexOfId(object->id.text()) == std::nullopt)
            std::abort();
    } else if (step.words[0] == "press") {
        static_cast<void>(scene.drawing.pick(arguments.point(), 3, drawing::KindSet::all()));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string script(reinterpret_cast<const char*>(data), size);
    const auto lines = static_cast<std::size_t>(std::count(script.begin(), script.end(), '\n')) + 1;
    Scene scene;
    play::Steps steps(script);
    std::size_t last = 1;
    while (const auto step = steps.next()) {
        if (step->words.empty() || step->line < last || step->line > lines)
            std::abort();
        last = step->line;
        try {
            playInScene(scene, *step);
        } catch (const play::PlayError& error) {
            steps.fail(step->line, error.what());
        }
    }
    return 0;
}
