#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/DateTime.h"

// Controls of a screen. They keep as data the properties the system reads and writes,
// and raise their own events as the platform does: setting ListIndex, Text, a calendar
// date or an option button's Value in code raises the same handler as the user would.
namespace platform {

class Form;

enum class ControlType {
    CommandButton,
    Label,
    TextBox,
    CheckBox,
    OptionButton,
    Frame,
    ListBox,
    ComboBox,
    Grid,
    MonthView,
    DatePicker,
    UpDown,
    Tab,
    ProgressBar,
    Image,
    Menu,
    Timer,
};

const char* TypeName(ControlType type);

// Arguments of an event. Handlers may change keyAscii and cancel, which go back to the caller.
struct EventArgs {
    int index = -1;    // element of a control array, -1 for a single control
    int keyAscii = 0;  // KeyPress
    int keyCode = 0;   // KeyDown, KeyUp
    int button = 0;    // MouseDown, MouseUp: 1 left, 2 right
    int shift = 0;
    double x = 0;  // twips
    double y = 0;
    int cancel = 0;                   // QueryUnload, Unload
    int unloadMode = 0;               // QueryUnload: 0 closed by the user, 1 by code
    int previousTab = 0;              // Tab.Click
    class Control* source = nullptr;  // DragDrop
};

// Colours are kept as the platform's long values: &H00BBGGRR.
constexpr std::int32_t Rgb(int r, int g, int b) {
    return r | (g << 8) | (b << 16);
}
constexpr std::int32_t kWindowBackground = Rgb(240, 240, 240);
constexpr std::int32_t kWindowText = 0;
constexpr std::int32_t kWhite = Rgb(255, 255, 255);

class Control {
  public:
    Control(Form& form, ControlType type, std::string name, int index = -1);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control();

    ControlType Type() const { return type_; }
    const std::string& Name() const { return name_; }
    int Index() const { return index_; }
    std::string Key() const;  // "cmdStart" or "optProgramRoutine(9)"
    Form& Parent() const { return form_; }

    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    const std::string& Tag() const { return tag_; }
    void SetTag(const std::string& tag);
    const std::string& ToolTipText() const { return toolTip_; }
    void SetToolTipText(const std::string& text);
    std::int32_t ForeColor() const { return foreColor_; }
    void SetForeColor(std::int32_t color);
    std::int32_t BackColor() const { return backColor_; }
    void SetBackColor(std::int32_t color);
    bool FontBold() const { return fontBold_; }
    void SetFontBold(bool bold);
    double FontSize() const { return fontSize_; }
    void SetFontSize(double size);
    int Alignment() const { return alignment_; }  // 0 left, 1 right, 2 centre
    void SetAlignment(int alignment);

    int Left() const { return left_; }
    int Top() const { return top_; }
    int Width() const { return width_; }
    int Height() const { return height_; }
    void Move(int left, int top, int width, int height);
    void SetLeft(int v) { Move(v, top_, width_, height_); }
    void SetTop(int v) { Move(left_, v, width_, height_); }
    void SetWidth(int v) { Move(left_, top_, v, height_); }
    void SetHeight(int v) { Move(left_, top_, width_, v); }

    // The control it sits in (a frame, a tab control or a menu), and the tab page.
    const std::string& Container() const { return container_; }
    int TabPage() const { return tabPage_; }
    void SetContainer(const std::string& container, int tabPage = -1);
    bool DragEnabled() const { return dragEnabled_; }
    void SetDragEnabled(bool enabled) { dragEnabled_ = enabled; }

    void SetFocus();
    bool HasFocus() const;

    // Raises an event through the form's registry; returns false when no handler is registered.
    bool Raise(const std::string& event, EventArgs& args);
    bool Raise(const std::string& event);

    virtual std::map<std::string, std::string> Properties() const;

    // The desktop renderer listens here; every change of a property calls it.
    using Observer = std::function<void(Control&)>;
    void SetObserver(Observer observer) { observer_ = std::move(observer); }

  protected:
    void Notify();

