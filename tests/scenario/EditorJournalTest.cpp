// The order in which the editor calls the host.
#include "tests/scenario/Editor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace {

using nlohmann::json;
using namespace tests;
using Calls = std::vector<std::string>;

// Without the calls that only draw, which begin where a user item is about to be drawn and are tested by
// their pixels.
Calls withoutDrawing(const json& journal) {
    Calls calls;
    for (const std::string call : journal) {
        const bool draws = call.starts_with("QD::") && call != "QD::GetMouse()";
        const bool composes = call.starts_with("CSimplePixMap") || call.starts_with("CGraphicsEnvironment") ||
                              call == "CreatePolyPath()" || call == "CGPathRelease()" ||
                              call == "FRectToFPoly()" || call == "KillFPoly()" ||
                              call.starts_with("RotateFPoly(") || call == "DrawDropShadow()";
        if (!draws && !composes)
            calls.push_back(call);
    }
    return calls;
}

// What the swatch procedures call besides, when all of them, or only ramp and preview, are drawn.
const Calls kDrawAll{"GetDialogItemBounds(4)", "GetDialogItemBounds(6)", "GetDialogItemBounds(7)"};
const Calls kDrawRampAndPreview{"GetDialogItemBounds(4)", "GetDialogItemBounds(7)"};
const Calls kMarkAll{"InvalDLogItem(4)", "InvalDLogItem(7)", "InvalDLogItem(6)"};

