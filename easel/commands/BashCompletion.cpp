// A table of the commands for bash, and the few lines that look things up in it.
#include "easel/commands/Completions.h"

#include <sstream>

namespace easel::commands {
namespace {

// What can stand in the place of a value. The names are those that --help shows.
constexpr const char* kValues = R"sh(
_easel_complete_value() { # what is expected, the word so far
    local IFS=$'\n'
    case $1 in
        DRAWING) COMPREPLY+=($(compgen -f -X '!*.@(svg|svgz|SVG|SVGZ)' -- "$2") $(compgen -d -- "$2")) ;;
        PICTURE) COMPREPLY+=($(compgen -f -X '!*.@(png|pdf|svg|PNG|PDF|SVG)' -- "$2") $(compgen -d -- "$2")) ;;
        FILE | SCRIPT | MODULE) COMPREPLY+=($(compgen -f -- "$2")) ;;
        FOLDER) COMPREPLY+=($(compgen -d -- "$2")) ;;
        TEMPLATE) COMPREPLY+=($(compgen -W "$(easel templates list 2>/dev/null | sed 's/[\\ '"'"'"]/\\&/g')" -- "$2")) ;;
    esac
}
)sh";

constexpr const char* kEngine = R"sh(
_easel() {
    COMPREPLY=()
    local extglob=$(shopt -p extglob) word=${COMP_WORDS[COMP_CWORD]} path= place=0 value= at next
    shopt -s extglob
    for ((at = 1; at < COMP_CWORD; ++at)); do
        next=${COMP_WORDS[at]}
        if [ -n "$value" ]; then
            value=
        elif [[ $next == -* ]]; then
            value=$(_easel_option "$path" "$next")
        elif [ $place = 0 ] && _easel_commands "$path" | grep -qxF -e "$next"; then
            path+=" $next"
        else
            place=$((place + 1))
        fi
    done
    if [ -n "$value" ]; then
        _easel_complete_value "$value" "$word"
    elif [[ $word == -* ]]; then
        COMPREPLY=($(compgen -W "$(_easel_options "$path")" -- "$word"))
    else
        [ $place != 0 ] || COMPREPLY=($(compgen -W "$(_easel_commands "$path")" -- "$word"))
        _easel_complete_value "$(_easel_argument "$path" $place)" "$word"
    fi
    eval "$extglob"
}
complete -o filenames -F _easel easel
)sh";

// The commands below the program, by their names alone.
std::string keyOf(const CommandText& command) {
    std::string key;
    for (std::size_t i = 1; i < command.path.size(); ++i)
        key += " " + command.path[i];
    return key;
}

template <class Row> void writeRows(std::ostream& out, const CommandText& command, Row row) {
    row(out, command, keyOf(command));
    for (const CommandText& below : command.commands)
        writeRows(out, below, row);
}

template <class Row>
void writeTable(std::ostream& out, const CommandText& program, const std::string& name,
                const std::string& subject, Row row) {
    out << name << "() {\n    case " << subject << " in\n";
    writeRows(out, program, row);
    out << "    esac\n}\n";
}

void commandsRow(std::ostream& out, const CommandText& command, const std::string& key) {
    if (command.commands.empty())
        return;
    out << "        '" << key << "') printf '%s\\n'";
    for (const CommandText& below : command.commands)
        out << " " << below.name();
    out << " ;;\n";
}

void optionsRow(std::ostream& out, const CommandText& command, const std::string& key) {
    out << "        '" << key << "') printf '%s\\n'";
    for (const OptionText& option : command.options)
        for (const std::string& name : option.names)
            out << " " << name;
    out << " ;;\n";
}

void valueRows(std::ostream& out, const CommandText& command, const std::string& key) {
    for (const OptionText& option : command.options)
        for (const std::string& name : option.names)
            if (!option.value.empty())
                out << "        '" << key << " " << name << "') echo " << option.value << " ;;\n";
}

void argumentRows(std::ostream& out, const CommandText& command, const std::string& key) {
    for (std::size_t i = 0; i < command.arguments.size(); ++i)
        out << "        '" << key << ":'"
            << (command.arguments[i].repeats ? std::string("*") : std::to_string(i)) << ") echo "
            << command.arguments[i].name << " ;;\n";
}

} // namespace

std::string bashCompletion(const CommandText& program) {
    std::ostringstream out;
    out << "# Completion of easel's command line for bash, made by easel itself.\n";
    writeTable(out, program, "_easel_commands", "$1", commandsRow);
    writeTable(out, program, "_easel_options", "$1", optionsRow);
    writeTable(out, program, "_easel_option", "\"$1 $2\"", valueRows);
    writeTable(out, program, "_easel_argument", "\"$1:$2\"", argumentRows);
    out << kValues << kEngine;
    return out.str();
}

} // namespace easel::commands
