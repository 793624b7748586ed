// Which dialogs ask for a text and for nothing else.
#include "easel/runtime/TextQuestion.h"
#include "easel/runtime/Dialog.h"
#include "easel/runtime/Ports.h"

#include <gtest/gtest.h>

namespace easel::runtime {
namespace {

class TextQuestionTest : public testing::Test {
  protected:
    static DialogItem itemOf(int number, ItemKind kind) {
        DialogItem item;
        item.number = number;
        item.kind = kind;
        return item;
    }
    // A button, a label and a field, and perhaps something more.
    Dialog dialogWith(std::optional<ItemKind> more) {
        DialogDescription made{7, "Seven", 200, 100, {}};
        made.items = {itemOf(1, ItemKind::Button), itemOf(2, ItemKind::StaticText),
                      itemOf(3, ItemKind::EditText)};
        if (more)
            made.items.push_back(itemOf(4, *more));
        return Dialog(made, {}, ports_);
    }

    Ports ports_;
};

TEST_F(TextQuestionTest, IsUnansweredWhileItsFieldIsEmpty) {
    Dialog dialog = dialogWith(std::nullopt);
    EXPECT_EQ(emptyAnswer(dialog), dialog.item(3));
    dialog.setText(3, " ");
    EXPECT_FALSE(emptyAnswer(dialog)) << "a blank is a text";
}

TEST_F(TextQuestionTest, IsNoneWhereThereIsMoreToAnswer) {
    for (const ItemKind more : {ItemKind::EditText, ItemKind::UserDrawn, ItemKind::Popup, ItemKind::Radio}) {
        const Dialog dialog = dialogWith(more);
        EXPECT_FALSE(emptyAnswer(dialog)) << static_cast<int>(more);
    }
    EXPECT_TRUE(emptyAnswer(dialogWith(ItemKind::StaticText)));
}

} // namespace
} // namespace easel::runtime
