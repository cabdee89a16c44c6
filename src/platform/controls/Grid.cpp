#include "platform/controls/Grid.h"

#include <algorithm>

#include "platform/Numbers.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "platform/controls/TextRules.h"
#include "platform/headless/HeadlessPrinter.h"

namespace platform {

using text_rules::LessNoCase;

namespace {

// Cells hold text; the generic sorts read it as the platform's numeric test does.
double SortValue(const std::string& text) {
    std::string digits;
    for (char c : text)
        if (c != ',' && c != '$' && c != ' ') digits += c;
    return Val(digits);
}

int Compare3(double a, double b) {
    return a < b ? -1 : a > b ? 1 : 0;
}

int CompareText(const std::string& a, const std::string& b, bool noCase) {
    if (noCase) return LessNoCase(a, b) ? -1 : LessNoCase(b, a) ? 1 : 0;
    return a.compare(b) < 0 ? -1 : a.compare(b) > 0 ? 1 : 0;
}

// -1, 0 or 1 as a comes before, with or after b in an ascending sort of that order.
int CompareForSort(int order, const std::string& a, const std::string& b) {
    switch (order) {
        case flexSortGenericAscending:
        case flexSortGenericDescending:
            if (IsNumeric(a) && IsNumeric(b)) return Compare3(SortValue(a), SortValue(b));
            return CompareText(a, b, true);
        case flexSortNumericAscending:
        case flexSortNumericDescending:
            return Compare3(SortValue(a), SortValue(b));
        case flexSortStringNoCaseAscending:
        case flexSortStringNoCaseDescending:
            return CompareText(a, b, true);
        default:
            return CompareText(a, b, false);
    }
}

// A heading's column is as wide as its text in the grid's font, with the cell's margins.
int HeadingWidth(const std::string& heading, double fontSize) {
    constexpr int kCellMargins = 120;
    long units = 0;
    for (unsigned char c : heading) units += HelveticaWidth(c, false);
    return static_cast<int>(static_cast<double>(units) * fontSize * 20.0 / 1000.0 + 0.5) +
           kCellMargins;
}

}  // namespace

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
    mergeRows_.resize(static_cast<size_t>(rows_), false);
    mergeCols_.resize(static_cast<size_t>(cols_), false);
    row_ = std::min(row_, rows_ - 1);
    col_ = std::min(col_, cols_ - 1);
    rowSel_ = std::min(rowSel_, rows_ - 1);
    colSel_ = std::min(colSel_, cols_ - 1);
    KeepRowBelowFixed();
}

void Grid::KeepRowBelowFixed() {
    // The current row is the first below the fixed ones, as in a flex grid: a grid of fixed
    // rows alone has its last row current, and once rows come below them the first of those
    // is current again. Only code may put the current row among the fixed ones.
    if (rowChosenInFixed_ || row_ >= fixedRows_ || rows_ <= fixedRows_) return;
    row_ = rowSel_ = fixedRows_;
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
    KeepRowBelowFixed();
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
    rowChosenInFixed_ = row < fixedRows_;
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

bool Grid::Selected(int row, int col) const {
    return row >= std::min(row_, rowSel_) && row <= std::max(row_, rowSel_) &&
           col >= std::min(col_, colSel_) && col <= std::max(col_, colSel_);
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
            colWidths_[c] = HeadingWidth(h, FontSize());
            if (rows_ > 0) cells_[0][c].text = h;
        }
    }
    if (!rowPart.empty()) {
        auto heads = split(rowPart);
        if (static_cast<int>(heads.size()) > rows_) SetRows(static_cast<int>(heads.size()));
        for (size_t r = 0; r < heads.size(); ++r) {
            if (heads[r].empty() || cols_ == 0) continue;
            cells_[r][0].text = heads[r];
            colWidths_[0] = std::max(colWidths_[0], HeadingWidth(heads[r], FontSize()));
        }
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
    mergeRows_.insert(mergeRows_.begin() + at, false);
    ++rows_;
    KeepRowBelowFixed();
    Notify();
}

