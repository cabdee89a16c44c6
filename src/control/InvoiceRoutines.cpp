#include "control/InvoiceRoutines.h"

#include <cmath>

#include "control/ProjectTables.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "store/BasicDiskRoutines.h"

using namespace platform;

namespace {

constexpr const char* kPaymentsFolder = "\\NorvaxProposals\\ProposalPayments\\";

// A 32-bit whole number from text, as the platform converts it.
std::int32_t ToLong(const std::string& text) {
    const double rounded = std::nearbyint(Val(text));
    if (rounded < -2147483648.0 || rounded > 2147483647.0) Raise(6, text);  // Overflow
    return static_cast<std::int32_t>(rounded);
}

// A proposal number names a file in the payments folder and nothing outside it.
std::string PaymentsFile(const std::string& proposalNo) {
    if (proposalNo.find_first_of("/\\") != std::string::npos || proposalNo == "..")
        Raise(err::PathFileAccessError, proposalNo);
    return kPaymentsFolder + proposalNo + ".txt";
}

}  // namespace

std::int32_t GetInvoiceNumber() {
    const std::string year = std::to_string(Today().Year());
    std::int32_t number = 0;
    if (FindFile(kInvoiceNumberFile)) {
        OpenForInput(kInvoiceNumberFile);
        // An empty file counts as a damaged one.
        const std::string text = Eof(MainFileNo) ? std::string() : InputString(MainFileNo);
        CloseAll();
        if (IsNumeric(text)) number = ToLong(text);
        if (!IsNumeric(text) || number == 0) number = ToLong(year + "0000");
    } else {
        number = ToLong(year + "0001");
    }
    // The year is compared as text: a number of an earlier year starts the count again.
    if (std::to_string(number).substr(0, 4) < year) number = ToLong(year + "0001");
    return number;
}

void WriteInvoiceRecord(int project, std::int32_t number, const std::string& amount) {
    const ProjectHeader& h = HeaderOf(project);
    const int f = MainFileNo;
    const std::string invoice = std::to_string(number);
    const std::string today = ShortDate(Today());
    for (const std::string& line : {invoice, Trim(h.account), Trim(h.billingName), today})
        PrintLine(f, line);
    for (const std::string* quoted :
         {&h.billingName, &h.billingAddress1, &h.billingAddress2, &h.billingCity, &h.billingState,
          &h.billingZip, &h.siteName, &h.siteAddress1, &h.siteAddress2, &h.siteCity, &h.siteState,
          &h.siteZip})
        WriteFields(f, {Text(*quoted)});
    for (const std::string& line :
         {invoice, Trim(h.account), Trim(h.projectNo), std::string(), std::string("1"),
          std::string("1"), h.title, today, amount, amount, std::string("False")})
        PrintLine(f, line);
}

void StoreNextInvoiceNumber(std::int32_t number) {
    OpenForRewrite(kInvoiceNumberFile);
    WriteFields(MainFileNo, {Field(static_cast<double>(number) + 1)});
    CloseAll();
    DeleteFile(std::string("/Backup") + kInvoiceNumberFile);
}

void CreateInvoiceRecord(int project) {
    const std::int32_t number = GetInvoiceNumber();
    std::string amount = FormatCurrency(0);
    const std::string payments = PaymentsFile(HeaderOf(project).proposalNo);
    if (FindFile(payments)) {
        OpenForInput(payments);
        // A file with no line leaves the amount at nothing paid.
        if (!Eof(MainFileNo)) amount = LineInput(MainFileNo);
        CloseAll();
    }
    OpenForOutput(kIncompleteInvoices + std::to_string(number) + ".txt");
    WriteInvoiceRecord(project, number, amount);
    CloseAll();
    MsgBox("A Partial Invoice Record has been created with\r\nan Invoice Number of " +
           std::to_string(number) +
           "\r\nFollow the Partial Invoice Routine of Norvax Invoicer\r\nto Complete the Invoice");
    StoreNextInvoiceNumber(number);
}
