// Reads the template's file each time, as it may have changed.
#include "easel/window/main/TemplateIcon.h"

#include "easel/classic/TemplateInfo.h"
#include "easel/exchange/TemplateShelf.h"
#include "easel/window/look/GradientIcon.h"

namespace easel::window {

QIcon templateIcon(const std::filesystem::path& folder, const std::string& name, double deviceScale) {
    if (folder.empty() || !name.ends_with(classic::kTemplateEnding))
        return {};
    const auto gradient = exchange::TemplateShelf(folder, {}).load(name);
    return gradient ? gradientIcon(*gradient, deviceScale) : QIcon();
}

} // namespace easel::window
