// A function of zsh for each command.
#include "easel/commands/Completions.h"

#include <map>
#include <sstream>

namespace easel::commands {
namespace {

constexpr const char* kTemplates = R"sh(
_easel_template_names() {
    local -a names=(${(f)"$(easel templates list 2>/dev/null)"})
    compadd -a names
}
)sh";

// In single quotes, within which colons and brackets are the completion system's own.
std::string quoted(const std::string& text) {
    std::string result;
    for (const char letter : text)
        if (letter == '\'')
            result += "'\\''";
        else if (letter == ':' || letter == '[' || letter == ']' || letter == '\\')
            result += {'\\', letter};
        else
            result += letter;
    return result;
}

std::string actionFor(const std::string& value) {
    static const std::map<std::string, std::string> kActions = {
        {"DRAWING", "_files -g \"*.(svg|svgz|SVG|SVGZ)(-.)\""},
        {"PICTURE", "_files -g \"*.(png|pdf|svg|PNG|PDF|SVG)(-.)\""},
        {"FILE", "_files"},
        {"SCRIPT", "_files"},
        {"MODULE", "_files"},
        {"FOLDER", "_files -/"},
        {"TEMPLATE", "_easel_template_names"},
    };
    const auto found = kActions.find(value);
    return found == kActions.end() ? " " : found->second;
}

void writeSpecs(std::ostream& out, const CommandText& command) {
    out << "    _arguments -s";
    for (const OptionText& option : command.options)
        for (const std::string& name : option.names)
            out << " \\\n        '" << name << "[" << quoted(option.help) << "]"
                << (option.value.empty() ? "" : ":" + option.value + ":" + actionFor(option.value)) << "'";
    for (const ArgumentText& argument : command.arguments)
        out << " \\\n        '" << (argument.repeats ? "*:" : ":") << argument.name << ":"
            << actionFor(argument.name) << "'";
    out << "\n";
}

// The first word may be a command; once it is one, what follows is that command's own.
void writeChoice(std::ostream& out, const CommandText& command, const std::string& function) {
    out << "    local -a commands=(";
    for (const CommandText& below : command.commands)
        out << "\n        '" << below.name() << ":" << quoted(below.summary) << "'";
    out << ")\n    local next=" << function << "_$words[2]\n"
        << "    if (( CURRENT > 2 && $+functions[$next] )); then\n"
        << "        shift words\n        (( CURRENT-- ))\n        $next\n        return\n    fi\n"
        << "    (( CURRENT > 2 )) || _describe command commands\n";
}

void writeFunctions(std::ostream& out, const CommandText& command) {
    const std::string function = "_" + command.pathWith("_");
    out << "\n" << function << "() {\n";
    if (!command.commands.empty())
        writeChoice(out, command, function);
    writeSpecs(out, command);
    out << "}\n";
    for (const CommandText& below : command.commands)
        writeFunctions(out, below);
}

} // namespace

std::string zshCompletion(const CommandText& program) {
    std::ostringstream out;
    out << "#compdef easel\n# Completion of easel's command line for zsh, made by easel itself.\n"
        << kTemplates;
    writeFunctions(out, program);
    out << "\n_easel \"$@\"\n";
    return out.str();
}

} // namespace easel::commands
