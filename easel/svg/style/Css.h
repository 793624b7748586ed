// Style sheets, and the declarations of style attributes.
#pragma once

#include "easel/svg/style/CssSelector.h"
#include "easel/svg/style/MediaQuery.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace easel::svg {

enum class Importance : std::uint8_t { Normal, Important };

// "name: value". Both point into the text they were read from.
struct Declaration {
    std::string_view name;
    std::string_view value;
    Importance importance = Importance::Normal;
};

// The text without comments and the marks that hide a sheet from very old programs.
std::string withoutComments(std::string_view text);

// "name: value; name: value"
std::vector<Declaration> parseDeclarations(std::string_view text);

class StyleSheet {
  public:
    // Adds the rules of a sheet, which are stronger than equal ones added before. Rules with selectors of
    // other kinds are passed over, and so are at-rules but @media and @font-face.
    void add(const std::string& text, const MediaSize& media);

    bool empty() const { return rules_.empty(); }
    // What each rule @font-face says, in their order.
    const std::vector<std::vector<Declaration>>& fontFaces() const { return fontFaces_; }
    // Declarations of all rules that match, weakest first.
    std::vector<Declaration> declarationsFor(const SelectorSubject& subject) const;

  private:
    struct Rule {
        Selector selector;
        std::shared_ptr<const std::vector<Declaration>> declarations;
    };
    using Bucket = std::unordered_map<std::string, std::vector<std::size_t>>;

    void addRules(std::string_view text, const MediaSize& media, int depth);
    void addRules(std::string_view selectors, std::string_view block);
    void addRule(Selector selector, std::shared_ptr<const std::vector<Declaration>> declarations);

    std::vector<std::unique_ptr<const std::string>> texts_; // what the declarations point into
    std::vector<Rule> rules_;
    std::vector<std::vector<Declaration>> fontFaces_;
    // Rules by what their last compound asks first, so that an element looks at few of them.
    Bucket byId_, byClass_, byElement_;
    std::vector<std::size_t> others_;
};

} // namespace easel::svg
