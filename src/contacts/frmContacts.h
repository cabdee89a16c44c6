#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/ControlArray.h"
#include "platform/Controls.h"
#include "platform/Form.h"
#include "platform/RecordLayout.h"

// "Payto Selection": the firm's vendors, suppliers, sub-contractors and card companies, one
// record of VendorData.txt at a time. The screen has no save button: every move to another
// record, every search and leaving the screen save the record on display.
class frmContacts : public platform::Form {
  public:
    static constexpr const char* kName = "frmContacts";

    // Boxes of txtContact; the array has no element 7.
    enum Box {
        kAccountNoBox = 0,
        kNameBox = 1,
        kAddress1Box = 2,
        kAddress2Box = 3,
        kStateBox = 4,
        kZipBox = 5,
        kTelephoneBox = 6,
        kKeyContactBox = 8,
        kEMailBox = 9
    };
    // Kinds of search: the index of optSearch, and the list of every contact.
    enum SearchBy { kByName = 0, kByTelephone = 6, kByCategory = 7, kAllContacts = 10 };

    // txtContact(0) to txtContact(9) without 7.
    class ContactBoxes {
      public:
        explicit ContactBoxes(platform::Form& form);
        platform::TextBox& operator[](int index);
        bool Has(int index) const;

      private:
        std::array<std::unique_ptr<platform::TextBox>, 10> boxes_;
    };

    frmContacts();

    // ---- One contact
    platform::Frame fraContact{*this, "fraContact"};
    platform::ControlArray<platform::Label, 11> lblContact{*this, "lblContact"};
    ContactBoxes txtContact{*this};
    platform::ComboBox cboCity{*this, "cboCity"};
    platform::ComboBox cboStates{*this, "cboStates"};
    platform::ComboBox cboCategory{*this, "cboCategory"};
    platform::Image imgPhone{*this, "imgPhone"};
    platform::Label lblRecord{*this, "lblRecord"};
    platform::ControlArray<platform::CommandButton, 4> cmdNav{*this, "cmdNav"};
    platform::ControlArray<platform::CommandButton, 2> Command1{*this, "Command1"};
    platform::CommandButton cmdExit{*this, "cmdExit"};

    // ---- Finding contacts
    platform::Frame fraSearch{*this, "fraSearch"};
    platform::ControlArray<platform::OptionButton, 8> optSearch{*this, "optSearch"};
    platform::Label lblSearchfor{*this, "lblSearchfor"};
    platform::TextBox txtSearchfor{*this, "txtSearchfor"};
    platform::CommandButton cmdStartSearch{*this, "cmdStartSearch"};
    platform::Frame fraContactsFound{*this, "fraContactsFound"};
    platform::Grid fgContactsFound{*this, "fgContactsFound"};
    platform::CommandButton cmdPrintContacts{*this, "cmdPrintContacts"};
    platform::CommandButton cmdRetry{*this, "cmdRetry"};

    // ---- The vendor list, over the other frames
    platform::Frame fraSuppliers{*this, "fraSuppliers"};
    platform::Grid fgVendors{*this, "fgVendors"};
    platform::ControlArray<platform::CommandButton, 2> cmdVendorList{*this, "cmdVendorList"};

    // ---- Menus
    platform::Menu mnuContacts{*this, "mnuContacts"};
    platform::Menu mnuAdd{*this, "mnuAdd"};
    platform::Menu mnuDelete{*this, "mnuDelete"};
    platform::Menu mnuPrint{*this, "mnuPrint"};
    platform::Menu mnuView{*this, "mnuView"};
    platform::Menu mnuSaveList{*this, "mnuSaveList"};
    platform::Menu mnupopup{*this, "mnupopup"};
    platform::Menu mnuSelect{*this, "mnuSelect"};

    // ---- State of the screen
    std::int32_t ContactRec = 0;    // record on display, 0 for none
    std::int32_t ContactCount = 0;  // records of the file, and a new one being added
    std::int16_t SearchKind = kByTelephone;

    // ---- Handlers
    void Form_Load();
    void Form_Activate();
    void Form_QueryUnload(platform::EventArgs& e);
    void cmdNav_Click(int index);
    void txtContact_LostFocus(int index);
    void mnuAdd_Click();
    void Command1_Click(int index);
    void mnuDelete_Click();
    void cmdStartSearch_Click();
    void mnuPrint_Click();
    void mnuSelect_Click();
    void fgContactsFound_DblClick();
    void fgContactsFound_MouseUp(platform::EventArgs& e);
    void cmdRetry_Click();
    void cmdVendorList_Click(int index);
    void fgVendors_Click();
    void mnuView_Click();
    void mnuSaveList_Click();
    void cboStates_Click();
    void imgPhone_Click();
    void cmdPrintContacts_Click();
    void cmdExit_Click();

    // The contacts in the order the vendor list shows them: by name, as the list sorts.
    std::vector<platform::Record> ListedVendors();

  private:
    void LayOut();
    void RegisterHandlers();
    void LoadCategories();
    void LoadVendors();
    void LoadStates();
    void ShowContact();
    void ClearContact();
    void SaveContact();
    void AddCity(const std::string& city);
    void AddNewContact();
    void SearchContacts(int kind, const std::string& key);
    void AddFoundRow(int row, std::int32_t recordNo, const platform::Record& record);
    void ShowFrame(platform::Frame& frame);

    // The trimmed rows of cboCity, so that a file of thousands of contacts adds cities
    // without a scan of the list for each.
    std::set<std::string> cities_;
};
