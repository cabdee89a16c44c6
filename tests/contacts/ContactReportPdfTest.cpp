// The contact report as a person sees it: written to PDF through the desktop printer.
#include <QApplication>
#include <cstdlib>
#include <fstream>

#include "ContactsFixture.h"
#include "platform/qtdevices/QtDevices.h"

namespace contacts_tests {
namespace {

class ContactReportPdfTest : public ContactsTest {};

TEST_F(ContactReportPdfTest, TheReportGoesToPdf) {
    std::vector<Contact> contacts;
    for (int i = 1; i <= 32; ++i)
        contacts.push_back(Vendor("V" + std::to_string(i), "Vendor Number " + std::to_string(i),
                                  "Peoria", "309-555-01" + std::to_string(10 + i)));
    WriteContacts(contacts);
    Answer(platform::vbYes);
    frmContacts& form = Open();
    form.mnuPrint.Raise("Click");
    form.cmdPrintContacts.Click();
    ASSERT_EQ(platform::RecordingPrinter().Documents().size(), 1u);
    const std::string path = std::string(PDF_OUTPUT_DIR) + "/contact-report.pdf";
    platform::WriteDocumentPdf(platform::RecordingPrinter().LastDocument(), path);
    std::ifstream in(path, std::ios::binary);
    std::string head(5, '\0');
    in.read(head.data(), 5);
    EXPECT_EQ(head, "%PDF-");
}

}  // namespace
}  // namespace contacts_tests

int main(int argc, char** argv) {
    // gtest_discover_tests runs this binary at build time, often without a display.
    if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
