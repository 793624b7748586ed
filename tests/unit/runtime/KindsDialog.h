// A dialog with items of all kinds, of a plug-in that has a menu, a text and a question too.
#pragma once

#include "host/Dialogs.h"
#include "tests/support/HostTest.h"

namespace tests {

// How many bytes a reference to a menu takes.
constexpr long kReferenceSize = sizeof(void*);

constexpr short kKindsDialog = 7;
constexpr short kKindsAlert = 9;
constexpr short kKindsStrings = 5;

constexpr short kPushItem = 1;
constexpr short kTypedItem = 2;
constexpr short kStaticItem = 3;
constexpr short kPopupItem = 4;
constexpr short kUserItem = 5;
constexpr short kRadioItem = 6;

inline constexpr const char* kKindsResources = R"(<resources>
  <strings id="5"><string>First</string></strings>
  <menu id="20"><entry>first</entry><entry>second</entry></menu>
  <alert id="9" title="Sure" confirm="Do it" decline="Leave it" text="Really?"/>
  <dialog id="7" title="All kinds" width="200" height="200">
    <button item="1" bounds="10 10 30 90" title="Go"/>
    <edit item="2" bounds="40 10 60 90"/>
    <static item="3" bounds="70 10 90 90" title="Said"/>
    <popup item="4" bounds="100 10 120 90" menu="20"/>
    <user item="5" bounds="130 10 150 90"/>
    <radio item="6" bounds="160 10 180 90" title="One"/>
  </dialog>
</resources>)";

class KindsDialogTest : public HostTest {
  protected:
    KindsDialogTest() {
        writeContent(folder_ / "Kinds" / "Kinds.xml", kKindsResources);
        EXPECT_TRUE(process_.plugin().open(folder_ / "Kinds"));
    }

    static DialogRef newDialog() { return TessGetNewDialog(kKindsDialog, nullptr, InFrontOfAllWindows()); }
};

} // namespace tests
