// Writes troff: text is escaped, and no line of it begins like a request.
#include "easel/commands/ManualPages.h"

#include <algorithm>
#include <sstream>

namespace easel::commands {
namespace {

std::string escaped(const std::string& text) {
    std::string result;
    for (const char letter : text)
        if (letter == '\\')
            result += "\\e";
        else if (letter == '-')
            result += "\\-";
        else
            result += letter;
    const bool looksLikeRequest = !result.empty() && (result[0] == '.' || result[0] == '\'');
    return looksLikeRequest ? "\\&" + result : result;
}

std::string upperCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char letter) { return letter >= 'a' && letter <= 'z' ? char(letter - 32) : letter; });
    return text;
}

std::string bold(const std::string& text) {
    return "\\fB" + escaped(text) + "\\fR";
}

std::string italic(const std::string& text) {
    return "\\fI" + escaped(text) + "\\fR";
}

std::string namesOf(const OptionText& option) {
    std::string names;
    for (const std::string& name : option.names)
        names += (names.empty() ? "" : ", ") + bold(name);
    return option.value.empty() ? names : names + " " + italic(option.value);
}

void writeEntry(std::ostream& page, const std::string& what, const std::string& help) {
    page << ".TP\n" << what << "\n" << escaped(help) << ".\n";
}

void writeSynopsis(std::ostream& page, const CommandText& command) {
    page << bold(command.pathWith(" "));
    if (!command.options.empty())
        page << " [" << italic("OPTION") << "...]";
    for (const ArgumentText& argument : command.arguments) {
        const std::string name = italic(argument.name) + (argument.repeats ? "..." : "");
        page << " " << (argument.required ? name : "[" + name + "]");
    }
    page << "\n";
}

// Lines that are set in are shown as they stand. A line such as "Exit status: 0" begins a section of its own.
void writeFooter(std::ostream& page, const std::string& footer) {
    std::istringstream lines(footer);
    for (std::string line; std::getline(lines, line);) {
        const auto colon = line.find(':');
        const auto heading = line.substr(0, colon);
        const bool begins = colon != std::string::npos && line[0] != ' ' &&
                            std::count(heading.begin(), heading.end(), ' ') <= 1;
        if (begins) {
            page << ".SH " << upperCase(heading) << "\n";
            line.erase(0, std::min(line.find_first_not_of(' ', colon + 1), line.size()));
        }
        if (line.starts_with("  "))
            page << ".nf\n" << escaped(line) << "\n.fi\n";
        else if (!line.empty())
            page << (begins ? "" : ".PP\n") << escaped(line) << "\n";
    }
}

void writeArguments(std::ostream& page, const CommandText& command) {
    for (const ArgumentText& argument : command.arguments)
        writeEntry(page, italic(argument.name), argument.help);
    for (const OptionText& option : command.options)
        writeEntry(page, namesOf(option), option.help);
}

void writeCommands(std::ostream& page, const CommandText& command) {
    page << ".SH COMMANDS\n";
    for (const CommandText& below : command.commands) {
        page << ".SS " << escaped(below.name()) << "\n";
        writeSynopsis(page, below);
        page << ".PP\n" << escaped(below.summary) << ".\n";
        writeArguments(page, below);
        std::istringstream lines(below.footer);
        for (std::string line; std::getline(lines, line);)
            page << ".PP\n" << escaped(line) << "\n";
    }
}

void listCommands(std::ostream& page, const CommandText& program) {
    page << ".SH COMMANDS\n";
    for (const CommandText& command : program.commands)
        writeEntry(page, bold(command.name()), command.summary + "; see " + command.pathWith("-") + "(1)");
}

void writeSeeAlso(std::ostream& page, const CommandText& program, const CommandText& command) {
    page << ".SH SEE ALSO\n";
    std::string pages;
    const auto add = [&](const CommandText& other) {
        if (other.path != command.path)
            pages += (pages.empty() ? "" : ",\n") + (".BR " + escaped(other.pathWith("-")) + " (1)");
    };
    add(program);
    for (const CommandText& other : program.commands)
        add(other);
    page << pages << "\n";
}

} // namespace

std::string manualPage(const CommandText& program, const CommandText& command, const std::string& version) {
    std::ostringstream page;
    page << ".TH " << upperCase(escaped(command.pathWith("-"))) << " 1 \"\" \"Easel " << version
         << "\" \"User Commands\"\n.SH NAME\n"
         << escaped(command.pathWith("-")) << " \\- " << escaped(command.summary) << "\n.SH SYNOPSIS\n";
    writeSynopsis(page, command);
    const bool isProgram = command.path.size() == 1;
    if (!command.commands.empty())
        page << ".br\n" << bold(command.pathWith(" ")) << " " << italic("COMMAND") << " ...\n";
    page << ".SH OPTIONS\n";
    writeArguments(page, command);
    if (isProgram)
        listCommands(page, program);
    else if (!command.commands.empty())
        writeCommands(page, command);
    writeFooter(page, command.footer);
    writeSeeAlso(page, program, command);
    return page.str();
}

} // namespace easel::commands