  private:
    Form& form_;
    ControlType type_;
    std::string name_;
    int index_;
    std::string caption_;
    bool visible_ = true;
    bool enabled_ = true;
    std::string tag_;
    std::string toolTip_;
    std::int32_t foreColor_ = kWindowText;
    std::int32_t backColor_ = kWindowBackground;
    bool fontBold_ = false;
    double fontSize_ = 8.25;
    int alignment_ = 0;
    int left_ = 0, top_ = 0, width_ = 1215, height_ = 375;
    std::string container_;
    int tabPage_ = -1;
    bool dragEnabled_ = false;
    Observer observer_;
};

class CommandButton : public Control {
  public:
    CommandButton(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::CommandButton, std::move(name), index) {}
    void Click() { Raise("Click"); }  // Value = True
    bool IsDefault() const { return default_; }
    void SetDefault(bool value) { default_ = value; }
    bool IsCancel() const { return cancel_; }
    void SetCancel(bool value) { cancel_ = value; }

  private:
    bool default_ = false;
    bool cancel_ = false;
};

class Label : public Control {
  public:
    Label(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::Label, std::move(name), index) {}
    bool WordWrap() const { return wordWrap_; }
    void SetWordWrap(bool value) { wordWrap_ = value; }
    bool BorderStyle() const { return border_; }
    void SetBorderStyle(bool value) { border_ = value; }

  private:
    bool wordWrap_ = true;
    bool border_ = false;
};

class Frame : public Control {
  public:
    Frame(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::Frame, std::move(name), index) {}
};

class TextBox : public Control {
  public:
    TextBox(Form& form, std::string name, int index = -1);
    const std::string& Text() const { return text_; }
    void SetText(const std::string& text);  // raises Change when the text differs
    int MaxLength() const { return maxLength_; }
    void SetMaxLength(int n) { maxLength_ = n; }
    bool MultiLine() const { return multiLine_; }
    void SetMultiLine(bool value) { multiLine_ = value; }
    bool Locked() const { return locked_; }
    void SetLocked(bool value);
    int SelStart() const { return selStart_; }
    void SetSelStart(int value);
    int SelLength() const { return selLength_; }
    void SetSelLength(int value);
    // A key typed by the user: KeyPress may refuse or change it, then the text changes.
    void TypeKey(int keyAscii);
    void TypeText(const std::string& text);
    std::map<std::string, std::string> Properties() const override;

  private:
    std::string text_;
    int maxLength_ = 0;
    bool multiLine_ = false;
    bool locked_ = false;
    int selStart_ = 0;
    int selLength_ = 0;
};

class CheckBox : public Control {
  public:
    CheckBox(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::CheckBox, std::move(name), index) {}
    int Value() const { return value_; }  // 0 unchecked, 1 checked, 2 grayed
    void SetValue(int value);             // raises Click when the value changes
    std::map<std::string, std::string> Properties() const override;

  private:
    int value_ = 0;
};

class OptionButton : public Control {
  public:
    OptionButton(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::OptionButton, std::move(name), index) {}
    bool Value() const { return value_; }
    // True clears the other buttons of the same container and raises Click.
    void SetValue(bool value);
    std::map<std::string, std::string> Properties() const override;

  private:
    bool value_ = false;
};

struct ListEntry {
    std::string text;
    std::int32_t itemData = 0;
    bool selected = false;
};

// Entries, ItemData and ListIndex, shared by lists and combo boxes.
class ListControl : public Control {
  public:
    using Control::Control;
    void AddItem(const std::string& text, int index = -1);
    void RemoveItem(int index);
    void Clear();
    int ListCount() const { return static_cast<int>(items_.size()); }
    const std::string& List(int index) const;
    void SetList(int index, const std::string& text);
    std::int32_t ItemData(int index) const;
    void SetItemData(int index, std::int32_t value);
    int NewIndex() const { return newIndex_; }
    int ListIndex() const { return listIndex_; }
    virtual void SetListIndex(int index);  // raises Click
    bool Sorted() const { return sorted_; }
    void SetSorted(bool value) { sorted_ = value; }
    const std::vector<ListEntry>& Items() const { return items_; }
    std::map<std::string, std::string> Properties() const override;

  protected:
    std::vector<ListEntry> items_;
    int listIndex_ = -1;
    int newIndex_ = -1;
    bool sorted_ = false;
};

class ListBox : public ListControl {
  public:
    ListBox(Form& form, std::string name, int index = -1)
        : ListControl(form, ControlType::ListBox, std::move(name), index) {}
    std::string Text() const { return listIndex_ >= 0 ? List(listIndex_) : std::string(); }
    bool MultiSelect() const { return multiSelect_; }
    void SetMultiSelect(bool value) { multiSelect_ = value; }
    bool Selected(int index) const;
    void SetSelected(int index, bool value);  // raises Click
    int SelCount() const;
    void SetListIndex(int index) override;
    int TopIndex() const { return topIndex_; }
    void SetTopIndex(int index);

