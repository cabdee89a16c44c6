#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/controls/Control.h"

namespace platform {

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

}  // namespace platform