void Grid::RemoveItem(int index) {
    if (index < 0 || index >= rows_) platform::Raise(err::InvalidProcedureCall, Key());
    cells_.erase(cells_.begin() + index);
    rowHeights_.erase(rowHeights_.begin() + index);
    mergeRows_.erase(mergeRows_.begin() + index);
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
        rowChosenInFixed_ = false;
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

void Grid::UserExtendSelection(int row, int col) {
    if (row < fixedRows_ || row >= rows_ || col < fixedCols_ || col >= cols_) return;
    mouseRow_ = row;
    mouseCol_ = col;
    if (rowSel_ == row && colSel_ == col) return;
    rowSel_ = row;
    colSel_ = col;
    Notify();
    Raise("SelChange");
}

void Grid::SetSort(int order) {
    if (order < flexSortNone || order > flexSortStringDescending)
        platform::Raise(err::InvalidProcedureCall, Key());
    if (order == flexSortNone) return;
    int first = std::min(row_, rowSel_);
    int last = std::max(row_, rowSel_);
    if (first == last) {
        first = fixedRows_;
        last = rows_ - 1;
    }
    if (first < 0 || last <= first) return;
    const int firstKey = std::min(col_, colSel_);
    const int lastKey = std::max(col_, colSel_);
    const bool descending = order % 2 == 0;
    auto compare = [&](const std::vector<Cell>& a, const std::vector<Cell>& b) {
        for (int c = firstKey; c <= lastKey; ++c) {
            const int result = CompareForSort(order, a[static_cast<size_t>(c)].text,
                                              b[static_cast<size_t>(c)].text);
            if (result != 0) return descending ? result > 0 : result < 0;
        }
        return false;
    };
    // Rows and their heights move together: sort row numbers, then take rows in that order.
    std::vector<int> rowOrder(static_cast<size_t>(last - first + 1));
    for (size_t i = 0; i < rowOrder.size(); ++i) rowOrder[i] = first + static_cast<int>(i);
    std::stable_sort(rowOrder.begin(), rowOrder.end(), [&](int a, int b) {
        return compare(cells_[static_cast<size_t>(a)], cells_[static_cast<size_t>(b)]);
    });
    std::vector<std::vector<Cell>> rows;
    std::vector<int> heights;
    rows.reserve(rowOrder.size());
    for (int r : rowOrder) {
        rows.push_back(std::move(cells_[static_cast<size_t>(r)]));
        heights.push_back(rowHeights_[static_cast<size_t>(r)]);
    }
    for (size_t i = 0; i < rows.size(); ++i) {
        cells_[static_cast<size_t>(first) + i] = std::move(rows[i]);
        rowHeights_[static_cast<size_t>(first) + i] = heights[i];
    }
    Notify();
}

void Grid::SetMergeCells(int mode) {
    mergeCells_ = mode;
    Notify();
}

bool Grid::MergeRow(int row) const {
    return row >= 0 && row < rows_ && mergeRows_[static_cast<size_t>(row)];
}

void Grid::SetMergeRow(int row, bool merge) {
    if (row < 0 || row >= rows_) platform::Raise(381, Key());
    mergeRows_[static_cast<size_t>(row)] = merge;
    Notify();
}

bool Grid::MergeCol(int col) const {
    return col >= 0 && col < cols_ && mergeCols_[static_cast<size_t>(col)];
}

void Grid::SetMergeCol(int col, bool merge) {
    if (col < 0 || col >= cols_) platform::Raise(381, Key());
    mergeCols_[static_cast<size_t>(col)] = merge;
    Notify();
}

bool Grid::SameTextMerged(int row, int col, int nextRow, int nextCol) const {
    const Cell* a = Find(row, col);
    const Cell* b = Find(nextRow, nextCol);
    return mergeCells_ != flexMergeNever && a && b && a->text == b->text;
}

int Grid::MergedAcross(int row, int col) const {
    if (!MergeRow(row)) return Find(row, col) ? 1 : 0;
    if (col > 0 && SameTextMerged(row, col - 1, row, col)) return 0;
    int span = 1;
    while (SameTextMerged(row, col + span - 1, row, col + span)) ++span;
    return span;
}

int Grid::MergedDown(int row, int col) const {
    if (!MergeCol(col)) return Find(row, col) ? 1 : 0;
    if (row > 0 && SameTextMerged(row - 1, col, row, col)) return 0;
    int span = 1;
    while (SameTextMerged(row + span - 1, col, row + span, col)) ++span;
    return span;
}

std::map<std::string, std::string> Grid::Properties() const {
    auto p = Control::Properties();
    p["Rows"] = std::to_string(rows_);
    p["Cols"] = std::to_string(cols_);
    p["Row"] = std::to_string(row_);
    p["Col"] = std::to_string(col_);
    p["RowSel"] = std::to_string(rowSel_);
    p["ColSel"] = std::to_string(colSel_);
    std::string widths;
    for (int c = 0; c < cols_; ++c) widths += (c ? " " : "") + std::to_string(ColWidth(c));
    p["ColWidth"] = widths;
    return p;
}

}  // namespace platform
