#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/controls/Control.h"

namespace platform {

// Orders of the grid's Sort. The generic sorts compare two cells as numbers where both look
// like numbers, and as text without regard to case otherwise.
constexpr int flexSortNone = 0;
constexpr int flexSortGenericAscending = 1;
constexpr int flexSortGenericDescending = 2;
constexpr int flexSortNumericAscending = 3;
constexpr int flexSortNumericDescending = 4;
constexpr int flexSortStringNoCaseAscending = 5;
constexpr int flexSortStringNoCaseDescending = 6;
constexpr int flexSortStringAscending = 7;
constexpr int flexSortStringDescending = 8;

// MergeCells: whether neighbouring cells of equal text in the rows and columns that allow it
// (MergeRow, MergeCol) are shown as one cell. The cells themselves stay apart.
constexpr int flexMergeNever = 0;
constexpr int flexMergeFree = 1;

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
    // The selection runs from Row, Col to RowSel, ColSel, either way round. Setting Row or
    // Col makes the current cell the whole selection.
    int RowSel() const { return rowSel_; }
    void SetRowSel(int row);
    int ColSel() const { return colSel_; }
    void SetColSel(int col);
    bool Selected(int row, int col) const;
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
    // Twips; -1 where neither the format string nor the screen has set a width. A format
    // string gives each column the width of its heading, blanks included.
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
    // Sorts the rows from Row to RowSel (all rows below the fixed ones when they are the same
    // row) by the columns from Col to ColSel, the left one first. Rows that compare equal keep
    // their order. Cell properties and row heights travel with their rows.
    void SetSort(int order);
    int MergeCells() const { return mergeCells_; }
    void SetMergeCells(int mode);
    bool MergeRow(int row) const;
    void SetMergeRow(int row, bool merge);
    bool MergeCol(int col) const;
    void SetMergeCol(int col, bool merge);
    // How many columns (rows) the cell is shown across: 1 for a cell of its own, more where
    // it is merged with the cells that follow, 0 where a cell before it covers it.
    int MergedAcross(int row, int col) const;
    int MergedDown(int row, int col) const;
    void Clear();  // texts and cell properties, the size stays
    void AddItem(const std::string& tabSeparated, int index = -1);
    void RemoveItem(int index);
    // A click of the user on a cell: Row and Col move there, then MouseDown, Click, MouseUp.
    void UserClick(int row, int col, int button = 1);
    void UserDoubleClick(int row, int col);
    // The user drags from the current cell to this one (or clicks it with Shift held).
    void UserExtendSelection(int row, int col);
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
    void KeepRowBelowFixed();
    bool SameTextMerged(int row, int col, int nextRow, int nextCol) const;

    int rows_ = 2, cols_ = 2, fixedRows_ = 1, fixedCols_ = 1;
    int row_ = 1, col_ = 1, rowSel_ = 1, colSel_ = 1, topRow_ = 1;
    int mouseRow_ = 0, mouseCol_ = 0;
    bool rowChosenInFixed_ = false;  // set there by SetRow
    std::vector<std::vector<Cell>> cells_;
    std::vector<int> colWidths_;
    std::vector<int> rowHeights_;
    std::vector<int> colAlignment_;
    std::string formatString_;
    int mergeCells_ = flexMergeNever;
    std::vector<bool> mergeRows_;
    std::vector<bool> mergeCols_;
};

}  // namespace platform
