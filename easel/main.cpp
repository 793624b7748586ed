// The command line of Easel.
#include <CLI/CLI.hpp>

int main(int argc, char** argv) {
    CLI::App app{"Easel, a drawing application with a gradient tool"};
    app.set_version_flag("--version", "easel " EASEL_VERSION);
    CLI11_PARSE(app, argc, argv);
    return 0;
}
