// The command line of `easel render`.
#include "easel/commands/RenderCommand.h"

#include "easel/commands/Failure.h"
#include "easel/export/ExportDrawing.h"
#include "easel/svg/Document.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace easel::commands {

namespace {

struct RenderRequest {
    std::string drawing;
    std::string picture;
    exports::SizeRequest size;
};

int render(const RenderRequest& request) {
    const auto drawing = svg::readFile(request.drawing);
    if (!drawing)
        return fail(drawing.error());
    for (const std::string& note : drawing->notes())
        std::cerr << "easel: " << request.drawing << ": " << note << "\n";
    if (const auto exported = exports::exportDrawing(*drawing, request.picture, request.size); !exported)
        return fail(exported.error());
    return 0;
}

} // namespace

void addRenderCommand(CLI::App& app, int& exitCode) {
    CLI::App* command =
        app.add_subcommand("render", "Write a drawing as a PNG, PDF or SVG picture, without a display");
    const auto request = std::make_shared<RenderRequest>();
    command->add_option("DRAWING", request->drawing, "The drawing, an SVG file")->required()->type_name("");
    command
        ->add_option(
            "PICTURE", request->picture,
            "The picture; its ending, .png, .pdf or .svg, chooses the format. A PNG has a transparent "
            "background; PDF and SVG keep outlines, text and gradients as such. A file of that name is "
            "replaced")
        ->required()
        ->type_name("");
    CLI::Option* const width =
        command
            ->add_option(
                "--width", request->size.width,
                "Make the picture so many pixels wide, its height following (in a PDF, 96 to the inch)")
            ->type_name("PIXELS");
    command
        ->add_option("--scale", request->size.scale,
                     "Make the picture so many times the drawing's size (default 1: a pixel for each unit)")
        ->type_name("FACTOR")
        ->excludes(width);
    command
        ->add_option("--filter-dpi", request->size.dotsPerInch,
                     "In a PDF or SVG, the dots to an inch of what filters show (default 300)")
        ->check(CLI::Range(1, 2400));
    command->footer("Examples:\n"
                    "  easel render flower.svg flower.png --width 1920\n"
                    "  easel render flower.svg flower.pdf\n"
                    "Exit status: 0, or 2 with a message that names the file and the reason.");
    command->callback([request, &exitCode] { exitCode = render(*request); });
}

} // namespace easel::commands
