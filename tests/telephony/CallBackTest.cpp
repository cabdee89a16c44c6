// Reminder calls: the slips of a date range from Slips.txt, in the order of their sort key,
// and the call through the dialler.
#include <filesystem>

#include "TelephonyFixture.h"

namespace telephony_tests {
namespace {

struct Slip {
    std::string key, team, date, slot, problem, name, telephone;
};

// One slip of 297 bytes as the service-call program writes it.
std::string SlipBytes(const Slip& s) {
    std::string record(297, ' ');
    auto put = [&](std::size_t at, std::size_t length, const std::string& value) {
        record.replace(at, std::min(length, value.size()), value.substr(0, length));
    };
    put(10, 10, s.key);
    put(20, 2, s.team);
    put(22, 6, "Hours");
    put(28, 2, "2");
    put(30, 10, s.date);
    put(40, 2, s.slot);
    put(42, 30, s.problem);
    put(162, 30, s.name);
    put(284, 13, s.telephone);
    return record;
}

class CallBackTest : public TelephonyTest {
  protected:
    CallBackTest() {
        folder.Write("Assignto.txt", "\"Crew A\"\r\n\"Crew B\"\r\n\"Crew C\"\r\n");
        // Monday 15 June 2026.
        folder.SetNow(platform::DateTime::FromYmdHms(2026, 6, 15, 9, 0, 0));
    }
    void WriteSlips(const std::vector<Slip>& slips) {
        std::string bytes;
        for (const Slip& s : slips) bytes += SlipBytes(s);
        folder.Write("Slips.txt", bytes);
    }
    std::vector<std::string> Column(const platform::Grid& grid, int col) {
        std::vector<std::string> out;
        for (int r = 1; r < grid.Rows(); ++r) out.push_back(grid.TextMatrix(r, col));
        return out;
    }
};

TEST_F(CallBackTest, TheSlipsOfTheNextMonthComeInTheOrderOfTheirKey) {
    WriteSlips({
        {"SA1001", "1", "7/15/2026", "3", "Leaking gutter", "Beta Corp", "309-555-0142"},
        {"SA1002", "0", "6/14/2026", "1", "Yesterday", "Too Early", "217-555-0000"},
        {"Contract", "2", "6/15/2026", "", "Yearly check", "Alpha Roofing", "217-555-0100"},
        {"SA1003", "0", "7/16/2026", "1", "Next year", "Too Late", "217-555-0001"},
        {"SA1004", "1", "6/20/2026", "12", "Broken step", "Gamma Ltd", "309-555-0177"},
    });
    Start();
    frmCallBack& form = platform::Screen<frmCallBack>();
    form.Show();

    EXPECT_TRUE(Boxes().empty());
    EXPECT_EQ(form.DTStarting.Value(), platform::DateTime::FromYmd(2026, 6, 15));
    EXPECT_EQ(form.DTEnding.Value(), platform::DateTime::FromYmd(2026, 7, 15));
    // Both ends of the range count; the rows left out are taken off the grid.
    ASSERT_EQ(form.fgTomorrow.Rows(), 4);
    EXPECT_EQ(Column(form.fgTomorrow, 0),
              (std::vector<std::string>{"Alpha Roofing", "Gamma Ltd", "Beta Corp"}));
    EXPECT_EQ(Column(form.fgTomorrow, 1),
              (std::vector<std::string>{"6/15/2026", "6/20/2026", "7/15/2026"}));
    // A contract visit has no hour; the others show the label of their slot.
    EXPECT_EQ(Column(form.fgTomorrow, 2), (std::vector<std::string>{"Cont", "06:00", "08:00"}));
    EXPECT_EQ(Column(form.fgTomorrow, 3),
              (std::vector<std::string>{"217-555-0100", "309-555-0177", "309-555-0142"}));
    // The team is the entry one above the slip's number.
    EXPECT_EQ(Column(form.fgTomorrow, 4), (std::vector<std::string>{"Crew C", "Crew B", "Crew B"}));
    EXPECT_EQ(Column(form.fgTomorrow, 5),
              (std::vector<std::string>{"Yearly check", "Broken step", "Leaking gutter"}));
    EXPECT_EQ(Column(form.fgTomorrow, 6),
              (std::vector<std::string>{"2026166", "2026171", "2026196"}));
    EXPECT_EQ(form.fgTomorrow.ColWidth(6), 0);
    EXPECT_EQ(Read("Slips.txt").size(), 5u * 297);
}

TEST_F(CallBackTest, AKeyWithoutPaddingSortsAsANumber) {
    // Read as numbers, "20279" (9 January) is less than "2027100" (10 April), and less than
    // "2026365" (31 December before it) as well.
    folder.SetNow(platform::DateTime::FromYmdHms(2026, 12, 20, 9, 0, 0));
    WriteSlips({
        {"SA1", "0", "4/10/2027", "1", "April", "Late One", "1"},
        {"SA2", "0", "1/9/2027", "1", "January", "Early One", "2"},
        {"SA3", "0", "12/31/2026", "1", "December", "Year End", "3"},
    });
    Start();
    frmCallBack& form = platform::Screen<frmCallBack>();
    form.Show();
    form.cmdWeekly[5].Click();  // next year
    EXPECT_EQ(form.DTEnding.Value(), platform::DateTime::FromYmd(2027, 12, 20));
    EXPECT_EQ(Column(form.fgTomorrow, 6),
              (std::vector<std::string>{"20279", "2026365", "2027100"}));
    EXPECT_EQ(Column(form.fgTomorrow, 0),
              (std::vector<std::string>{"Early One", "Year End", "Late One"}));

    form.cmdWeekly[7].Click();  // next quarter
    EXPECT_EQ(form.DTEnding.Value(), platform::DateTime::FromYmd(2027, 3, 20));
    EXPECT_EQ(Column(form.fgTomorrow, 0), (std::vector<std::string>{"Early One", "Year End"}));
}

TEST_F(CallBackTest, NoSlipsInTheRangeAndNoSlipFileAreSaid) {
    WriteSlips({{"SA1", "0", "1/5/2026", "1", "Old", "Past", "1"}});
    Start();
    frmCallBack& form = platform::Screen<frmCallBack>();
    form.Show();
    ASSERT_EQ(Boxes().size(), 1u);
    EXPECT_EQ(Boxes()[0].prompt, "No Service Slips within the Date Range");
    EXPECT_TRUE(form.Visible());

    folder.Write("Slips.txt", "");
    form.cmdWeekly[3].Click();
    EXPECT_EQ(Boxes().back().prompt, "No Service Slips within the Date Range");

    platform::Forms::Reset();
    std::filesystem::remove(folder.Path() / "Slips.txt");
    platform::Screen<frmCallBack>().Show();
    EXPECT_EQ(Boxes().back().prompt, "No Service Slips were found");
    EXPECT_FALSE(platform::Screen<frmCallBack>().IsLoaded());
}

TEST_F(CallBackTest, TheCallGoesThroughTheDiallerAndComesBackToAFreshList) {
    WriteSlips({{"SA1", "0", "6/16/2026", "2", "Gutter", "Beta Corp", "309-555-0142"}});
    Start();
    frmCallBack& form = platform::Screen<frmCallBack>();
    form.Show();
    EXPECT_FALSE(form.Image2.Enabled());
    form.fgTomorrow.UserClick(1, 0);
    EXPECT_TRUE(form.Image2.Enabled());
    form.DTEnding.SetValue(platform::DateTime::FromYmd(2026, 6, 15));

    form.Image2.Raise("Click");
    frmDialer& dialer = platform::Screen<frmDialer>();
    EXPECT_EQ(dialer.lblName.Caption(), "Beta Corp");
    EXPECT_EQ(dialer.lblNumber.Caption(), "309-555-0142");
    EXPECT_FALSE(form.Image2.Enabled());
    dialer.cmdHangup.Click();
    // Back on the list: the range of the next month again.
    EXPECT_EQ(form.DTEnding.Value(), platform::DateTime::FromYmd(2026, 7, 15));
    EXPECT_EQ(form.fgTomorrow.Rows(), 2);
}

}  // namespace
}  // namespace telephony_tests
