#include "platform/Controls.h"

#include <algorithm>
#include <cctype>

#include "platform/Form.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"

namespace platform {
namespace {

std::string YesNo(bool b) {
    return b ? "True" : "False";
}

bool StartsWithNoCase(const std::string& text, const std::string& prefix) {
    if (prefix.size() > text.size()) return false;
    for (size_t i = 0; i < prefix.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(text[i])) !=
            std::tolower(static_cast<unsigned char>(prefix[i])))
            return false;
    return true;
}

const std::string kEmpty;

bool LessNoCase(const std::string& a, const std::string& b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return std::tolower(static_cast<unsigned char>(x)) <
               std::tolower(static_cast<unsigned char>(y));
    });
}

// What one typed key does to an edit field: the selection is replaced, Backspace deletes,
// Enter breaks the line only where the field has several. False when the text stays.
bool EditByKey(std::string& text, int& caret, int selLength, int key, bool multiLine,
               int maxLength) {
    caret = std::clamp(caret, 0, static_cast<int>(text.size()));
    const int selected = std::clamp(selLength, 0, static_cast<int>(text.size()) - caret);
    const std::string before = text;
    if (key == 8) {
        if (selected > 0) {
            text.erase(static_cast<size_t>(caret), static_cast<size_t>(selected));
        } else if (caret > 0) {
            text.erase(static_cast<size_t>(caret - 1), 1);
            --caret;
        }
        return text != before;
    }
    if (key == 13 && !multiLine) return false;
    text.erase(static_cast<size_t>(caret), static_cast<size_t>(selected));
    if (maxLength > 0 && static_cast<int>(text.size()) >= maxLength) {
        text = before;
        return false;
    }
    const std::string typed =
        key == 13 ? std::string("\r\n") : std::string(1, static_cast<char>(key));
    text.insert(static_cast<size_t>(caret), typed);
    caret += static_cast<int>(typed.size());
    return true;
}

}  // namespace

const char* TypeName(ControlType type) {
    switch (type) {
        case ControlType::CommandButton:
            return "CommandButton";
        case ControlType::Label:
            return "Label";
        case ControlType::TextBox:
            return "TextBox";
        case ControlType::CheckBox:
            return "CheckBox";
        case ControlType::OptionButton:
            return "OptionButton";
        case ControlType::Frame:
            return "Frame";
        case ControlType::ListBox:
            return "ListBox";
        case ControlType::ComboBox:
            return "ComboBox";
        case ControlType::Grid:
            return "MSFlexGrid";
        case ControlType::MonthView:
            return "MonthView";
        case ControlType::DatePicker:
            return "DTPicker";
        case ControlType::UpDown:
            return "UpDown";
        case ControlType::Tab:
            return "SSTab";
        case ControlType::ProgressBar:
            return "ProgressBar";
        case ControlType::Image:
            return "Image";
        case ControlType::Menu:
            return "Menu";
        case ControlType::Timer:
            return "Timer";
    }
    return "Control";
}

// ---- Control

Control::Control(Form& form, ControlType type, std::string name, int index)
    : form_(form), type_(type), name_(std::move(name)), index_(index) {
    if (type == ControlType::TextBox || type == ControlType::ListBox ||
        type == ControlType::ComboBox || type == ControlType::Grid)
        backColor_ = kWhite;
    form_.Register(*this);
}

Control::~Control() = default;

std::string Control::Key() const {
    return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::Notify() {
    if (observer_) observer_(*this);
}

void Control::SetCaption(const std::string& caption) {
    if (caption_ == caption) return;
    caption_ = caption;
    Notify();
}
void Control::SetVisible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    Notify();
}
void Control::SetEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    Notify();
}
void Control::SetTag(const std::string& tag) {
    tag_ = tag;
}
void Control::SetToolTipText(const std::string& text) {
    toolTip_ = text;
    Notify();
}
void Control::SetForeColor(std::int32_t color) {
    foreColor_ = color;
    Notify();
}
void Control::SetBackColor(std::int32_t color) {
    backColor_ = color;
    Notify();
}
void Control::SetFontBold(bool bold) {
    fontBold_ = bold;
    Notify();
}
void Control::SetFontSize(double size) {
    fontSize_ = size;
    Notify();
}
void Control::SetAlignment(int alignment) {
    alignment_ = alignment;
    Notify();
}
void Control::Move(int left, int top, int width, int height) {
    left_ = left, top_ = top, width_ = width, height_ = height;
    Notify();
}
void Control::SetContainer(const std::string& container, int tabPage) {
    container_ = container;
    tabPage_ = tabPage;
}

