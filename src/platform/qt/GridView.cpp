#include "platform/qt/GridView.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QMouseEvent>
#include <QTableView>

#include "platform/qt/Ansi.h"
#include "platform/qt/FormWindow.h"
#include "platform/qt/Keys.h"
#include "platform/qt/WidgetText.h"

namespace platform::qt {
namespace {

// Sizes the original grid gives a column and a row it was not told, in twips.
constexpr int kDefaultColWidth = 960;
constexpr int kDefaultRowHeight = 240;

int ColumnWidthTwips(const Grid& g, int col) {
    const int w = g.ColWidth(col);
    return w < 0 ? kDefaultColWidth : w;
}

int RowHeightTwips(const Grid& g, int row) {
    const int h = g.RowHeight(row);
    return h < 0 ? kDefaultRowHeight : h;
}

Qt::Alignment GridAlignment(int vb) {
    switch (vb) {
        case 0:
            return Qt::AlignLeft | Qt::AlignTop;
        case 2:
            return Qt::AlignLeft | Qt::AlignBottom;
        case 3:
            return Qt::AlignHCenter | Qt::AlignTop;
        case 4:
            return Qt::AlignCenter;
        case 5:
            return Qt::AlignHCenter | Qt::AlignBottom;
        case 6:
            return Qt::AlignRight | Qt::AlignTop;
        case 7:
            return Qt::AlignRight | Qt::AlignVCenter;
        case 8:
            return Qt::AlignRight | Qt::AlignBottom;
        default:
            return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

}  // namespace

// The grid's cells, read straight from the control: nothing is copied, so a grid of
// thousands of cells refreshes as fast as the rows on screen.
class GridModel : public QAbstractTableModel {
  public:
    explicit GridModel(Grid* grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {
        Measure(headRows_, headCols_, rows_, cols_);
    }
    int HeadRows() const { return headRows_; }
    int HeadCols() const { return headCols_; }

    void Refresh() {
        int hr = 0, hc = 0, r = 0, c = 0;
        Measure(hr, hc, r, c);
        if (hr != headRows_ || hc != headCols_ || r != rows_ || c != cols_) {
            beginResetModel();
            headRows_ = hr, headCols_ = hc, rows_ = r, cols_ = c;
            endResetModel();
            return;
        }
        if (rows_ > 0 && cols_ > 0) emit dataChanged(index(0, 0), index(rows_ - 1, cols_ - 1));
        if (cols_ > 0) emit headerDataChanged(Qt::Horizontal, 0, cols_ - 1);
        if (rows_ > 0) emit headerDataChanged(Qt::Vertical, 0, rows_ - 1);
    }
    void Detach() {
        beginResetModel();
        grid_ = nullptr;
        rows_ = cols_ = 0;
        endResetModel();
    }

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : rows_;
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : cols_;
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (!grid_ || !index.isValid()) return {};
        const int r = index.row() + headRows_;
        const int c = index.column() + headCols_;
        if (r >= grid_->Rows() || c >= grid_->Cols()) return {};
        const bool fixed = r < grid_->FixedRows() || c < grid_->FixedCols();
        switch (role) {
            case Qt::DisplayRole:
                return FromAnsi(grid_->TextMatrix(r, c));
            case Qt::BackgroundRole: {
                const std::int32_t back = grid_->CellBack(r, c);
                if (back != -1) return ToColor(back);
                if (fixed) return QApplication::palette().color(QPalette::Button);
                return {};
            }
            case Qt::ForegroundRole: {
                const std::int32_t fore = grid_->CellFore(r, c);
                return fore != -1 ? QVariant(ToColor(fore)) : QVariant();
            }
            case Qt::FontRole: {
                if (!grid_->CellBold(r, c)) return {};
                QFont f = static_cast<QWidget*>(QObject::parent())->font();
                f.setBold(true);
                return f;
            }
            case Qt::TextAlignmentRole:
                return QVariant::fromValue(GridAlignment(grid_->ColAlignment(c)));
            default:
                return {};
        }
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (!grid_) return {};
        const int r = orientation == Qt::Horizontal ? 0 : section + headRows_;
        const int c = orientation == Qt::Horizontal ? section + headCols_ : 0;
        if (r >= grid_->Rows() || c >= grid_->Cols()) return {};
        switch (role) {
            case Qt::DisplayRole:
                return FromAnsi(grid_->TextMatrix(r, c));
            case Qt::TextAlignmentRole:
                return QVariant::fromValue(orientation == Qt::Horizontal
                                               ? GridAlignment(grid_->ColAlignment(c))
                                               : Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter));
            case Qt::FontRole: {
                if (!grid_->CellBold(r, c)) return {};
                QFont f = static_cast<QWidget*>(QObject::parent())->font();
                f.setBold(true);
                return f;
            }
            case Qt::ForegroundRole: {
                const std::int32_t fore = grid_->CellFore(r, c);
                return fore != -1 ? QVariant(ToColor(fore)) : QVariant();
            }
            default:
                return {};
        }
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override {
        if (!grid_ || !index.isValid()) return Qt::NoItemFlags;
        const int r = index.row() + headRows_;
        const int c = index.column() + headCols_;
        if (r < grid_->FixedRows() || c < grid_->FixedCols()) return Qt::ItemIsEnabled;
        return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    }

  private:
    // The first fixed row becomes the view's header, so it stays in place while the body
    // scrolls; further fixed rows and the fixed columns are shown shaded.
    void Measure(int& hr, int& hc, int& r, int& c) const {
        if (!grid_) return;
        hr = grid_->FixedRows() > 0 && grid_->Rows() > 0 ? 1 : 0;
        hc = 0;  // fixed columns stay cells, so the heading over them keeps its place
        r = std::max(0, grid_->Rows() - hr);
        c = std::max(0, grid_->Cols() - hc);
    }

    Grid* grid_;
    int headRows_ = 0, headCols_ = 0, rows_ = 0, cols_ = 0;
};

GridView::GridView(Control& control, FormWindow& window) : ControlView(control, window) {
    auto* view = new QTableView(Canvas());
    auto* cells = new GridModel(&Model(), view);
    cells_ = cells;
    view->setModel(cells);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setSelectionBehavior(QAbstractItemView::SelectItems);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setTextElideMode(Qt::ElideNone);
    view->setWordWrap(false);
    view->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->horizontalHeader()->setHighlightSections(false);
    view->verticalHeader()->setHighlightSections(false);
    view->horizontalHeader()->setMinimumSectionSize(0);
    view->verticalHeader()->setMinimumSectionSize(0);
    window_.Watch(view->viewport(), control_);
    window_.Watch(view->horizontalHeader()->viewport(), control_);
    window_.Watch(view->verticalHeader()->viewport(), control_);
    Grid* g = &Model();
    QObject::connect(view->selectionModel(), &QItemSelectionModel::currentChanged, &window_,
                     [this, g, cells](const QModelIndex& now, const QModelIndex&) {
                         if (Syncing() || !now.isValid()) return;
                         const int r = now.row() + cells->HeadRows();
                         const int col = now.column() + cells->HeadCols();
                         if (r == g->Row() && col == g->Col()) return;
                         window_.Act(g, [g, r, col] {
                             g->SetRow(r);
                             g->SetCol(col);
                             g->Raise("RowColChange");
                         });
                     });
    SetWidget(view);
}

void GridView::Detach() {
    cells_->Detach();
}

bool GridView::Mouse(QObject* watched, QMouseEvent* event) {
    auto* view = static_cast<QTableView*>(widget_);
    int row = -1, col = -1;
    const QPoint pos = event->position().toPoint();
    if (watched == view->viewport()) {
        const QModelIndex index = view->indexAt(pos);
        if (!index.isValid()) return event->type() != QEvent::MouseMove;
        row = index.row() + cells_->HeadRows();
        col = index.column() + cells_->HeadCols();
    } else if (watched == view->horizontalHeader()->viewport()) {
        row = 0;
        col = view->horizontalHeader()->logicalIndexAt(pos) + cells_->HeadCols();
        if (col < cells_->HeadCols()) return true;
    } else {
        col = 0;
        row = view->verticalHeader()->logicalIndexAt(pos) + cells_->HeadRows();
        if (row < cells_->HeadRows()) return true;
    }
    Grid* g = &Model();
    const int button = ButtonOf(event->button());
    if (event->type() == QEvent::MouseButtonPress) {
        view->setFocus(Qt::MouseFocusReason);
        window_.Act(g, [g, row, col, button] { g->UserClick(row, col, button == 0 ? 1 : button); });
    } else if (event->type() == QEvent::MouseButtonDblClick && button == 1) {
        window_.Act(g, [g] { g->Raise("DblClick"); });
    }
    return event->type() != QEvent::MouseMove || event->buttons() != Qt::NoButton;
}

void GridView::SyncOwn() {
    auto* view = static_cast<QTableView*>(widget_);
    Grid& g = Model();
    const Scale& scale = window_.CurrentScale();
    cells_->Refresh();
    const int hr = cells_->HeadRows(), hc = cells_->HeadCols();
    view->horizontalHeader()->setVisible(hr > 0);
    view->verticalHeader()->setVisible(hc > 0);
    view->verticalHeader()->setDefaultSectionSize(scale.Y(kDefaultRowHeight));
    if (hr > 0) view->horizontalHeader()->setFixedHeight(scale.Y(RowHeightTwips(g, 0)));
    if (hc > 0) view->verticalHeader()->setFixedWidth(scale.X(ColumnWidthTwips(g, 0)));
    for (int col = hc; col < g.Cols(); ++col)
        view->setColumnWidth(col - hc, scale.X(ColumnWidthTwips(g, col)));
    for (int row = hr; row < g.Rows(); ++row)
        if (g.RowHeight(row) >= 0) view->setRowHeight(row - hr, scale.Y(g.RowHeight(row)));
    const QModelIndex current = cells_->index(g.Row() - hr, g.Col() - hc);
    if (current.isValid() && g.Row() >= g.FixedRows() && g.Col() >= g.FixedCols()) {
        if (view->currentIndex() != current)
            view->selectionModel()->setCurrentIndex(current, QItemSelectionModel::ClearAndSelect);
    } else {
        view->selectionModel()->clear();
    }
    if (g.TopRow() != topRow_) {
        topRow_ = g.TopRow();
        const QModelIndex top = cells_->index(g.TopRow() - hr, 0);
        if (top.isValid()) view->scrollTo(top, QAbstractItemView::PositionAtTop);
    }
}

}  // namespace platform::qt
