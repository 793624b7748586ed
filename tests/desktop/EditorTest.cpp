// The gradient editor as a dialog of the desktop, worked with mouse and keyboard.
#include "tests/desktop/DesktopTest.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <thread>

namespace desktop {
namespace {

using testing::HasSubstr;

std::size_t stopsIn(const std::string& svg) {
    std::size_t count = 0;
    for (std::size_t at = svg.find("<stop"); at != std::string::npos; at = svg.find("<stop", at + 1))
        ++count;
    return count;
}

class EditorTest : public DesktopTest {
  protected:
    // The middle of the ramp, where the test's gradient has no stop.
    void addStopInTheMiddle(const Window& editor) { screen().click(onRamp(editor, 0.5)); }
    bool positionBecomes(const std::string& text) {
        return eventually([&] { return positionField() == text; }, 5s);
    }
};

TEST_F(EditorTest, OptionClickAddDragTypeAndOkChangeTheShapeAndOneUndoBringsItBack) {
    startWithDrawing();
    const std::string before = contents(drawing());
    const Window editor = openEditor(160, 290);
    addStopInTheMiddle(editor);
    EXPECT_TRUE(positionBecomes("50.00"));
    screen().drag({onRamp(editor, 0.5), onRamp(editor, 0.75)});
    EXPECT_TRUE(positionBecomes("75.00"));
    screen().type("25");
    screen().key("Return");
    EXPECT_TRUE(vanishes("Gradient"));
    const std::string after = saved();
    EXPECT_EQ(stopsIn(after), stopsIn(before) + 3) << "a new gradient of three stops";
    EXPECT_THAT(after, HasSubstr("0.25"));
    screen().key("ctrl+z");
    EXPECT_EQ(saved(), before) << "one undo";
}

TEST_F(EditorTest, AStopPulledOffTheRampComesBackWithTheMouse) {
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    const Spot place = onRamp(editor, 0.6);
    const std::uint32_t without = screen().picture().at(place);
    // The colors on the way are none that could be waited for.
    const auto stopIsHere = [&] { return screen().picture().at(place) != without; };
    addStopInTheMiddle(editor);
    EXPECT_TRUE(positionBecomes("50.00"));
    screen().moveTo(onRamp(editor, 0.5));
    screen().press();
    screen().glideTo(place);
    EXPECT_TRUE(eventually(stopIsHere));
    screen().glideTo(place + Spot{0, 60});
    EXPECT_TRUE(eventually([&] { return !stopIsHere(); })) << "the stop is off";
    screen().glideTo(place);
    EXPECT_TRUE(eventually(stopIsHere)) << "the stop is back";
    screen().release();
    EXPECT_TRUE(positionBecomes("60.00"));
    closeEditorWith("Escape");
    EXPECT_EQ(quit(), 0);
}

TEST_F(EditorTest, CancelChangesNothing) {
    startWithDrawing();
    const std::string before = contents(drawing());
    const Window editor = openEditor(160, 290);
    addStopInTheMiddle(editor);
    EXPECT_TRUE(positionBecomes("50.00"));
    screen().click(in(editor, EditorItems::radial));
    screen().click(in(editor, EditorItems::cancel));
    EXPECT_TRUE(vanishes("Gradient"));
    EXPECT_EQ(quit(), 0) << "nothing unsaved";
    EXPECT_EQ(contents(drawing()), before);
}

TEST_F(EditorTest, ItsButtonsAreInTheOrderOfTheDesktop) {
    startWithDrawing({{"QT_QPA_PLATFORMTHEME", "gnome"}});
    const Window editor = openEditor(160, 290);
    addStopInTheMiddle(editor);
    EXPECT_TRUE(positionBecomes("50.00"));
    // On that desktop the button that accepts comes last, and elsewhere first.
    screen().click(in(editor, EditorItems::ok));
    EXPECT_TRUE(vanishes("Gradient"));
    EXPECT_EQ(quit(), 0) << "nothing unsaved";
}

TEST_F(EditorTest, TheKindIsSwitchedAndTheCentreMovedInThePreview) {
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    screen().click(in(editor, EditorItems::radial));
    const Area& preview = EditorItems::preview;
    screen().drag({in(editor, preview.middle()), in(editor, {preview.left + 100, preview.top + 44})});
    screen().key("Return");
    EXPECT_TRUE(vanishes("Gradient"));
    EXPECT_THAT(saved(), HasSubstr("<radialGradient"));
    // The centre is at a quarter of the width and of the height: there the shape has the first stop's color.
    EXPECT_TRUE(eventually([&] {
        const Picture shown = screen().picture();
        return shown.at(onScreen(110, 255)) >> 16 < 0x40 && shown.at(onScreen(255, 355)) >> 16 > 0xa0;
    }));
}

TEST_F(EditorTest, ALineDraggedInThePreviewTurnsTheGradientAndLeavesNoTraceThere) {
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    const Area& preview = EditorItems::preview;
    const Spot middle = in(editor, preview.middle());
    screen().drag({middle + Spot{0, -60}, middle + Spot{0, 60}});
    EXPECT_TRUE(eventually([&] {
        const Picture shown = screen().picture();
        const std::uint32_t top = shown.at(in(editor, {preview.middle().x, preview.top + 4}));
        const std::uint32_t bottom = shown.at(in(editor, {preview.middle().x, preview.bottom - 5}));
        return (top >> 16) < 0x40 && (bottom >> 16) > 0xd0;
    }));
    const Picture shown = screen().picture();
    for (int v = preview.top + 2; v < preview.bottom - 2; ++v)
        ASSERT_EQ(shown.at(in(editor, {preview.middle().x, v})), shown.at(in(editor, {preview.left + 20, v})))
            << v;
    closeEditorWith("Escape");
}

TEST_F(EditorTest, AColorTypedInThePickerIsTheStopsToTheLastBit) {
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    screen().click(in(editor, EditorItems::swatch));
    waitForDialog("Color of the gradient stop");
    // The three fields for 16 bits follow the one for the color's name.
    for (const char* key : {"alt+h", "Tab", "Tab", "Tab"})
        screen().key(key);
    screen().type("12345");
    // A channel given with 8 bits leaves the others as they are.
    screen().key("alt+r");
    screen().type("18");
    screen().key("alt+g");
    screen().type("52");
    screen().key("Return");
    EXPECT_TRUE(vanishes("Color of the gradient stop"));
    closeEditorWith("Return");
    // 18 and 52 of 255 are 4626 and 13364 of 65535.
    EXPECT_THAT(saved(), HasSubstr("4626 13364 12345"));
}

TEST_F(EditorTest, EscapeInThePickersFieldsLeavesTheColorAndTheKeyboardComesBack) {
    startWithDrawing();
    const std::string before = contents(drawing());
    const Window editor = openEditor(160, 290);
    screen().click(in(editor, EditorItems::swatch));
    waitForDialog("Color of the gradient stop");
    screen().key("alt+h");
    screen().type("123456");
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Color of the gradient stop"));
    EXPECT_TRUE(getsKeyboard("Gradient"));
    closeEditorWith("Escape");
    EXPECT_TRUE(getsKeyboard("drawing.svg"));
    EXPECT_EQ(quit(), 0) << "nothing to ask about";
    EXPECT_EQ(contents(drawing()), before);
}

TEST_F(EditorTest, AKeyPressedInMidDragIsHeardAfterIt) {
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    addStopInTheMiddle(editor);
    EXPECT_TRUE(positionBecomes("50.00"));
    screen().moveTo(onRamp(editor, 0.5));
    screen().press();
    screen().glideTo(onRamp(editor, 0.75));
    screen().key("Return");
    screen().release();
    EXPECT_TRUE(vanishes("Gradient"));
    EXPECT_THAT(saved(), HasSubstr("offset=\"0.75"));
}

TEST_F(EditorTest, TheToolsOptionsOpenByKeyAndByDoubleClick) {
    startWithDrawing();
    screen().key("ctrl+g");
    waitForDialog("Current Gradient");
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Current Gradient"));
    const Window window = drawingWindow();
    // The second tool of the palette at the left edge.
    screen().doubleClick({window.content.left + 40, window.content.top + 115});
    waitForDialog("Current Gradient");
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Current Gradient"));
}

TEST_F(EditorTest, ItNamesTheShapeThatItEditsAndLeavesItInSight) {
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    EXPECT_TRUE(editor.title.starts_with("Gradient of \u201cgrad\u201d")) << editor.title;
    EXPECT_FALSE(editor.content.contains(onScreen(62, 222)));
    EXPECT_FALSE(editor.content.contains(onScreen(258, 358)));
    closeEditorWith("Escape");
}

TEST_F(EditorTest, ClosingTheDrawingsWindowEndsTheEditorAsCancel) {
    startWithDrawing();
    const std::string before = contents(drawing());
    const Window editor = openEditor(160, 290);
    addStopInTheMiddle(editor);
    EXPECT_TRUE(positionBecomes("50.00"));
    screen().close(drawingWindow());
    EXPECT_EQ(program().wait(10s), 0);
    EXPECT_EQ(contents(drawing()), before);
}

TEST_F(EditorTest, QuittingInMidDragEndsTheEditorAsCancel) {
    startWithDrawing();
    const std::string before = contents(drawing());
    const Window editor = openEditor(160, 290);
    screen().moveTo(onRamp(editor, 0.5));
    screen().press();
    screen().glideTo(onRamp(editor, 0.7));
    program().signal(SIGTERM);
    EXPECT_EQ(program().wait(10s), 0);
    screen().release();
    EXPECT_EQ(contents(drawing()), before);
}

TEST_F(EditorTest, TheButtonHeldStillCostsNoProcessorTime) {
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    screen().moveTo(onRamp(editor, 0.5));
    screen().press();
    screen().glideTo(onRamp(editor, 0.7));
    std::this_thread::sleep_for(300ms);
    const auto before = program().processorTime();
    std::this_thread::sleep_for(1s);
    EXPECT_LE((program().processorTime() - before).count(), 80) << "milliseconds in a second";
    screen().release();
    closeEditorWith("Escape");
}

TEST_F(EditorTest, ATemplateIsSavedListedLoadedAfterARestartAndDeletedToTheTrash) {
    namespace fs = std::filesystem;
    const fs::path templates = configuration() / "kestrad" / "Gradient Templates";
    startWithDrawing();
    Window editor = openEditor(160, 290);
    addStopInTheMiddle(editor);
    EXPECT_TRUE(positionBecomes("50.00"));
    openTemplates(editor);
    screen().type("Sav");
    screen().key("Return");
    waitForDialog("Save Template");
    screen().type("Dawn & Dusk");
    screen().key("Return");
    EXPECT_TRUE(vanishes("Save Template"));
    EXPECT_TRUE(eventually([&] { return fs::exists(templates / "Dawn & Dusk.GRD"); }));
    closeEditorWith("Escape");
    ASSERT_EQ(quit(), 0);

    startWithDrawing();
    editor = openEditor(160, 290);
    openTemplates(editor);
    screen().type("Dawn");
    screen().key("Return");
    std::this_thread::sleep_for(200ms);
    screen().click(onRamp(editor, 0.5));
    EXPECT_TRUE(positionBecomes("50.00")) << "the stop of the template";
    openTemplates(editor);
    screen().type("Del");
    screen().key("Return");
    const Window list = waitForDialog("Delete Templates");
    // By a key, since a click may come after the key that follows it.
    screen().key("ctrl+a");
    screen().key("Return");
    // The question has the title of the list, which it follows.
    EXPECT_TRUE(eventually([&] {
        return screen()
            .window([&](const Window& window) {
                return window.title.starts_with("Delete Templates") && window.id != list.id;
            })
            .has_value();
    }));
    // Return alone would be the harmless answer.
    screen().key("Tab");
    screen().key("space");
    EXPECT_TRUE(eventually([&] { return !fs::exists(templates / "Dawn & Dusk.GRD"); }));
    EXPECT_TRUE(
        eventually([&] { return fs::exists(folder() / "data" / "Trash" / "files" / "Dawn & Dusk.GRD"); }));
    EXPECT_TRUE(vanishes("Delete Templates"));
    closeEditorWith("Escape");
    EXPECT_TRUE(getsKeyboard("drawing.svg"));
    EXPECT_EQ(quit(), 0);
}

TEST_F(EditorTest, TheTabKeyPassesOverTheLinesBetweenTheGroups) {
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    // From the position, past the line below it, over both buttons to the templates.
    for (int i = 0; i < 3; ++i)
        screen().key("Tab");
    screen().key("space");
    const auto isOpen = [&] {
        return screen().popupAt(in(editor, {EditorItems::preview.left, EditorItems::preview.top}));
    };
    EXPECT_TRUE(eventually(isOpen));
    screen().key("Escape");
    // A key that comes before the popup is gone is the popup's, too.
    EXPECT_TRUE(eventually([&] { return !isOpen(); }));
    closeEditorWith("Escape");
}

// The desktop says that it is dark while a line is dragged in the preview, which clips what is drawn to it.
TEST_F(EditorTest, ADesktopThatTurnsDarkDuringADragLeavesTheEditorWhole) {
    namespace fs = std::filesystem;
    fs::create_directory(folder() / "bin");
    const std::string says = (folder() / "says").string();
    std::ofstream(folder() / "bin" / "gsettings")
        << "#!/bin/sh\nwhile [ ! -e " << says << " ]; do sleep 0.05; done\necho prefer-dark\n";
    fs::permissions(folder() / "bin" / "gsettings", fs::perms::owner_all);
    startWithDrawing({{"PATH", (folder() / "bin").string() + ":" + std::getenv("PATH")}});
    const Window editor = openEditor(160, 290);
    const auto at = [&](Spot spot) { return screen().picture().at(spot); };
    const Spot button = in(editor, {EditorItems::cancel.x - 36, EditorItems::cancel.y});
    const std::uint32_t rampBefore = at(onRamp(editor, 0.5));
    const std::uint32_t buttonBefore = at(button);
    const Spot middle = in(editor, EditorItems::preview.middle());
    screen().moveTo(middle);
    screen().press();
    screen().glideTo(middle + Spot{0, 40});
    std::ofstream(says) << "dark";
    EXPECT_TRUE(eventually([&] { return at(button) != buttonBefore; }));
    screen().glideTo(middle + Spot{0, 60});
    EXPECT_EQ(at(onRamp(editor, 0.5)), rampBefore);
    screen().release();
    // The image is made anew once the mouse is up: its ground is then that of the desktop.
    const Spot ground = in(editor, {8, 200});
    EXPECT_TRUE(eventually([&] { return (at(ground) & 0xff) < 0x60; }));
    EXPECT_EQ(at(onRamp(editor, 0.5)), rampBefore);
    closeEditorWith("Escape");
}

TEST_F(EditorTest, ATemplateNameThatNoFileCanHaveIsNotAskedAboutButSaidToBeNone) {
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    openTemplates(editor);
    screen().type("Sav");
    screen().key("Return");
    waitForDialog("Save Template");
    screen().type("a:b");
    screen().key("Return");
    EXPECT_TRUE(vanishes("Save Template"));
    const Window notice = waitForDialog("Easel");
    const std::string said = messageOf(notice);
    EXPECT_NE(said.find("a:b.GRD: the name of a file cannot hold ':'. Nothing was saved."), std::string::npos)
        << said;
    EXPECT_EQ(said.find("Replace"), std::string::npos) << "nothing is there to be replaced";
    screen().key("Return");
    EXPECT_TRUE(vanishes("Easel"));
    EXPECT_TRUE(getsKeyboard(editor.title));
    closeEditorWith("Escape");
}

TEST_F(EditorTest, ACharacterThatNamesCannotHoldIsRefusedWithABeep) {
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    openTemplates(editor);
    screen().type("Sav");
    screen().key("Return");
    waitForDialog("Save Template");
    screen().type("ab");
    const int bells = screen().bells();
    screen().typeCharacter(U'\u4e2d');
    EXPECT_TRUE(eventually([&] { return screen().bells() > bells; }));
    EXPECT_TRUE(eventually([&] {
        screen().key("ctrl+a");
        screen().key("ctrl+c");
        return screen().clipboard() == "ab";
    }));
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Save Template"));
    closeEditorWith("Escape");
}

} // namespace
} // namespace desktop
