#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The platform printer: one process-wide object that collects drawing operations on pages
// of twips (1440 to the inch) and hands the finished document to a printer device at EndDoc.
// The device also gives the text metrics: the headless recorder from a fixed width table,
// the desktop from the real printer's fonts.
namespace platform {

// Property values as the platform numbers them.
constexpr int vbPRORPortrait = 1;
constexpr int vbPRORLandscape = 2;
constexpr int vbPRCMMonochrome = 1;
constexpr int vbPRCMColor = 2;
constexpr int vbPRPSLetter = 1;
constexpr int vbTwips = 1;
constexpr int vbCopyPen = 13;

constexpr double kTwipsPerInch = 1440;
constexpr double kLetterWidth = 12240;   // 8.5 in
constexpr double kLetterHeight = 15840;  // 11 in

struct PrintFont {
    std::string name = "Arial";
    double size = 10;  // points
    bool bold = false;
    bool underline = false;
    bool italic = false;
};

enum class LineShape { Line, Box, FilledBox };

// One drawing operation on a page. Coordinates in twips from the page's top left corner.
struct PrintOperation {
    enum class Kind { Text, Line, Picture };
    Kind kind = Kind::Text;
    double x = 0, y = 0;     // text: top left of the text cell; line: start; picture: top left
    double x2 = 0, y2 = 0;   // line: end; picture: x + width, y + height
    std::int32_t color = 0;  // &H00BBGGRR
    int drawWidth = 1;       // pixels of the printer, as the platform counts them
    LineShape shape = LineShape::Line;
    PrintFont font;    // text
    std::string text;  // text (ANSI), or the picture's file path
    double width() const { return x2 - x; }
    double height() const { return y2 - y; }
};

struct PrintedPage {
    int number = 1;
    int orientation = vbPRORPortrait;
    double width = kLetterWidth;  // in its orientation
    double height = kLetterHeight;
    std::vector<PrintOperation> operations;
};

struct PrintedDocument {
    int copies = 1;
    std::string file;  // the PDF file chosen in the printer dialogue; empty for the printer
    int colorMode = vbPRCMColor;
    std::vector<PrintedPage> pages;
};

// A readable account of a document, one line an operation, for transcripts and test failures.
std::vector<std::string> DescribeDocument(const PrintedDocument& document);

// Where documents go, and where text is measured.
class PrinterDevice {
  public:
    virtual ~PrinterDevice() = default;
    virtual double TextWidth(const PrintFont& font, std::string_view text) = 0;
    // Height of one line of text, leading included.
    virtual double TextHeight(const PrintFont& font) = 0;
    // A finished document (EndDoc). A failure is a platform::RuntimeError.
    virtual void Output(const PrintedDocument& document) = 0;
};

// The active printer device; the headless recorder unless the desktop program installs its own.
PrinterDevice& PrinterDevices();
// Installs a device (not owned); nullptr goes back to the headless recorder.
void SetPrinterDevice(PrinterDevice* device);

// When on, a finished document is first shown in a print preview (the dialog backend's), where
// the user sends it on to the printer or lets it go. The desktop program turns it on; tests
// and scripts turn it on when they look at the preview.
bool PrintPreviewOn();
void SetPrintPreview(bool on);

// How Print leaves the position: the start of the next line, or behind the text (a print
// statement that ends with a semicolon).
enum class PrintEnd { NextLine, Semicolon };

// The printer object. Setters take effect on what is drawn after them.
class PrinterObject {
  public:
    int Orientation() const { return orientation_; }
    void SetOrientation(int orientation);
    int ColorMode() const { return colorMode_; }
    void SetColorMode(int mode) { colorMode_ = mode; }
    int PaperSize() const { return paperSize_; }
    void SetPaperSize(int size);
    // Page size in the present orientation, in twips.
    double Width() const;
    double Height() const;
    // Width sets the paper's width as it stands in portrait; Height its length.
    void SetWidth(double twips);
    void SetHeight(double twips);
    int ScaleMode() const { return scaleMode_; }
    void SetScaleMode(int mode) { scaleMode_ = mode; }  // twips only: the system uses nothing else

    const std::string& FontName() const { return font_.name; }
    void SetFontName(const std::string& name) { font_.name = name; }
    double FontSize() const { return font_.size; }
    void SetFontSize(double points);
    bool FontBold() const { return font_.bold; }
    void SetFontBold(bool bold) { font_.bold = bold; }
    bool FontUnderline() const { return font_.underline; }
    void SetFontUnderline(bool underline) { font_.underline = underline; }
    bool FontItalic() const { return font_.italic; }
    void SetFontItalic(bool italic) { font_.italic = italic; }
    const PrintFont& Font() const { return font_; }

    std::int32_t ForeColor() const { return foreColor_; }
    void SetForeColor(std::int32_t color) { foreColor_ = color; }
    int DrawWidth() const { return drawWidth_; }
    void SetDrawWidth(int width);
    int DrawMode() const { return drawMode_; }
    void SetDrawMode(int mode) { drawMode_ = mode; }

    double CurrentX() const { return currentX_; }
    void SetCurrentX(double twips) { currentX_ = twips; }
    double CurrentY() const { return currentY_; }
    void SetCurrentY(double twips) { currentY_ = twips; }

    int Page() const { return page_; }  // number of the page being drawn, from 1
    int Copies() const { return copies_; }
    void SetCopies(int copies);
    // A PDF file that the documents go to instead of the printer; empty for the printer.
    const std::string& OutputFile() const { return outputFile_; }
    void SetOutputFile(const std::string& path) { outputFile_ = path; }

    double TextWidth(std::string_view text) const;
    double TextHeight(std::string_view text = "X") const;  // lines of the text times a line

    // Draws a line, or a box with these corners, in the colour given (ForeColor when -1).
    // The position moves to the end point.
    void Line(double x1, double y1, double x2, double y2, std::int32_t color = -1,
              LineShape shape = LineShape::Line);
    // Paints the picture file into the box.
    void PaintPicture(const std::string& picturePath, double x, double y, double width,
                      double height);
    // Prints text at CurrentX, CurrentY in the present font and ForeColor. A line break (CR LF)
    // inside the text goes on at the left edge of the next line.
    void Print(std::string_view text = {}, PrintEnd end = PrintEnd::NextLine);
    void NewPage();
    // Ends the document and sends it to the device, after the print preview when that is on;
    // nothing is sent when nothing was drawn or the preview was cancelled.
    void EndDoc();
    // Abandons the document.
    void KillDoc();

    // The document being drawn (for tests); empty between documents.
    const PrintedDocument& Pending() const { return document_; }
    bool DocumentOpen() const { return open_; }
    // Forgets every setting and the pending document (tests).
    void Reset();

  private:
    PrintedPage& CurrentPage();

    int orientation_ = vbPRORPortrait;
    int colorMode_ = vbPRCMColor;
    int paperSize_ = vbPRPSLetter;
    double paperWidth_ = kLetterWidth;
    double paperHeight_ = kLetterHeight;
    int scaleMode_ = vbTwips;
    PrintFont font_;
    std::int32_t foreColor_ = 0;
    int drawWidth_ = 1;
    int drawMode_ = vbCopyPen;
    double currentX_ = 0;
    double currentY_ = 0;
    int page_ = 1;
    int copies_ = 1;
    std::string outputFile_;
    bool open_ = false;
    PrintedDocument document_;
};

// The one printer of the process.
PrinterObject& Printer();

}  // namespace platform
