// Reads the definitions of CLI11.
#include "easel/commands/CommandText.h"

#include <CLI/CLI.hpp>

namespace easel::commands {
namespace {

OptionText optionText(const CLI::Option& option) {
    OptionText text;
    for (const std::string& name : option.get_snames())
        text.names.push_back("-" + name);
    for (const std::string& name : option.get_lnames())
        text.names.push_back("--" + name);
    if (option.get_items_expected_max() > 0)
        text.value = option.get_type_name();
    text.help = option.get_description();
    return text;
}

ArgumentText argumentText(const CLI::Option& option) {
    return {option.get_name(true), option.get_description(), option.get_required(),
            option.get_expected_max() > 1};
}

} // namespace

std::string CommandText::pathWith(const std::string& separator) const {
    return CLI::detail::join(path, separator);
}

CommandText describe(const CLI::App& app, const std::vector<std::string>& parents) {
    CommandText text;
    text.path = parents;
    text.path.push_back(app.get_name());
    text.summary = app.get_description();
    text.footer = app.get_footer();
    for (const CLI::Option* option : app.get_options())
        if (option->get_positional())
            text.arguments.push_back(argumentText(*option));
        else if (!option->get_group().empty())
            text.options.push_back(optionText(*option));
    const auto shown = [](const CLI::App* command) { return !command->get_group().empty(); };
    for (const CLI::App* command : app.get_subcommands(shown))
        text.commands.push_back(describe(*command, text.path));
    return text;
}

} // namespace easel::commands
