#include "easel/svg/read/Conditions.h"

#include "easel/svg/text/Scanner.h"

namespace easel::svg {

bool isForUser(pugi::xml_node element) {
    const pugi::xml_attribute extensions = element.attribute("requiredExtensions");
    if (extensions && !trimmed(extensions.value()).empty())
        return false;
    const pugi::xml_attribute languages = element.attribute("systemLanguage");
    if (!languages)
        return true;
    Scanner scanner(languages.value());
    while (!scanner.done()) {
        const std::string_view language = trimmed(scanner.until(','));
        if (equalIgnoringCase(language.substr(0, 2), "en") && (language.size() == 2 || language[2] == '-'))
            return true;
    }
    return false;
}

} // namespace easel::svg
