// VendorData.txt damaged in the ways files get damaged: cut short, zero bytes, bytes of
// another program, a folder in its place, more records than the file layer counts. Each is
// read as the file layer reads it or stops with the run-time failure, writing nothing.
#include <filesystem>
#include <functional>

#include "ContactsFixture.h"

namespace contacts_tests {
namespace {

class MalformedVendorFileTest;

struct Damage {
    const char* name;
    std::function<void(MalformedVendorFileTest&)> arrange;
    std::function<void(MalformedVendorFileTest&)> check;
};

class MalformedVendorFileTest : public ContactsTest, public ::testing::WithParamInterface<Damage> {
  public:
    void Write(const std::string& bytes) { folder.Write("VendorData.txt", bytes); }
    void WriteStates(const std::string& bytes) { folder.Write("StatesList.txt", bytes); }
    void Folder(const std::string& relative) { folder.MakeDirs(relative); }
    std::filesystem::path Place() const { return folder.Path(); }
    using ContactsTest::Open;
    using ContactsTest::Read;
    using ContactsTest::WriteThree;
};

void FailsWritingNothing(MalformedVendorFileTest& t, const std::function<void()>& action) {
    const bool had = std::filesystem::is_regular_file(t.Place() / "VendorData.txt");
    const std::string before = had ? t.Read("VendorData.txt") : std::string();
    EXPECT_THROW(action(), platform::RuntimeError);
    if (had) {
        EXPECT_EQ(t.Read("VendorData.txt"), before);
    }
}

const Damage kDamages[] = {
    {"CutShortInTheSecondHalfOfARecord",
     [](MalformedVendorFileTest& t) {
         t.WriteThree();
         t.Write(t.Read("VendorData.txt").substr(0, 2 * 235 + 150));
     },
     [](MalformedVendorFileTest& t) {
         frmContacts& form = t.Open();
         ASSERT_EQ(form.ContactCount, 3);
         form.cmdNav[3].Click();
         // What the file holds of the last record, the rest blank.
         EXPECT_EQ(form.txtContact[frmContacts::kNameBox].Text(), "Midway Supply");
         EXPECT_EQ(form.txtContact[frmContacts::kEMailBox].Text(), "");
     }},
    {"CutShortInTheFirstHalfOfARecord",
     [](MalformedVendorFileTest& t) {
         t.WriteThree();
         t.Write(t.Read("VendorData.txt").substr(0, 2 * 235 + 40));
     },
     [](MalformedVendorFileTest& t) {
         frmContacts& form = t.Open();
         EXPECT_EQ(form.ContactCount, 2);
         EXPECT_EQ(form.fgVendors.Rows(), 3);
     }},
    {"ZeroBytes", [](MalformedVendorFileTest& t) { t.Write(std::string(2 * 235, '\0')); },
     [](MalformedVendorFileTest& t) {
         frmContacts& form = t.Open();
         EXPECT_EQ(form.ContactCount, 2);
         EXPECT_EQ(form.txtContact[frmContacts::kNameBox].Text(), "");
         EXPECT_EQ(form.fgVendors.TextMatrix(1, 3), "1");
     }},
    {"BytesOfAnotherProgramNumbersNanAndNoBlanks",
     [](MalformedVendorFileTest& t) {
         std::string odd(235, '\xFF');
         odd.replace(20, 3, "nan");
         odd.replace(142, 13, "1e99999999999");
         t.Write(odd);
     },
     [](MalformedVendorFileTest& t) {
         frmContacts& form = t.Open();
         EXPECT_EQ(form.txtContact[frmContacts::kNameBox].Text(), "nan" + std::string(27, '\xFF'));
         EXPECT_EQ(form.txtContact[frmContacts::kTelephoneBox].Text(), "1e99999999999");
         // Searching a field of any bytes finds by the bytes.
         form.Command1[0].Click();
         form.optSearch[frmContacts::kByName].SetValue(true);
         form.txtSearchfor.SetText("NAN");
         form.cmdStartSearch.Click();
         EXPECT_EQ(form.ContactRec, 1);
     }},
    {"TooManyRecordsToCount",
     [](MalformedVendorFileTest& t) {
         t.Write("");
         std::filesystem::resize_file(t.Place() / "VendorData.txt", 40000u * 235);
     },
     [](MalformedVendorFileTest& t) { FailsWritingNothing(t, [&] { t.Open(); }); }},
    {"AFolderInItsPlace", [](MalformedVendorFileTest& t) { t.Folder("VendorData.txt"); },
     [](MalformedVendorFileTest& t) {
         frmContacts& form = t.Open();
         TypeInto(form.txtContact[frmContacts::kNameBox], "New Vendor");
         FailsWritingNothing(t, [&] { form.cmdExit.Click(); });
     }},
    {"AFolderForTheStatesList",
     [](MalformedVendorFileTest& t) {
         t.WriteThree();
         t.Folder("StatesList.txt");
     },
     [](MalformedVendorFileTest& t) { EXPECT_EQ(t.Open().cboStates.ListCount(), 0); }},
    {"AStatesListOfOddValues",
     [](MalformedVendorFileTest& t) {
         std::string states = "\"nan\",1e999,\"\"\r\n";
         for (int i = 0; i < 60; ++i) states += "\"S" + std::to_string(i) + "\"\r\n";
         t.WriteStates(states + std::string(3, '\0'));
     },
     [](MalformedVendorFileTest& t) {
         frmContacts& form = t.Open();
         ASSERT_EQ(form.cboStates.ListCount(), 51);
         EXPECT_EQ(form.cboStates.List(1), "1e999");
     }},
};

TEST_P(MalformedVendorFileTest, IsReadAsTheFileLayerReadsItOrStopsWithoutWriting) {
    GetParam().arrange(*this);
    GetParam().check(*this);
}

INSTANTIATE_TEST_SUITE_P(Damaged, MalformedVendorFileTest, ::testing::ValuesIn(kDamages),
                         [](const auto& damage) { return std::string(damage.param.name); });

}  // namespace
}  // namespace contacts_tests
