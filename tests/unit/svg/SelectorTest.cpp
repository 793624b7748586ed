// Selectors, on a row of elements that a test makes up.
#include "easel/svg/style/CssSelector.h"

#include <gtest/gtest.h>

#include <map>

using namespace easel::svg;

namespace {

struct Element {
    std::string name;
    std::map<std::string, std::string> attributes;
};

// The second of the root's children is an element of this name with these attributes; the root is called
// "svg", and the children around are called "g" and have the class "side".
class SecondChild : public SelectorSubject {
  public:
    explicit SecondChild(Element element, std::size_t position = 2)
        : element_(std::move(element)), position_(position) {}

    std::string_view elementName() const override { return element_.name; }
    const char* attribute(const std::string& name) const override {
        const auto found = element_.attributes.find(name);
        return found == element_.attributes.end() ? nullptr : found->second.c_str();
    }
    std::unique_ptr<SelectorSubject> parent() const override {
        return position_ == 0 ? nullptr : std::make_unique<SecondChild>(Element{"svg", {}}, 0);
    }
    std::unique_ptr<SelectorSubject> previous() const override {
        return position_ == 2 ? std::make_unique<SecondChild>(Element{"g", {{"class", "side"}}}, 1) : nullptr;
    }
    std::size_t position() const override { return position_ == 0 ? 1 : position_; }
    bool isLast() const override { return position_ == 0; }

  private:
    Element element_;
    std::size_t position_;
};

bool fits(const std::string& selector) {
    const auto parsed = parseSelector(selector);
    EXPECT_TRUE(parsed) << selector;
    return parsed && parsed->matches(SecondChild({"rect",
                                                  {{"id", "r"},
                                                   {"class", " big red"},
                                                   {"lang", "de-CH"},
                                                   {"xlink:href", "#up"},
                                                   {"empty", ""}}}));
}

std::uint32_t strength(const std::string& selector) {
    return parseSelector(selector).value().specificity();
}

TEST(Selector, AsksForNamesIdsClassesAndAttributes) {
    for (const char* selector :
         {"rect", "*", "#r", ".big", ".red.big", "rect#r.red", "[id]", "[id=r]", "[ id = 'r' ]",
          "[class~=red]", "[lang|=de]", "[lang|='de-CH']", "[lang^=de]", "[lang$=CH]", "[lang*=-]",
          "[xlink|href]", "[xlink|href='#up']", "[empty='']", "[id=\"r\"]"})
        EXPECT_TRUE(fits(selector)) << selector;
    for (const char* selector : {"circle", "#q", ".re", ".big.blue", "[none]", "[id=s]", "[class~=re]",
                                 "[class~='big red']", "[lang|=d]", "[lang^=CH]", "[lang$=de]", "[lang*=x]",
                                 "[lang^='']", "[lang$='']", "[lang*='']", "[class|=big]", "[id='r]"})
        EXPECT_FALSE(fits(selector)) << selector;
}

TEST(Selector, AsksWhereTheElementStands) {
    for (const char* selector :
         {":nth-child(2)", ":nth-child(even)", ":nth-child(n)", ":nth-child(+n+2)", ":nth-child(-n+2)",
          ":nth-child(2n)", ":nth-child(3n - 1)", ":NTH-CHILD( 2N + 0 )", ":nth-child(5n+2)", "svg > rect",
          "svg rect", "g + rect", ".side ~ rect", ":root > rect", ":first-child + rect", ":not(g)",
          ":not(:root, .blue)", "* > * + *"})
        EXPECT_TRUE(fits(selector)) << selector;
    for (const char* selector :
         {":nth-child(1)", ":nth-child(odd)", ":nth-child(n+3)", ":nth-child(-n+1)", ":nth-child(3n)",
          ":first-child", ":last-child", ":root", "g > rect", "rect rect", "svg + rect", "rect + rect",
          "circle ~ rect", ":not(rect)", ":not(g, .red)", "svg svg rect"})
        EXPECT_FALSE(fits(selector)) << selector;
}

TEST(Selector, OfOtherKindsAreNone) {
    for (const char* selector : {"",
                                 ".",
                                 "#",
                                 "rect.",
                                 "rect#",
                                 "[",
                                 "[=a]",
                                 "[a!b]",
                                 "[a~b]",
                                 "rect:hover",
                                 ":nth-child(x)",
                                 ":nth-child(1.5)",
                                 ":nth-child(2 3)",
                                 ":nth-child(2.5n)",
                                 ":nth-child(2 3n)",
                                 ":nth-child(n 3)",
                                 ":nth-child(n+)",
                                 ":nth-child(n+1.5)",
                                 ":nth-child(n+1 2)",
                                 ":nth-child(9999999)",
                                 ":nth-child",
                                 ":not(",
                                 ":not()",
                                 ":not(a b)",
                                 ":not(a, :not(b))",
                                 ":not",
                                 "a >",
                                 "> a",
                                 "a::before",
                                 "a,b"})
        EXPECT_FALSE(parseSelector(selector)) << selector;
    std::string longest;
    for (int i = 0; i < 100; ++i)
        longest += "a ";
    EXPECT_TRUE(parseSelector(longest));
    EXPECT_FALSE(parseSelector(longest + "a"));
}

TEST(Selector, IdsAreStrongerThanClassesAndClassesThanNames) {
    EXPECT_GT(strength("#a"), strength(".a.b.c[d]:first-child"));
    EXPECT_GT(strength(".a"), strength("a b c d e"));
    EXPECT_EQ(strength("[a]"), strength(".a"));
    EXPECT_EQ(strength(":root"), strength(".a"));
    EXPECT_EQ(strength(":last-child"), strength(".a"));
    EXPECT_EQ(strength(":nth-child(2)"), strength(".a"));
    EXPECT_EQ(strength("*"), 0U);
    EXPECT_EQ(strength(":not(.a)"), strength(".a")) << "what is excluded counts as itself";
}

} // namespace
