#pragma once

#include <cstdint>
#include <string>

#include "platform/ControlArray.h"
#include "platform/Controls.h"
#include "platform/Form.h"

// The account book: the only screen that adds, edits and deletes customers. It also finds an
// account and hands it to the routine the main menu started (a project or a work order).
// The account on screen is saved on every move; the screen has no save button.
class frmCustomer : public platform::Form {
  public:
    static constexpr const char* kName = "frmCustomer";
    static constexpr const char* kBusiness = "Business";
    static constexpr const char* kIndividual = "Individual";

    // Boxes of txtCustomer.
    enum Box {
        kAccountNoBox = 0,
        kNameBox = 1,
        kAddress1Box = 2,
        kAddress2Box = 3,
        kZipBox = 5,
        kTelephoneBox = 6,
        kFaxEmailBox = 7,
        kFirstNameBox = 8,
        kMiddleBox = 9,
        kLastNameBox = 10,
        kCellBox = 11
    };

    frmCustomer();

    // ---- The account (index 4 of the boxes is not used)
    platform::ControlArray<platform::Label, 12> lblCustomer{*this, "lblCustomer"};
    platform::ControlArray<platform::TextBox, 12> txtCustomer{*this, "txtCustomer"};
    platform::Label lbLType{*this, "lbLType"};
    platform::CommandButton cmdAcctType{*this, "cmdAcctType"};
    platform::Label lblTitle{*this, "lblTitle"};
    platform::ComboBox cboTitle{*this, "cboTitle"};
    platform::Frame fraUSAddress{*this, "fraUSAddress"};
    platform::Label lblCity{*this, "lblCity"};
    platform::ComboBox cboCity{*this, "cboCity"};
    platform::Label lblState{*this, "lblState"};
    platform::ComboBox cboStates{*this, "cboStates"};
    platform::Frame fraIntAddress{*this, "fraIntAddress"};
    platform::Label lblAdd3{*this, "lblAdd3"};
    platform::TextBox txtAdd3{*this, "txtAdd3"};
    platform::Label lblAdd4{*this, "lblAdd4"};
    platform::TextBox txtAdd4{*this, "txtAdd4"};
    platform::Image imgDialer{*this, "imgDialer"};
    platform::Label lblRecordNo{*this, "lblRecordNo"};

    // ---- Moving, adding and leaving
    platform::ControlArray<platform::CommandButton, 7> cmdNav{*this, "cmdNav"};
    platform::CommandButton cmdSchedule{*this, "cmdSchedule"};
    platform::CommandButton cmdExit{*this, "cmdExit"};
    platform::CommandButton cmdNew{*this, "cmdNew"};
    platform::CommandButton cmdCustomer{*this, "cmdCustomer"};

    // ---- Finding an account
    platform::ControlArray<platform::CommandButton, 4> Command1{*this, "Command1"};
    platform::ComboBox cboAccounts{*this, "cboAccounts"};
    platform::Frame fraSearch{*this, "fraSearch"};
    platform::ControlArray<platform::OptionButton, 9> optSearch{*this, "optSearch"};
    platform::Label lblSearchfor{*this, "lblSearchfor"};
    platform::TextBox txtSearchfor{*this, "txtSearchfor"};
    platform::CommandButton cmdStartSearch{*this, "cmdStartSearch"};
    platform::Frame fraCustomersFound{*this, "fraCustomersFound"};
    platform::Grid fgCustomersFound{*this, "fgCustomersFound"};
    platform::CommandButton cmdPrintCustomers{*this, "cmdPrintCustomers"};
    platform::CommandButton cmdRetry{*this, "cmdRetry"};

    // ---- Auxiliary data: six boxes under headings shared by all accounts
    platform::Frame fraAux{*this, "fraAux"};
    platform::Label lblAuxHelp{*this, "lblAuxHelp"};
    platform::Label lblAccount{*this, "lblAccount"};
    platform::CheckBox ckSaveAux{*this, "ckSaveAux"};
    platform::ControlArray<platform::TextBox, 6> txtHeading{*this, "txtHeading"};
    platform::ControlArray<platform::TextBox, 6> txtAux{*this, "txtAux"};
    platform::ControlArray<platform::Label, 6> lblClear{*this, "lblClear"};
    // 0, 2, 3, 7 and 8 below the boxes, 4 to 6 beside the big box; 1 is not used.
    platform::ControlArray<platform::CommandButton, 9> cmdSaveAux{*this, "cmdSaveAux"};
    platform::Label lblSaveHelp{*this, "lblSaveHelp"};
    platform::Frame fraBig{*this, "fraBig"};
    platform::Label lblEditing{*this, "lblEditing"};
    platform::TextBox txtBig{*this, "txtBig"};

    // ---- Menus
    platform::Menu mnuCustomer{*this, "mnuCustomer"};
    platform::Menu mnuAdd{*this, "mnuAdd"};
    platform::Menu mnuDelete{*this, "mnuDelete"};
    platform::Menu mnuPrint{*this, "mnuPrint"};
    platform::Menu mnuAux{*this, "mnuAux"};
    platform::Menu mnuSaveList{*this, "mnuSaveList"};
    platform::Menu mnupopup{*this, "mnupopup"};
    platform::Menu mnuSelect{*this, "mnuSelect"};

    // ---- State of the screen
    std::int32_t CurrentRecord = 1;
    std::int32_t RecordCount = 0;
    bool USAddress = false;
    bool SaveAccepted = false;
    int SearchOption = 8;
    int AuxBoxInEdit = 0;
    // Set by Delete and Backspace in cboAccounts: the next change leaves the text alone.
    bool TypeAheadPaused = false;

    // ---- Handlers
    void Form_Load();
    void Form_Activate();
    void Form_QueryUnload(platform::EventArgs& e);
    void cmdNav_Click(int index);
    void cmdNew_Click();
    void mnuAdd_Click();
    void cmdCustomer_Click();
    void cmdExit_Click();
    void mnuDelete_Click();
    void cmdAcctType_Click();
    void txtCustomer_LostFocus(int index);
    void txtCustomer_KeyPress(int index, platform::EventArgs& e);
    void txtAdd3_KeyPress(platform::EventArgs& e);
    void txtAdd4_KeyPress(platform::EventArgs& e);
    void Command1_Click(int index);
    void cboAccounts_Change();
    void cboAccounts_KeyDown(platform::EventArgs& e);
    void cboAccounts_KeyPress(platform::EventArgs& e);
    void cboAccounts_LostFocus();
    void cboAccounts_Click();
    void optSearch_Click(int index);
    void cmdStartSearch_Click();
    void mnuPrint_Click();
    void fgCustomersFound_MouseUp(platform::EventArgs& e);
    void fgCustomersFound_DblClick();
    void mnuSelect_Click();
    void cmdRetry_Click();
    void cmdPrintCustomers_Click();
    void imgDialer_Click();
    void cmdSchedule_Click();
    void mnuAux_Click();
    void mnuSaveList_Click();
    void cmdSaveAux_Click(int index);
    void txtAux_DblClick(int index);
    void lblClear_Click(int index);

  private:
    void LayOut();
    void LayOutAux();
    void RegisterHandlers();
};
