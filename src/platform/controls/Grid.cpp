#include "platform/controls/Grid.h"

#include <algorithm>

#include "platform/RuntimeError.h"

namespace platform {

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

}  // namespace platform
