// The print preview of the desktop: a document's pages drawn as the printer will print them,
// and its two buttons doing what the script driver's "dialog preview print" and "dialog
// preview cancel" do: the document goes on to the printer, or nothing is printed.
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QImage>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QTimer>
#include <functional>

#include "QtFixture.h"
#include "platform/Dialogs.h"
#include "platform/Printer.h"
#include "platform/headless/HeadlessPrinter.h"
#include "platform/qtdevices/QtDialogs.h"
#include "platform/qtdevices/QtPrinterDevice.h"

using namespace qt_testing;
using platform::Printer;
using platform::RecordingPrinter;

namespace {

// Pixels dark enough to be print: the page is white and the window around it grey.
int InkPixels(const QImage& image) {
    int ink = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qGray(image.pixel(x, y)) < 48) ++ink;
    return ink;
}

}  // namespace

class PrintPreviewTest : public QtFixture {
  protected:
    PrintPreviewTest() {
        // The pages are previewed on the desktop printer and, once confirmed, go to the
        // recording printer, where the test sees whether they were printed.
        platform::SetDialogBackend(&dialogs);
        platform::SetPrintPreview(true);
        RecordingPrinter().Clear();
    }
    ~PrintPreviewTest() override {
        platform::SetPrintPreview(false);
        platform::SetDialogBackend(nullptr);
    }

    // Prints a schedule of two pages, its first with a heading and a shaded box, and hands
    // the preview window to `answer` once it shows the pages.
    void PrintTwoPages(const std::function<void(QDialog&, QPrintPreviewWidget&)>& answer) {
        bool answered = false;
        QTimer poll;
        poll.setInterval(10);
        QObject::connect(&poll, &QTimer::timeout, [&] {
            for (QWidget* w : QApplication::topLevelWidgets()) {
                auto* dialog = qobject_cast<QDialog*>(w);
                if (answered || !dialog || !dialog->isVisible()) continue;
                auto* preview = dialog->findChild<QPrintPreviewWidget*>();
                if (!preview || preview->pageCount() == 0) continue;
                answered = true;
                Settle();
                answer(*dialog, *preview);
            }
        });
        poll.start();
        platform::Dispatch([] {
            auto& p = Printer();
            p.SetFontName("Arial");
            p.SetFontSize(20);
            p.SetFontBold(true);
            p.SetCurrentX(1440);
            p.SetCurrentY(1440);
            p.Print("Daily Work Schedule");
            p.Line(1440, 2400, 9000, 4800, 0, platform::LineShape::FilledBox);
            p.NewPage();
            p.SetCurrentX(1440);
            p.SetCurrentY(1440);
            p.Print("Completion Strip");
            p.EndDoc();
        });
        poll.stop();
        EXPECT_TRUE(answered) << "no print preview came up";
    }

    static QPushButton* Button(QDialog& dialog, QDialogButtonBox::ButtonRole role) {
        auto* box = dialog.findChild<QDialogButtonBox*>();
        for (QAbstractButton* b : box ? box->buttons() : QList<QAbstractButton*>())
            if (box->buttonRole(b) == role) return qobject_cast<QPushButton*>(b);
        return nullptr;
    }

    platform::QtPrinterDevice device;
    platform::QtDialogs dialogs{device};
};

TEST_F(PrintPreviewTest, ShowsEveryPageAndPrintsWhatItShowsOnPrint) {
    PrintTwoPages([](QDialog& dialog, QPrintPreviewWidget& preview) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Print Preview"));
        EXPECT_EQ(preview.pageCount(), 2);
        EXPECT_EQ(preview.currentPage(), 1);
        // The first page is drawn: its heading and its box are ink on the white page.
        QDir().mkpath(QStringLiteral(SCREENSHOT_DIR));
        dialog.grab().save(
            QDir(QStringLiteral(SCREENSHOT_DIR)).filePath(QStringLiteral("PrintPreview.png")));
        // The page fits the window: the box alone is some 55,000 pixels of it, the page's
        // shadow and an empty page a few thousand.
        EXPECT_GT(InkPixels(preview.grab().toImage()), 40000);
        QPushButton* print = Button(dialog, QDialogButtonBox::AcceptRole);
        ASSERT_NE(print, nullptr);
        EXPECT_EQ(print->text(), QStringLiteral("&Print"));
        EXPECT_TRUE(print->isDefault());
        print->click();
    });
    ASSERT_EQ(RecordingPrinter().Documents().size(), 1u);
    EXPECT_EQ(RecordingPrinter().LastDocument().pages.size(), 2u);
}

TEST_F(PrintPreviewTest, CancelClosesThePreviewAndNothingIsPrinted) {
    PrintTwoPages([](QDialog& dialog, QPrintPreviewWidget&) {
        QPushButton* cancel = Button(dialog, QDialogButtonBox::RejectRole);
        ASSERT_NE(cancel, nullptr);
        cancel->click();
    });
    EXPECT_TRUE(RecordingPrinter().Documents().empty());
    // The printer is ready for the next document.
    EXPECT_EQ(Printer().Page(), 1);
}