void Control::SetFocus() {
    // The platform refuses focus to a hidden or disabled control with a run-time error;
    // the screens only ask for it where the control can take it.
    form_.SetFocusedControl(this);
    Ui().FocusRequested(*this);
}

bool Control::HasFocus() const {
    return form_.FocusedControl() == this;
}

bool Control::Raise(const std::string& event, EventArgs& args) {
    args.index = index_;
    return form_.Raise(name_ + "." + event, args);
}

bool Control::Raise(const std::string& event) {
    EventArgs args;
    return Raise(event, args);
}

std::map<std::string, std::string> Control::Properties() const {
    std::map<std::string, std::string> p;
    p["Type"] = TypeName(type_);
    if (!caption_.empty()) p["Caption"] = caption_;
    p["Visible"] = YesNo(visible_);
    p["Enabled"] = YesNo(enabled_);
    if (!tag_.empty()) p["Tag"] = tag_;
    if (!toolTip_.empty()) p["ToolTipText"] = toolTip_;
    return p;
}

// ---- TextBox

TextBox::TextBox(Form& form, std::string name, int index)
    : Control(form, ControlType::TextBox, std::move(name), index) {}

void TextBox::SetText(const std::string& text) {
    if (text_ == text) return;
    text_ = text;
    selStart_ = std::min<int>(selStart_, static_cast<int>(text_.size()));
    selLength_ = 0;
    Notify();
    Raise("Change");
}

void TextBox::SetLocked(bool value) {
    locked_ = value;
    Notify();
}

void TextBox::SetSelStart(int value) {
    selStart_ = std::clamp(value, 0, static_cast<int>(text_.size()));
    selLength_ = 0;
}

void TextBox::SetSelLength(int value) {
    selLength_ = std::clamp(value, 0, static_cast<int>(text_.size()) - selStart_);
}

void TextBox::TypeKey(int keyAscii) {
    EventArgs args;
    args.keyAscii = keyAscii;
    Raise("KeyPress", args);
    if (args.keyAscii == 0 || locked_) return;
    std::string next = text_;
    int caret = selStart_;
    if (!EditByKey(next, caret, selLength_, args.keyAscii, multiLine_, maxLength_)) return;
    text_ = next;
    selStart_ = caret;
    selLength_ = 0;
    Notify();
    Raise("Change");
}

void TextBox::TypeText(const std::string& text) {
    for (unsigned char c : text) TypeKey(c);
}

std::map<std::string, std::string> TextBox::Properties() const {
    auto p = Control::Properties();
    p["Text"] = text_;
    if (maxLength_) p["MaxLength"] = std::to_string(maxLength_);
    if (locked_) p["Locked"] = "True";
    return p;
}

// ---- CheckBox, OptionButton

void CheckBox::SetValue(int value) {
    if (value_ == value) return;
    value_ = value;
    Notify();
    Raise("Click");
}

std::map<std::string, std::string> CheckBox::Properties() const {
    auto p = Control::Properties();
    p["Value"] = std::to_string(value_);
    return p;
}

void OptionButton::SetValue(bool value) {
    if (value_ == value) return;
    value_ = value;
    if (value) {
        for (Control* c : Parent().Controls()) {
            if (c == this || c->Type() != ControlType::OptionButton) continue;
            if (c->Container() != Container()) continue;
            auto* other = static_cast<OptionButton*>(c);
            if (other->value_) {
                other->value_ = false;
                other->Notify();
            }
        }
    }
    Notify();
    if (value) Raise("Click");
}

