// What the observer of a dialog is told when the program or the person in front of it changes something, and
// how far values and texts go.
#include "easel/paint/Port.h"
#include "easel/runtime/Dialog.h"
#include "easel/runtime/Ports.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace easel::runtime {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kButton = 1;
constexpr int kField = 2;
constexpr int kRadio = 3;
constexpr int kPopup = 4;
constexpr int kDrawn = 5;
constexpr int kOtherField = 6;

class WritingObserver : public DialogObserver {
  public:
    void itemChanged(int item, ItemChange change) override {
        constexpr const char* kNames[] = {"text", "selection", "value", "menu", "invalid", "content"};
        heard.push_back(kNames[static_cast<int>(change)] + (" " + std::to_string(item)));
    }
    void focusChanged() override { heard.emplace_back("focus"); }
    void shownChanged() override { heard.emplace_back("shown"); }
    void pixelsDrawn(const paint::PixelRect& area) override {
        heard.push_back("drawn " + std::to_string(area.right) + " " + std::to_string(area.bottom));
    }

    std::vector<std::string> heard;
};

class DialogObserverTest : public testing::Test {
  protected:
    DialogObserverTest() {
        dialog_.setObserver(&observer_);
        dialog_.flush();
        heard();
    }

    static DialogDescription description() {
        DialogDescription made{7, "Seven", 200, 100, {}};
        for (const ItemKind kind : {ItemKind::Button, ItemKind::EditText, ItemKind::Radio, ItemKind::Popup,
                                    ItemKind::UserDrawn, ItemKind::EditText}) {
            DialogItem& item = made.items.emplace_back();
            item.number = static_cast<int>(made.items.size());
            item.kind = kind;
        }
        made.items[kPopup - 1].menu = std::make_shared<Menu>();
        made.items[kPopup - 1].menu->append({"First", true, false});
        made.items[kPopup - 1].menu->append({"Second", true, false});
        return made;
    }
    std::vector<std::string> heard() { return std::exchange(observer_.heard, {}); }

    Ports ports_;
    WritingObserver observer_;
    Dialog dialog_{description(), {}, ports_};
};

TEST_F(DialogObserverTest, HearsOfTextsSelectionsAndValuesThatTheProgramSets) {
    dialog_.setText(kField, "abc");
    dialog_.setText(kButton, "Go");
    dialog_.selectText(kField, {0, 2});
    dialog_.setValue(kRadio, 1);
    dialog_.setValue(kPopup, 2);
    dialog_.invalidate(kDrawn);
    EXPECT_THAT(heard(), ElementsAre("text 2", "text 1", "selection 2", "value 3", "value 4", "invalid 5"));
}

