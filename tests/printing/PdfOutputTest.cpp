#include <QApplication>
#include <QImage>
#include <QPainter>
#include <cstdlib>
#include <fstream>

#include <QFontMetricsF>

#include "platform/qtdevices/DocumentPainter.h"
#include "platform/qtdevices/MetricFonts.h"
#include "platform/qtdevices/QtDevices.h"
#include "platform/qtdevices/QtDialogs.h"
#include "printing/GenericForm.h"
#include "printing/PrinterRoutines.h"
#include "printing/PrintingFixture.h"

namespace printing_tests {
namespace {

using platform::Printer;
using platform::RecordingPrinter;

constexpr double kDpi = 60;
int Px(double twips) {
    return static_cast<int>(twips * kDpi / 1440 + 0.5);
}

class PdfOutputTest : public PrintingTest {
  protected:
    PdfOutputTest() {
        // A logo: a filled orange disc on white.
        QImage logo(200, 200, QImage::Format_RGB32);
        logo.fill(Qt::white);
        QPainter painter(&logo);
        painter.setBrush(QColor(255, 140, 0));
        painter.drawEllipse(10, 10, 180, 180);
        painter.end();
        logoPath = (folder.Path() / "logo.png").string();
        logo.save(QString::fromStdString(logoPath));
        setup->Image2.SetPicture(logoPath);
        setup->Image3.SetPicture(logoPath);
        setup->Image3.Move(0, 0, 1440, 1440);
    }

    static QImage Rendered(const platform::PrintedPage& page) {
        QImage image(Px(page.width), Px(page.height), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        platform::PaintPage(painter, page, kDpi, true);
        painter.end();
        return image;
    }

    std::string logoPath;
};

bool Inked(const QImage& image, int x, int y) {
    return QColor(image.pixel(x, y)).lightness() < 230;
}

TEST_F(PdfOutputTest, GenericFormPageGoesToPdfWithItsBoxesWhereTheTwipsSay) {
    InitPrinter("Portrait", true);
    SetPrintFont(10, false, false);
    PrintLogo(0);
    StartGenericForm(true, "WORK ORDER", 0.4f);
    PrintAddressBlock("Jane Doe", "5 Elm Road", "", "Dayton", "OH", "45402", 2.3f);
    Printer().EndDoc();
    const auto& document = RecordingPrinter().LastDocument();
    ASSERT_EQ(document.pages.size(), 1u);

    const std::string pdf = std::string(PDF_OUTPUT_DIR) + "/generic-form.pdf";
    platform::WriteDocumentPdf(document, pdf);
    std::ifstream in(pdf, std::ios::binary);
    std::string head(5, '\0');
    in.read(head.data(), 5);
    EXPECT_EQ(head, "%PDF-");

    // The same page painted small: frame lines are inked where the twips put them, and
    // the space between them is blank.
    const QImage page = Rendered(document.pages[0]);
    EXPECT_TRUE(Inked(page, Px(6000), Px(5760)));   // top line of the body
    EXPECT_TRUE(Inked(page, Px(6000), Px(14400)));  // bottom line
    EXPECT_TRUE(Inked(page, Px(1800), Px(9000)));   // a column line
    EXPECT_TRUE(Inked(page, Px(10080), Px(13000)));
    EXPECT_FALSE(Inked(page, Px(9000), Px(13000)));     // inside the total box, below 12240
    EXPECT_TRUE(Inked(page, Px(360), Px(2000)));        // left side of the top box
    EXPECT_TRUE(Inked(page, Px(6120), Px(144 + 720)));  // the logo's centre
    EXPECT_EQ(QColor(page.pixel(Px(6120), Px(144 + 720))).red(), 255);
}

TEST_F(PdfOutputTest, PrintSampleIsALogoAloneOnItsPage) {
    InitPrinter("Portrait", true);
    PrintLogo(0);
    Printer().EndDoc();
    const std::string pdf = std::string(PDF_OUTPUT_DIR) + "/print-sample.pdf";
    platform::WriteDocumentPdf(RecordingPrinter().LastDocument(), pdf);
    std::ifstream in(pdf, std::ios::binary);
    EXPECT_TRUE(in.good());
}

TEST_F(PdfOutputTest, PagesKeepTheirOwnOrientation) {
    InitPrinter("Landscape", true);
    SetPrintPosition(1.0f, 0.3f);
    Printer().Print("Daily Work Schedule");
    Printer().Line(1000, 1520, 10300, 1520, 0);
    Printer().NewPage();
    Printer().SetOrientation(platform::vbPRORPortrait);
    Printer().Print("Second page");
    Printer().EndDoc();
    const auto& document = RecordingPrinter().LastDocument();
    ASSERT_EQ(document.pages.size(), 2u);
    const QImage landscape = Rendered(document.pages[0]);
    EXPECT_EQ(landscape.width(), Px(15840));
    EXPECT_TRUE(Inked(landscape, Px(10000), Px(1520)));
    platform::WriteDocumentPdf(document, std::string(PDF_OUTPUT_DIR) + "/two-pages.pdf");
}

TEST_F(PdfOutputTest, TextGoesToPdfInTheFontItWasMeasuredIn) {
    InitPrinter("Portrait", false);
    SetPrintFont(12, false, false);
    SetPrintPosition(1.0f, 1.0f);
    Printer().Print("Hammer & Sons Construction");
    Printer().EndDoc();
    const auto& document = RecordingPrinter().LastDocument();
    const std::string pdf = std::string(PDF_OUTPUT_DIR) + "/measured-font.pdf";
    platform::WriteDocumentPdf(document, pdf);
    std::ifstream in(pdf, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(in)), {});
    EXPECT_NE(bytes.find("LiberationSans"), std::string::npos) << "the PDF carries another font";