std::map<std::string, std::string> OptionButton::Properties() const {
    auto p = Control::Properties();
    p["Value"] = YesNo(value_);
    return p;
}

// ---- Lists

void ListControl::AddItem(const std::string& text, int index) {
    if (index > ListCount()) platform::Raise(err::InvalidProcedureCall, Key());
    int at = index;
    if (at < 0) {
        at = ListCount();
        if (sorted_) {
            auto it = std::upper_bound(
                items_.begin(), items_.end(), text,
                [](const std::string& t, const ListEntry& e) { return LessNoCase(t, e.text); });
            at = static_cast<int>(it - items_.begin());
        }
    }
    items_.insert(items_.begin() + at, ListEntry{text, 0, false});
    if (listIndex_ >= at) ++listIndex_;
    newIndex_ = at;
    Notify();
}

void ListControl::RemoveItem(int index) {
    if (index < 0 || index >= ListCount()) platform::Raise(err::InvalidProcedureCall, Key());
    items_.erase(items_.begin() + index);
    if (listIndex_ == index)
        listIndex_ = -1;
    else if (listIndex_ > index)
        --listIndex_;
    Notify();
}

void ListControl::Clear() {
    items_.clear();
    listIndex_ = -1;
    newIndex_ = -1;
    Notify();
}

const std::string& ListControl::List(int index) const {
    if (index < 0 || index >= ListCount()) return kEmpty;
    return items_[static_cast<size_t>(index)].text;
}

void ListControl::SetList(int index, const std::string& text) {
    if (index < 0 || index >= ListCount()) return;
    items_[static_cast<size_t>(index)].text = text;
    Notify();
}

std::int32_t ListControl::ItemData(int index) const {
    if (index < 0 || index >= ListCount()) platform::Raise(err::InvalidProcedureCall, Key());
    return items_[static_cast<size_t>(index)].itemData;
}

void ListControl::SetItemData(int index, std::int32_t value) {
    if (index < 0 || index >= ListCount()) platform::Raise(err::InvalidProcedureCall, Key());
    items_[static_cast<size_t>(index)].itemData = value;
}

void ListControl::SetListIndex(int index) {
    if (index < -1 || index >= ListCount()) platform::Raise(err::InvalidProcedureCall, Key());
    if (listIndex_ == index) return;
    listIndex_ = index;
    Notify();
    Raise("Click");
}

std::map<std::string, std::string> ListControl::Properties() const {
    auto p = Control::Properties();
    p["ListCount"] = std::to_string(ListCount());
    p["ListIndex"] = std::to_string(listIndex_);
    std::string all;
    for (size_t i = 0; i < items_.size(); ++i) {
        if (i) all += " | ";
        all += items_[i].text;
    }
    p["List"] = all;
    return p;
}

bool ListBox::Selected(int index) const {
    if (index < 0 || index >= ListCount()) return false;
    return items_[static_cast<size_t>(index)].selected;
}

void ListBox::SetSelected(int index, bool value) {
    if (index < 0 || index >= ListCount()) platform::Raise(err::InvalidProcedureCall, Key());
    if (!multiSelect_) {
        if (value) {
            SetListIndex(index);
        } else if (listIndex_ == index) {
            items_[static_cast<size_t>(index)].selected = false;
            listIndex_ = -1;
            Notify();
        }
        return;
    }
    items_[static_cast<size_t>(index)].selected = value;
    listIndex_ = index;
    Notify();
    Raise("Click");
}

int ListBox::SelCount() const {
    return static_cast<int>(
        std::count_if(items_.begin(), items_.end(), [](const ListEntry& e) { return e.selected; }));
}

void ListBox::SetListIndex(int index) {
    if (!multiSelect_) {
        for (auto& e : items_) e.selected = false;
        if (index >= 0 && index < ListCount()) items_[static_cast<size_t>(index)].selected = true;
    }
    ListControl::SetListIndex(index);
}

