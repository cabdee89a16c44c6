#include <gtest/gtest.h>

#include "platform/Form.h"
#include "support/TestFolder.h"

using namespace platform;
using testing_support::TestFolder;

namespace {

class DemoForm : public Form {
  public:
    static constexpr const char* kName = "frmDemo";
    DemoForm() : Form(kName) {
        for (int i = 0; i < 3; ++i)
            opt.emplace_back(std::make_unique<OptionButton>(*this, "opt", i));
        On("opt.Click", [this](EventArgs& e) { log += "opt" + std::to_string(e.index) + " "; });
        On("lst.Click", [this](EventArgs&) {
            log += "lst ";
            if (lst.ListIndex() == 0) txt.SetText("nested");  // runs its handler at once
            log += "after ";
        });
        On("txt.Change", [this](EventArgs&) { log += "change "; });
        On("cbo.Click",
           [this](EventArgs&) { log += "cbo" + std::to_string(cbo.ListIndex()) + " "; });
        On("txt.KeyPress", [](EventArgs& e) {
            if (e.keyAscii == ',') e.keyAscii = 0;
        });
        On("Form.Load", [this](EventArgs&) { log += "load "; });
        On("Form.Activate", [this](EventArgs&) { log += "activate "; });
    }
    std::vector<std::unique_ptr<OptionButton>> opt;
    ListBox lst{*this, "lst"};
    TextBox txt{*this, "txt"};
    ComboBox cbo{*this, "cbo"};
    std::string log;
};

}  // namespace

TEST(Controls, CodeRaisesTheSameEventsAsTheUserAndNestedHandlersRunAtOnce) {
    TestFolder folder;
    auto& f = Screen<DemoForm>();
    f.lst.AddItem("a");
    f.lst.AddItem("b");
    f.lst.SetListIndex(0);
    EXPECT_EQ(f.log, "lst change after ");
    f.log.clear();
    f.opt[2]->SetValue(true);
    f.opt[1]->SetValue(true);
    EXPECT_FALSE(f.opt[2]->Value());
    EXPECT_EQ(f.log, "opt2 opt1 ");
    EXPECT_EQ(f.Find("opt(1)"), f.opt[1].get());
}

TEST(Controls, KeyPressMayRefuseAKey) {
    TestFolder folder;
    auto& f = Screen<DemoForm>();
    f.txt.TypeText("a,b");
    EXPECT_EQ(f.txt.Text(), "ab");
}

TEST(Controls, ShowLoadsOnceAndActivatesAndUnloadMakesAFreshScreen) {
    TestFolder folder;
    auto& f = Screen<DemoForm>();
    f.Show();
    f.Hide();
    f.Show();
    EXPECT_EQ(f.log, "load activate activate ");
    f.txt.SetText("kept");
    f.Unload();
    Forms::Collect();
    EXPECT_EQ(Screen<DemoForm>().txt.Text(), "");
}

TEST(Controls, GridFormatStringSetsHeadingsAndAlignment) {
    TestFolder folder;
    auto& f = Screen<DemoForm>();
    Grid g(f, "fg");
    g.SetFormatString("^Time|<Event|>Hours");
    EXPECT_EQ(g.Cols(), 3);
    EXPECT_EQ(g.TextMatrix(0, 1), "Event");
    EXPECT_EQ(g.ColAlignment(0), 4);
    EXPECT_EQ(g.ColAlignment(2), 7);
    g.SetRows(13);
    g.SetTextMatrix(12, 1, "x");
    EXPECT_EQ(g.TextMatrix(12, 1), "x");
}

TEST(Controls, ComboTextThatNoEntryHoldsLeavesNoEntrySelected) {
    TestFolder folder;
    auto& f = Screen<DemoForm>();
    for (const char* team : {"Crew A", "Crew B", "Crew C"}) f.cbo.AddItem(team);
    f.cbo.SetListIndex(1);
    // A rename typed over the chosen entry: the list no longer shows it chosen ...
    f.cbo.SetText("");
    f.cbo.TypeText("Crew X");
    EXPECT_EQ(f.cbo.ListIndex(), -1);
    f.cbo.SetList(1, "Crew X");
    f.cbo.SetText("");
    EXPECT_EQ(f.cbo.ListIndex(), -1);
    // ... so choosing the renamed entry again is a click.
    f.cbo.SetListIndex(1);
    EXPECT_EQ(f.log, "cbo1 cbo1 ");
    // Text that an entry holds, in any case, shows that entry chosen, without a click.
    f.log.clear();
    f.cbo.SetText("crew c");
    EXPECT_EQ(f.cbo.ListIndex(), 2);
    f.cbo.SetText("Crew");
    EXPECT_EQ(f.cbo.ListIndex(), -1);
    EXPECT_EQ(f.log, "");
}