TEST_F(DialogObserverTest, HearsNothingOfWhatAnItemDoesNotHave) {
    dialog_.selectText(kButton, {0, 2});
    dialog_.setValue(kField, 1);
    dialog_.invalidate(kField);
    dialog_.setDrawProcedure(kField, nullptr);
    dialog_.setText(kOtherField + 1, "abc");
    dialog_.setText(0, "abc");
    EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(DialogObserverTest, HearsOfWhatThePersonDoes) {
    dialog_.typeCharacter(U'a');
    dialog_.eraseBackward();
    dialog_.enterText(kOtherField, "abc");
    dialog_.chooseEntry(kPopup, 1);
    EXPECT_THAT(heard(), ElementsAre("text 2", "text 2", "focus", "text 6", "value 4"));
}

TEST_F(DialogObserverTest, HearsOfTheFocusWhenItMoves) {
    EXPECT_EQ(dialog_.focus(), kField);
    dialog_.setFocus(kField);
    EXPECT_THAT(heard(), ElementsAre("selection 2"));
    dialog_.setFocus(kButton);
    dialog_.setFocus(0);
    dialog_.setFocus(99);
    EXPECT_EQ(dialog_.focus(), 0);
    dialog_.setFocus(kOtherField);
    EXPECT_THAT(heard(), ElementsAre("focus", "focus", "focus", "selection 6"));
}

// Looks at an item as soon as it hears of it.
class LookingObserver : public WritingObserver {
  public:
    explicit LookingObserver(const Dialog& dialog) : dialog_(dialog) {}

    void itemChanged(int item, ItemChange) override {
        const DialogItem& seen = *dialog_.item(item);
        heard.push_back(seen.text + " " + std::to_string(seen.selection.from) + "-" +
                        std::to_string(seen.selection.to) + " " + std::to_string(seen.value));
    }
    void focusChanged() override { heard.push_back(std::to_string(dialog_.focus())); }
    void shownChanged() override { heard.emplace_back(dialog_.shown() ? "shown" : "hidden"); }

  private:
    const Dialog& dialog_;
};

TEST_F(DialogObserverTest, HearsOfWhatIsThereAlready) {
    LookingObserver observer(dialog_);
    dialog_.setObserver(&observer);
    dialog_.setText(kOtherField, "abc");
    dialog_.selectText(kOtherField, {1, 2});
    dialog_.typeCharacter(U'x');
    dialog_.setValue(kRadio, 1);
    dialog_.chooseEntry(kPopup, 2);
    dialog_.show();
    EXPECT_THAT(observer.heard, ElementsAre("abc 3-3 0", "6", "abc 1-2 0", "axc 2-2 0", " 0-0 1", " 0-0 2",
                                            "axc 0-3 0", "shown"));
    dialog_.setObserver(nullptr);
}

TEST_F(DialogObserverTest, HearsOnceThatTheDialogIsShown) {
    EXPECT_FALSE(dialog_.shown());
    dialog_.show();
    EXPECT_TRUE(dialog_.shown());
    dialog_.show();
    EXPECT_THAT(heard(), ElementsAre("selection 2", "shown"));
}

TEST_F(DialogObserverTest, HearsOfAMenuOnceThereIsSomethingInIt) {
    DialogDescription made = description();
    made.items[kPopup - 1].menu = std::make_shared<Menu>();
    Dialog dialog(std::move(made), {}, ports_);
    dialog.setObserver(&observer_);
    dialog.flush();
    EXPECT_THAT(heard(), IsEmpty());
    dialog.item(kPopup)->menu->append({"First", true, false});
    dialog.flush();
    EXPECT_THAT(heard(), ElementsAre("menu 4"));
    dialog.setObserver(nullptr);
}

TEST_F(DialogObserverTest, HearsOfAnotherScreenOnceAllOfItIsDrawn) {
    DialogScreen screen;
    screen.scale = 2;
    dialog_.setScreen(screen);
    dialog_.setScreen(screen);
    dialog_.flush();
    EXPECT_THAT(heard(), ElementsAre("invalid 5", "drawn 200 100"));
}

TEST_F(DialogObserverTest, WithoutAnObserverWhatIsDrawnIsForgotten) {
    dialog_.setObserver(nullptr);
    dialog_.port().paintRect({.right = 9, .bottom = 9});
    dialog_.flush();
    dialog_.setObserver(&observer_);
    dialog_.flush();
    EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(DialogObserverTest, AnItemIsInvalidUntilItIsDrawnAlsoByNobody) {
    EXPECT_TRUE(dialog_.hasInvalidItems());
    dialog_.drawInvalidItems();
    EXPECT_FALSE(dialog_.hasInvalidItems());
    dialog_.invalidate(kDrawn);
    EXPECT_TRUE(dialog_.hasInvalidItems());
}

TEST_F(DialogObserverTest, ATextThatIsSetIsCutTo255CharactersWithTheCaretBehindIt) {
    dialog_.setText(kField, std::string(256, 'x'));
    EXPECT_EQ(dialog_.item(kField)->text, std::string(255, 'x'));
    EXPECT_EQ(dialog_.item(kField)->selection, (TextSelection{255, 255}));
    dialog_.setText(kField, std::string(255, 'y'));
    EXPECT_EQ(dialog_.item(kField)->text.size(), 255U);
}

TEST_F(DialogObserverTest, ARadioButtonIsSetOrNotAndAPopupShowsAnEntry) {
    for (const auto& [given, shown] : {std::pair{2, 1}, {0, 0}, {-1, 1}}) {
        dialog_.setValue(kRadio, given);
        EXPECT_EQ(dialog_.item(kRadio)->value, shown) << given;
    }
    for (const auto& [given, shown] : {std::pair{3, 2}, {0, 1}, {-7, 1}}) {
        dialog_.setValue(kPopup, given);
        EXPECT_EQ(dialog_.item(kPopup)->value, shown) << given;
    }
    dialog_.item(kPopup)->menu->remove(2);
    dialog_.item(kPopup)->menu->remove(1);
    dialog_.setValue(kPopup, 1);
    EXPECT_EQ(dialog_.item(kPopup)->value, 0) << "there is nothing to show";
}

TEST_F(DialogObserverTest, WhatIsDisabledIsNotHitNorChosen) {
    DialogDescription made = description();
    for (DialogItem& item : made.items)
        item.enabled = false;
    Dialog dialog(std::move(made), {}, ports_);
    dialog.hit(kButton);
    EXPECT_EQ(dialog.chooseEntry(kPopup, 2), EditOutcome::Refused);
    EXPECT_EQ(dialog.item(kPopup)->value, 0);
    EXPECT_FALSE(dialog.hasHit());
}

TEST_F(DialogObserverTest, HitsWaitInTheirOrderAndNoItemIsNone) {
    for (const int item : {kRadio, 0, kRadio, 99, kButton})
        dialog_.hit(item);
    for (const int item : {kRadio, kRadio, kButton})
        EXPECT_EQ(dialog_.takeHit(), item);
    EXPECT_EQ(dialog_.takeHit(), std::nullopt);
}

TEST_F(DialogObserverTest, ATextThatIsEnteredTakesThePlaceOfAllThatWasThere) {
    dialog_.setText(kField, "abcdef");
    dialog_.selectText(kField, {2, 3});
    EXPECT_EQ(dialog_.enterText(kField, "xy"), EditOutcome::Accepted);
    EXPECT_EQ(dialog_.item(kField)->text, "xy");
    EXPECT_EQ(dialog_.item(kField)->selection, (TextSelection{2, 2}));
}

TEST_F(DialogObserverTest, ErasingForwardsTakesTheCharacterBehindTheCaret) {
    dialog_.setText(kField, "abcd");
    dialog_.selectText(kField, {1, 1});
    dialog_.eraseForward();
    EXPECT_EQ(dialog_.item(kField)->text, "acd");
    EXPECT_EQ(dialog_.item(kField)->selection, (TextSelection{1, 1}));
    dialog_.eraseBackward();
    EXPECT_EQ(dialog_.item(kField)->text, "cd");
    EXPECT_EQ(dialog_.item(kField)->selection, (TextSelection{0, 0}));
    dialog_.setFocus(kButton);
    EXPECT_EQ(dialog_.eraseForward(), EditOutcome::Refused);
}

} // namespace
} // namespace easel::runtime