    // Its twin draws the text as wide as it was measured, so nothing is squeezed to fit.
    platform::PrintFont font;
    font.name = "Arial";
    font.size = 12;
    const std::string text = "Hammer & Sons Construction";
    const double measured = RecordingPrinter().TextWidth(font, text);
    QFont drawn = platform::ToQFont(font);
    drawn.setPixelSize(2400);  // an em of 2400 pixels, large enough that hinting does not count
    const double ems = QFontMetricsF(drawn).horizontalAdvance(QString::fromStdString(text)) / 2400;
    const double width = ems * 12 * 20;  // twips at 12 points
    EXPECT_NEAR(width / measured, 1.0, 0.02);
}

TEST(MetricFontsTest, WindowsNamesAreShownByTheirTwinsAndKeptUnderTheirOwnNames) {
    const struct {
        const char* kept;
        const char* installed;
    } twins[] = {{"Arial", "Liberation Sans"},
                 {"Times New Roman", "Liberation Serif"},
                 {"Courier New", "Liberation Mono"}};
    for (const auto& twin : twins) {
        SCOPED_TRACE(twin.kept);
        EXPECT_EQ(platform::InstalledFamily(twin.kept).toStdString(), twin.installed);
        EXPECT_EQ(platform::KeptFontName(QString::fromLatin1(twin.installed)), twin.kept);
    }
    EXPECT_EQ(platform::KeptFontName(QStringLiteral("DejaVu Sans")), "DejaVu Sans");
}

TEST(QtFilterTest, TheLogoFilterOffersItsPictures) {
    EXPECT_EQ(platform::ToQtFilter("Pictures |(*.bmp;*.BMP;*.ico;*.ICO; *.cur; *.CUR;*jpg;*JPG; "
                                   "*.EMF)|All|*.*")
                  .toStdString(),
              "Pictures (*.bmp *.BMP *.ico *.ICO *.cur *.CUR *jpg *JPG *.EMF);;All (*.*)");
}

}  // namespace
}  // namespace printing_tests

int main(int argc, char** argv) {
    // gtest_discover_tests runs this binary at build time, often without a display.
    if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
