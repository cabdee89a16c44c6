// The three item files of the service-call program, damaged in the ways files get damaged:
// cut short, zero bytes, prices that are no numbers or too big, more records than a byte
// counts, a folder in the place of a file. Each is listed as the file layer reads it, or the
// screen stops with the run-time failure before it lists or writes anything.
#include <filesystem>
#include <functional>
#include <limits>

#include "WorkOrderFixture.h"

namespace workorders_tests {
namespace {

class MalformedItemFilesTest;

struct Damage {
    const char* name;
    std::function<void(MalformedItemFilesTest&)> arrange;
    std::function<void(MalformedItemFilesTest&)> check;
};

class MalformedItemFilesTest : public WorkOrderTest, public ::testing::WithParamInterface<Damage> {
  public:
    void Write(const std::string& relative, const std::string& bytes) {
        folder.Write(relative, bytes);
    }
    void Folder(const std::string& relative) { folder.MakeDirs(relative); }
    std::string Repeat(const std::string& record, int times) {
        std::string bytes;
        for (int i = 0; i < times; ++i) bytes += record;
        return bytes;
    }
    using WorkOrderTest::Open;
};

void StopsBeforeListing(MalformedItemFilesTest& t) {
    EXPECT_THROW(t.Open(), platform::RuntimeError);
    EXPECT_EQ(platform::Screen<frmWorkOrder>().lstItems.ListCount(), 0);
}

const Damage kDamages[] = {
    {"InventoryCutShortPastHalfARecord",
     [](MalformedItemFilesTest& t) {
         t.Write("UpdatedInventory.txt",
                 (InventoryBytes("Shingles", 289900) + InventoryBytes("Flashing", 12345))
                     .substr(0, 124 + 66));
     },
     [](MalformedItemFilesTest& t) {
         frmWorkOrder& form = t.Open();
         ASSERT_EQ(Entries(form.lstItems), (std::vector<std::string>{"Shingles", "Flashing"}));
         // The price of the cut record lies past the end: it reads as zero.
         EXPECT_EQ(form.cboPrices[frmWorkOrder::kItemPrices].List(1), "$0.00");
     }},
    {"ServicesCutShortBeforeHalfARecord",
     [](MalformedItemFilesTest& t) {
         t.Write("Services.txt",
                 (ServiceBytes("Inspection", "75.00") + ServiceBytes("Tear-off", "900"))
                     .substr(0, 72 + 30));
     },
     [](MalformedItemFilesTest& t) {
         EXPECT_EQ(Entries(t.Open().lstServices), (std::vector<std::string>{"Inspection"}));
     }},
    {"ZeroBytesEverywhere",
     [](MalformedItemFilesTest& t) {
         t.Write("UpdatedInventory.txt", std::string(124, '\0'));
         t.Write("Services.txt", std::string(72, '\0'));
         t.Write("CustomItems.txt", std::string(70, '\0'));
     },
     [](MalformedItemFilesTest& t) {
         frmWorkOrder& form = t.Open();
         EXPECT_EQ(Entries(form.lstItems), (std::vector<std::string>{"", ""}));
         EXPECT_EQ(Entries(form.cboPrices[frmWorkOrder::kItemPrices]),
                   (std::vector<std::string>{"$0.00", "$0.00"}));
         EXPECT_EQ(Entries(form.lstServices), (std::vector<std::string>{""}));
     }},
    {"PricesThatAreNoNumbersOrHuge",
     [](MalformedItemFilesTest& t) {
         t.Write("Services.txt", ServiceBytes("Inspection", "nan") + ServiceBytes("Odd", "1e999"));
         t.Write("UpdatedInventory.txt",
                 InventoryBytes("Most", std::numeric_limits<std::int64_t>::max()) +
                     InventoryBytes("Least", std::numeric_limits<std::int64_t>::min()));
     },
     [](MalformedItemFilesTest& t) {
         frmWorkOrder& form = t.Open();
         EXPECT_EQ(Entries(form.cboPrices[frmWorkOrder::kServicePrices]),
                   (std::vector<std::string>{"nan", "1e999"}));
         // The largest amounts pass through the platform's currency form, to its precision.
         EXPECT_EQ(form.cboPrices[frmWorkOrder::kItemPrices].List(0).substr(0, 20),
                   "$922,337,203,685,477");
         EXPECT_EQ(form.cboPrices[frmWorkOrder::kItemPrices].List(1).substr(0, 21),
                   "($922,337,203,685,477");
     }},
    {"DescriptionsWithZeroBytesAndNoBlanks",
     [](MalformedItemFilesTest& t) {
         t.Write("CustomItems.txt", CustomItemBytes(std::string("Gut\0ter", 7), 10000) +
                                        std::string(50, '\xFF') + std::string(20, '\0'));
     },
     [](MalformedItemFilesTest& t) {
         frmWorkOrder& form = t.Open();
         EXPECT_EQ(Entries(form.lstItems),
                   (std::vector<std::string>{std::string("Gut\0ter", 7), std::string(50, '\xFF')}));
     }},
    {"InventoryOf255RecordsIsTheMost",
     [](MalformedItemFilesTest& t) {
         t.Write("UpdatedInventory.txt", t.Repeat(InventoryBytes("Nail", 100), 255));
         t.Write("CustomItems.txt", t.Repeat(CustomItemBytes("Screw", 100), 255));
     },
     [](MalformedItemFilesTest& t) { EXPECT_EQ(t.Open().lstItems.ListCount(), 510); }},
    {"InventoryOf256RecordsOverflowsItsCount",
     [](MalformedItemFilesTest& t) {
         t.Write("UpdatedInventory.txt", t.Repeat(InventoryBytes("Nail", 100), 256));
     },
     StopsBeforeListing},
    {"ServicesOf5000RecordsOverflowTheirCount",
     [](MalformedItemFilesTest& t) {
         t.Write("Services.txt", t.Repeat(ServiceBytes("Visit", "10"), 5000));
     },
     StopsBeforeListing},
    {"CustomItemsOf256RecordsOverflowTheirCount",
     [](MalformedItemFilesTest& t) {
         t.Write("UpdatedInventory.txt", InventoryBytes("Nail", 100));
         t.Write("CustomItems.txt", t.Repeat(CustomItemBytes("Screw", 100), 256));
     },
     [](MalformedItemFilesTest& t) { EXPECT_THROW(t.Open(), platform::RuntimeError); }},
    {"AFolderInThePlaceOfEachFile",
     [](MalformedItemFilesTest& t) {
         t.Folder("UpdatedInventory.txt");
         t.Folder("Services.txt");
         t.Folder("CustomItems.txt");
     },
     [](MalformedItemFilesTest& t) {
         frmWorkOrder& form = t.Open();
         EXPECT_EQ(form.lstItems.ListCount(), 0);
         EXPECT_FALSE(form.lstServices.Enabled());
     }},
    {"AFolderInThePlaceOfTheTemplate",
     [](MalformedItemFilesTest& t) { t.Folder("Templates/WONarrative.txt"); },
     [](MalformedItemFilesTest& t) {
         frmWorkOrder& form = t.Open();
         EXPECT_FALSE(form.cmdWO[frmWorkOrder::kLoadTemplate].Enabled());
         form.txtWONarrative.SetText("Check the decking.");
         EXPECT_THROW(form.cmdWO[frmWorkOrder::kSaveTemplate].Click(), platform::RuntimeError);
     }},
};

TEST_P(MalformedItemFilesTest, IsListedAsTheFileLayerReadsItOrStopsTheScreen) {
    GetParam().arrange(*this);
    GetParam().check(*this);
}

INSTANTIATE_TEST_SUITE_P(Damaged, MalformedItemFilesTest, ::testing::ValuesIn(kDamages),
                         [](const auto& damage) { return std::string(damage.param.name); });

}  // namespace
}  // namespace workorders_tests