void ListBox::SetTopIndex(int index) {
    topIndex_ = std::clamp(index, 0, std::max(0, ListCount() - 1));
    Notify();
}

void ComboBox::SetText(const std::string& text) {
    if (style_ == DropDownList) {
        for (int i = 0; i < ListCount(); ++i)
            if (List(i) == text) {
                SetListIndex(i);
                return;
            }
        if (!text.empty()) platform::Raise(383, Key());  // 'Text' property is read-only
        return;
    }
    if (text_ == text) return;
    text_ = text;
    selStart_ = static_cast<int>(text_.size());
    selLength_ = 0;
    Notify();
    Raise("Change");
}

void ComboBox::SetListIndex(int index) {
    if (index < -1 || index >= ListCount()) platform::Raise(err::InvalidProcedureCall, Key());
    if (listIndex_ == index) return;
    listIndex_ = index;
    text_ = index >= 0 ? List(index) : std::string();
    selStart_ = 0;
    selLength_ = static_cast<int>(text_.size());
    Notify();
    Raise("Click");
}

void ComboBox::SetSelStart(int value) {
    selStart_ = std::clamp(value, 0, static_cast<int>(text_.size()));
    selLength_ = 0;
}

void ComboBox::SetSelLength(int value) {
    selLength_ = std::clamp(value, 0, static_cast<int>(text_.size()) - selStart_);
}

int ComboBox::FindString(const std::string& prefix, int start) const {
    for (int i = std::max(0, start + 1); i < ListCount(); ++i)
        if (StartsWithNoCase(List(i), prefix)) return i;
    return -1;
}

void ComboBox::TypeKey(int keyAscii) {
    EventArgs args;
    args.keyAscii = keyAscii;
    Raise("KeyPress", args);
    if (args.keyAscii == 0 || style_ == DropDownList) return;
    std::string next = text_;
    int caret = selStart_;
    if (!EditByKey(next, caret, selLength_, args.keyAscii, false, 0)) return;
    // The selection is in place before Change runs, so that type-ahead can select what it adds.
    text_ = next;
    selStart_ = caret;
    selLength_ = 0;
    Notify();
    Raise("Change");
}

void ComboBox::TypeText(const std::string& text) {
    for (unsigned char c : text) TypeKey(c);
}

std::map<std::string, std::string> ComboBox::Properties() const {
    auto p = ListControl::Properties();
    p["Text"] = text_;
    return p;
}

// ---- Grid

Grid::Grid(Form& form, std::string name, int index)
    : Control(form, ControlType::Grid, std::move(name), index) {
    Resize();
}

void Grid::Resize() {
    cells_.resize(static_cast<size_t>(rows_));
    for (auto& r : cells_) r.resize(static_cast<size_t>(cols_));
    colWidths_.resize(static_cast<size_t>(cols_), -1);
    colAlignment_.resize(static_cast<size_t>(cols_), -1);
    rowHeights_.resize(static_cast<size_t>(rows_), -1);
    row_ = std::min(row_, rows_ - 1);
    col_ = std::min(col_, cols_ - 1);
    rowSel_ = std::min(rowSel_, rows_ - 1);
    colSel_ = std::min(colSel_, cols_ - 1);
}

void Grid::SetRows(int rows) {
    if (rows < 0) platform::Raise(err::InvalidProcedureCall, Key());
    rows_ = rows;
    Resize();
    Notify();
}

void Grid::SetCols(int cols) {
    if (cols < 0) platform::Raise(err::InvalidProcedureCall, Key());
    cols_ = cols;
    Resize();
    Notify();
}

void Grid::SetFixedRows(int n) {
    fixedRows_ = n;
    Notify();
}

void Grid::SetFixedCols(int n) {
    fixedCols_ = n;
    Notify();
}

void Grid::SetRow(int row) {
    if (row < 0 || row >= rows_) platform::Raise(30009, Key());  // Invalid Row value
    row_ = row;
    rowSel_ = row;
    Notify();
}

