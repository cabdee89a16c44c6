// Choosing what goes on the work order: the three item files listed, the price that follows
// its row, duplicates refused, "Select All" with the prices of the list, and the narrative
// template kept in Templates.
#include "WorkOrderFixture.h"

namespace workorders_tests {
namespace {

using Strings = std::vector<std::string>;

class ItemListsTest : public WorkOrderTest {};

TEST_F(ItemListsTest, InventoryThenCustomItemsThenServicesWithTheirPrices) {
    WriteUsualItems();
    frmWorkOrder& form = Open();
    EXPECT_EQ(Entries(form.lstItems),
              (Strings{"Shingles, bundle", "Flashing", "Custom gutter guard"}));
    EXPECT_EQ(Entries(form.cboPrices[frmWorkOrder::kItemPrices]),
              (Strings{"$28.99", "$1.23", "$12,345.67"}));
    EXPECT_EQ(Entries(form.lstServices), (Strings{"Roof inspection", "Tear-off"}));
    EXPECT_EQ(Entries(form.cboPrices[frmWorkOrder::kServicePrices]), (Strings{"75.00", "$1,250"}));
    EXPECT_EQ(Entries(form.cboHeading),
              (Strings{"Work Order", "Service Order", "Repair Order", "Estimate"}));
    EXPECT_EQ(form.cboHeading.Text(), "Work Order");
    EXPECT_EQ(form.lstItems.ListIndex(), 0);
    EXPECT_EQ(form.cboPrices[frmWorkOrder::kItemPrices].Text(), "$28.99");
    // The account of the customer screen, box by box, and the name as it composed it.
    EXPECT_EQ(form.lblAccount[0].Caption(), "C100");
    EXPECT_EQ(form.lblAccount[1].Caption(), "Hammer & Sons");
    EXPECT_EQ(form.lblAccount[4].Caption(), "");
    EXPECT_EQ(form.lblAccount[6].Caption(), "217-555-0199");
    EXPECT_FALSE(form.cmdWO[frmWorkOrder::kLoadTemplate].Enabled());
}

TEST_F(ItemListsTest, AMissingFileLeavesItsListEmptyAndClosed) {
    WriteItems({}, {}, {ServiceBytes("Roof inspection", "75.00")});
    frmWorkOrder& form = Open();
    EXPECT_EQ(form.lstItems.ListCount(), 0);
    EXPECT_FALSE(form.lstItems.Enabled());
    EXPECT_FALSE(form.cmdWO[frmWorkOrder::kAllItems].Enabled());
    form.cmdWO[frmWorkOrder::kAllItems].Click();
    EXPECT_EQ(form.lstItemsList.ListCount(), 0);
    EXPECT_TRUE(form.lstServices.Enabled());
}

TEST_F(ItemListsTest, ThePriceFollowsTheRowAndAnOvertypedPriceIsAddedWithIt) {
    WriteUsualItems();
    frmWorkOrder& form = Open();
    form.lstItems.SetListIndex(2);
    EXPECT_EQ(form.cboPrices[frmWorkOrder::kItemPrices].Text(), "$12,345.67");
    form.cboPrices[frmWorkOrder::kItemPrices].SetText("$9,999.00");
    form.cmdWO[frmWorkOrder::kAddItem].Click();
    EXPECT_EQ(Entries(form.lstItemsList), (Strings{"Custom gutter guard"}));
    EXPECT_EQ(Entries(form.lstPrices[frmWorkOrder::kItemPrices]), (Strings{"$9,999.00"}));

    // The same description again is refused with a beep, whatever its price.
    form.cboPrices[frmWorkOrder::kItemPrices].SetText("$1.00");
    form.cmdWO[frmWorkOrder::kAddItem].Click();
    EXPECT_EQ(form.lstItemsList.ListCount(), 1);
    EXPECT_EQ(folder.Ui().Beeps(), 1);

    // Select All takes the prices of the list and skips what is there already.
    form.cmdWO[frmWorkOrder::kAllItems].Click();
    EXPECT_EQ(Entries(form.lstItemsList),
              (Strings{"Custom gutter guard", "Shingles, bundle", "Flashing"}));
    EXPECT_EQ(Entries(form.lstPrices[frmWorkOrder::kItemPrices]),
              (Strings{"$9,999.00", "$28.99", "$1.23"}));
    form.lstServices.SetListIndex(1);
    form.cmdWO[frmWorkOrder::kAddService].Click();
    EXPECT_EQ(Entries(form.lstPrices[frmWorkOrder::kServicePrices]), (Strings{"$1,250"}));

    form.cmdWO[frmWorkOrder::kClearLists].Click();
    for (auto* list :
         {&form.lstItemsList, &form.lstServicesList, &form.lstPrices[0], &form.lstPrices[1]})
        EXPECT_EQ(list->ListCount(), 0);
}

TEST_F(ItemListsTest, TheNarrativeTemplateIsSavedLoadedAndClearedInTemplates) {
    frmWorkOrder& form = Open();
    form.cmdWO[frmWorkOrder::kSaveTemplate].Click();
    EXPECT_EQ(BoxTexts().back(), "[Norvax Construction Scheduler] Enter Data in Narrative Box");
    EXPECT_FALSE(Exists("Templates/WONarrative.txt"));

    form.txtWONarrative.SetText("Remove old shingles.\r\nCheck the decking.");
    form.cmdWO[frmWorkOrder::kSaveTemplate].Click();
    EXPECT_EQ(Read("Templates/WONarrative.txt"), "Remove old shingles.\r\nCheck the decking.\r\n");
    EXPECT_TRUE(form.cmdWO[frmWorkOrder::kLoadTemplate].Enabled());

    form.cmdWO[frmWorkOrder::kClearNarrative].Click();
    EXPECT_EQ(form.txtWONarrative.Text(), "");
    form.cmdWO[frmWorkOrder::kLoadTemplate].Click();
    EXPECT_EQ(form.txtWONarrative.Text(), "Remove old shingles.\r\nCheck the decking.\r\n");

    // The next visit finds the template.
    form.cmdWO[frmWorkOrder::kMenu].Click();
    EXPECT_FALSE(form.Visible());
    form.Show();
    EXPECT_TRUE(form.cmdWO[frmWorkOrder::kLoadTemplate].Enabled());
}

}  // namespace
}  // namespace workorders_tests
