// What the journal says of the operations of the interface: each is written down once, under the name that
// the interface gives it, with its numbers, truth values and texts.
#include "easel/runtime/DeletionList.h"
#include "easel/runtime/DrawingWindow.h"
#include "host/Defaults.h"
#include "host/Files.h"
#include "host/Menus.h"
#include "host/Mouse.h"
#include "host/Objects.h"
#include "host/Palette.h"
#include "host/Windows.h"
#include "tests/support/IdleUser.h"
#include "tests/unit/runtime/KindsDialog.h"

#include <gmock/gmock.h>

namespace tests {
namespace {

using easel::runtime::DeletionCommand;
using easel::runtime::DeletionList;
using testing::ElementsAre;

std::string numberOf(OSType code) {
    return std::to_string(code);
}

// Deletes the first of what is listed.
class DeletingUser : public IdleUser {
  public:
    void runDeletion(DeletionList& list) override {
        list.select({0});
        list.command(DeletionCommand::Ok);
    }
};

class JournaledCallsTest : public KindsDialogTest {
  protected:
    JournaledCallsTest() { process_.journal().switchOn(); }

    std::vector<std::string> written() { return process_.journal().take(); }

    DeletingUser user_;
    easel::runtime::UserScope inFront_{process_, user_};
};

class WindowCallsTest : public JournaledCallsTest {
  protected:
    WindowCallsTest() {
        easel::drawing::Object object;
        object.kind = easel::drawing::Kind::Rect;
        object.outline = easel::drawing::rectanglePath({10, 10, 30, 30});
        object.fillPattern = easel::drawing::FillPattern::SolidBlack;
        window_.drawing().insert(0, sealed(std::move(object)));
        window_.activate();
    }

    easel::runtime::DrawingWindow window_{easel::drawing::Drawing::create(100, 50), process_};
};

TEST_F(JournaledCallsTest, OfADialogAsAWhole) {
    const DialogRef dialog = newDialog();
    SetPortDialogPort(dialog);
    ShowWindow(GetDialogWindow(dialog));
    short hit = 0;
    ModalDialog(StdDlogFilterUPP, &hit);
    UpdateDialog(dialog, nullptr);
    DisposeDialog(dialog);
    EXPECT_THAT(written(), ElementsAre("TessGetNewDialog(7)", "SetPortDialogPort()", "GetDialogWindow()",
                                       "ShowWindow()", "ModalDialog()", "UpdateDialog()", "DisposeDialog()"));
}

TEST_F(JournaledCallsTest, OfItems) {
    const DialogRef dialog = newDialog();
    written();
    TRect<short> box;
    SetUserDrawProc(dialog, kUserItem, box, NewUserItemUPP([](DialogRef, short) {}));
    EXPECT_EQ(GetDialogItemBounds(dialog, kUserItem), box);
    InvalDLogItem(dialog, kUserItem);
    SetDLOGText(dialog, kTypedItem, "Caf\x8e");
    CStr255 text;
    GetDLOGText(dialog, kTypedItem, text);
    SelectDLOGText(dialog, kTypedItem, 1, 32767);
    SetItemCtlValue(dialog, kPopupItem, 2);
    EXPECT_EQ(GetPopMenuSelectedItem(dialog, kPopupItem), 2);
    EXPECT_THAT(written(), ElementsAre("NewUserItemUPP()", "SetUserDrawProc(5)", "GetDialogItemBounds(5)",
                                       "InvalDLogItem(5)", "SetDLOGText(2, \"Café\")", "GetDLOGText(2)",
                                       "SelectDLOGText(2, 1, 32767)", "SetItemCtlValue(4, 2)",
                                       "GetPopMenuSelectedItem(4)"));
}

TEST_F(JournaledCallsTest, OfControlsAndMenus) {
    const DialogRef dialog = newDialog();
    written();
    ControlRef control = nullptr;
    GetDialogItemAsControl(dialog, kPopupItem, &control);
    OpaqueMenuRef* menu = nullptr;
    GetControlData(control, 3, kControlPopupButtonMenuHandleTag, kReferenceSize, &menu, nullptr);
    AppendMenu(menu, "Caf\x8e");
    EXPECT_EQ(CountMenuItems(menu), 3);
    SetMenuItemText(menu, 2, "other");
    CStr255 text;
    GetMenuItemText(menu, 2, text);
    DeleteMenuItem(menu, 1);
    EXPECT_THAT(written(),
                ElementsAre("GetDialogItemAsControl(4)",
                            "GetControlData(3, " + numberOf(kControlPopupButtonMenuHandleTag) + ", " +
                                std::to_string(kReferenceSize) + ")",
                            "AppendMenu(\"Café\")", "CountMenuItems()", "SetMenuItemText(2, \"other\")",
                            "GetMenuItemText(2)", "DeleteMenuItem(1)"));
}

TEST_F(JournaledCallsTest, OfQuestions) {
    EXPECT_FALSE(Confirm(kKindsAlert));
    const RGBColor before{};
    RGBColor after{};
    EXPECT_FALSE(GetColor({0, 0}, CStr255("Pick").PascalBytes(), &before, &after));
    EXPECT_EQ(GetIndString(kKindsStrings, 1).Text(), "First");
    EXPECT_THAT(written(), ElementsAre("Confirm(9)", "GetColor(\"Pick\")", "GetIndString(5, 1)"));
}

// One thing, which can be deleted.
class OneThingDialog : public DeleteDialog {
  public:
    OneThingDialog() : DeleteDialog(CStr255("Things").CreateCopy(), true) {}