  private:
    bool multiSelect_ = false;
    int topIndex_ = 0;
};

class ComboBox : public ListControl {
  public:
    enum Style { DropDownCombo = 0, SimpleCombo = 1, DropDownList = 2 };
    ComboBox(Form& form, std::string name, int index = -1)
        : ListControl(form, ControlType::ComboBox, std::move(name), index) {}
    int Style() const { return style_; }
    void SetStyle(int style) { style_ = style; }
    const std::string& Text() const { return text_; }
    void SetText(const std::string& text);  // raises Change
    void SetListIndex(int index) override;  // shows the entry and raises Click
    int SelStart() const { return selStart_; }
    void SetSelStart(int value);
    int SelLength() const { return selLength_; }
    void SetSelLength(int value);
    // First entry starting with the text, without regard to case, from `start` + 1; -1 if none.
    int FindString(const std::string& prefix, int start = -1) const;
    void TypeKey(int keyAscii);
    void TypeText(const std::string& text);
    std::map<std::string, std::string> Properties() const override;

  private:
    int style_ = DropDownCombo;
    std::string text_;
    int selStart_ = 0;
    int selLength_ = 0;
};

class Grid : public Control {
  public:
    Grid(Form& form, std::string name, int index = -1);
    int Rows() const { return rows_; }
    void SetRows(int rows);
    int Cols() const { return cols_; }
    void SetCols(int cols);
    int FixedRows() const { return fixedRows_; }
    void SetFixedRows(int n);
    int FixedCols() const { return fixedCols_; }
    void SetFixedCols(int n);
    int Row() const { return row_; }
    void SetRow(int row);
    int Col() const { return col_; }
    void SetCol(int col);
    int RowSel() const { return rowSel_; }
    void SetRowSel(int row);
    int ColSel() const { return colSel_; }
    void SetColSel(int col);
    int TopRow() const { return topRow_; }
    void SetTopRow(int row);
    int MouseRow() const { return mouseRow_; }
    int MouseCol() const { return mouseCol_; }
    const std::string& TextMatrix(int row, int col) const;
    void SetTextMatrix(int row, int col, const std::string& text);
    const std::string& Text() const { return TextMatrix(row_, col_); }
    void SetText(const std::string& text) { SetTextMatrix(row_, col_, text); }
    const std::string& FormatString() const { return formatString_; }
    // "^Head|<Head|>Head" with ";" before the row headings: columns, headings and alignment.
    void SetFormatString(const std::string& format);
    int ColWidth(int col) const;
    void SetColWidth(int col, int width);
    int RowHeight(int row) const;
    void SetRowHeight(int row, int height);
    int ColAlignment(int col) const;  // 1 left, 4 centre, 7 right
    void SetColAlignment(int col, int alignment);
    // Cell properties of the cell at Row, Col.
    std::int32_t CellBackColor() const { return CellBack(row_, col_); }
    void SetCellBackColor(std::int32_t color);
    std::int32_t CellForeColor() const { return CellFore(row_, col_); }
    void SetCellForeColor(std::int32_t color);
    bool CellFontBold() const;
    void SetCellFontBold(bool bold);
    std::int32_t CellBack(int row, int col) const;  // -1 when not set
    std::int32_t CellFore(int row, int col) const;
    bool CellBold(int row, int col) const;
    void Clear();  // texts and cell properties, the size stays
    void AddItem(const std::string& tabSeparated, int index = -1);
    void RemoveItem(int index);
    // A click of the user on a cell: Row and Col move there, then MouseDown, Click, MouseUp.
    void UserClick(int row, int col, int button = 1);
    void UserDoubleClick(int row, int col);
    std::map<std::string, std::string> Properties() const override;

  private:
    struct Cell {
        std::string text;
        std::int32_t back = -1;
        std::int32_t fore = -1;
        bool bold = false;
    };
    Cell& At(int row, int col);
    const Cell* Find(int row, int col) const;
    void Resize();