void Grid::SetCol(int col) {
    if (col < 0 || col >= cols_) platform::Raise(30010, Key());  // Invalid Col value
    col_ = col;
    colSel_ = col;
    Notify();
}

void Grid::SetRowSel(int row) {
    rowSel_ = std::clamp(row, 0, rows_ - 1);
    Notify();
}

void Grid::SetColSel(int col) {
    colSel_ = std::clamp(col, 0, cols_ - 1);
    Notify();
}

void Grid::SetTopRow(int row) {
    topRow_ = std::clamp(row, fixedRows_, std::max(fixedRows_, rows_ - 1));
    Notify();
}

Grid::Cell& Grid::At(int row, int col) {
    if (row < 0 || row >= rows_ || col < 0 || col >= cols_) platform::Raise(381, Key());
    return cells_[static_cast<size_t>(row)][static_cast<size_t>(col)];
}

const Grid::Cell* Grid::Find(int row, int col) const {
    if (row < 0 || row >= rows_ || col < 0 || col >= cols_) return nullptr;
    return &cells_[static_cast<size_t>(row)][static_cast<size_t>(col)];
}

const std::string& Grid::TextMatrix(int row, int col) const {
    const Cell* c = Find(row, col);
    if (!c) platform::Raise(381, Key());  // Subscript out of range
    return c->text;
}

void Grid::SetTextMatrix(int row, int col, const std::string& text) {
    At(row, col).text = text;
    Notify();
}

void Grid::SetFormatString(const std::string& format) {
    formatString_ = format;
    std::string colPart = format;
    std::string rowPart;
    if (auto semi = format.find(';'); semi != std::string::npos) {
        colPart = format.substr(0, semi);
        rowPart = format.substr(semi + 1);
    }
    auto split = [](const std::string& s) {
        std::vector<std::string> parts;
        size_t start = 0;
        while (true) {
            size_t bar = s.find('|', start);
            parts.push_back(
                s.substr(start, bar == std::string::npos ? std::string::npos : bar - start));
            if (bar == std::string::npos) break;
            start = bar + 1;
        }
        return parts;
    };
    if (!colPart.empty()) {
        auto heads = split(colPart);
        SetCols(static_cast<int>(heads.size()));
        for (size_t c = 0; c < heads.size(); ++c) {
            std::string h = heads[c];
            int align = -1;
            if (!h.empty() && (h[0] == '<' || h[0] == '^' || h[0] == '>')) {
                align = h[0] == '<' ? 1 : h[0] == '^' ? 4 : 7;
                h.erase(0, 1);
            }
            colAlignment_[c] = align;
            if (rows_ > 0) cells_[0][c].text = h;
        }
    }
    if (!rowPart.empty()) {
        auto heads = split(rowPart);
        if (static_cast<int>(heads.size()) > rows_) SetRows(static_cast<int>(heads.size()));
        for (size_t r = 0; r < heads.size(); ++r)
            if (!heads[r].empty() && cols_ > 0) cells_[r][0].text = heads[r];
    }
    Notify();
}

int Grid::ColWidth(int col) const {
    if (col < 0 || col >= cols_) return -1;
    return colWidths_[static_cast<size_t>(col)];
}

void Grid::SetColWidth(int col, int width) {
    if (col < 0 || col >= cols_) platform::Raise(381, Key());
    colWidths_[static_cast<size_t>(col)] = width;
    Notify();
}

int Grid::RowHeight(int row) const {
    if (row < 0 || row >= rows_) return -1;
    return rowHeights_[static_cast<size_t>(row)];
}

void Grid::SetRowHeight(int row, int height) {
    if (row < 0 || row >= rows_) platform::Raise(381, Key());
    rowHeights_[static_cast<size_t>(row)] = height;
    Notify();
}

int Grid::ColAlignment(int col) const {
    if (col < 0 || col >= cols_) return -1;
    return colAlignment_[static_cast<size_t>(col)];
}

void Grid::SetColAlignment(int col, int alignment) {
    if (col < 0 || col >= cols_) platform::Raise(381, Key());
    colAlignment_[static_cast<size_t>(col)] = alignment;
    Notify();
}

