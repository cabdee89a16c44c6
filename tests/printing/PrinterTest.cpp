#include "platform/RuntimeError.h"
#include "printing/PrintingFixture.h"

namespace printing_tests {
namespace {

using platform::PrintEnd;
using platform::Printer;
using platform::RecordingPrinter;

TEST_F(PrintingTest, TextIsMeasuredWithArialWidths) {
    Printer().SetFontSize(10);
    // H e l l o = 722 + 556 + 222 + 222 + 556 thousandths of 200 twips.
    EXPECT_DOUBLE_EQ(Printer().TextWidth("Hello"), 2278 * 0.2);
    Printer().SetFontBold(true);
    // Bold: 722 + 556 + 278 + 278 + 611.
    EXPECT_DOUBLE_EQ(Printer().TextWidth("Hello"), 2445 * 0.2);
    Printer().SetFontSize(12);
    EXPECT_DOUBLE_EQ(Printer().TextHeight(), LineHeight(12));
    EXPECT_DOUBLE_EQ(Printer().TextHeight("two\r\nlines"), 2 * LineHeight(12));
    EXPECT_DOUBLE_EQ(Printer().TextWidth(""), 0);
}

TEST_F(PrintingTest, PrintMovesToTheNextLineUnlessItEndsWithASemicolon) {
    Printer().SetCurrentX(1440);
    Printer().SetCurrentY(720);
    Printer().Print("Name: ", PrintEnd::Semicolon);
    EXPECT_DOUBLE_EQ(Printer().CurrentX(), 1440 + Printer().TextWidth("Name: "));
    EXPECT_DOUBLE_EQ(Printer().CurrentY(), 720);
    Printer().Print("Smith");
    EXPECT_DOUBLE_EQ(Printer().CurrentX(), 0);
    EXPECT_DOUBLE_EQ(Printer().CurrentY(), 720 + LineHeight(10));

    auto texts = Texts();
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(texts[1].text, "Smith");
    EXPECT_DOUBLE_EQ(texts[1].x, 1440 + Printer().TextWidth("Name: "));
    EXPECT_DOUBLE_EQ(texts[1].y, 720);
}

TEST_F(PrintingTest, LineAndBoxTakeForeColorUnlessGivenOneAndMoveThePosition) {
    Printer().SetForeColor(255);
    Printer().SetDrawWidth(6);
    Printer().Line(360, 504, 11880, 5040, -1, platform::LineShape::Box);
    Printer().Line(360, 5760, 11880, 5760, 0);
    EXPECT_DOUBLE_EQ(Printer().CurrentX(), 11880);
    EXPECT_DOUBLE_EQ(Printer().CurrentY(), 5760);
    auto lines = Lines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].color, 255);
    EXPECT_EQ(lines[0].shape, platform::LineShape::Box);
    EXPECT_EQ(lines[0].drawWidth, 6);
    EXPECT_EQ(lines[1].color, 0);
}

TEST_F(PrintingTest, PagesAreNumberedAndTheDocumentGoesOutAtEndDoc) {
    Printer().SetCopies(3);
    Printer().Print("first");
    EXPECT_EQ(Printer().Page(), 1);
    Printer().NewPage();
    EXPECT_EQ(Printer().Page(), 2);
    EXPECT_DOUBLE_EQ(Printer().CurrentY(), 0);
    Printer().SetOrientation(platform::vbPRORLandscape);
    Printer().Print("second");
    Printer().NewPage();  // nothing follows: no blank sheet comes out
    EXPECT_TRUE(RecordingPrinter().Documents().empty());
    Printer().EndDoc();

    ASSERT_EQ(RecordingPrinter().Documents().size(), 1u);
    const auto& document = RecordingPrinter().LastDocument();
    EXPECT_EQ(document.copies, 3);
    ASSERT_EQ(document.pages.size(), 2u);
    EXPECT_EQ(document.pages[0].orientation, platform::vbPRORPortrait);
    EXPECT_EQ(document.pages[1].orientation, platform::vbPRORLandscape);
    EXPECT_DOUBLE_EQ(document.pages[1].width, 15840);
    EXPECT_EQ(document.pages[1].operations.at(0).text, "second");
    EXPECT_EQ(Printer().Page(), 1);
    EXPECT_FALSE(Printer().DocumentOpen());

    // Every document printed is in the transcript of the screens.
    bool logged = false;
    for (const auto& line : folder.Ui().Transcript()) {
        if (line.find("text 0,0 Arial 10 color 0: second") != std::string::npos) logged = true;
    }
    EXPECT_TRUE(logged);
}

