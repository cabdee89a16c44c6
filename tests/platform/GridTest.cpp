#include <gtest/gtest.h>

#include "platform/Form.h"
#include "support/TestFolder.h"

using namespace platform;
using testing_support::TestFolder;

namespace {

class GridForm : public Form {
  public:
    static constexpr const char* kName = "frmGridDemo";
    GridForm() : Form(kName) {
        On("fg.SelChange", [this](EventArgs&) { log += "selchange "; });
    }
    Grid fg{*this, "fg"};
    std::string log;
};

// A grid with a heading row and one column of the given texts below it.
Grid& GridOf(const std::vector<std::string>& texts) {
    Grid& g = Screen<GridForm>().fg;
    g.SetFixedCols(0);
    g.SetCols(2);
    g.SetRows(static_cast<int>(texts.size()) + 1);
    g.SetTextMatrix(0, 0, "Key");
    for (size_t i = 0; i < texts.size(); ++i) {
        g.SetTextMatrix(static_cast<int>(i) + 1, 0, texts[i]);
        g.SetTextMatrix(static_cast<int>(i) + 1, 1, std::to_string(i + 1));
    }
    return g;
}

std::string Column(const Grid& g, int col) {
    std::string out;
    for (int r = 0; r < g.Rows(); ++r) out += (r ? "," : "") + g.TextMatrix(r, col);
    return out;
}

}  // namespace

TEST(Grid, GenericSortComparesNumbersByValueAndTextWithoutCase) {
    TestFolder folder;
    struct Case {
        std::vector<std::string> keys;
        int order;
        const char* sorted;
    };
    const Case cases[] = {
        // Date keys written without padding: "20269" (day 9) comes before "2026100".
        {{"2026100", "20269", "2027", "202615"},
         flexSortGenericAscending,
         "Key,2027,20269,202615,2026100"},
        {{"cherry", "Apple", "banana"}, flexSortGenericAscending, "Key,Apple,banana,cherry"},
        {{"cherry", "Apple", "banana"}, flexSortGenericDescending, "Key,cherry,banana,Apple"},
        // A number beside a text is compared as text.
        {{"abc", "10", "9", ""}, flexSortGenericAscending, "Key,,9,10,abc"},
        {{"$1,200.00", "300", "-5"}, flexSortGenericAscending, "Key,-5,300,$1,200.00"},
        {{"b", "B", "a"}, flexSortStringAscending, "Key,B,a,b"},
        {{"b", "B", "a"}, flexSortStringNoCaseAscending, "Key,a,b,B"},
        {{"x", "2", "10"}, flexSortNumericAscending, "Key,x,2,10"},
    };
    for (const Case& c : cases) {
        Grid& g = GridOf(c.keys);
        g.SetRow(1);
        g.SetCol(0);
        g.SetSort(c.order);
        EXPECT_EQ(Column(g, 0), c.sorted) << c.order << " " << c.sorted;
        Forms::Reset();
    }
}

TEST(Grid, SortMovesWholeRowsAndKeepsEqualRowsInTheirOrder) {
    TestFolder folder;
    Grid& g = GridOf({"b", "a", "b", "a"});
    g.SetRow(3);
    g.SetCol(1);
    g.SetCellBackColor(Rgb(255, 0, 0));
    g.SetRowHeight(3, 500);
    g.SetRow(1);
    g.SetCol(0);
    g.SetSort(flexSortGenericAscending);
    EXPECT_EQ(Column(g, 0), "Key,a,a,b,b");
    EXPECT_EQ(Column(g, 1), ",2,4,1,3");
    // Row 3 ("b", the second b) is now row 4, with its colour and height.
    EXPECT_EQ(g.CellBack(4, 1), Rgb(255, 0, 0));
    EXPECT_EQ(g.RowHeight(4), 500);
    EXPECT_EQ(g.CellBack(3, 1), -1);
}

TEST(Grid, SortTakesTheSelectedRowsAndTheSelectedColumnsAsKeys) {
    TestFolder folder;
    Grid& g = GridOf({"z", "b", "b", "a", "c"});
    g.SetTextMatrix(2, 1, "9");
    g.SetTextMatrix(3, 1, "1");
    // Rows 2 to 4 only, by column 0 and then column 1.
    g.SetRow(2);
    g.SetCol(0);
    g.SetRowSel(4);
    g.SetColSel(1);
    g.SetSort(flexSortGenericAscending);
    EXPECT_EQ(Column(g, 0), "Key,z,a,b,b,c");
    EXPECT_EQ(Column(g, 1), ",1,4,1,9,5");
}