Calls joined(std::initializer_list<Calls> parts) {
    Calls all;
    for (const Calls& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

Calls showPosition(const std::string& text) {
    return {"SetDLOGText(5, \"" + text + "\")", "SelectDLOGText(5, 0, 32767)"};
}

// The calls made while the lines are played in an open editor.
Calls callsIn(const std::string& gradient, const std::string& script) {
    return withoutDrawing(playWithTool(openEditorOn(gradient) + "journal on\n" + script +
                                       "print journal\njournal off\nhit 2\n")["journal"]);
}

TEST(EditorJournal, ASessionPreparesTheDialogHiddenAndShowsItFilled) {
    const Played played = playWithTool("journal on\noptions\nprint journal\nhit 1\nprint journal\n");
    Calls opening = withoutDrawing(played.all("journal")[0]);
    // The template folder is listed after the old entries were counted.
    const auto listing = std::find_if(opening.begin(), opening.end(), [](const std::string& call) {
        return call.starts_with("EnumerShell(");
    });
    ASSERT_EQ(listing - opening.begin(), 14);
    opening.erase(listing);
    EXPECT_THAT(opening,
                testing::ElementsAreArray(
                    joined({{"StGrafPortSaver()", "TessGetNewDialog(5000)", "SetPortDialogPort()",
                             "SetIDCursor(0)", "SetUserDrawProc(8)", "SetUserDrawProc(12)",
                             "SetUserDrawProc(4)", "SetUserDrawProc(6)", "SetUserDrawProc(7)",
                             "SetDLOGText(5, \"0.00\")", "SetItemCtlValue(9, 4)", "GetDialogItemAsControl(9)",
                             "GetControlData(0, 1835557230, 8)", "CountMenuItems()", "SetItemCtlValue(10, 1)",
                             "SetItemCtlValue(11, 0)", "GetDialogWindow()", "ShowWindow()", "ModalDialog()"},
                            kDrawAll})));
    EXPECT_THAT(withoutDrawing(played.all("journal")[1]), testing::ElementsAre("DisposeDialog()"));
}

TEST(EditorJournal, AClickOnAStopShowsItDrawsEverythingAndThenTracksTheMouse) {
    EXPECT_THAT(
        callsIn(kThreeStops, "click item 4 206 10\n"),
        testing::ElementsAreArray(joined({{"GetDialogItemBounds(4)", "QD::GetMouse()"},
                                          showPosition("50.00"),
                                          kMarkAll,
                                          {"UpdateDialog()"},
                                          kDrawAll,
                                          {"StillDown()", "SetItemCtlValue(9, 4)", "ModalDialog()"}})));
}

TEST(EditorJournal, AClickThatAddsAStopRefreshesTwice) {
    EXPECT_THAT(
        callsIn(kTwoStops, "click item 4 206 10\n"),
        testing::ElementsAreArray(joined({{"GetDialogItemBounds(4)", "QD::GetMouse()"},
                                          showPosition("50.00"), // adding
                                          kMarkAll,
                                          showPosition("50.00"), // selecting
                                          kMarkAll,
                                          {"UpdateDialog()"},
                                          kDrawAll,
                                          {"StillDown()", "SetItemCtlValue(9, 4)", "ModalDialog()"}})));
}

TEST(EditorJournal, EveryMoveOfADragShowsThePositionAndDrawsRampAndPreviewAtOnce) {
    const Calls look{"StillDown()", "QD::GetMouse()"};
    const Played played = playWithTool(
        openEditorOn(kTwoStops) + "journal on\npress item 4 6 10\nprint journal\nmove item 4 8 10\n" +
        "move item 4 46 10\nmove item 4 46 10\nmove item 4 86 10\nrelease\nprint journal\nhit 2\n");
    EXPECT_THAT(
        withoutDrawing(played["journal"]),
        testing::ElementsAreArray(joined({{"QD::GetMouse()"}, // within four pixels
                                          look,
                                          showPosition("10.00"),
                                          kDrawRampAndPreview,
                                          look, // not moved again
                                          look,
                                          showPosition("20.00"),
                                          kDrawRampAndPreview,
                                          {"StillDown()", "SetItemCtlValue(9, 4)", "ModalDialog()"}})));
}

TEST(EditorJournal, PullingAStopOffDeletesItAndBringingItBackAddsOne) {
    const Played played = playWithTool(
        openEditorOn(kThreeStops) + "journal on\npress item 4 206 10\nprint journal\nmove item 4 206 60\n" +
        "print journal\nmove item 4 306 60\nprint journal\nmove item 4 106 10\n" +
        "print journal\nrelease\nprint journal\nhit 2\n");
    const auto journals = played.all("journal");
    EXPECT_THAT(withoutDrawing(journals[1]),
                testing::ElementsAreArray(joined({{"QD::GetMouse()"},
                                                  showPosition("50.00"), // still following
                                                  showPosition("0.00"),  // deleted
                                                  kMarkAll,
                                                  kDrawRampAndPreview,
                                                  {"StillDown()"}})));
    EXPECT_THAT(withoutDrawing(journals[2]),
                testing::ElementsAreArray(joined({{"QD::GetMouse()"}, kDrawRampAndPreview, {"StillDown()"}})))
        << "while it is off there is nothing to show";
    EXPECT_THAT(withoutDrawing(journals[3]), testing::ElementsAreArray(joined({{"QD::GetMouse()"},
                                                                               showPosition("25.00"), // added
                                                                               kMarkAll,
                                                                               kDrawRampAndPreview,
                                                                               {"StillDown()"}})));
    EXPECT_THAT(withoutDrawing(journals[4]),
                testing::ElementsAreArray(joined({{"SetItemCtlValue(9, 4)", "ModalDialog()"}, kDrawAll})));
}

TEST(EditorJournal, TypingInRangeReadsTheFieldAndDoesNotWriteIt) {
    EXPECT_THAT(callsIn(kTwoStops, "set 5 \"30\"\n"),
                testing::ElementsAreArray(joined({{"GetDLOGText(5)", "GetDLOGText(5)"},
                                                  kMarkAll,
                                                  {"SetItemCtlValue(9, 4)", "ModalDialog()"},
                                                  kDrawAll})));
}

TEST(EditorJournal, TypingOutOfRangeWritesTheFieldBeforeTheSwatchesAreMarked) {
    EXPECT_THAT(callsIn(kTwoStops, "set 5 \"130\"\n"),
                testing::ElementsAreArray(joined({{"GetDLOGText(5)", "GetDLOGText(5)"},
                                                  showPosition("100.00"),
                                                  kMarkAll,
                                                  {"SetItemCtlValue(9, 4)", "ModalDialog()"},
                                                  kDrawAll})));
}

TEST(EditorJournal, ClearingTheFieldOfThreeStopsReadsItOnceAndDeletes) {
    EXPECT_THAT(callsIn(kThreeStops, "set 5 \"\"\n"),
                testing::ElementsAreArray(joined({{"GetDLOGText(5)"},
                                                  showPosition("50.00"),
                                                  kMarkAll,
                                                  {"SetItemCtlValue(9, 4)", "ModalDialog()"},
                                                  kDrawAll})));
}

TEST(EditorJournal, PickingAColorReadsItsPromptAsksAndMarksTheSwatches) {
    EXPECT_THAT(callsIn(kTwoStops, "hit 6\ncolor 1 2 3\n"),
                testing::ElementsAreArray(
                    joined({{"GetIndString(5000, 3)", "GetColor(\"Color of the gradient stop\")"},
                            kMarkAll,
                            {"SetItemCtlValue(9, 4)", "ModalDialog()"},
                            kDrawAll})));
}

TEST(EditorJournal, ALineInThePreviewIsTrackedWithSnappingOffAndMarksOnlyThePreview) {
    const Calls step{"WaitMove(1)", "NorvU::KeyIsDown(56)", "StillDown()"};
    EXPECT_THAT(callsIn(kTwoStops, "drag item 7 50 50 90 60 95 70\n"),
                testing::ElementsAreArray(joined(
                    {{"GetDialogItemBounds(7)", "QD::GetMouse()", "StThemeDrawingState()", "StClipRgnState()",
                      "GetGridSnap()", "GetObjectSnap()", "SetGridSnap(false)", "SetObjectSnap(false)"},
                     step,
                     step,
                     {"SetGridSnap(false)", "SetObjectSnap(false)", "InvalDLogItem(7)", "ModalDialog()",
                      "GetDialogItemBounds(7)"}})))
        << "and the popup is left alone";
}

TEST(EditorJournal, EachRubberBandIsDrawnTwiceOverTheSameLine) {
    const Played played = playWithTool(
        openEditorOn(kTwoStops) + "journal on\npress item 7 50 50\nmove item 7 90 60\nmove item 7 90 60\n" +
        "print journal\nrelease\njournal off\nhit 2\n");
    Calls drawn;
    for (const std::string call : played["journal"])
        if ((call.starts_with("QD::") && call != "QD::GetMouse()") || call.starts_with("Set"))
            drawn.push_back(call);
    const Calls line{"QD::MoveTo()", "QD::LineTo()"};
    EXPECT_THAT(drawn,
                testing::ElementsAreArray(joined({{"SetGridSnap(false)", "SetObjectSnap(false)",
                                                   "QD::RGBForeColor()", "QD::ClipRect()", "QD::PenMode(10)"},
                                                  line,
                                                  line,
                                                  line})));
}

TEST(EditorJournal, ARadialPressMarksThePreviewOnceForEveryLookAtTheMouse) {
    EXPECT_THAT(callsIn("2 0 0.5 0.5 0.5 0.5 0:0,0,0 1:1,1,1", "drag item 7 50 50 90 60\n"),
                testing::ElementsAre("GetDialogItemBounds(7)", "QD::GetMouse()", "QD::GetMouse()",
                                     "InvalDLogItem(7)", "StillDown()", "QD::GetMouse()", "InvalDLogItem(7)",
                                     "StillDown()", "ModalDialog()", "GetDialogItemBounds(7)"));
}

} // namespace