TEST_F(PrintingTest, KillDocAndAnEmptyEndDocSendNothing) {
    Printer().Print("abandoned");
    Printer().KillDoc();
    Printer().EndDoc();
    EXPECT_TRUE(RecordingPrinter().Documents().empty());
}

// Every document passes the preview at EndDoc when it is on, whichever routine drew it.
TEST_F(PrintingTest, ThePreviewLetsADocumentGoOnOrDropsIt) {
    platform::SetPrintPreview(true);
    platform::QueuedDialogs().QueuePreview(false);
    Printer().Print("first");
    Printer().NewPage();
    Printer().Print("second");
    Printer().EndDoc();
    EXPECT_TRUE(RecordingPrinter().Documents().empty());
    EXPECT_FALSE(Printer().DocumentOpen());
    EXPECT_EQ(Printer().Page(), 1);

    // Unanswered, the preview prints.
    Printer().Print("again");
    Printer().EndDoc();
    platform::SetPrintPreview(false);
    ASSERT_EQ(RecordingPrinter().Documents().size(), 1u);
    EXPECT_EQ(RecordingPrinter().LastDocument().pages.at(0).operations.at(0).text, "again");
    const auto& shown = platform::QueuedDialogs().Shown();
    ASSERT_EQ(shown.size(), 2u);
    EXPECT_EQ(shown[0], "preview 2 page(s) -> cancel");
    EXPECT_EQ(shown[1], "preview 1 page(s) -> print");

    // Off, nothing is shown.
    Printer().Print("straight");
    Printer().EndDoc();
    EXPECT_EQ(platform::QueuedDialogs().Shown().size(), 2u);
    EXPECT_EQ(RecordingPrinter().Documents().size(), 2u);
}

TEST_F(PrintingTest, APrinterFailureIsARuntimeError) {
    RecordingPrinter().FailNextOutput(482);
    Printer().Print("x");
    EXPECT_THROW(Printer().EndDoc(), platform::RuntimeError);
    EXPECT_FALSE(Printer().DocumentOpen());
    EXPECT_THROW(Printer().PaintPicture("", 0, 0, 100, 100), platform::RuntimeError);
}

TEST_F(PrintingTest, CancelledPrinterDialogueIsError32755WhenAskedFor) {
    platform::QueuedDialogs().QueueCancel();
    try {
        platform::ShowPrinterDialog(1048600);
        FAIL() << "a cancel with CancelError must raise";
    } catch (const platform::RuntimeError& error) {
        EXPECT_EQ(error.Number(), 32755);
        EXPECT_EQ(error.Description(), "Cancel was selected.");
    }
    platform::QueuedDialogs().QueueCancel();
    EXPECT_FALSE(platform::ShowPrinterDialog(1048600, false));

    // With nothing queued the dialogue is confirmed; copies chosen reach the printer.
    platform::SharedDialog().Copies = 3;
    EXPECT_TRUE(platform::ShowPrinterDialog(1048600));
    EXPECT_EQ(Printer().Copies(), 3);
    platform::QueuedDialogs().QueuePrinter(2);
    EXPECT_TRUE(platform::ShowPrinterDialog(1048600));
    EXPECT_EQ(platform::SharedDialog().Copies, 2);
    EXPECT_EQ(Printer().Copies(), 2);
}

TEST_F(PrintingTest, ColourFontAndFileDialoguesKeepTheValueOnCancel) {
    std::int32_t color = 255;
    platform::QueuedDialogs().QueueCancel();
    EXPECT_FALSE(platform::ChooseColor(color));
    EXPECT_EQ(color, 255);
    platform::QueuedDialogs().QueueColor(kDataMaroon);
    EXPECT_TRUE(platform::ChooseColor(color));
    EXPECT_EQ(color, kDataMaroon);

    std::string font = "Arial";
    platform::QueuedDialogs().QueueFont("Times New Roman");
    EXPECT_TRUE(platform::ChoosePrinterFont(font));
    EXPECT_EQ(font, "Times New Roman");

    // No file queued: nothing chosen.
    EXPECT_EQ(platform::ChooseOpenFile("All|*.*"), "");
    platform::QueuedDialogs().QueueFile("/pictures/logo.bmp");
    EXPECT_EQ(platform::ChooseOpenFile("All|*.*"), "/pictures/logo.bmp");
    EXPECT_EQ(platform::QueuedDialogs().Shown().size(), 5u);
}

}  // namespace
}  // namespace printing_tests
