#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "contacts/frmContacts.h"
#include "platform/Dialogs.h"
#include "platform/Form.h"
#include "platform/Printer.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "platform/headless/HeadlessDialogs.h"
#include "platform/headless/HeadlessPrinter.h"
#include "setup/SetupHooks.h"
#include "setup/frmSetup.h"
#include "store/SharedState.h"
#include "support/ScreenTesting.h"
#include "support/TestFolder.h"

namespace contacts_tests {

// One contact as VendorData.txt stores it, written field by field in the file's order.
struct Contact {
    std::string accountNo, name, address1, address2, city, state, zip, phone, email, category,
        keyContact;
};

inline std::string Bytes(const Contact& c) {
    platform::RecordWriter w;
    w.Text(c.accountNo, 20);
    w.Text(c.name, 30);
    w.Text(c.address1, 35);
    w.Text(c.address2, 25);
    w.Text(c.city, 20);
    w.Text(c.state, 2);
    w.Text(c.zip, 10);
    w.Text(c.phone, 13);
    w.Text(c.email, 30);
    w.Text(c.category, 20);
    w.Text(c.keyContact, 30);
    return w.Bytes();
}

inline Contact Vendor(const std::string& no, const std::string& name, const std::string& city,
                      const std::string& phone, const std::string& category = "Vendor") {
    return {no, name, "1 " + name + " Way", "", city, "IL", "62701", phone, "", category, "Pat"};
}

class frmDialerStandIn : public platform::Form {
  public:
    static constexpr const char* kName = "frmDialer";
    frmDialerStandIn() : Form(kName) {}
    platform::Label lblName{*this, "lblName"};
    platform::Label lblNumber{*this, "lblNumber"};
};

using testing_support::TypeInto;

// A program folder after set-up, with the contact screen known by name.
class ContactsTest : public ::testing::Test {
  protected:
    ContactsTest() {
        ResetSharedState();
        ExitProgramHook = nullptr;
        ShowMainMenuHook = nullptr;
        ProbeModemHook = nullptr;
        testing_support::ResetPrintingAndDialogs();
        folder.MakeDirs("Backup");
        BusinessData = {"Acme Builders", "1 Main St", "", "Springfield", "IL", "62701",
                        "217-555-0100",  "",          ""};
        SoundAlarms = true;
        MenuRoutine = 7;
        testing_support::RegisterScreen<frmSetup>();
        testing_support::RegisterScreen<frmContacts>();
        platform::Screen<frmSetup>().Load();
    }

    void WriteContacts(const std::vector<Contact>& contacts) {
        std::string bytes;
        for (const Contact& c : contacts) bytes += Bytes(c);
        folder.Write("VendorData.txt", bytes);
    }

    // Three contacts whose file order is not their order by name.
    void WriteThree() {
        WriteContacts(
            {Vendor("V1", "Zeta Lumber", "Peoria", "309-555-0101"),
             Vendor("V2", "Alpha Electric", "Springfield", "217-555-0102", "Sub-Contractor"),
             Vendor("V3", "Midway Supply", "Peoria", "309-555-0103", "Supplier")});
    }

    frmContacts& Open() {
        frmContacts& form = platform::Screen<frmContacts>();
        form.Show();
        return form;
    }

    std::string Read(const std::string& relative) const { return folder.Read(relative); }
    bool Exists(const std::string& relative) const { return folder.Exists(relative); }
    std::vector<std::string> BoxTexts() { return testing_support::BoxTexts(folder.Ui()); }
    void Answer(int answer) { folder.Ui().QueueAnswer(answer); }

    testing_support::TestFolder folder;
};

// Record n (from 1) of a file's bytes.
inline std::string RecordOf(const std::string& file, size_t n) {
    return file.substr((n - 1) * 235, 235);
}

}  // namespace contacts_tests
