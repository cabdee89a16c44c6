#include <gtest/gtest.h>

#include "frame/VerifyDataRoutines.h"
#include "platform/Form.h"
#include "store/SharedState.h"
#include "support/TestFolder.h"

using namespace platform;
using testing_support::TestFolder;

namespace {
class FieldForm : public Form {
  public:
    static constexpr const char* kName = "frmField";
    FieldForm() : Form(kName) {
        On("txtField.KeyPress",
           [this](EventArgs& e) { e.keyAscii = CheckKey(e.keyAscii, txtField); });
    }
    TextBox txtField{*this, "txtField"};
};
}  // namespace

TEST(VerifyData, KeysThatBreakDataFilesAreRefusedUnlessTheFieldHoldsANumber) {
    TestFolder folder;
    SoundAlarms = true;
    auto& form = Screen<FieldForm>();
    form.txtField.TypeText("123.50");
    EXPECT_EQ(form.txtField.Text(), "123.50");
    EXPECT_TRUE(folder.Ui().Boxes().empty());
    form.txtField.SetText("");
    form.txtField.TypeText("abc.d,e");
    EXPECT_EQ(form.txtField.Text(), "abcde");
    ASSERT_EQ(folder.Ui().Boxes().size(), 2u);
    EXPECT_EQ(folder.Ui().Boxes()[0].prompt, "This character, (.) is invalid for this field");
    EXPECT_EQ(folder.Ui().Boxes()[0].title, "Invalid Key entry");
    EXPECT_EQ(folder.Ui().Beeps(), 2);
    EXPECT_TRUE(form.txtField.HasFocus());
    SoundAlarms = false;
    form.txtField.TypeText("?");
    EXPECT_EQ(folder.Ui().Beeps(), 2);
    SoundAlarms = true;
}

TEST(VerifyData, JoinNameDropsSurplusBlanksButKeepsTheSecondPartsOne) {
    EXPECT_EQ(JoinName("", " Ann ", "x", "Lee"), "Ann Lee");
    EXPECT_EQ(JoinName("Dr.", "Ann", "x", ""), "Dr. Ann ");
    EXPECT_EQ(JoinName(" ", "", "Third", ""), "");
}
