#include "easel/svg/read/FontFaceElement.h"

#include <string>
#include <utility>

namespace easel::svg {

namespace {

std::vector<FontSource> sourcesIn(const XmlTree& tree, pugi::xml_node face) {
    std::vector<FontSource> sources;
    for (const pugi::xml_node list : face.children()) {
        if (tree.svgName(list) != "font-face-src")
            continue;
        for (const pugi::xml_node each : list.children()) {
            if (tree.svgName(each) == "font-face-uri")
                sources.push_back({FontSource::Kind::Reference, std::string(hrefOf(each))});
            else if (tree.svgName(each) == "font-face-name")
                sources.push_back({FontSource::Kind::System, each.attribute("name").value()});
        }
    }
    return sources;
}

} // namespace

std::vector<FontFace> readFontFaces(const XmlTree& tree) {
    std::vector<FontFace> faces;
    for (pugi::xml_node element = tree.root(); element; element = nextInside(tree.root(), element)) {
        if (tree.svgName(element) != "font-face" || tree.svgName(element.parent()) == "font")
            continue;
        // The attributes are called like what the rule says, and have the same values.
        std::vector<Declaration> descriptors;
        for (const pugi::xml_attribute attribute : element.attributes())
            descriptors.push_back({attribute.name(), attribute.value()});
        if (auto face = parseFontFace(descriptors, sourcesIn(tree, element)))
            faces.push_back(*std::move(face));
    }
    return faces;
}

} // namespace easel::svg