    int rows_ = 2, cols_ = 2, fixedRows_ = 1, fixedCols_ = 1;
    int row_ = 1, col_ = 1, rowSel_ = 1, colSel_ = 1, topRow_ = 1;
    int mouseRow_ = 0, mouseCol_ = 0;
    std::vector<std::vector<Cell>> cells_;
    std::vector<int> colWidths_;
    std::vector<int> rowHeights_;
    std::vector<int> colAlignment_;
    std::string formatString_;
};

// The month calendar (MonthView) and the date picker (DTPicker).
class DateControl : public Control {
  public:
    DateControl(Form& form, ControlType type, std::string name, int index);
    DateTime Value() const { return value_; }
    // A date set in code or by the user raises SelChange (calendar) or Change (picker).
    void SetValue(DateTime value);
    DateTime MinDate() const { return minDate_; }
    void SetMinDate(DateTime date);
    DateTime MaxDate() const { return maxDate_; }
    void SetMaxDate(DateTime date);
    void UserPick(DateTime date);  // the user clicks a date: the change, then DateClick
    std::map<std::string, std::string> Properties() const override;

  private:
    DateTime value_;
    DateTime minDate_ = DateTime::FromYmd(1900, 1, 1);
    DateTime maxDate_ = DateTime::FromYmd(9999, 12, 31);
};

class MonthView : public DateControl {
  public:
    MonthView(Form& form, std::string name, int index = -1)
        : DateControl(form, ControlType::MonthView, std::move(name), index) {}
};

class DatePicker : public DateControl {
  public:
    DatePicker(Form& form, std::string name, int index = -1)
        : DateControl(form, ControlType::DatePicker, std::move(name), index) {}
};

class UpDown : public Control {
  public:
    UpDown(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::UpDown, std::move(name), index) {}
    int Value() const { return value_; }
    void SetValue(int value);
    int Min() const { return min_; }
    void SetMin(int v) { min_ = v; }
    int Max() const { return max_; }
    void SetMax(int v) { max_ = v; }
    int Increment() const { return increment_; }
    void SetIncrement(int v) { increment_ = v; }
    void UserUp();    // UpClick, then Change
    void UserDown();  // DownClick, then Change
    std::map<std::string, std::string> Properties() const override;

  private:
    int value_ = 0, min_ = 0, max_ = 10, increment_ = 1;
};

class Tab : public Control {
  public:
    Tab(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::Tab, std::move(name), index) {}
    int Tabs() const { return static_cast<int>(captions_.size()); }
    void SetTabs(int count);
    int CurrentTab() const { return tab_; }
    void SetTab(int tab);  // raises Click with the previous tab
    const std::string& TabCaption(int tab) const;
    void SetTabCaption(int tab, const std::string& caption);
    bool TabEnabled(int tab) const;
    void SetTabEnabled(int tab, bool enabled);
    bool TabVisible(int tab) const;
    void SetTabVisible(int tab, bool visible);
    std::map<std::string, std::string> Properties() const override;

  private:
    int tab_ = 0;
    std::vector<std::string> captions_;
    std::vector<bool> enabled_;
    std::vector<bool> visible_;
};

class ProgressBar : public Control {
  public:
    ProgressBar(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::ProgressBar, std::move(name), index) {}
    int Value() const { return value_; }
    void SetValue(int v);
    int Min() const { return min_; }
    void SetMin(int v) { min_ = v; }
    int Max() const { return max_; }
    void SetMax(int v) { max_ = v; }

  private:
    int value_ = 0, min_ = 0, max_ = 100;
};

// A picture: an image file shown in the box, or nothing.
class Image : public Control {
  public:
    Image(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::Image, std::move(name), index) {}
    const std::string& Picture() const { return picture_; }  // full path of the file, or empty
    void SetPicture(const std::string& path);
    bool Stretch() const { return stretch_; }
    void SetStretch(bool value);
    std::map<std::string, std::string> Properties() const override;

  private:
    std::string picture_;
    bool stretch_ = false;
};

// A menu entry; Container() names the menu it belongs to, empty for the menu bar.
class Menu : public Control {
  public:
    Menu(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::Menu, std::move(name), index) {}
    bool Checked() const { return checked_; }
    void SetChecked(bool value);

  private:
    bool checked_ = false;
};

class Timer : public Control {
  public:
    Timer(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::Timer, std::move(name), index) {}
    int Interval() const { return interval_; }
    void SetInterval(int ms);
    // One tick; a tick that comes while the last one still runs is dropped.
    void Tick();
    std::map<std::string, std::string> Properties() const override;

  private:
    int interval_ = 0;
    bool ticking_ = false;
};

}  // namespace platform