TEST(Grid, SelectionRangeFollowsTheCurrentCellAndTheUser) {
    TestFolder folder;
    auto& f = Screen<GridForm>();
    Grid& g = f.fg;
    g.SetRows(6);
    g.SetCols(4);
    g.SetRowSel(4);
    g.SetColSel(3);
    EXPECT_TRUE(g.Selected(3, 2));
    g.SetRow(2);  // the current cell alone is the selection again
    EXPECT_EQ(g.RowSel(), 2);
    EXPECT_FALSE(g.Selected(3, 1));
    g.UserClick(5, 3);
    g.UserExtendSelection(2, 1);
    EXPECT_EQ(f.log, "selchange ");
    EXPECT_EQ(g.Row(), 5);
    EXPECT_EQ(g.RowSel(), 2);
    EXPECT_EQ(g.ColSel(), 1);
    EXPECT_TRUE(g.Selected(3, 2));
    EXPECT_FALSE(g.Selected(1, 2));
    g.UserExtendSelection(0, 0);  // a heading cell is not selectable
    EXPECT_EQ(g.RowSel(), 2);
    EXPECT_EQ(g.Properties().at("RowSel"), "2");
}

TEST(Grid, TheCurrentRowIsTheFirstBelowTheHeadingsWheneverThereIsOne) {
    TestFolder folder;
    Grid& g = Screen<GridForm>().fg;
    g.SetRows(1);  // the headings alone: the last of them is current
    EXPECT_EQ(g.Row(), 0);
    g.SetRows(4);
    EXPECT_EQ(g.Row(), 1);
    EXPECT_EQ(g.RowSel(), 1);
    g.SetRows(1);
    g.AddItem("a\tb");
    EXPECT_EQ(g.Row(), 1);
    // Only code puts the current row on a heading, and there it stays.
    g.SetRow(0);
    g.SetRows(5);
    EXPECT_EQ(g.Row(), 0);
    g.UserClick(3, 1);
    g.SetRows(1);
    g.SetRows(3);
    EXPECT_EQ(g.Row(), 1);
}

TEST(Grid, FormatStringGivesEachColumnTheWidthOfItsPaddedHeading) {
    TestFolder folder;
    Grid& g = Screen<GridForm>().fg;
    const std::string customer = "Customer" + std::string(26, ' ');
    g.SetColWidth(1, 3000);
    g.SetFormatString("^Rec|" + customer + "|^Phone;|A|Longer row heading");
    EXPECT_EQ(g.Cols(), 3);
    EXPECT_EQ(g.TextMatrix(0, 1), customer);
    // The blanks count: the padded heading is far wider than "Customer" alone.
    EXPECT_GT(g.ColWidth(1), 2 * g.ColWidth(2));
    EXPECT_GT(g.ColWidth(2), 0);
    // Row headings widen the first column to the widest of them.
    EXPECT_GT(g.ColWidth(0), g.ColWidth(2));
    EXPECT_EQ(g.TextMatrix(2, 0), "Longer row heading");
    g.SetColWidth(2, 0);  // a hidden column, as screens hide a sort key
    EXPECT_EQ(g.ColWidth(2), 0);
}

TEST(Grid, MergedHeadingsShowEqualNeighboursAsOneCell) {
    TestFolder folder;
    Grid& g = Screen<GridForm>().fg;
    g.SetFormatString("Start|Start|End|End|End");
    g.SetRows(3);
    g.SetTextMatrix(1, 0, "x");
    g.SetTextMatrix(1, 1, "x");
    EXPECT_EQ(g.MergedAcross(0, 0), 1);  // nothing merges until asked
    g.SetMergeCells(flexMergeFree);
    g.SetMergeRow(0, true);
    EXPECT_EQ(g.MergedAcross(0, 0), 2);
    EXPECT_EQ(g.MergedAcross(0, 1), 0);
    EXPECT_EQ(g.MergedAcross(0, 2), 3);
    EXPECT_EQ(g.MergedAcross(0, 4), 0);
    EXPECT_EQ(g.MergedAcross(1, 0), 1);  // rows without MergeRow stay apart
    EXPECT_EQ(g.TextMatrix(0, 1), "Start");
    g.SetMergeCol(2, true);
    g.SetTextMatrix(1, 2, "End");
    EXPECT_EQ(g.MergedDown(0, 2), 2);
    EXPECT_EQ(g.MergedDown(1, 2), 0);
}
