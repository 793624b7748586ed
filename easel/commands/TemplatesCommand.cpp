// The command line of `easel templates`.
#include "easel/commands/TemplatesCommand.h"

#include "easel/commands/Failure.h"
#include "easel/exchange/GradientFiles.h"
#include "easel/exchange/StarterTemplates.h"
#include "easel/exchange/SvgGradient.h"
#include "easel/exchange/TemplateShelf.h"
#include "easel/export/ExportDrawing.h"
#include "easel/runtime/PluginModule.h"
#include "easel/runtime/TemplateFolder.h"
#include "easel/svg/style/Color.h"
#include "easel/svg/text/Number.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <optional>

namespace easel::commands {

namespace {

namespace fs = std::filesystem;
using exchange::TemplateShelf;

struct TemplatesRequest {
    std::string preferences;
    std::string name;
    std::optional<std::string> newName;
    std::string file;
    std::string picture;
    std::vector<std::string> files;
};

void say(const std::string& subject, const std::vector<std::string>& notes) {
    for (const std::string& note : notes)
        std::cerr << "easel: " << subject << ": " << note << "\n";
}

// Runs an action on the user's templates; its result is the exit code.
template <class Action> int withShelf(const TemplatesRequest& request, Action action) {
    auto places = classic::StoragePlaces::ofUser();
    if (!request.preferences.empty())
        places.preferences = fs::absolute(request.preferences);
    const auto folder = runtime::templateFolder(runtime::PluginModule::defaultFile(), places);
    if (!folder)
        return fail(folder.error());
    return action(TemplateShelf(*folder, places.trash));
}

int list(const TemplateShelf& shelf) {
    for (const std::string& name : shelf.names())
        std::cout << name << "\n";
    return 0;
}

std::string pointText(const TPoint<double>& point) {
    return svg::numberText(point.h) + " " + svg::numberText(point.v);
}

void print(const std::string& name, const CGradientData& gradient) {
    std::cout << "name    " << exchange::withoutEnding(name) << "\n";
    if (gradient.Type() == kLinearGradient)
        std::cout << "kind    linear\nangle   " << svg::numberText(gradient.Angle()) << " degrees\n";
    else
        std::cout << "kind    radial\nstart   " << pointText(gradient.Start()) << "\nend     "
                  << pointText(gradient.End()) << "\n";
    for (const CGradientColor& stop : gradient.ColorList()) {
        const RGBColor color = stop.ColorRGB();
        std::cout << "stop    " << svg::numberText(stop.Percent() * 100) << " %  "
                  << svg::colorText({color.red, color.green, color.blue}) << "\n";
    }
}

int show(const TemplateShelf& shelf, const TemplatesRequest& request) {
    const auto gradient = shelf.load(request.name);
    if (!gradient)
        return fail(gradient.error());
    print(request.name, *gradient);
    if (request.picture.empty())
        return 0;
    constexpr double kPictureSize = 256;
    const auto drawing = exchange::squareWith(*gradient, kPictureSize);
    if (const auto exported = exports::exportDrawing(drawing, request.picture, {}); !exported)
        return fail(exported.error());
    return 0;
}

int exportTemplate(const TemplateShelf& shelf, const TemplatesRequest& request) {
    const auto gradient = shelf.load(request.name);
    if (!gradient)
        return fail(gradient.error());
    const auto notes =
        exchange::exportFile(*gradient, exchange::withoutEnding(request.name), request.file, shelf.trash());
    if (!notes)
        return fail(notes.error());
    say(request.file, *notes);
    return 0;
}

int importOne(const TemplateShelf& shelf, const std::string& file,
              const std::optional<std::string>& givenName) {
    const auto imported = exchange::importFile(file);
    if (!imported)
        return fail(imported.error());
    const std::string name = givenName.value_or(fs::path(file).stem().string());
    const auto saved = shelf.save(name, imported->gradient);
    if (!saved)
        return fail(saved.error());
    std::cout << file << ": saved as " << exchange::withoutEnding(name)
              << (*saved == TemplateShelf::Saved::Replaced
                      ? "; the template that had this name is in the trash\n"
                      : "\n");
    say(file, imported->notes);
    return 0;
}

// What can be imported is, whatever becomes of the rest.
int import(const TemplateShelf& shelf, const TemplatesRequest& request) {
    if (request.newName && request.files.size() > 1)
        return fail({*request.newName, "several files cannot have one name", {}});
    int exitCode = 0;
    for (const std::string& file : request.files)
        exitCode = std::max(exitCode, importOne(shelf, file, request.newName));
    return exitCode;
}

int addStarters(const TemplateShelf& shelf, const TemplatesRequest&) {
    const auto added = exchange::addStarterTemplates(shelf, exchange::starterTemplates());
    if (!added)
        return fail(added.error());
    for (const std::string& name : *added)
        std::cout << name << "\n";
    return 0;
}

int remove(const TemplateShelf& shelf, const TemplatesRequest& request) {
    if (const auto removed = shelf.remove(request.name); !removed)
        return fail(removed.error());
    return 0;
}

using Request = std::shared_ptr<TemplatesRequest>;

CLI::App* addAction(CLI::App& command, const std::string& name, const std::string& help,
                    const Request& request, int& exitCode,
                    int (*action)(const TemplateShelf&, const TemplatesRequest&)) {
    CLI::App* added = command.add_subcommand(name, help);
    added
        ->add_option("--prefs", request->preferences,
                     "The preferences folder (default: $XDG_CONFIG_HOME/kestrad, usually ~/.config/kestrad)")
        ->type_name("FOLDER");
    added->callback([request, &exitCode, action] {
        exitCode = withShelf(*request, [&](const TemplateShelf& shelf) { return action(shelf, *request); });
    });
    return added;
}

int listAction(const TemplateShelf& shelf, const TemplatesRequest&) {
    return list(shelf);
}

} // namespace

void addTemplatesCommand(CLI::App& app, int& exitCode) {
    CLI::App* command =
        app.add_subcommand("templates", "List, show, export, import and delete gradient templates");
    command->require_subcommand(1);
    const Request request = std::make_shared<TemplatesRequest>();

    addAction(*command, "list", "Print the names of the templates, a line each", request, exitCode,
              listAction);

    CLI::App* shown =
        addAction(*command, "show", "Print a template's kind, direction and stops", request, exitCode, show);
    shown->add_option("TEMPLATE", request->name, "The template, with or without .GRD")
        ->required()
        ->type_name("");
    shown
        ->add_option("--picture", request->picture,
                     "Write a picture of it too: a square in a .png, .pdf or .svg file")
        ->type_name("PICTURE");

    const std::string formats = std::string("its ending chooses the format: ") + exchange::kFormatsInWords;
    CLI::App* exported = addAction(*command, "export", "Write a template to a file for other programs",
                                   request, exitCode, exportTemplate);
    exported->add_option("TEMPLATE", request->name, "The template, with or without .GRD")
        ->required()
        ->type_name("");
    exported->add_option("FILE", request->file, "The file; " + formats)->required()->type_name("");
    exported->footer("What the format cannot hold is said in a line on standard error.");

    CLI::App* imported =
        addAction(*command, "import", "Make templates of gradients in files", request, exitCode, import);
    imported->add_option("FILE", request->files, "The files; " + formats)->required()->type_name("");
    imported
        ->add_option("--name", request->newName,
                     "The template's name (default: the file's, without its ending)")
        ->type_name("NAME");
    imported->footer(
        "A template that is replaced goes to the trash. What a template cannot hold is said in a line on "
        "standard error.");

    CLI::App* removed =
        addAction(*command, "delete", "Move a template to the trash", request, exitCode, remove);
    removed->add_option("TEMPLATE", request->name, "The template, with or without .GRD")
        ->required()
        ->type_name("");

    CLI::App* starters = addAction(*command, "starter", "Add the templates that come with the program",
                                   request, exitCode, addStarters);
    starters->footer(
        "Prints the names of those that were added. A template of yours that has the name of one of them "
        "stays as it is.");

    command->footer("Exit status: 0, or 2 with a message that names the file and the reason.");
}

} // namespace easel::commands
