// Every file the customer screens read, damaged in the ways files get damaged: cut short,
// values missing or too many, "nan" and huge numbers, zero bytes, a folder in its place.
// Each is read as the file layer reads it or stops with the run-time failure, and nothing
// is written on the way.
#include "CustomersFixture.h"

#include <filesystem>
#include <functional>

namespace customers_tests {
namespace {

class MalformedFilesTest;

struct Damage {
    const char* name;
    std::function<void(MalformedFilesTest&)> arrange;
    std::function<void(MalformedFilesTest&)> check;
};

class MalformedFilesTest : public CustomersTest, public ::testing::WithParamInterface<Damage> {
  public:
    void Folder(const std::string& relative) { folder.MakeDirs(relative); }
    void Write(const std::string& relative, const std::string& bytes) {
        folder.Write(relative, bytes);
    }
    void Book() { WriteBook({Business("A1", "Alpha Roofing"), Business("A2", "Beta Corp")}); }
    std::string Files() {
        return Read("CustomerData.txt") + "|" + Read("ContractInfo.txt") + "|" +
               Read("CycleInfo.txt");
    }
    frmCustomerSelection& OpenSelection() {
        auto& form = platform::Screen<frmCustomerSelection>();
        form.Show();
        return form;
    }
    using CustomersTest::Boxes;
    using CustomersTest::Open;
    using CustomersTest::Read;
    testing_support::TestFolder& Place() { return folder; }
};

// The run-time failure, and the three record files as they were.
void FailsWritingNothing(MalformedFilesTest& t, const std::function<void()>& action) {
    const std::string before = t.Files();
    EXPECT_THROW(action(), platform::RuntimeError);
    EXPECT_EQ(t.Files(), before);
}

const char* const kProposal =
    "\"FP1\",100,#2026-03-02#,\"A1\",\"Alpha\",\"1 Elm\",\"\",\"Springfield\",\"IL\",\"62701\","
    "\"217-555-0100\"\r\n";

const Damage kDamages[] = {
    {"AccountBookCutShort",
     [](MalformedFilesTest& t) {
         t.Book();
         t.Write("CustomerData.txt", t.Read("CustomerData.txt").substr(0, 400));
     },
     [](MalformedFilesTest& t) {
         frmCustomer& form = t.Open();
         EXPECT_EQ(form.RecordCount, 1);
         EXPECT_EQ(form.txtCustomer[1].Text(), "Alpha Roofing");
     }},
    {"AccountBookOfZeroBytes",
     [](MalformedFilesTest& t) { t.Write("CustomerData.txt", std::string(2 * 328, '\0')); },
     [](MalformedFilesTest& t) {
         frmCustomer& form = t.Open();
         EXPECT_EQ(form.RecordCount, 2);
         EXPECT_EQ(form.txtCustomer[0].Text(), "");
         EXPECT_EQ(form.lbLType.Caption(), "Individual");
         EXPECT_EQ(form.cboAccounts.ListCount(), 2);
     }},
    {"AccountBookOfHighBytes",
     [](MalformedFilesTest& t) { t.Write("CustomerData.txt", std::string(328, '\xFF')); },
     [](MalformedFilesTest& t) {
         frmCustomer& form = t.Open();
         EXPECT_EQ(form.txtCustomer[0].Text(), std::string(20, '\xFF'));
     }},
    {"AccountBookTooBigToCount",
     [](MalformedFilesTest& t) {
         t.Write("CustomerData.txt", "");
         std::filesystem::resize_file(t.Place().Path() / "CustomerData.txt", 40000u * 328);
     },
     [](MalformedFilesTest& t) { FailsWritingNothing(t, [&] { t.Open(); }); }},
    {"AccountBookIsAFolder", [](MalformedFilesTest& t) { t.Folder("CustomerData.txt"); },
     [](MalformedFilesTest& t) {
         frmCustomer& form = t.Open();
         TypeInto(form.txtCustomer[8], "Ann");
         TypeInto(form.txtCustomer[10], "Lee");
         FailsWritingNothing(t, [&] { form.cmdExit.Click(); });
     }},
    {"ContractFileIsAFolder",
     [](MalformedFilesTest& t) {
         t.Book();
         std::filesystem::remove(t.Place().Path() / "ContractInfo.txt");
         t.Folder("ContractInfo.txt");
     },
     [](MalformedFilesTest& t) { FailsWritingNothing(t, [&] { t.Open(); }); }},
    {"StatesListWithTooManyValuesAndOddOnes",
     [](MalformedFilesTest& t) {
         std::string states = "\"nan\",1e999,\"\",\"unterminated\r\n";
         for (int i = 0; i < 60; ++i) states += "\"S" + std::to_string(i) + "\"\r\n";
         t.Write("StatesList.txt", states + std::string(3, '\0'));
     },
     [](MalformedFilesTest& t) {
         frmCustomer& form = t.Open();
         ASSERT_EQ(form.cboStates.ListCount(), 50);
         EXPECT_EQ(form.cboStates.List(0), "nan");
         EXPECT_EQ(form.cboStates.List(1), "1e999");
     }},
    {"StatesListIsAFolder", [](MalformedFilesTest& t) { t.Folder("StatesList.txt"); },
     [](MalformedFilesTest& t) { EXPECT_EQ(t.Open().cboStates.ListCount(), 0); }},
    {"HeadingsCutShort",
     [](MalformedFilesTest& t) {
         t.Book();
         t.Write("AuxHeadings.txt", "Site\r\nGate\r\n");
     },
     [](MalformedFilesTest& t) { FailsWritingNothing(t, [&] { t.Open(); }); }},
    {"HeadingsWithZeroBytesAndAFolderForData",
     [](MalformedFilesTest& t) {
         t.Book();
         t.Write("AuxHeadings.txt", std::string("a\0b\r\n\r\n\r\n\r\n\r\n\r\n", 16));
         t.Folder("AuxFiles/A1/AuxFile0/Data.txt");
         t.Write("AuxFiles/A1/AuxFile1/Data.txt", std::string("\"open quote, 1e999\0", 19));
     },
     [](MalformedFilesTest& t) {
         frmCustomer& form = t.Open();
         EXPECT_EQ(form.txtHeading[0].Text(), std::string("a\0b", 3));
         EXPECT_EQ(form.txtAux[0].Text(), "");
         EXPECT_EQ(form.txtAux[1].Text(), std::string("open quote, 1e999\0\r\n", 20));
     }},
    {"ProposalWithTooFewValues",
     [](MalformedFilesTest& t) {
         t.Write("NorvaxProposals/P.txt", "\"FP1\",100,#2026-03-02#,\"A1\"\r\n");
     },
     [](MalformedFilesTest& t) { EXPECT_THROW(t.OpenSelection(), platform::RuntimeError); }},
    {"ProposalWithoutFPMissingItsSevenValues",
     [](MalformedFilesTest& t) {
         std::string p = kProposal;
         p.replace(1, 3, "101");
         t.Write("NorvaxProposals/P.txt", p);
         t.Write("NorvaxProposals/ProposalBody/P.txt", "body\r\n");
     },
     [](MalformedFilesTest& t) { EXPECT_THROW(t.OpenSelection(), platform::RuntimeError); }},
    {"ProposalAmountsThatAreNoNumbers",
     [](MalformedFilesTest& t) {
         std::string p = kProposal;
         t.Write("NorvaxProposals/A.txt", std::string(p).replace(6, 3, "nan"));
         t.Write("NorvaxProposals/B.txt", std::string(p).replace(6, 3, "1e999"));
         t.Write("NorvaxProposals/C.txt", std::string(p).replace(6, 3, "99999999999999999999"));
         t.Write("NorvaxProposals/D.txt", std::string(p) + std::string(4, '\0'));
         t.Folder("NorvaxProposals/E.txt");
     },
     [](MalformedFilesTest& t) {
         frmCustomerSelection& form = t.OpenSelection();
         ASSERT_EQ(form.fgProposals.Rows(), 5);
         EXPECT_EQ(form.fgProposals.TextMatrix(1, 3), "nan");
         EXPECT_EQ(form.fgProposals.TextMatrix(2, 3), "1e999");
         EXPECT_EQ(form.fgProposals.TextMatrix(3, 3), "$100,000,000,000,000,000,000.00");
         EXPECT_EQ(form.fgProposals.TextMatrix(4, 3), "$100.00");
     }},
    {"ProposalBodyIsAFolder",
     [](MalformedFilesTest& t) {
         std::string p = kProposal;
         t.Write("NorvaxProposals/P.txt", p.replace(1, 3, "101") + "1,2,3,4,5,6,7\r\n");
         t.Folder("NorvaxProposals/ProposalBody/P.txt");
         t.Folder("NorvaxProposals/Proposalfinancials/P.txt");
     },
     [](MalformedFilesTest& t) { EXPECT_THROW(t.OpenSelection(), platform::RuntimeError); }},
};

TEST_P(MalformedFilesTest, IsReadAsTheFileLayerReadsItOrStopsWithoutWriting) {
    GetParam().arrange(*this);
    GetParam().check(*this);
}

INSTANTIATE_TEST_SUITE_P(Damaged, MalformedFilesTest, ::testing::ValuesIn(kDamages),
                         [](const auto& damage) { return std::string(damage.param.name); });

}  // namespace
}  // namespace customers_tests
