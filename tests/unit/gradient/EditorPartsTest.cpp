// Parts of the editor that scenarios cannot get at: files that come and go behind its back, odd numbers,
// exceptions.
#include "Gradient/ModalDialogs.h"
#include "Gradient/TemplateUtil/TemplateStore.h"
#include "Gradient/editor/EditorItems.h"
#include "Gradient/editor/EditorSession.h"
#include "easel/runtime/Dialog.h"
#include "tests/unit/gradient/EditorStage.h"
#include "tests/unit/gradient/ScriptedUser.h"

#include <algorithm>
#include <cmath>

namespace tests {
namespace {

using easel::runtime::Dialog;

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

std::vector<std::string> entriesOf(const Dialog& editor) {
    const auto& menu = *editor.item(kTemplateItem)->menu;
    std::vector<std::string> entries;
    for (int number = 5; number <= menu.count(); ++number)
        entries.push_back(menu.text(number));
    return entries;
}

TEST(EditorParts, OnlyARebuildShowsFilesThatCameAndWentBehindTheEditorsBack) {
    std::filesystem::path folder;
    const auto expectEntries = [](const Dialog& editor, const std::vector<std::string>& expected) {
        EXPECT_EQ(entriesOf(editor), expected);
    };
    ScriptedUser user({
        [](Dialog& editor) { editor.chooseEntry(kTemplateItem, 1); },
        [](Dialog& name) { name.enterText(4, "B"); },
        [](Dialog& name) { name.hit(kOKItem); },
        [&](Dialog& editor) {
            expectEntries(editor, {"B.GRD"});
            const std::filesystem::path header = headerOf(folder, "B.GRD");
            for (const char* const prefix : {"", "._"})
                std::filesystem::rename(header.parent_path() / (prefix + std::string("B.GRD")),
                                        header.parent_path() / (prefix + std::string("A.GRD")));
            editor.chooseEntry(kTemplateItem, 5);
        },
        [&](Dialog& editor) {
            expectEntries(editor, {"B.GRD"});
            editor.hit(kRadialItem);
        },
        [&](Dialog& editor) {
            expectEntries(editor, {"B.GRD"});
            editor.chooseEntry(kTemplateItem, 2);
        },
        [&](Dialog& editor) { expectEntries(editor, {"A.GRD"}); },
    });
    const EditorStage stage(user);
    folder = stage.folder();
    InitTemplates("Renamed");
    CGradientData gradient;
    EXPECT_TRUE(ModalEditGradient(gradient));
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
    EXPECT_TRUE(std::is_sorted(gradient.ColorList().begin(), gradient.ColorList().end()));
    for (const CGradientColor& stop : gradient.ColorList())
        EXPECT_TRUE(std::isfinite(stop.Percent()));
}

TEST(EditorParts, AnExceptionInAHandlerGivesThePortBackAndLeavesTheCallersGradient) {
    struct Interrupted {};
    ScriptedUser user({[](Dialog& editor) { editor.enterText(kPositionItem, "30"); },
                       [](Dialog&) { throw Interrupted(); }});
    EditorStage stage(user);
    InitTemplates("Interrupted");
    CGradientData gradient = gradientOf({{{1, 1, 1}, 0.0}, {{2, 2, 2}, 1.0}});
    EXPECT_THROW(ModalEditGradient(gradient), Interrupted);
    EXPECT_EQ(gradient.ColorList().front().Percent(), 0.0);
    EXPECT_EQ(stage.process().ports().current(), nullptr);
}

} // namespace
} // namespace tests