void Grid::SetCellBackColor(std::int32_t color) {
    At(row_, col_).back = color;
    Notify();
}

void Grid::SetCellForeColor(std::int32_t color) {
    At(row_, col_).fore = color;
    Notify();
}

bool Grid::CellFontBold() const {
    return CellBold(row_, col_);
}

void Grid::SetCellFontBold(bool bold) {
    At(row_, col_).bold = bold;
    Notify();
}

std::int32_t Grid::CellBack(int row, int col) const {
    const Cell* c = Find(row, col);
    return c ? c->back : -1;
}

std::int32_t Grid::CellFore(int row, int col) const {
    const Cell* c = Find(row, col);
    return c ? c->fore : -1;
}

bool Grid::CellBold(int row, int col) const {
    const Cell* c = Find(row, col);
    return c && c->bold;
}

void Grid::Clear() {
    for (auto& r : cells_)
        for (auto& c : r) c = Cell{};
    Notify();
}

void Grid::AddItem(const std::string& tabSeparated, int index) {
    int at = index < 0 ? rows_ : index;
    if (at > rows_) platform::Raise(err::InvalidProcedureCall, Key());
    std::vector<Cell> row(static_cast<size_t>(cols_));
    size_t start = 0;
    for (int c = 0; c < cols_; ++c) {
        size_t tab = tabSeparated.find('\t', start);
        row[static_cast<size_t>(c)].text =
            tabSeparated.substr(start, tab == std::string::npos ? std::string::npos : tab - start);
        if (tab == std::string::npos) break;
        start = tab + 1;
    }
    cells_.insert(cells_.begin() + at, std::move(row));
    rowHeights_.insert(rowHeights_.begin() + at, -1);
    ++rows_;
    Notify();
}

void Grid::RemoveItem(int index) {
    if (index < 0 || index >= rows_) platform::Raise(err::InvalidProcedureCall, Key());
    cells_.erase(cells_.begin() + index);
    rowHeights_.erase(rowHeights_.begin() + index);
    --rows_;
    Resize();
    Notify();
}

void Grid::UserClick(int row, int col, int button) {
    mouseRow_ = row;
    mouseCol_ = col;
    if (row >= fixedRows_ && row < rows_ && col >= fixedCols_ && col < cols_) {
        row_ = rowSel_ = row;
        col_ = colSel_ = col;
        Notify();
    }
    EventArgs args;
    args.button = button;
    Raise("MouseDown", args);
    if (button == 1) Raise("Click");
    EventArgs up;
    up.button = button;
    Raise("MouseUp", up);
}

void Grid::UserDoubleClick(int row, int col) {
    UserClick(row, col, 1);
    Raise("DblClick");
}

std::map<std::string, std::string> Grid::Properties() const {
    auto p = Control::Properties();
    p["Rows"] = std::to_string(rows_);
    p["Cols"] = std::to_string(cols_);
    p["Row"] = std::to_string(row_);
    p["Col"] = std::to_string(col_);
    return p;
}

// ---- Dates

DateControl::DateControl(Form& form, ControlType type, std::string name, int index)
    : Control(form, type, std::move(name), index), value_(Today()) {}

void DateControl::SetValue(DateTime value) {
    if (value < minDate_ || value > maxDate_)
        platform::Raise(35775, Key());  // outside MinDate/MaxDate
    if (value_ == value) return;
    value_ = value;
    Notify();
    Raise(Type() == ControlType::MonthView ? "SelChange" : "Change");
}

void DateControl::SetMinDate(DateTime date) {
    minDate_ = date;
    if (value_ < minDate_) value_ = minDate_;
    Notify();
}

void DateControl::SetMaxDate(DateTime date) {
    maxDate_ = date;
    if (value_ > maxDate_) value_ = maxDate_;
    Notify();
}

void DateControl::UserPick(DateTime date) {
    if (date < minDate_ || date > maxDate_) return;  // the calendar does not offer it
    SetValue(date);
    if (Type() == ControlType::MonthView) Raise("DateClick");
}

