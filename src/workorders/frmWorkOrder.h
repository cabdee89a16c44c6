#pragma once

#include "platform/ControlArray.h"
#include "platform/Controls.h"
#include "platform/Form.h"

// "Create Work Order or Estimate": prints, for the account open on the customer screen, the
// work order form with its narrative, a parts and services list and a summary report to be
// filled in by hand. Nothing of a work order is stored but the narrative template.
class frmWorkOrder : public platform::Form {
  public:
    static constexpr const char* kName = "frmWorkOrder";

    // Buttons of cmdWO.
    enum Button {
        kMenu = 0,
        kPrint = 1,
        kHideAccount = 2,
        kClearLists = 3,
        kAddService = 4,
        kAddItem = 5,
        kSaveTemplate = 6,
        kClearNarrative = 7,
        kLoadTemplate = 8,
        kAllItems = 9,
        kAllServices = 10
    };
    // Index of cboPrices and lstPrices: services 0, items 1.
    enum Prices { kServicePrices = 0, kItemPrices = 1 };

    frmWorkOrder();

    platform::Label lblHeading{*this, "lblHeading"};
    platform::ComboBox cboHeading{*this, "cboHeading"};
    platform::Frame fraAccount{*this, "fraAccount"};
    platform::ControlArray<platform::Label, 8> lblAccount{*this, "lblAccount"};

    platform::Label lblItems{*this, "lblItems"};
    platform::ListBox lstItems{*this, "lstItems"};
    platform::Label lblServices{*this, "lblServices"};
    platform::ListBox lstServices{*this, "lstServices"};
    platform::ControlArray<platform::ComboBox, 2> cboPrices{*this, "cboPrices"};
    platform::Label lblItemsList{*this, "lblItemsList"};
    platform::ListBox lstItemsList{*this, "lstItemsList"};
    platform::Label lblServicesList{*this, "lblServicesList"};
    platform::ListBox lstServicesList{*this, "lstServicesList"};
    platform::ControlArray<platform::ListBox, 2> lstPrices{*this, "lstPrices"};

    platform::Label lblNarrative{*this, "lblNarrative"};
    platform::TextBox txtWONarrative{*this, "txtWONarrative"};
    platform::CheckBox ckCompletion{*this, "ckCompletion"};
    platform::ControlArray<platform::CommandButton, 11> cmdWO{*this, "cmdWO"};

    // ---- Handlers
    void Form_Load();
    void Form_Activate();
    void Form_QueryUnload(platform::EventArgs& e);
    void lstItems_Click();
    void lstServices_Click();
    void cmdWO_Click(int index);

    // The full name of the account, as the customer screen composed it.
    std::string CustomerName() const;

  private:
    void LayOut();
    void LoadAdditionalItems();
    void LoadServices();
    void LoadCustomItems();
    void ClearPartsList();
    void AddChosen(platform::ListBox& from, platform::ComboBox& prices, platform::ListBox& chosen,
                   platform::ListBox& chosenPrices);
    void AddAll(platform::ListBox& from, platform::ComboBox& prices, platform::ListBox& chosen,
                platform::ListBox& chosenPrices);
    void StoreNarrative();
    void SaveNarrativeTemplate();
    void LoadNarrativeTemplate();
    void PrintDocuments();
    void PrintSummaryBeside();
};
