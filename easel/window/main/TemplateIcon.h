// A small picture of a template.
#pragma once

#include <QIcon>

#include <filesystem>
#include <string>

namespace easel::window {

// Of the template of that name (UTF-8, with the ending of its file) in the folder; null if there is none that
// can be read.
QIcon templateIcon(const std::filesystem::path& folder, const std::string& name, double deviceScale);

} // namespace easel::window
