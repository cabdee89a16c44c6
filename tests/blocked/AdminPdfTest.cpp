// The administrative events printout as a person sees it: written to PDF through the desktop
// printer, the status lines running off the right edge of the portrait page as they always did.
#include <gtest/gtest.h>

#include <QApplication>
#include <cstdlib>
#include <fstream>

#include "blocked/frmAdmin.h"
#include "control/ProjectTables.h"
#include "platform/headless/HeadlessDialogs.h"
#include "platform/headless/HeadlessPrinter.h"
#include "platform/qtdevices/QtDevices.h"
#include "setup/SetupHooks.h"
#include "store/SharedState.h"
#include "support/TestFolder.h"

using namespace platform;

TEST(AdminPdf, TheAdministrativeEventsGoToPdf) {
    testing_support::TestFolder folder(DateTime::FromYmdHms(2026, 6, 15, 9, 0, 0));
    ResetSharedState();
    ResetProjectTables();
    RecordingPrinter().Clear();
    QueuedDialogs().ClearQueue();
    std::string lines;
    for (int m = 1; m <= 12; ++m)
        lines += "\"Call supplier " + std::to_string(m) + "\",1,#2026-06-" +
                 std::to_string(15 + m) +
                 "#,1,0,0,\"\",\"Office\",\"\",\"\",\"\",\"Scheduled\",\"Not Completed \"\r\n";
    folder.Write(
        "ConstructionProjects/Pj160-1.txt",
        "\"Pj160-1\",\"Kitchen remodel\",\"A100\",\"Proposal Number\",\"John "
        "Smith\",\"1 Elm St\",\"\",\"Springfield\",\"IL\",\"62701\",\"217-555-0101\",\"John "
        "Smith\",\"1 Elm St\",\"\",\"Springfield\",\"IL\",\"62701\",\"217-555-0101\",12\r\n" +
            lines);
    frmAdmin& form = Screen<frmAdmin>();
    form.Show();
    form.cmdAdmin[1].Click();
    ASSERT_EQ(RecordingPrinter().Documents().size(), 1u);
    const std::string pdf = std::string(PDF_OUTPUT_DIR) + "/administrative-events.pdf";
    WriteDocumentPdf(RecordingPrinter().Documents()[0], pdf);
    std::ifstream in(pdf, std::ios::binary);
    std::string head(5, '\0');
    in.read(head.data(), 5);
    EXPECT_EQ(head, "%PDF-");
}

int main(int argc, char** argv) {
    // gtest_discover_tests runs this binary at build time, often without a display.
    if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
