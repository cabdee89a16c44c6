#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "customers/CustomerDiskRoutines.h"
#include "customers/CustomerHandOff.h"
#include "customers/frmCustomer.h"
#include "platform/Dialogs.h"
#include "platform/Form.h"
#include "platform/Printer.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "platform/headless/HeadlessDialogs.h"
#include "platform/headless/HeadlessPrinter.h"
#include "setup/BusinessRoutines.h"
#include "setup/SetupHooks.h"
#include "setup/frmSetup.h"
#include "store/SharedState.h"
#include "support/ScreenTesting.h"
#include "support/TestFolder.h"
#include "workorders/frmWorkOrder.h"

namespace workorders_tests {

// Records of the service-call program's item files, written field by field; the reserved
// fields hold bytes of that program.
inline std::string InventoryBytes(const std::string& description, std::int64_t price) {
    platform::RecordWriter w;
    w.Text(description, 40);
    w.Text("SKU-" + description.substr(0, 4), 20);
    w.Double(3.5);
    w.Currency(price);
    w.Int16(7);
    w.Double(1.25);
    w.Int32(99);
    w.Int16(1);
    w.Int16(2);
    w.Text("Shelf B", 20);
    w.Int16(-1);
    w.Double(0);
    return w.Bytes();
}

inline std::string ServiceBytes(const std::string& description, const std::string& price) {
    platform::RecordWriter w;
    w.Text(description, 60);
    w.Text(price, 10);
    w.Int16(3);
    return w.Bytes();
}

inline std::string CustomItemBytes(const std::string& description, std::int64_t price) {
    platform::RecordWriter w;
    w.Text(description, 50);
    w.Currency(price);
    w.Double(2);
    w.Int32(5);
    return w.Bytes();
}

using testing_support::TypeInto;

// A program folder after set-up, with an account handed over by the customer screen.
class WorkOrderTest : public ::testing::Test {
  protected:
    WorkOrderTest() {
        ResetSharedState();
        ResetCustomerBuffers();
        HandedOffAccount = AccountHandOff{};
        ExitProgramHook = nullptr;
        ShowMainMenuHook = nullptr;
        ProbeModemHook = nullptr;
        testing_support::ResetPrintingAndDialogs();
        folder.MakeDirs("Backup");
        folder.MakeDirs("Templates");
        BusinessData = {"Acme Builders", "1 Main St", "", "Springfield", "IL", "62701",
                        "217-555-0100",  "",          ""};
        SoundAlarms = true;
        MenuRoutine = 2;
        testing_support::RegisterScreen<frmSetup>();
        testing_support::RegisterScreen<frmCustomer>();
        testing_support::RegisterScreen<frmWorkOrder>();
        platform::Screen<frmSetup>().Load();
        platform::Screen<frmSetup>().cmdAddress.SetCaption(kUsaStyle);
        HandAccount();
    }

    // The account as the customer screen leaves it: its boxes, the buffer and the hand-off.
    void HandAccount() {
        frmCustomer& customer = platform::Screen<frmCustomer>();
        const char* boxes[] = {"C100", "Hammer & Sons", "12 Oakwood Dr", "Suite 4",
                               "",     "62701",         "217-555-0199",  "fax 217-555-0198"};
        for (int i = 0; i < 8; ++i) customer.txtCustomer[i].SetText(boxes[i]);
        CustomerRecord.SetText("AccountNo", "C100");
        CustomerRecord.SetText("Address1", "12 Oakwood Dr");
        CustomerRecord.SetText("City", "Decatur");
        CustomerRecord.SetText("State", "IL");
        CustomerRecord.SetText("ZipCode", "62521");
        HandedOffAccount.siteInfo[1] = "Hammer & Sons";
        HandedOffAccount.account = "C100";
    }

    void WriteItems(const std::vector<std::string>& inventory,
                    const std::vector<std::string>& custom,
                    const std::vector<std::string>& services) {
        auto join = [](const std::vector<std::string>& records) {
            std::string bytes;
            for (const std::string& r : records) bytes += r;
            return bytes;
        };
        if (!inventory.empty()) folder.Write("UpdatedInventory.txt", join(inventory));
        if (!custom.empty()) folder.Write("CustomItems.txt", join(custom));
        if (!services.empty()) folder.Write("Services.txt", join(services));
    }

    // Two inventory items, one custom item and two services.
    void WriteUsualItems() {
        WriteItems({InventoryBytes("Shingles, bundle", 289900), InventoryBytes("Flashing", 12345)},
                   {CustomItemBytes("Custom gutter guard", 123456700)},
                   {ServiceBytes("Roof inspection", "75.00"), ServiceBytes("Tear-off", "$1,250")});
    }

    frmWorkOrder& Open() {
        frmWorkOrder& form = platform::Screen<frmWorkOrder>();
        form.Show();
        return form;
    }

    std::string Read(const std::string& relative) const { return folder.Read(relative); }
    bool Exists(const std::string& relative) const { return folder.Exists(relative); }
    std::vector<std::string> BoxTexts() { return testing_support::BoxTexts(folder.Ui()); }
    void Answer(int answer) { folder.Ui().QueueAnswer(answer); }

    testing_support::TestFolder folder;
};

inline std::vector<std::string> Entries(const platform::ListControl& list) {
    std::vector<std::string> texts;
    for (const auto& entry : list.Items()) texts.push_back(entry.text);
    return texts;
}

}  // namespace workorders_tests
