// A command line for tests of what is made of one: a program with two commands, one of which has commands of
// its own.
#pragma once

#include "easel/commands/CommandText.h"

namespace tests {

inline easel::commands::CommandText sampleProgram() {
    using easel::commands::CommandText;
    CommandText render;
    render.path = {"easel", "render"};
    render.summary = "Write a picture";
    render.options = {{{"-w", "--width"}, "NUMBER", "How wide it is"},
                      {{"--plain"}, "", "Without [extras]: it's short"}};
    render.arguments = {{"DRAWING", "What to draw", true, false}, {"PICTURE", "Where to", true, false}};
    CommandText list;
    list.path = {"easel", "templates", "list"};
    list.summary = "Print names";
    CommandText show;
    show.path = {"easel", "templates", "show"};
    show.summary = "Print one";
    show.footer = "Colors are hexadecimal.\nA second line.";
    show.options = {{{"--to"}, "FOLDER", "Write it there"}};
    show.arguments = {{"TEMPLATE", "Which one", true, false}};
    CommandText templates;
    templates.path = {"easel", "templates"};
    templates.summary = "Keep templates";
    templates.commands = {list, show};
    CommandText program;
    program.path = {"easel"};
    program.summary = "A drawing program";
    program.options = {{{"--help"}, "", "Print this"}};
    program.arguments = {{"FILE", "What to open", false, true}};
    program.commands = {render, templates};
    return program;
}

} // namespace tests