std::map<std::string, std::string> DateControl::Properties() const {
    auto p = Control::Properties();
    p["Value"] = ShortDate(value_);
    p["MinDate"] = ShortDate(minDate_);
    p["MaxDate"] = ShortDate(maxDate_);
    return p;
}

// ---- UpDown, Tab, ProgressBar, Image, Menu, Timer

void UpDown::SetValue(int value) {
    value_ = value;
    Notify();
}

void UpDown::UserUp() {
    if (value_ + increment_ <= max_) value_ += increment_;
    Notify();
    Raise("UpClick");
    Raise("Change");
}

void UpDown::UserDown() {
    if (value_ - increment_ >= min_) value_ -= increment_;
    Notify();
    Raise("DownClick");
    Raise("Change");
}

std::map<std::string, std::string> UpDown::Properties() const {
    auto p = Control::Properties();
    p["Value"] = std::to_string(value_);
    return p;
}

void Tab::SetTabs(int count) {
    captions_.resize(static_cast<size_t>(count));
    enabled_.resize(static_cast<size_t>(count), true);
    visible_.resize(static_cast<size_t>(count), true);
    Notify();
}

void Tab::SetTab(int tab) {
    if (tab < 0 || tab >= Tabs()) platform::Raise(380, Key());  // Invalid property value
    if (tab == tab_) return;
    EventArgs args;
    args.previousTab = tab_;
    tab_ = tab;
    Notify();
    Raise("Click", args);
}

const std::string& Tab::TabCaption(int tab) const {
    if (tab < 0 || tab >= Tabs()) return kEmpty;
    return captions_[static_cast<size_t>(tab)];
}

void Tab::SetTabCaption(int tab, const std::string& caption) {
    if (tab >= Tabs()) SetTabs(tab + 1);
    captions_[static_cast<size_t>(tab)] = caption;
    Notify();
}

bool Tab::TabEnabled(int tab) const {
    return tab >= 0 && tab < Tabs() && enabled_[static_cast<size_t>(tab)];
}

void Tab::SetTabEnabled(int tab, bool enabled) {
    if (tab < 0 || tab >= Tabs()) platform::Raise(380, Key());
    enabled_[static_cast<size_t>(tab)] = enabled;
    Notify();
}

bool Tab::TabVisible(int tab) const {
    return tab >= 0 && tab < Tabs() && visible_[static_cast<size_t>(tab)];
}

void Tab::SetTabVisible(int tab, bool visible) {
    if (tab < 0 || tab >= Tabs()) platform::Raise(380, Key());
    visible_[static_cast<size_t>(tab)] = visible;
    Notify();
}

std::map<std::string, std::string> Tab::Properties() const {
    auto p = Control::Properties();
    p["Tab"] = std::to_string(tab_);
    p["TabCaption"] = TabCaption(tab_);
    return p;
}

void ProgressBar::SetValue(int v) {
    if (v < min_ || v > max_) platform::Raise(380, Key());
    value_ = v;
    Notify();
}

void Image::SetPicture(const std::string& path) {
    picture_ = path;
    Notify();
}

void Image::SetStretch(bool value) {
    stretch_ = value;
    Notify();
}

std::map<std::string, std::string> Image::Properties() const {
    auto p = Control::Properties();
    p["Picture"] = picture_;
    return p;
}

void Menu::SetChecked(bool value) {
    checked_ = value;
    Notify();
}

void Timer::SetInterval(int ms) {
    interval_ = ms;
    Notify();
}

void Timer::Tick() {
    if (ticking_ || !Enabled() || interval_ <= 0) return;
    ticking_ = true;
    struct Reset {
        bool& flag;
        ~Reset() { flag = false; }
    } reset{ticking_};
    Raise("Timer");
}

std::map<std::string, std::string> Timer::Properties() const {
    auto p = Control::Properties();
    p["Interval"] = std::to_string(interval_);
    return p;
}

}  // namespace platform