  protected:
    long GetListItemCount() override { return 1; }
    CFStringRef GetListItemDescription(long) override { return CStr255("thing").CreateCopy(); }
    void DeleteListItem(long) override {}
};

TEST_F(JournaledCallsTest, OfADialogThatDeletes) {
    EXPECT_TRUE((new OneThingDialog)->Run());
    EXPECT_THAT(written(), ElementsAre("DeleteDialog(\"Things\", true)", "CCarbonDialogBase::Run()",
                                       "CCarbonDialogBase::DoCommand(" + numberOf(kOKCommand) + ")"));
}

TEST_F(JournaledCallsTest, OfThePen) {
    const RGBColor color{1, 2, 3};
    RGBColor now{};
    QD::SetPort(nullptr);
    QD::RGBForeColor(&color);
    QD::GetForeColor(&now);
    PenState pen;
    QD::GetPenState(&pen);
    QD::SetPenState(&pen);
    QD::PenSize(3, 4);
    QD::PenMode(kPatternXor);
    QD::PenPat(&pen.pattern);
    TPoint<short> where;
    QD::GetMouse(where);
    QD::ClipRect({0, 0, 9, 9});
    EXPECT_THAT(written(),
                ElementsAre("QD::SetPort()", "QD::RGBForeColor()", "QD::GetForeColor()", "QD::GetPenState()",
                            "QD::SetPenState()", "QD::PenSize(3, 4)", "QD::PenMode(10)", "QD::PenPat()",
                            "QD::GetMouse()", "QD::ClipRect()"));
}

TEST_F(JournaledCallsTest, OfWhatIsDrawn) {
    QD::PaintRect({0, 0, 9, 9});
    QD::FrameRect({0, 0, 9, 9});
    QD::EraseRect({0, 0, 9, 9});
    DrawDropShadow({0, 0, 9, 9});
    QD::MoveTo(1, 2);
    OpaquePolyHandle* const polygon = QD::OpenPoly();
    QD::LineTo(3, 4);
    QD::ClosePoly();
    QD::PaintPoly(polygon);
    QD::FramePoly(polygon);
    QD::KillPoly(polygon);
    QD::MoveTo(TPoint<double>{1, 2});
    QD::LineTo(TPoint<double>{3, 4});
    EXPECT_THAT(written(), ElementsAre("QD::PaintRect()", "QD::FrameRect()", "QD::EraseRect()",
                                       "DrawDropShadow()", "QD::MoveTo(1, 2)", "QD::OpenPoly()",
                                       "QD::LineTo(3, 4)", "QD::ClosePoly()", "QD::PaintPoly()",
                                       "QD::FramePoly()", "QD::KillPoly()", "QD::MoveTo()", "QD::LineTo()"));
}

TEST_F(JournaledCallsTest, OfPolygonsAndPaths) {
    const CFPolygonRef polygon = FRectToFPoly({0, 0, 9, 9});
    RotateFPoly(polygon, 22.5, {4, 4});
    CGPathRelease(CreatePolyPath(polygon));
    KillFPoly(polygon);
    TPoint<double> point{3, 4};
    Restrict({0, 0}, point);
    EXPECT_THAT(written(), ElementsAre("FRectToFPoly()", "RotateFPoly(22.5)", "CreatePolyPath()",
                                       "CGPathRelease()", "KillFPoly()", "Restrict()"));
}

TEST_F(JournaledCallsTest, OfImagesAndWhatIsPutBack) {
    {
        const StGrafPortSaver port;
        const StThemeDrawingState theme;
        const StClipRgnState clip;
        CSimplePixMap image({0, 0, 4, 4}, 32);
        image.BeginDrawing();
        image.GetGEnv()->CGContextDrawGradient(nullptr, {});
        image.EndDrawing();
        image.CopyFrom();
    }
    SysBeep(7);
    SetIDCursor(5000);
    EXPECT_THAT(written(),
                ElementsAre("StGrafPortSaver()", "StThemeDrawingState()", "StClipRgnState()",
                            "CSimplePixMap(32)", "CSimplePixMap::BeginDrawing()", "CSimplePixMap::GetGEnv()",
                            "CGraphicsEnvironment::CGContextDrawGradient()", "CSimplePixMap::EndDrawing()",
                            "CSimplePixMap::CopyFrom()", "SysBeep(7)", "SetIDCursor(5000)"));
}

TEST_F(JournaledCallsTest, OfFolders) {
    const FSSpec folder = FindSecondaryPreferencesFolder("Templates", true);
    FSSpec spec{};
    FSMakeFSSpec(folder.vRefNum, folder.parID, ":Templates:Caf\x8e", &spec);
    Handle list = NewHandle(0);
    EnumerShell(spec.vRefNum, spec.parID, FourCC("GTMP"), reinterpret_cast<FSSpec**>(list));
    FSpDelete(&spec);
    DisposeHandle(list);
    const auto placed = [](const char* call, const FSSpec& where, const std::string& what) {
        return call + ("(" + std::to_string(where.vRefNum)) + ", " + std::to_string(where.parID) + ", " +
               what + ")";
    };
    EXPECT_THAT(written(), ElementsAre("FindSecondaryPreferencesFolder(\"Templates\", true)",
                                       placed("FSMakeFSSpec", folder, "\":Templates:Café\""),
                                       placed("EnumerShell", spec, numberOf(FourCC("GTMP"))), "FSpDelete()"));
}

TEST_F(JournaledCallsTest, OfResourceFiles) {
    FSSpec spec{};
    FSMakeFSSpec(-1, 2, "file", &spec);
    written();
    FSpCreateResFile(&spec, FourCC("*Kst"), FourCC("GTMP"), -1);
    const short file = FSpOpenResFile(&spec, kWritePermission);
    UseResFile(file);
    EXPECT_EQ(CurResFile(), file);
    Handle data = NewHandle(1);
    AddResource(data, FourCC("GRDT"), 128, "Caf\x8e");
    DisposeHandle(data);
    const Handle read = GetResource(FourCC("GRDT"), 128);
    DetachResource(read);
    DisposeHandle(read);
    CloseResFile(file);
    const std::string number = std::to_string(file);
    EXPECT_THAT(written(), ElementsAre("FSpCreateResFile(" + numberOf(FourCC("*Kst")) + ", " +
                                           numberOf(FourCC("GTMP")) + ", -1)",
                                       "FSpOpenResFile(2)", "UseResFile(" + number + ")", "CurResFile()",
                                       "AddResource(" + numberOf(FourCC("GRDT")) + ", 128, \"Café\")",
                                       "GetResource(" + numberOf(FourCC("GRDT")) + ", 128)",
                                       "DetachResource()", "CloseResFile(" + number + ")"));
}

TEST_F(JournaledCallsTest, OfDefaultsAndGradientBytes) {
    const Handle data = MakeGradientData({});
    CGradientData read;
    EXPECT_TRUE(ExtractGradientInfo(*data, GetHandleSize(data), read));
    SetDefaultsResource(data, FourCC("GRDT"), 128, "Caf\x8e");
    DisposeHandle(data);
    DisposeHandle(GetDefaultsResource(FourCC("GRDT"), 128));
    EXPECT_FALSE(IsGradientCapable(0));
    const std::string resource = numberOf(FourCC("GRDT")) + ", 128";
    EXPECT_THAT(written(), ElementsAre("MakeGradientData()", "ExtractGradientInfo(104)",
                                       "SetDefaultsResource(" + resource + ", \"Café\")",
                                       "GetDefaultsResource(" + resource + ")", "IsGradientCapable(0)"));
}

TEST_F(JournaledCallsTest, OfTools) {
    short row = 0;
    short number = 0;
    AddTool(GetTPaletteFromWindowRef(roloPalette), PaletteElement{5100, 0, 13, 2, 1, {}}, row, number);
    AddXTNLToolName(1024, number, CStr32(CStr255("Caf\x8e")));
    GetTool(number).ToolMethods().options = nullptr;
    GetTool(number).SetToolFlag(3, true);
    EXPECT_THAT(written(),
                ElementsAre("GetTPaletteFromWindowRef()", "AddTool()", "AddXTNLToolName(1024, 1, \"Café\")",
                            "GetTool(1)", "ToolRec::ToolMethods()", "GetTool(1)",
                            "ToolRec::SetToolFlag(3, true)"));
}

TEST_F(WindowCallsTest, OfTheMouseAndTheKeys) {
    EXPECT_FALSE(StillDown());
    TPoint<short> to;
    WaitMove({0, 0}, to, 7);
    EXPECT_EQ(PolyNewMouse({0, 0}), TPoint<double>(0, 0));
    EXPECT_FALSE(BreakHysteresis({0, 0}, 606));
    SetGridSnap(true);
    EXPECT_TRUE(GetGridSnap());
    SetObjectSnap(true);
    EXPECT_TRUE(GetObjectSnap());
    EXPECT_FALSE(NorvU::KeyIsDown(NorvU::kShiftKey));
    EXPECT_THAT(written(), ElementsAre("StillDown()", "WaitMove(7)", "PolyNewMouse()", "BreakHysteresis(606)",
                                       "SetGridSnap(true)", "GetGridSnap()", "SetObjectSnap(true)",
                                       "GetObjectSnap()", "NorvU::KeyIsDown(56)"));
}

TEST_F(WindowCallsTest, OfTheWindow) {
    DWindow& window = *ActiveDrawingWindow();
    QD::SetPort(window.GetMacPort());
    window.UnselectAll();
    window.SetUndo(3);
    window.InvalSelection();
    window.SetIDCursor(606);
    window.ScrollWDiag(true);
    EXPECT_THAT(written(),
                ElementsAre("ActiveDrawingWindow()", "DWindow::GetMacPort()", "QD::SetPort()",
                            "DWindow::UnselectAll()", "DWindow::SetUndo(3)", "DWindow::InvalSelection()",
                            "DWindow::SetIDCursor(606)", "DWindow::ScrollWDiag(true)"));
}

TEST_F(WindowCallsTest, OfFeedback) {
    CSyncronizedBuffer buffer(nullptr, true);
    buffer.RefreshAndBeginDrawing();
    DrawConstructionLine(buffer.GetGEnv(), {1, 2}, {3, 4});
    buffer.EndDrawingAndUpdateScreen();
    EXPECT_THAT(written(),
                ElementsAre("CSyncronizedBuffer(true)", "CSyncronizedBuffer::RefreshAndBeginDrawing()",
                            "CSyncronizedBuffer::GetGEnv()", "DrawConstructionLine()",
                            "CSyncronizedBuffer::EndDrawingAndUpdateScreen()"));
}

TEST_F(WindowCallsTest, OfObjects) {
    SelDescrimT filter;
    GetSelDescrim(filter);
    SetSelDescrim(filter);
    SetOneSelDescrim(3);
    long index = -1;
    CTessObjList list;
    ASSERT_TRUE(PickObj(&window_.ref(), {20, 20}, index, list));
    EXPECT_THAT(written(),
                ElementsAre("GetSelDescrim()", "SetSelDescrim()", "SetOneSelDescrim(3)", "PickObj()"));
    TessObject copy;
    const TessObject picked = list[index];
    CloneItem(&picked, copy);
    EXPECT_NE(copy.WhatObject(), 0);
    EXPECT_EQ(copy.BBox().Width(), 20);
    copy.SetGradient(copy.GetGradient());
    copy.SetFillPattern(kBlackPat());
    TessObject polygon;
    ObjToPoly(&copy, polygon, 0.07);
    RecoverObject(polygon);
    DeleteUObj(index, list);
    InsertObj(copy, index, list);
    SelObject(index, list);
    EXPECT_THAT(written(), ElementsAre("CloneItem()", "TessObject::WhatObject()", "TessObject::BBox()",
                                       "TessObject::GetGradient()", "TessObject::SetGradient()",
                                       "kBlackPat()", "TessObject::SetFillPattern()", "ObjToPoly(0.07)",
                                       "RecoverObject()", "DeleteUObj(0)", "InsertObj(0)", "SelObject(0)"));
}

} // namespace
} // namespace tests
