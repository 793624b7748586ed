// Parts of the editor that scenarios cannot get at: the port's state around drawing, files that vanish, odd
// numbers.
#include "Gradient/TemplateUtil/TemplateStore.h"
#include "Gradient/editor/EditorItems.h"
#include "Gradient/editor/EditorSession.h"
#include "Gradient/editor/Swatches.h"
#include "easel/paint/Port.h"
#include "easel/runtime/CurrentPort.h"
#include "easel/runtime/Dialog.h"
#include "easel/runtime/OpenDialogs.h"
#include "tests/unit/gradient/EditorStage.h"

#include <cmath>
#include <functional>

namespace tests {
namespace {

using easel::runtime::Dialog;

// Does one thing after the other, each once the dialog waits, and then closes it.
class ScriptedUser : public IdleUser {
  public:
    explicit ScriptedUser(std::vector<std::function<void(Dialog&)>> steps) : steps_(std::move(steps)) {}

    std::int16_t nextHit(Dialog& dialog) override {
        while (!dialog.hasHit() && next_ < steps_.size())
            steps_[next_++](dialog);
        return static_cast<std::int16_t>(dialog.takeHit().value_or(kOKItem));
    }
    easel::runtime::Answer confirm(const easel::runtime::Alert&) override {
        return easel::runtime::Answer::yes;
    }

  private:
    std::vector<std::function<void(Dialog&)>> steps_;
    std::size_t next_ = 0;
};

TEST(EditorParts, TheSwatchProceduresLeaveColorPenAndClipOfThePortAsTheyWere) {
    IdleUser user;
    const EditorStage stage(user);
    gDialogActiveGradient = gradientOf({{{1, 2, 3}, 0.0}, {{4, 5, 6}, 1.0}});
    const DialogRef ref = TessGetNewDialog(kEditorDialog, nullptr, nullptr);
    ASSERT_NE(ref, nullptr);
    SetPortDialogPort(ref);
    easel::paint::PortState& state = easel::runtime::currentPort().state();
    state.foreground = {11, 22, 33};
    state.pen = {{7, 8}, {3, 2}, easel::paint::PenMode::Invert, {1, 2, 3, 4, 5, 6, 7, 8}};
    state.clip = {0, 0, 400, 300};
    const easel::paint::PortState before = state;
    for (const auto& [procedure, item] : {std::pair{&UpdateColorRect, kColorItem},
                                          {&UpdateGradientRect, kRampItem},
                                          {&UpdatePreviewRect, kPreviewItem}}) {
        procedure(ref, item);
        EXPECT_EQ(state, before) << item;
        EXPECT_EQ(&easel::runtime::currentPort().state(), &state) << "the dialog's port is current";
    }
    gDrawingToDialog = true;
    UpdatePreviewRect(ref, kPreviewItem);
    EXPECT_TRUE(gDrawingToDialog) << "as it was, not off";
    gDrawingToDialog = false;
    DisposeDialog(ref);
}

std::filesystem::path headerOf(const std::filesystem::path& folder, const std::string& name) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.path().filename() == "._" + name)
            return entry.path();
    return {};
}

TEST(EditorParts, ATemplateDeletedSinceTheMenuWasBuiltLeavesTheGradientAndMakesTheFirstStopActive) {
    std::filesystem::path folder;
    bool removed = false;
    std::string shown;
    ScriptedUser user({
        [](Dialog& editor) { editor.chooseEntry(kTemplateItem, 1); },
        [](Dialog& name) { name.enterText(4, "Gone"); },
        [](Dialog& name) { name.hit(1); },
        [](Dialog& editor) { editor.enterText(kPositionItem, "30"); },
        [&](Dialog& editor) {
            const std::filesystem::path header = headerOf(folder, "Gone.GRD");
            removed =
                std::filesystem::remove(header) && std::filesystem::remove(header.parent_path() / "Gone.GRD");
            EXPECT_EQ(editor.chooseEntry(kTemplateItem, 5), easel::runtime::EditOutcome::Accepted);
        },
        [&](Dialog& editor) {
            shown = editor.item(kPositionItem)->text;
            EXPECT_EQ(editor.item(kTemplateItem)->value, 5);
        },
    });
    const EditorStage stage(user);
    folder = stage.folder();
    InitTemplates("Vanishing");
    CGradientData gradient = gradientOf({{{1, 1, 1}, 0.0}, {{2, 2, 2}, 0.25}, {{3, 3, 3}, 1.0}});
    EXPECT_TRUE(ModalEditGradient(gradient));
    EXPECT_TRUE(removed);
    ASSERT_EQ(gradient.ColorList().size(), 3u);
    EXPECT_EQ(gradient.ColorList().front().ColorRGB(), (RGBColor{2, 2, 2}))
        << "the typed 30 percent are kept";
    EXPECT_EQ(shown, "25.00") << "the first stop's position is shown instead";
}

TEST(EditorParts, NoTextInThePositionFieldDoesAnyHarm) {
    const std::vector<std::string> texts{"nan",
                                         "inf",
                                         "-inf",
                                         "1e400",
                                         "-1e400",
                                         "0x10",
                                         "1e-400",
                                         "--5",
                                         ".",
                                         "e",
                                         std::string(255, '9'),
                                         "0." + std::string(253, '0')};
    std::vector<std::function<void(Dialog&)>> steps;
    for (const std::string& text : texts)
        for (const int item : {+kPositionItem, +kRampItem, +kPreviewItem, +kColorItem})
            steps.emplace_back([text, item](Dialog& editor) {
                if (item == kPositionItem)
                    EXPECT_EQ(editor.enterText(item, text), easel::runtime::EditOutcome::Accepted);
                else
                    editor.hit(item);
            });
    ScriptedUser user(std::move(steps));
    const EditorStage stage(user);
    InitTemplates("Odd");
    CGradientData gradient = gradientOf({{{1, 1, 1}, 0.0}, {{2, 2, 2}, 0.5}, {{3, 3, 3}, 1.0}});
    EXPECT_TRUE(ModalEditGradient(gradient));
    EXPECT_GE(gradient.ColorList().size(), 3u);
}

TEST(EditorParts, AnExceptionInAHandlerGivesThePortBackAndLeavesTheCallersGradient) {
    struct Interrupted {};
    ScriptedUser user({[](Dialog& editor) { editor.enterText(kPositionItem, "30"); },
                       [](Dialog&) { throw Interrupted(); }});
    const EditorStage stage(user);
    InitTemplates("Interrupted");
    CGradientData gradient = gradientOf({{{1, 1, 1}, 0.0}, {{2, 2, 2}, 1.0}});
    EXPECT_THROW(ModalEditGradient(gradient), Interrupted);
    EXPECT_EQ(gradient.ColorList().front().Percent(), 0.0);
    EXPECT_EQ(easel::runtime::theHost().currentPort, nullptr);
    // The dialog is left open, as nobody disposed of it.
    while (Dialog* left = easel::runtime::openDialogs().front())
        DisposeDialog(left->ref());
}

} // namespace
} // namespace tests
