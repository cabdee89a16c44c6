#include "printing/PrinterRoutines.h"
#include "printing/PrintingFixture.h"

namespace printing_tests {
namespace {

using platform::Printer;

TEST_F(PrintingTest, InitPrinterSetsUpALetterJobInTwipsWithTheChosenFont) {
    setup->lblFont.SetCaption("Tahoma");
    Printer().SetFontSize(14);
    Printer().SetFontBold(true);
    Printer().SetFontUnderline(true);
    Printer().SetForeColor(255);

    InitPrinter("Landscape", false);
    EXPECT_EQ(Printer().Orientation(), platform::vbPRORLandscape);
    EXPECT_EQ(Printer().ColorMode(), platform::vbPRCMMonochrome);
    EXPECT_EQ(Printer().PaperSize(), platform::vbPRPSLetter);
    EXPECT_EQ(Printer().ScaleMode(), platform::vbTwips);
    EXPECT_DOUBLE_EQ(Printer().Width(), 15840);
    EXPECT_EQ(Printer().FontName(), "Tahoma");
    EXPECT_DOUBLE_EQ(Printer().FontSize(), 14);  // the size is left alone
    EXPECT_FALSE(Printer().FontBold());
    EXPECT_FALSE(Printer().FontUnderline());
    EXPECT_EQ(Printer().ForeColor(), 0);

    InitPrinter("Portrait", true);
    EXPECT_EQ(Printer().Orientation(), platform::vbPRORPortrait);
    EXPECT_EQ(Printer().ColorMode(), platform::vbPRCMColor);
    EXPECT_DOUBLE_EQ(Printer().Width(), 12240);
    EXPECT_DOUBLE_EQ(Printer().Height(), 15840);
}

TEST_F(PrintingTest, SetPrintPositionTakesInchesAndAZeroKeepsThatAxis) {
    SetPrintPosition(1.3f, 10.1f);
    EXPECT_DOUBLE_EQ(Printer().CurrentX(), 1872);
    EXPECT_DOUBLE_EQ(Printer().CurrentY(), 14544);
    SetPrintPosition(0, 2.3f);
    EXPECT_DOUBLE_EQ(Printer().CurrentX(), 1872);
    EXPECT_DOUBLE_EQ(Printer().CurrentY(), 3312);
    SetPrintPosition(5.5f, 0);
    EXPECT_DOUBLE_EQ(Printer().CurrentX(), 7920);
    EXPECT_DOUBLE_EQ(Printer().CurrentY(), 3312);
    SetPrintPosition(-1, -1);
    EXPECT_DOUBLE_EQ(Printer().CurrentX(), 7920);
    EXPECT_DOUBLE_EQ(Printer().CurrentY(), 3312);
}

TEST_F(PrintingTest, SetPrintFontWithSizeZeroChangesOnlyBoldAndUnderline) {
    SetPrintFont(28, true, false);
    EXPECT_DOUBLE_EQ(Printer().FontSize(), 28);
    SetPrintFont(0, false, true);
    EXPECT_DOUBLE_EQ(Printer().FontSize(), 28);
    EXPECT_FALSE(Printer().FontBold());
    EXPECT_TRUE(Printer().FontUnderline());
}

TEST_F(PrintingTest, SetPrintColorFollowsTheColourSettings) {
    struct Row {
        bool dataColor;
        int ticked;
        std::int32_t foreColor;
        std::int32_t borderColor;
    };
    const Row table[] = {
        {true, 1, 16711680, kDataMaroon},
        {true, 0, 0, 0},
        {false, 1, kBorderGreen, kBorderGreen},
        {false, 0, 0, 0},
    };
    for (const Row& row : table) {
        setup->ckColor.SetValue(row.ticked);
        Printer().SetForeColor(12345);
        BorderColor = 12345;
        SetPrintColor(row.dataColor);
        EXPECT_EQ(Printer().ForeColor(), row.foreColor) << row.dataColor << row.ticked;
        EXPECT_EQ(BorderColor, row.borderColor) << row.dataColor << row.ticked;
    }
}

// Size 50 makes a thousandth of the em exactly one twip: "ab " is 556 + 556 + 278 = 1390.
class WrappedTextTest : public PrintingTest {
  protected:
    WrappedTextTest() { Printer().SetFontSize(50); }
    std::vector<std::string> PrintedLines() const {
        std::vector<std::string> lines;
        if (Printer().Pending().pages.empty()) return lines;
        for (const auto& op : Texts()) lines.push_back(op.text);
        return lines;
    }
};

TEST_F(WrappedTextTest, BreaksAfterTheLastBlankThatFitsTheWidthLessTwenty) {
    // Exactly width - 20 still fits; the last line goes out whole, however wide.
    PrintWrappedText(720, 1000, 1410, 10000, "ab ab ab ab");
    EXPECT_EQ(PrintedLines(), (std::vector<std::string>{"ab ", "ab ", "ab ab"}));
    auto texts = Texts();
    ASSERT_EQ(texts.size(), 3u);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        EXPECT_DOUBLE_EQ(texts[i].x, 720);
        EXPECT_NEAR(texts[i].y, 1000 + static_cast<double>(i) * LineHeight(50), 1e-6);
    }
}

TEST_F(WrappedTextTest, TheLastWordIsNotMeasured) {
    PrintWrappedText(720, 1000, 1410, 10000, "ab abcdefghijklmnop");
    EXPECT_EQ(PrintedLines(), (std::vector<std::string>{"ab abcdefghijklmnop"}));
    PrintWrappedText(720, 1000, 100, 10000, "Supercalifragilistic");
    EXPECT_EQ(PrintedLines().back(), "Supercalifragilistic");
}

TEST_F(WrappedTextTest, TheRestIsLeftTrimmedAndBlanksStepOneByOne) {
    PrintWrappedText(0, 1000, 2800, 10000, "ab ab   ab ab");
    // "ab ab " is 2780 twips and fits in 2780; "ab ab  " does not.
    EXPECT_EQ(PrintedLines(), (std::vector<std::string>{"ab ab ", "ab ab"}));
}

TEST_F(WrappedTextTest, AFirstWordTooWideGivesEmptyLinesDownToTheBottom) {
    // One twip too narrow for "ab ": nothing ever fits, so empty lines run to the bottom.
    const double lineHeight = LineHeight(50);
    PrintWrappedText(720, 1000, 1409, 2000, "ab ab");
    EXPECT_TRUE(PrintedLines().empty());
    EXPECT_NEAR(Printer().CurrentY(), 1000 + 2 * lineHeight, 1e-6);  // two lines reach 3000
}

TEST_F(WrappedTextTest, AnEmptyTextPrintsOneEmptyLine) {
    PrintWrappedText(720, 1000, 1410, 10000, "");
    EXPECT_TRUE(PrintedLines().empty());
    EXPECT_DOUBLE_EQ(Printer().CurrentY(), 1000 + LineHeight(50));
}

TEST_F(WrappedTextTest, WhatDoesNotFitAboveTheBottomIsDropped) {
    // Room for two lines: the second print reaches the bottom and the rest is dropped.
    PrintWrappedText(720, 1000, 1410, 2000, "ab ab ab ab");
    EXPECT_EQ(PrintedLines(), (std::vector<std::string>{"ab ", "ab "}));
}

}  // namespace
}  // namespace printing_tests
