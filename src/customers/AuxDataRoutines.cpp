#include "customers/AuxDataRoutines.h"

#include "customers/CustomerRoutines.h"
#include "customers/frmCustomer.h"
#include "platform/Files.h"
#include "platform/Records.h"
#include "store/BasicDiskRoutines.h"

using namespace platform;

namespace {

constexpr int kBoxes = 6;

std::string AccountOnScreen(frmCustomer& form) {
    return Trim(form.txtCustomer[frmCustomer::kAccountNoBox].Text());
}

}  // namespace

std::string AuxDataPath(const std::string& accountNo, int box) {
    return "/AuxFiles/" + CheckedName(accountNo) + "/AuxFile" + std::to_string(box) + "/Data.txt";
}

void LoadAuxHeadings(frmCustomer& form) {
    if (!FindFile(kAuxHeadingsFile)) return;
    OpenForInput(kAuxHeadingsFile);
    const int file = MainFileNo;
    for (int i = 0; i < kBoxes; ++i) form.txtHeading[i].SetText(LineInput(file));
    CloseAll();
}

void SaveAuxHeadings(frmCustomer& form) {
    OpenForRewrite(kAuxHeadingsFile);
    const int file = MainFileNo;
    for (int i = 0; i < kBoxes; ++i) PrintLine(file, form.txtHeading[i].Text());
    CloseAll();
    DeleteFile(std::string("/Backup") + kAuxHeadingsFile);
}

void SaveAuxData(frmCustomer& form) {
    const std::string account = AccountOnScreen(form);
    // A new account may not have its folders yet.
    MakeAuxFolders(account);
    for (int i = 0; i < kBoxes; ++i) {
        OpenForRewrite(AuxDataPath(account, i));
        PrintLine(MainFileNo, form.txtAux[i].Text());
        CloseAll();
    }
}

void LoadAuxData(frmCustomer& form) {
    if (form.ckSaveAux.Value() == 1) return;
    ClearAuxBoxes(form);
    const std::string account = AccountOnScreen(form);
    // A number that names no folder of its own has no data to show.
    if (!NameStaysInFolder(account)) return;
    for (int i = 0; i < kBoxes; ++i) {
        const std::string path = AuxDataPath(account, i);
        if (!FindFile(path)) continue;
        // Read as delimited values: a comma starts a new line, a leading quote goes.
        OpenForInput(path);
        const int file = MainFileNo;
        std::string text;
        while (!Eof(file)) text += InputString(file) + "\r\n";
        CloseAll();
        form.txtAux[i].SetText(text);
    }
}

void ClearAuxBoxes(frmCustomer& form) {
    for (int i = 0; i < kBoxes; ++i) form.txtAux[i].SetText("");
}

void ShowAuxTitle(frmCustomer& form) {
    if (form.lbLType.Caption() == frmCustomer::kIndividual) {
        form.lblAccount.SetCaption(form.cboTitle.Text() + " " +
                                   form.txtCustomer[frmCustomer::kFirstNameBox].Text() + " " +
                                   form.txtCustomer[frmCustomer::kLastNameBox].Text());
    } else {
        form.lblAccount.SetCaption(form.txtCustomer[frmCustomer::kNameBox].Text());
    }
}
