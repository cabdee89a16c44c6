#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "customers/CustomerDiskRoutines.h"
#include "customers/CustomerHandOff.h"
#include "customers/frmCustomer.h"
#include "customers/frmCustomerSelection.h"
#include "platform/ControlArray.h"
#include "platform/Form.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "setup/BusinessRoutines.h"
#include "setup/SetupHooks.h"
#include "setup/frmSetup.h"
#include "store/SharedState.h"
#include "support/ScreenTesting.h"
#include "support/TestFolder.h"

namespace customers_tests {

// One account as the account book stores it, written field by field in the file's order.
struct Account {
    std::string accountNo, name, address1, address2, city, state, zip, postal, phone, cell, fax,
        title, first, last, type = "Business";
    std::int16_t reserved1 = 0, reserved2 = 0;
};

inline std::string Bytes(const Account& a) {
    platform::RecordWriter w;
    w.Text(a.accountNo, 20);
    w.Text(a.name, 45);
    w.Text(a.address1, 35);
    w.Text(a.address2, 25);
    w.Text(a.city, 25);
    w.Text(a.city, 20);
    w.Text(a.state, 2);
    w.Text(a.zip, 10);
    w.Text(a.postal, 25);
    w.Text(a.phone, 13);
    w.Text(a.cell, 13);
    w.Text(a.fax, 30);
    w.Text(a.title, 10);
    w.Text(a.first, 15);
    w.Text("", 1);
    w.Text(a.last, 25);
    w.Text(a.type, 10);
    w.Int16(a.reserved1);
    w.Int16(a.reserved2);
    return w.Bytes();
}

inline Account Business(const std::string& no, const std::string& name,
                        const std::string& address1 = "", const std::string& city = "Springfield") {
    Account a;
    a.accountNo = no;
    a.name = name;
    a.address1 = address1;
    a.city = city;
    a.state = "IL";
    a.zip = a.postal = "62701";
    return a;
}

inline Account Person(const std::string& no, const std::string& title, const std::string& first,
                      const std::string& last) {
    Account a;
    a.accountNo = no;
    a.title = title;
    a.first = first;
    a.last = last;
    a.type = "Individual";
    a.city = "Springfield";
    a.state = "IL";
    a.zip = a.postal = "62701";
    return a;
}

// A billing record of the billing program: any bytes this program must carry unchanged.
inline std::string BillingBytes(char fill, size_t length) {
    std::string bytes(length, fill);
    bytes[0] = static_cast<char>(0xE9);
    return bytes;
}

// Project creation and the work order as far as the customer screens reach them.
class frmMainStandIn : public platform::Form {
  public:
    static constexpr const char* kName = "frmMain";
    frmMainStandIn() : Form(kName) {}
    platform::ControlArray<platform::TextBox, 8> txtCustomerInfo{*this, "txtCustomerInfo"};
    platform::ControlArray<platform::Label, 8> lblCustomerInfo{*this, "lblCustomerInfo"};
    platform::Label lblAccount{*this, "lblAccount"};
    platform::ControlArray<platform::Label, 2> lblPropNo{*this, "lblPropNo"};
};

class frmWorkOrderStandIn : public platform::Form {
  public:
    static constexpr const char* kName = "frmWorkOrder";
    frmWorkOrderStandIn() : Form(kName) {}
};

class frmDialerStandIn : public platform::Form {
  public:
    static constexpr const char* kName = "frmDialer";
    frmDialerStandIn() : Form(kName) {}
    platform::Label lblName{*this, "lblName"};
    platform::Label lblNumber{*this, "lblNumber"};
};

using testing_support::TypeInto;
template <typename T>
void Register() {
    testing_support::RegisterScreen<T>();
}

// A program folder after set-up, with the customer screens known by name.
class CustomersTest : public ::testing::Test {
  protected:
    CustomersTest() {
        ResetSharedState();
        ResetCustomerBuffers();
        HandedOffAccount = AccountHandOff{};
        ExitProgramHook = nullptr;
        ShowMainMenuHook = nullptr;
        ProbeModemHook = nullptr;
        testing_support::ResetPrintingAndDialogs();
        folder.MakeDirs("Backup");
        folder.MakeDirs("AuxFiles");
        BusinessData = {"Acme Builders", "1 Main St", "", "Springfield", "IL", "62701",
                        "217-555-0100",  "",          ""};
        MenuRoutine = 9;
        Register<frmSetup>();
        Register<frmCustomer>();
        Register<frmCustomerSelection>();
        UseAddressStyle(true);
    }

    // The style of the set-up screen, which the customer screen reads when it opens.
    void UseAddressStyle(bool usa) {
        platform::Screen<frmSetup>().Load();
        platform::Screen<frmSetup>().cmdAddress.SetCaption(usa ? kUsaStyle : kInternationalStyle);
    }

    void WriteAccounts(const std::vector<Account>& accounts) {
        std::string bytes;
        for (const Account& a : accounts) bytes += Bytes(a);
        folder.Write("CustomerData.txt", bytes);
    }

    // Accounts with billing files of their own bytes, record i filled with 'a' + i.
    void WriteBook(const std::vector<Account>& accounts) {
        WriteAccounts(accounts);
        std::string contract, cycle;
        for (size_t i = 0; i < accounts.size(); ++i) {
            contract += BillingBytes(static_cast<char>('a' + i), 386);
            cycle += BillingBytes(static_cast<char>('a' + i), 69);
        }
        folder.Write("ContractInfo.txt", contract);
        folder.Write("CycleInfo.txt", cycle);
    }

    frmCustomer& Open() {
        frmCustomer& form = platform::Screen<frmCustomer>();
        form.Show();
        return form;
    }

    std::string Read(const std::string& relative) const { return folder.Read(relative); }
    bool Exists(const std::string& relative) const { return folder.Exists(relative); }
    const std::vector<platform::HeadlessBackend::ShownBox>& Boxes() { return folder.Ui().Boxes(); }
    std::vector<std::string> BoxTexts() { return testing_support::BoxTexts(folder.Ui()); }
    void Answer(int answer) { folder.Ui().QueueAnswer(answer); }

    testing_support::TestFolder folder;
};

// Record n (from 1) of a file's bytes.
inline std::string RecordOf(const std::string& file, size_t length, size_t n) {
    return file.substr((n - 1) * length, length);
}

}  // namespace customers_tests
