// Every file the telephony screens read, damaged in the ways files get damaged: cut short,
// lines missing or too many, "nan" and huge numbers, zero bytes, a folder in its place.
// Each is read as the file layer reads it or stops with the run-time failure; no wrong call
// is shown and nothing is written on the way.
#include <filesystem>
#include <functional>

#include "TelephonyFixture.h"
#include "platform/RuntimeError.h"
#include "telephony/DialerLink.h"

namespace telephony_tests {
namespace {

class MalformedFilesTest;

struct Damage {
    const char* name;
    std::function<void(MalformedFilesTest&)> arrange;
    std::function<void(MalformedFilesTest&)> check;
};

std::string Slip(const std::string& date, const std::string& slot, const std::string& team = "0") {
    std::string record(297, ' ');
    record.replace(10, 6, "SA1001");
    record.replace(20, team.size(), team);
    record.replace(30, date.size(), date);
    record.replace(40, slot.size(), slot);
    record.replace(162, 9, "Beta Corp");
    return record;
}

class MalformedFilesTest : public TelephonyTest, public ::testing::WithParamInterface<Damage> {
  public:
    MalformedFilesTest() {
        folder.Write("CustomerData.txt", CustomerBytes("A100", "217-555-0100", ""));
        folder.Write("Assignto.txt", "\"Crew A\"\r\n");
    }
    void Write(const std::string& relative, const std::string& bytes) {
        folder.Write(relative, bytes);
    }
    void Folder(const std::string& relative) { folder.MakeDirs(relative); }
    void Huge(const std::string& relative, std::uintmax_t size) {
        folder.Write(relative, "");
        std::filesystem::resize_file(folder.Path() / relative, size);
    }
    // The files as they stand; a file too big to read is known by its size.
    std::string Files() {
        std::string all;
        for (const char* name :
             {"TelCall.txt", "Slips.txt", "SpeedNumbers.txt", "CustomerData.txt"}) {
            const auto path = folder.Path() / name;
            if (!std::filesystem::is_regular_file(path))
                all += "-";
            else if (std::filesystem::file_size(path) > (1u << 20))
                all += std::to_string(std::filesystem::file_size(path));
            else
                all += folder.Read(name);
            all += "|";
        }
        return all;
    }
    // The run-time failure, and every file as it was.
    void FailsWritingNothing(const std::function<void()>& action) {
        const std::string before = Files();
        EXPECT_THROW(action(), platform::RuntimeError);
        EXPECT_EQ(Files(), before);
    }
    frmCallID& Monitor() {
        Start();
        return OpenMonitor();
    }
    frmCallBack& CallBack() {
        Start();
        frmCallBack& form = platform::Screen<frmCallBack>();
        form.Show();
        return form;
    }
    frmDialer& Dialer() {
        Start();
        ShowDialer("Smith Roofing", "217-555-0100");
        return platform::Screen<frmDialer>();
    }
    using TelephonyTest::LastBoxText;
    using TelephonyTest::Read;
};

const Damage kDamages[] = {
    {"CallListCutShort",
     [](MalformedFilesTest& t) { t.Write("TelCall.txt", std::string(35 + 20, 'A')); },
     [](MalformedFilesTest& t) { t.FailsWritingNothing([&] { t.Monitor(); }); }},
    {"CallListTooBigToCount",
     [](MalformedFilesTest& t) { t.Huge("TelCall.txt", 35ull * 3'000'000'000ull); },
     [](MalformedFilesTest& t) { t.FailsWritingNothing([&] { t.Monitor(); }); }},
    {"CallListOfZeroBytes",
     [](MalformedFilesTest& t) { t.Write("TelCall.txt", std::string(70, '\0')); },
     [](MalformedFilesTest& t) {
         frmCallID& monitor = t.Monitor();
         EXPECT_EQ(monitor.fgCallSummary.Rows(), 3);
         EXPECT_EQ(monitor.lblNumber.Caption(), std::string(12, '\0'));
     }},
    {"CallListEmpty", [](MalformedFilesTest& t) { t.Write("TelCall.txt", ""); },
     [](MalformedFilesTest& t) {
         frmCallID& monitor = t.Monitor();
         EXPECT_EQ(monitor.lblName.Caption(), "Name");
         EXPECT_FALSE(monitor.cmdClear.Enabled());
         EXPECT_FALSE(monitor.updnCalls.Enabled());
     }},
    {"CallListIsAFolder", [](MalformedFilesTest& t) { t.Folder("TelCall.txt"); },
     [](MalformedFilesTest& t) {
         frmCallID& monitor = t.Monitor();
         EXPECT_EQ(monitor.fgCallSummary.Rows(), 1);
         platform::SimulatedLines().Ring("2175550100", "SMITH JOHN", 6, 15, 9, 0);
         t.FailsWritingNothing([&] { monitor.tmrMain.Tick(); });
     }},
    {"AccountBookWithZeroBytesAndCutShort",
     [](MalformedFilesTest& t) {
         t.Write("CustomerData.txt", std::string(328, '\0') + std::string(300, ' '));
     },
     [](MalformedFilesTest& t) {
         frmCallID& monitor = t.Monitor();
         EXPECT_EQ(monitor.lstCustomerTel.ListCount(), 2);
         platform::SimulatedLines().Ring("2175550100", "SMITH JOHN", 6, 15, 9, 0);
         monitor.tmrMain.Tick();
         EXPECT_EQ(monitor.lblCount[2].Caption(), "1");
     }},
    {"AccountBookTooBigToCount",
     [](MalformedFilesTest& t) { t.Huge("CustomerData.txt", 40000ull * 328); },
     [](MalformedFilesTest& t) { t.FailsWritingNothing([&] { t.Monitor(); }); }},
    {"SlipsCutShort",
     [](MalformedFilesTest& t) {
         t.Write("Slips.txt", Slip("6/16/2026", "1") + Slip("6/17/2026", "1").substr(0, 100));
     },
     [](MalformedFilesTest& t) { t.FailsWritingNothing([&] { t.CallBack(); }); }},
    {"SlipsTooManyToCount", [](MalformedFilesTest& t) { t.Huge("Slips.txt", 297ull * 40000); },
     [](MalformedFilesTest& t) { t.FailsWritingNothing([&] { t.CallBack(); }); }},
    {"SlipDateThatIsNoDate", [](MalformedFilesTest& t) { t.Write("Slips.txt", Slip("nan", "1")); },
     [](MalformedFilesTest& t) { t.FailsWritingNothing([&] { t.CallBack(); }); }},
    {"SlipDateOfZeroBytes",
     [](MalformedFilesTest& t) { t.Write("Slips.txt", Slip(std::string(10, '\0'), "1")); },
     [](MalformedFilesTest& t) { t.FailsWritingNothing([&] { t.CallBack(); }); }},
    {"SlipHourThatIsNoNumber",
     [](MalformedFilesTest& t) { t.Write("Slips.txt", Slip("6/16/2026", "na")); },
     [](MalformedFilesTest& t) { t.FailsWritingNothing([&] { t.CallBack(); }); }},
    {"SlipHourBlank", [](MalformedFilesTest& t) { t.Write("Slips.txt", Slip("6/16/2026", "")); },
     [](MalformedFilesTest& t) { t.FailsWritingNothing([&] { t.CallBack(); }); }},
    {"SlipHourPastTheSlots",
     [](MalformedFilesTest& t) { t.Write("Slips.txt", Slip("6/16/2026", "99")); },
     [](MalformedFilesTest& t) { t.FailsWritingNothing([&] { t.CallBack(); }); }},
    {"SlipTeamPastTheTeams",
     [](MalformedFilesTest& t) { t.Write("Slips.txt", Slip("6/16/2026", "1", "-9")); },
     [](MalformedFilesTest& t) { t.FailsWritingNothing([&] { t.CallBack(); }); }},
    {"SlipOutOfRangeIsNotConverted",
     [](MalformedFilesTest& t) {
         t.Write("Slips.txt", Slip("1/1/2020", "na") + Slip("6/16/2026", "2"));
     },
     [](MalformedFilesTest& t) {
         frmCallBack& form = t.CallBack();
         ASSERT_EQ(form.fgTomorrow.Rows(), 2);
         EXPECT_EQ(form.fgTomorrow.TextMatrix(1, 2), "07:00");
     }},
    {"SlipsIsAFolder", [](MalformedFilesTest& t) { t.Folder("Slips.txt"); },
     [](MalformedFilesTest& t) {
         t.CallBack();
         EXPECT_EQ(t.LastBoxText(), "No Service Slips were found");
     }},
    {"ElevenSpeedNumbers",
     [](MalformedFilesTest& t) {
         std::string pairs;
         for (int i = 0; i < 11; ++i) pairs += "Name" + std::to_string(i) + "\r\n555-0100\r\n";
         t.Write("SpeedNumbers.txt", pairs);
     },
     [](MalformedFilesTest& t) { t.FailsWritingNothing([&] { t.Dialer(); }); }},
    {"SpeedNameWithoutItsNumber",
     [](MalformedFilesTest& t) { t.Write("SpeedNumbers.txt", "Office\r\n555-0100\r\nYard\r\n"); },
     [](MalformedFilesTest& t) { t.FailsWritingNothing([&] { t.Dialer(); }); }},
    {"SpeedNumbersWithZeroBytesAndNumbersOfAnyKind",
     [](MalformedFilesTest& t) {
         t.Write("SpeedNumbers.txt", std::string("nan\r\n1e999\r\nA\0B\r\n\0\r\n", 20));
     },
     [](MalformedFilesTest& t) {
         frmDialer& dialer = t.Dialer();
         EXPECT_EQ(dialer.cmdDialer[0].Caption(), "nan");
         EXPECT_EQ(dialer.SpeedNumbers[0], "1e999");
         EXPECT_EQ(dialer.SpeedNames[1], std::string("A\0B", 3));
     }},
    {"SpeedNumbersIsAFolder", [](MalformedFilesTest& t) { t.Folder("SpeedNumbers.txt"); },
     [](MalformedFilesTest& t) {
         frmDialer& dialer = t.Dialer();
         EXPECT_EQ(dialer.cmdDialer[0].Caption(), "");
         dialer.cmdDialer[0].Click();
         TypeInto(dialer.txtDialer[0], "Office");
         t.FailsWritingNothing([&] { dialer.cmdSpeedDialer[0].Click(); });
     }},
};

TEST_P(MalformedFilesTest, IsReadAsTheFileLayerReadsItOrStopsWithoutWriting) {
    GetParam().arrange(*this);
    GetParam().check(*this);
}

INSTANTIATE_TEST_SUITE_P(Damaged, MalformedFilesTest, ::testing::ValuesIn(kDamages),
                         [](const auto& damage) { return std::string(damage.param.name); });

}  // namespace
}  // namespace telephony_tests
