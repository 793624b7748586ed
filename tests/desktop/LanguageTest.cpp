// The window in the user's language, and numbers in the user's way of writing.
#include "tests/desktop/DesktopTest.h"

#include <gmock/gmock.h>

#include <fstream>

namespace desktop {
namespace {

using testing::HasSubstr;

// No such locale has to be installed: the window goes by the names alone.
std::map<std::string, std::string> speaking(const std::string& language) {
    return {{"LC_ALL", language + ".UTF-8"}, {"LANGUAGE", ""}};
}

class LanguageTest : public DesktopTest {
  protected:
    Window openEditorCalled(const std::string& title) {
        screen().moveTo(onScreen(160, 290));
        screen().keyDown("Control_L");
        screen().click(onScreen(160, 290));
        screen().keyUp("Control_L");
        return waitForDialog(title);
    }
    bool positionBecomes(const std::string& text) {
        return eventually([&] { return positionField() == text; }, 5s);
    }
};

TEST_F(LanguageTest, TheEditorOfAGermanUserIsGermanAndACommaIsItsDecimalSign) {
    startWithDrawing(speaking("de_DE"));
    const Window editor = openEditorCalled("Verlauf von \u201egrad\u201c");
    screen().click(onRamp(editor, 0.5));
    EXPECT_TRUE(positionBecomes("50,00"));
    screen().type("12,5");
    EXPECT_TRUE(eventually([&] {
        screen().key("ctrl+a");
        return positionField() == "12,5";
    }));
    screen().key("Return");
    EXPECT_TRUE(vanishes("Verlauf"));
    EXPECT_THAT(saved(), HasSubstr("0.125"));
}

TEST_F(LanguageTest, APointIsADecimalSignWhereAMeasureIsWrittenWithAComma) {
    startWithDrawing(speaking("fr_FR"));
    const Window editor = openEditorCalled("D\u00e9grad\u00e9 de \u00ab\u00a0grad\u00a0\u00bb");
    screen().click(onRamp(editor, 0.5));
    EXPECT_TRUE(positionBecomes("50,00"));
    screen().type("12.5");
    EXPECT_TRUE(eventually([&] {
        screen().key("ctrl+a");
        return positionField() == "12,5";
    }));
    screen().key("Return");
    EXPECT_TRUE(vanishes("D\u00e9grad\u00e9"));
    EXPECT_THAT(saved(), HasSubstr("0.125"));
}

TEST_F(LanguageTest, AnAngleTypedWithEitherSignIsTheSame) {
    startWithDrawing(speaking("de_DE"));
    getsKeyboard("drawing.svg");
    screen().key("ctrl+a");
    const auto typeAngle = [&](const std::string& typed) {
        getsKeyboard("drawing.svg");
        screen().key("ctrl+shift+a");
        waitForDialog("Winkel");
        screen().type(typed);
        screen().key("Return");
        EXPECT_TRUE(vanishes("Winkel")) << typed;
        return saved();
    };
    EXPECT_THAT(typeAngle("22,5"), HasSubstr("22.5 "));
    EXPECT_THAT(typeAngle("67.5"), HasSubstr("67.5 "));
}

TEST_F(LanguageTest, AGermanUserReadsInGermanWhyNoTemplateIsKept) {
    const std::filesystem::path templates = configuration() / "kestrad" / "Gradient Templates";
    std::ofstream(templates) << "in the folder's place";
    start({}, speaking("de_DE"));
    EXPECT_EQ(messageOf(waitForDialog("Easel")),
              templates.string() +
                  ": kein Ordner. Der aktuelle Verlauf und Vorlagen werden nicht aufbewahrt.");
}

TEST_F(LanguageTest, AReasonWithANumberInItIsTranslatedAroundTheNumber) {
    writeDrawing();
    std::ofstream(drawing()) << "<svg xmlns='http://www.w3.org/2000/svg'>\n</g>\n</svg>\n";
    start({drawing().string()}, speaking("fr_FR"));
    EXPECT_EQ(messageOf(waitForDialog("Easel")),
              drawing().string() + ": ce n\u2019est pas du XML bien form\u00e9 (ligne 2)");
}

TEST_F(LanguageTest, WhoeverPrefersEnglishGetsItBeforeWhatComesAfter) {
    startWithDrawing({{"LC_ALL", "en_GB.UTF-8"}, {"LANGUAGE", "en_GB:de"}});
    openEditorCalled("Gradient of \u201cgrad\u201d");
    EXPECT_TRUE(positionBecomes("0.00"));
}

} // namespace
} // namespace desktop
