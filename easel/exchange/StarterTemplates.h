// The templates that come with the program, for a user who has none.
#pragma once

#include "easel/exchange/TemplateShelf.h"

#include <string>
#include <vector>

namespace easel::exchange {

// Puts them among the user's templates, as templates like any other. One whose name the user has given to a
// template is left out. Gives the names of those that were added; ends with the first error, with what was
// added until then in its place. `folder` holds a CSS gradient for each.
files::Result<std::vector<std::string>> addStarterTemplates(const TemplateShelf& shelf,
                                                            const std::filesystem::path& folder);

// Where the program keeps them.
std::filesystem::path starterTemplates();

} // namespace easel::exchange
