#include "printing/GenericForm.h"

#include "printing/PrinterRoutines.h"
#include "printing/PrintingFixture.h"

namespace printing_tests {
namespace {

using platform::LineShape;
using platform::Printer;
using platform::PrintOperation;

struct Segment {
    double x1, y1, x2, y2;
    bool operator==(const Segment&) const = default;
};

std::vector<Segment> Segments(const std::vector<PrintOperation>& lines) {
    std::vector<Segment> segments;
    for (const auto& op : lines) segments.push_back({op.x, op.y, op.x2, op.y2});
    return segments;
}

void PrintTo(const Segment& s, std::ostream* os) {
    *os << "(" << s.x1 << "," << s.y1 << ")-(" << s.x2 << "," << s.y2 << ")";
}

TEST_F(PrintingTest, StartGenericFormWithPartsFrameStandsAtItsTwips) {
    InitPrinter("Portrait", true);
    StartGenericForm(true, "WORK ORDER", 0.4f);

    auto lines = Lines();
    ASSERT_FALSE(lines.empty());
    // The top box in the border colour, 6 wide.
    EXPECT_EQ(lines[0].shape, LineShape::Box);
    EXPECT_EQ(Segments({lines[0]})[0], (Segment{360, 504, 11880, 5040}));
    EXPECT_EQ(lines[0].color, kBorderGreen);
    EXPECT_EQ(lines[0].drawWidth, 6);
    const std::vector<Segment> all = Segments(lines);
    const std::vector<Segment> frame(all.begin() + 1, all.end());
    const std::vector<Segment> expected = {
        {360, 5760, 11880, 5760},   {360, 6120, 11880, 6120},    {360, 14400, 11880, 14400},
        {360, 12240, 11880, 12240}, {360, 13680, 11880, 13680},  {360, 5760, 360, 14400},
        {1800, 5760, 1800, 14400},  {11880, 5760, 11880, 14400}, {3240, 5760, 3240, 12240},
        {7920, 5760, 7920, 12240},  {10080, 5760, 10080, 14400},
    };
    EXPECT_EQ(frame, expected);
    // Frame lines take the border colour of SetPrintColor(True): the data colour.
    for (std::size_t i = 1; i < lines.size(); ++i) {
        EXPECT_EQ(lines[i].color, kDataMaroon);
        EXPECT_EQ(lines[i].shape, LineShape::Line);
    }
    EXPECT_EQ(BoxLeft, 10080);
    EXPECT_EQ(BoxBottom, 14400);

    auto texts = Texts();
    ASSERT_EQ(texts.size(), 7u);
    EXPECT_EQ(texts[0].text, "from Acme Builders");
    EXPECT_DOUBLE_EQ(texts[0].x, 1872);
    EXPECT_DOUBLE_EQ(texts[0].y, 14544);
    EXPECT_EQ(texts[0].color, 65280);
    EXPECT_EQ(texts[1].text, "WORK ORDER");
    EXPECT_DOUBLE_EQ(texts[1].x, 7920);
    EXPECT_DOUBLE_EQ(texts[1].y, 720);
    EXPECT_DOUBLE_EQ(texts[1].font.size, 28);
    EXPECT_TRUE(texts[1].font.bold);
    EXPECT_EQ(texts[1].color, kDataBlue);

    // The business block at 1.0 in, 0.4 in: the name bold at 12, then size 10 lines.
    const std::vector<std::string> block = {"Acme Builders", "12 Main Street",
                                            "Springfield, IL 62701", "Telephone: 217-555-0100",
                                            "FAX 217-555-0101"};
    double y = 576;
    for (std::size_t i = 0; i < block.size(); ++i) {
        const auto& op = texts[2 + i];
        EXPECT_EQ(op.text, block[i]);
        EXPECT_DOUBLE_EQ(op.x, 1440);
        EXPECT_NEAR(op.y, y, 1e-6) << op.text;
        EXPECT_EQ(op.color, kDataBlue);
        EXPECT_EQ(op.font.bold, i == 0);
        EXPECT_DOUBLE_EQ(op.font.size, i == 0 ? 12 : 10);
        y += LineHeight(i == 0 ? 12 : 10);
    }
    // After the block the printer is left at size 10 and the data colour.
    EXPECT_DOUBLE_EQ(Printer().FontSize(), 10);
}

TEST_F(PrintingTest, WorkOrderFrameHasSignatureBoxes) {
    InitPrinter("Portrait", true);
    DrawFormFrame(false);
    const std::vector<Segment> expected = {
        {360, 5760, 11880, 5760},    {360, 6120, 11880, 6120},    {360, 14400, 11880, 14400},
        {360, 13392, 11880, 13392},  {360, 13824, 11880, 13824},  {360, 5760, 360, 14400},
        {1800, 5760, 1800, 14400},   {11880, 5760, 11880, 14400}, {7920, 5760, 7920, 14400},
        {10080, 5760, 10080, 14400}, {4680, 13392, 4680, 14400},
    };
    EXPECT_EQ(Segments(Lines()), expected);
    EXPECT_EQ(Printer().ForeColor(), 0);  // black again behind the green "from" line
}

TEST_F(PrintingTest, InMonochromeTheFrameIsBlackButTheTopBoxKeepsTheBorderColour) {
    setup->ckColor.SetValue(0);
    InitPrinter("Portrait", false);
    StartGenericForm(false, "INVOICE", 0.4f);
    auto lines = Lines();
    EXPECT_EQ(lines[0].color, kBorderGreen);
    for (std::size_t i = 1; i < lines.size(); ++i) EXPECT_EQ(lines[i].color, 0);
    auto texts = Texts();
    // No green: the "from" line keeps the colour the top box left.
    EXPECT_EQ(texts[0].color, kBorderGreen);
    EXPECT_EQ(texts[1].color, 0);  // the title
}

TEST_F(PrintingTest, InternationalBusinessBlockPrintsCityAndNextFieldOnLinesOfTheirOwn) {
    setup->cmdAddress.SetCaption("International Style Address");
    BusinessData = {"Acme Pty", "4 George St",    "Level 2", "Sydney NSW 2000", "Australia", "", "",
                    "",         "ABN - 123456789"};
    PrintBusinessBlock(5.0f, 1.5f, 14);
    std::vector<std::string> printed;
    for (const auto& op : Texts()) printed.push_back(op.text);
    EXPECT_EQ(printed,
              (std::vector<std::string>{"Acme Pty", "4 George St", "Level 2", "Sydney NSW 2000",
                                        "Australia", "ABN - 123456789"}));
    for (const auto& op : Texts()) EXPECT_DOUBLE_EQ(op.x, 7200);
    EXPECT_DOUBLE_EQ(Texts()[0].y, 2160);
}

TEST_F(PrintingTest, AddressBlockLeavesOutTheApartmentAndEndsInBlack) {
    SetPrintColor(true);
    PrintAddressBlock("Jane Doe", "5 Elm Road", "Apt 3", "Dayton", "OH", "45402", 2.3f);
    std::vector<std::string> printed;
    for (const auto& op : Texts()) printed.push_back(op.text);
    EXPECT_EQ(printed, (std::vector<std::string>{"Jane Doe", "5 Elm Road", "Dayton, OH 45402"}));
    EXPECT_DOUBLE_EQ(Texts()[0].x, 1440);
    EXPECT_DOUBLE_EQ(Texts()[0].y, 3312);
    EXPECT_DOUBLE_EQ(Texts()[2].x, 1440);
    EXPECT_EQ(Printer().ForeColor(), 0);

    setup->cmdAddress.SetCaption("International Style Address");
    Printer().KillDoc();
    PrintAddressBlock("Jane Doe", "5 Elm Road", "Apt 3", "Dayton", "OH", "45402", 2.3f);
    printed.clear();
    for (const auto& op : Texts()) printed.push_back(op.text);
    EXPECT_EQ(printed, (std::vector<std::string>{"Jane Doe", "5 Elm Road", "Dayton", "45402"}));
}

TEST_F(PrintingTest, LogoIsCentredAtTheTopAtLeast1800High) {
    setup->Image2.SetPicture("/logos/acme.png");
    setup->Image3.SetPicture("/logos/acme.png");
    setup->Image3.Move(0, 0, 1440, 1000);
    InitPrinter("Portrait", true);
    PrintLogo(0);
    Printer().EndDoc();
    const auto& page = platform::RecordingPrinter().LastDocument().pages.at(0);
    ASSERT_EQ(page.operations.size(), 1u);
    const auto& picture = page.operations[0];
    EXPECT_EQ(picture.kind, PrintOperation::Kind::Picture);
    EXPECT_EQ(picture.text, "/logos/acme.png");
    EXPECT_DOUBLE_EQ(picture.x, 5400);
    EXPECT_DOUBLE_EQ(picture.y, 144);
    EXPECT_DOUBLE_EQ(picture.width(), 1440);
    EXPECT_DOUBLE_EQ(picture.height(), 1800);
    EXPECT_EQ(setup->Image3.Height(), 1800);  // raised on the set-up screen itself
}

TEST_F(PrintingTest, NoStoredLogoPrintsNothing) {
    PrintLogo(0);
    EXPECT_DOUBLE_EQ(Printer().CurrentY(), 144);
    Printer().EndDoc();
    EXPECT_TRUE(platform::RecordingPrinter().Documents().empty());
}

}  // namespace
}  // namespace printing_tests
