#include "platform/qt/FormWindow.h"

#include <QAbstractTableModel>
#include <QAction>
#include <QApplication>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QCursor>
#include <QDateEdit>
#include <QDrag>
#include <QFileInfo>
#include <QGroupBox>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QMouseEvent>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QTabBar>
#include <QTableView>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "platform/Files.h"
#include "platform/Ui.h"
#include "platform/qt/Ansi.h"
#include "platform/qt/QtBackend.h"

namespace platform::qt {

int ToPixels(int twips) {
    return static_cast<int>(std::lround(twips / 15.0 * kScale));
}

namespace {

// Sizes the original platform gives its frames and defaults, in twips.
constexpr int kBorderWidth = 120;    // left and right window border together
constexpr int kCaptionHeight = 405;  // title bar and borders
constexpr int kMenuHeight = 285;
constexpr int kDefaultColWidth = 960;
constexpr int kDefaultRowHeight = 240;
constexpr double kDefaultFontSize = 8.25;

QColor ToColor(std::int32_t value) {
    const auto raw = static_cast<std::uint32_t>(value);
    if (raw & 0x80000000u) {  // a system colour by its index
        const QPalette pal = QApplication::palette();
        switch (raw & 0xFF) {
            case 5:
                return pal.color(QPalette::Base);
            case 8:
                return pal.color(QPalette::Text);
            case 13:
                return pal.color(QPalette::Highlight);
            case 14:
                return pal.color(QPalette::HighlightedText);
            case 18:
                return pal.color(QPalette::ButtonText);
            case 15:
                return pal.color(QPalette::Button);
            default:
                return pal.color(QPalette::Window);
        }
    }
    return QColor(raw & 0xFF, (raw >> 8) & 0xFF, (raw >> 16) & 0xFF);
}

// Labels and frames show "&x" as a plain x; "&&" is one ampersand.
QString WithoutMnemonic(const QString& text) {
    QString out;
    out.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'&' && i + 1 < text.size()) {
            ++i;
        }
        out.append(text[i]);
    }
    return out;
}

// Multi-line text is kept with CR LF; the widget knows only LF.
QString ToWidgetText(const std::string& text, bool multiLine) {
    QString q = FromAnsi(text);
    if (multiLine) q.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return q;
}

std::string FromWidgetText(const QString& text, bool multiLine) {
    if (!multiLine) return ToAnsi(text);
    QString q = text;
    q.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
    return ToAnsi(q);
}

// Offsets differ where the model holds CR LF and the widget one LF.
int ModelToWidget(const std::string& text, int offset, bool multiLine) {
    if (!multiLine) return offset;
    int pos = 0;
    for (int i = 0; i < offset && i < static_cast<int>(text.size()); ++i)
        if (!(text[static_cast<size_t>(i)] == '\r' && i + 1 < static_cast<int>(text.size()) &&
              text[static_cast<size_t>(i) + 1] == '\n'))
            ++pos;
    return pos;
}

int WidgetToModel(const std::string& text, int pos, bool multiLine) {
    if (!multiLine) return pos;
    int seen = 0;
    int i = 0;
    for (; i < static_cast<int>(text.size()) && seen < pos; ++i) {
        if (text[static_cast<size_t>(i)] == '\r' && i + 1 < static_cast<int>(text.size()) &&
            text[static_cast<size_t>(i) + 1] == '\n')
            continue;
        ++seen;
    }
    return i;
}

QDate ToQDate(DateTime d) {
    return QDate(d.Year(), d.Month(), d.Day());
}
DateTime FromQDate(QDate d) {
    return DateTime::FromYmd(d.year(), d.month(), d.day());
}

int VbKeyCode(const QKeyEvent* e) {
    const int k = e->key();
    if (k >= Qt::Key_A && k <= Qt::Key_Z) return k;
    if (k >= Qt::Key_0 && k <= Qt::Key_9) return k;
    if (k >= Qt::Key_F1 && k <= Qt::Key_F12) return 112 + (k - Qt::Key_F1);
    switch (k) {
        case Qt::Key_Left:
            return 37;
        case Qt::Key_Up:
            return 38;
        case Qt::Key_Right:
            return 39;
        case Qt::Key_Down:
            return 40;
        case Qt::Key_Delete:
            return 46;
        case Qt::Key_Insert:
            return 45;
        case Qt::Key_Home:
            return 36;
        case Qt::Key_End:
            return 35;
        case Qt::Key_PageUp:
            return 33;
        case Qt::Key_PageDown:
            return 34;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return 13;
        case Qt::Key_Escape:
            return 27;
        case Qt::Key_Tab:
            return 9;
        case Qt::Key_Backspace:
            return 8;
        case Qt::Key_Space:
            return 32;
        default:
            return 0;
    }
}

int ShiftOf(Qt::KeyboardModifiers m) {
    return (m & Qt::ShiftModifier ? 1 : 0) | (m & Qt::ControlModifier ? 2 : 0) |
           (m & Qt::AltModifier ? 4 : 0);
}

// The character a key press types, as KeyPress sees it; 0 for keys that type nothing.
int AsciiOf(const QKeyEvent* e) {
    if (e->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return 0;
    switch (e->key()) {
        case Qt::Key_Backspace:
            return 8;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return 13;
        case Qt::Key_Escape:
            return 27;
        default:
            break;
    }
    const QString text = e->text();
    if (text.size() != 1 || text[0].unicode() < 0x20 || text[0].unicode() == 0x7F) return 0;
    return AnsiOf(text[0]);
}

int ButtonOf(Qt::MouseButton b) {
    return b == Qt::LeftButton ? 1 : b == Qt::RightButton ? 2 : b == Qt::MiddleButton ? 4 : 0;
}

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

// The spinner: two arrow buttons, stacked, or side by side when the control is wide.
class SpinButtons : public QWidget {
  public:
    explicit SpinButtons(QWidget* parent) : QWidget(parent) {
        up = new QToolButton(this);
        down = new QToolButton(this);
        for (QToolButton* b : {up, down}) {
            b->setAutoRepeat(true);
            b->setFocusPolicy(Qt::NoFocus);
        }
    }
    QToolButton* up;
    QToolButton* down;

  protected:
    void resizeEvent(QResizeEvent*) override {
        const bool horizontal = width() > height();
        up->setArrowType(horizontal ? Qt::RightArrow : Qt::UpArrow);
        down->setArrowType(horizontal ? Qt::LeftArrow : Qt::DownArrow);
        if (horizontal) {
            down->setGeometry(0, 0, width() / 2, height());
            up->setGeometry(width() / 2, 0, width() - width() / 2, height());
        } else {
            up->setGeometry(0, 0, width(), height() / 2);
            down->setGeometry(0, height() / 2, width(), height() - height() / 2);
        }
    }
};

// The platform's option buttons and check boxes answer a click anywhere in their box.
template <typename Button>
class WholeBoxButton : public Button {
  public:
    using Button::Button;

  protected:
    bool hitButton(const QPoint& pos) const override { return this->rect().contains(pos); }
};

// The simple combo box: an edit line over a list that is always open.
class SimpleCombo : public QWidget {
  public:
    explicit SimpleCombo(QWidget* parent) : QWidget(parent) {
        edit = new QLineEdit(this);
        list = new QListWidget(this);
        list->setFocusPolicy(Qt::NoFocus);
        list->setUniformItemSizes(true);
        setFocusProxy(edit);
    }
    QLineEdit* edit;
    QListWidget* list;

  protected:
    void resizeEvent(QResizeEvent*) override {
        const int editHeight = std::min(height(), edit->sizeHint().height());
        edit->setGeometry(0, 0, width(), editHeight);
        list->setGeometry(0, editHeight, width(), std::max(0, height() - editHeight));
    }
};

QLineEdit* ComboEdit(QWidget* w) {
    if (auto* combo = qobject_cast<QComboBox*>(w)) return combo->lineEdit();
    if (auto* simple = dynamic_cast<SimpleCombo*>(w)) return simple->edit;
    return nullptr;
}

// The platform's buttons wrap a caption that does not fit on one line.
QString WrappedCaption(const QString& text, const QFontMetrics& metrics, int width) {
    if (width <= 0 || metrics.horizontalAdvance(WithoutMnemonic(text)) <= width) return text;
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    QString out, line;
    for (const QString& word : words) {
        const QString candidate = line.isEmpty() ? word : line + u' ' + word;
        if (!line.isEmpty() && metrics.horizontalAdvance(WithoutMnemonic(candidate)) > width) {
            out += line + u'\n';
            line = word;
        } else {
            line = candidate;
        }
    }
    return out + line;
}

// The tab control: a tab strip over a panel; each page holds the controls placed on it,
// at positions measured from the control's own top left corner.
class TabHost : public QWidget {
  public:
    explicit TabHost(QWidget* parent) : QWidget(parent) {
        panel = new QFrame(this);
        panel->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
        bar = new QTabBar(this);
        bar->setDrawBase(false);
        bar->setExpanding(false);
    }
    QWidget* Page(size_t index) {
        while (pages.size() <= index) {
            auto* page = new QWidget(this);
            page->setGeometry(rect());
            page->setVisible(false);
            pages.push_back(page);
            bar->raise();
        }
        return pages[index];
    }
    void ShowPage(int index) {
        for (size_t i = 0; i < pages.size(); ++i)
            pages[i]->setVisible(static_cast<int>(i) == index);
        bar->raise();
    }
    QFrame* panel;
    QTabBar* bar;
    std::vector<QWidget*> pages;

  protected:
    void resizeEvent(QResizeEvent*) override {
        const int barHeight = bar->sizeHint().height();
        bar->setGeometry(0, 0, width(), barHeight);
        panel->setGeometry(0, barHeight - 1, width(), height() - barHeight + 1);
        for (QWidget* p : pages) p->setGeometry(rect());
    }
};

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
                QFont f = QApplication::font();
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
                QFont f = QApplication::font();
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

// ---- Building

FormWindow::FormWindow(Form& form, QtBackend& backend) : form_(&form), backend_(backend) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    menuBar_ = new QMenuBar(this);
    layout->setMenuBar(menuBar_);
    scroll_ = new QScrollArea(this);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setWidgetResizable(false);
    canvas_ = new QWidget;
    canvas_->setObjectName(QString::fromStdString(form.Name()));
    scroll_->setWidget(canvas_);
    layout->addWidget(scroll_);
    Build();
    form_->SetObserver([this](Form&) {
        formDirty_ = true;
        if (!flushPosted_) {
            flushPosted_ = true;
            QTimer::singleShot(0, this, [this] { Flush(); });
        }
    });
    FlushAll();
}

FormWindow::~FormWindow() {
    Detach();
}

void FormWindow::Build() {
    bindings_.reserve(form_->Controls().size());
    for (Control* c : form_->Controls()) {
        Binding b;
        b.control = c;
        QWidget* w = nullptr;
        switch (c->Type()) {
            case ControlType::CommandButton: {
                auto* button = new QPushButton(canvas_);
                button->setAutoDefault(false);
                connect(button, &QPushButton::clicked, this,
                        [this, c] { Act(c, [c] { static_cast<CommandButton*>(c)->Click(); }); });
                w = button;
                break;
            }
            case ControlType::Label: {
                auto* label = new QLabel(canvas_);
                label->setTextFormat(Qt::PlainText);
                w = label;
                break;
            }
            case ControlType::TextBox: {
                auto* box = static_cast<TextBox*>(c);
                if (box->MultiLine()) {
                    auto* edit = new QPlainTextEdit(canvas_);
                    edit->setTabChangesFocus(true);
                    connect(edit, &QPlainTextEdit::textChanged, this, [this, c, edit] {
                        if (syncing_) return;
                        auto* tb = static_cast<TextBox*>(c);
                        const std::string now = FromWidgetText(edit->toPlainText(), true);
                        if (now == tb->Text()) return;
                        Act(
                            c, [tb, now] { tb->SetText(now); },
                            [this, c] { SelectionToModel(*c); });
                    });
                    Watch(edit->viewport(), *c);
                    w = edit;
                } else {
                    auto* edit = new QLineEdit(canvas_);
                    connect(edit, &QLineEdit::textEdited, this, [this, c](const QString& text) {
                        auto* tb = static_cast<TextBox*>(c);
                        const std::string now = ToAnsi(text);
                        Act(
                            c, [tb, now] { tb->SetText(now); },
                            [this, c] { SelectionToModel(*c); });
                    });
                    w = edit;
                }
                break;
            }
            case ControlType::CheckBox: {
                auto* check = new WholeBoxButton<QCheckBox>(canvas_);
                connect(check, &QCheckBox::clicked, this, [this, c] {
                    auto* cb = static_cast<CheckBox*>(c);
                    Act(c, [cb] { cb->SetValue(cb->Value() == 1 ? 0 : 1); });
                });
                w = check;
                break;
            }
            case ControlType::OptionButton: {
                auto* option = new WholeBoxButton<QRadioButton>(canvas_);
                option->setAutoExclusive(false);
                connect(option, &QRadioButton::clicked, this, [this, c] {
                    Act(c, [c] { static_cast<OptionButton*>(c)->SetValue(true); });
                });
                w = option;
                break;
            }
            case ControlType::Frame: {
                w = new QGroupBox(canvas_);
                break;
            }
            case ControlType::ListBox: {
                auto* list = new QListWidget(canvas_);
                auto* lb = static_cast<ListBox*>(c);
                list->setSelectionMode(lb->MultiSelect() ? QAbstractItemView::MultiSelection
                                                         : QAbstractItemView::SingleSelection);
                list->setUniformItemSizes(true);
                connect(list, &QListWidget::currentRowChanged, this, [this, c, lb](int row) {
                    if (lb->MultiSelect() || row == lb->ListIndex()) return;
                    Act(c, [lb, row] { lb->SetListIndex(row); });
                });
                connect(list, &QListWidget::itemSelectionChanged, this, [this, c, lb, list] {
                    if (syncing_ || !lb->MultiSelect()) return;
                    Act(c, [lb, list] {
                        for (int i = 0; i < lb->ListCount() && i < list->count(); ++i) {
                            const bool selected = list->item(i)->isSelected();
                            if (selected != lb->Selected(i)) lb->SetSelected(i, selected);
                        }
                    });
                });
                Watch(list->viewport(), *c);
                w = list;
                break;
            }
            case ControlType::ComboBox: {
                auto* cb = static_cast<ComboBox*>(c);
                QLineEdit* edit = nullptr;
                if (cb->Style() == ComboBox::SimpleCombo) {
                    auto* simple = new SimpleCombo(canvas_);
                    edit = simple->edit;
                    connect(simple->list, &QListWidget::currentRowChanged, this,
                            [this, c, cb](int row) {
                                if (row < 0 || row >= cb->ListCount() || row == cb->ListIndex())
                                    return;
                                Act(c, [cb, row] { cb->SetListIndex(row); });
                            });
                    Watch(simple->list->viewport(), *c);
                    w = simple;
                } else {
                    auto* combo = new QComboBox(canvas_);
                    combo->setInsertPolicy(QComboBox::NoInsert);
                    combo->setMaxVisibleItems(12);
                    if (cb->Style() != ComboBox::DropDownList) {
                        combo->setEditable(true);
                        combo->setCompleter(nullptr);
                        edit = combo->lineEdit();
                    }
                    connect(combo, &QComboBox::activated, this, [this, c, cb](int index) {
                        Act(c, [cb, index] {
                            if (index < cb->ListCount()) cb->SetListIndex(index);
                        });
                    });
                    w = combo;
                }
                if (edit) {
                    Watch(edit, *c);
                    connect(edit, &QLineEdit::textEdited, this, [this, c, cb](const QString& text) {
                        const std::string now = ToAnsi(text);
                        Act(
                            c, [cb, now] { cb->SetText(now); },
                            [this, c] { SelectionToModel(*c); });
                    });
                }
                break;
            }
            case ControlType::Grid: {
                auto* view = new QTableView(canvas_);
                auto* model = new GridModel(static_cast<Grid*>(c), view);
                view->setModel(model);
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
                view->verticalHeader()->setDefaultSectionSize(ToPixels(kDefaultRowHeight));
                b.grid = model;
                Watch(view->viewport(), *c);
                Watch(view->horizontalHeader()->viewport(), *c);
                Watch(view->verticalHeader()->viewport(), *c);
                connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this,
                        [this, c, model](const QModelIndex& now, const QModelIndex&) {
                            if (syncing_ || !now.isValid()) return;
                            auto* g = static_cast<Grid*>(c);
                            const int r = now.row() + model->HeadRows();
                            const int col = now.column() + model->HeadCols();
                            if (r == g->Row() && col == g->Col()) return;
                            Act(c, [g, r, col] {
                                g->SetRow(r);
                                g->SetCol(col);
                                g->Raise("RowColChange");
                            });
                        });
                w = view;
                break;
            }
            case ControlType::MonthView: {
                auto* cal = new QCalendarWidget(canvas_);
                cal->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
                cal->setGridVisible(false);
                auto* dc = static_cast<DateControl*>(c);
                connect(cal, &QCalendarWidget::selectionChanged, this, [this, c, dc, cal] {
                    if (syncing_) return;
                    const DateTime picked = FromQDate(cal->selectedDate());
                    if (picked == dc->Value()) return;
                    Act(c, [dc, picked] { dc->SetValue(picked); });
                });
                connect(cal, &QCalendarWidget::clicked, this, [this, c, dc](QDate date) {
                    Act(c, [dc, date] { dc->UserPick(FromQDate(date)); });
                });
                w = cal;
                break;
            }
            case ControlType::DatePicker: {
                auto* edit = new QDateEdit(canvas_);
                edit->setCalendarPopup(true);
                edit->setDisplayFormat(QStringLiteral("M/d/yyyy"));
                edit->setKeyboardTracking(false);
                auto* dc = static_cast<DateControl*>(c);
                connect(edit, &QDateEdit::dateChanged, this, [this, c, dc](QDate date) {
                    if (syncing_ || FromQDate(date) == dc->Value()) return;
                    Act(c, [dc, date] { dc->UserPick(FromQDate(date)); });
                });
                w = edit;
                break;
            }
            case ControlType::UpDown: {
                auto* spin = new SpinButtons(canvas_);
                auto* ud = static_cast<UpDown*>(c);
                connect(spin->up, &QToolButton::clicked, this,
                        [this, c, ud] { Act(c, [ud] { ud->UserUp(); }); });
                connect(spin->down, &QToolButton::clicked, this,
                        [this, c, ud] { Act(c, [ud] { ud->UserDown(); }); });
                w = spin;
                break;
            }
            case ControlType::Tab: {
                auto* host = new TabHost(canvas_);
                auto* tab = static_cast<Tab*>(c);
                connect(host->bar, &QTabBar::currentChanged, this, [this, c, tab](int index) {
                    if (syncing_ || index < 0 || index == tab->CurrentTab()) return;
                    Act(c, [tab, index] { tab->SetTab(index); });
                });
                w = host;
                break;
            }
            case ControlType::ProgressBar: {
                auto* bar = new QProgressBar(canvas_);
                bar->setTextVisible(false);
                w = bar;
                break;
            }
            case ControlType::Image: {
                auto* image = new QLabel(canvas_);
                image->setAlignment(Qt::AlignLeft | Qt::AlignTop);
                w = image;
                break;
            }
            case ControlType::Menu:
                break;  // BuildMenus
            case ControlType::Timer: {
                b.timer = new QTimer(this);
                connect(b.timer, &QTimer::timeout, this,
                        [this, c] { Act(c, [c] { static_cast<Timer*>(c)->Tick(); }); });
                break;
            }
        }
        if (w) {
            w->setObjectName(QString::fromStdString(c->Key()));
            Watch(w, *c);
        }
        b.widget = w;
        byControl_[c] = bindings_.size();
        bindings_.push_back(std::move(b));
        c->SetObserver([this](Control& changed) { MarkDirty(changed); });
    }
    BuildMenus();
}

void FormWindow::BuildMenus() {
    auto childrenOf = [this](const Control& parent) {
        std::vector<Control*> children;
        for (Control* c : form_->Controls())
            if (c->Type() == ControlType::Menu && c != &parent &&
                (c->Container() == parent.Name() || c->Container() == parent.Key()))
                children.push_back(c);
        return children;
    };
    for (Binding& b : bindings_) {
        Control* c = b.control;
        if (c->Type() != ControlType::Menu) continue;
        if (!childrenOf(*c).empty()) {
            b.menu = new QMenu(this);
            b.action = b.menu->menuAction();
            connect(b.menu, &QMenu::aboutToShow, this, [this, c] {
                if (form_->HasHandler(c->Name() + ".Click")) Act(c, [c] { c->Raise("Click"); });
            });
        } else {
            b.action = new QAction(this);
            connect(b.action, &QAction::triggered, this,
                    [this, c] { Act(c, [c] { c->Raise("Click"); }); });
        }
        b.action->setObjectName(QString::fromStdString(c->Key()));
    }
    for (Binding& b : bindings_) {
        Control* c = b.control;
        if (c->Type() != ControlType::Menu) continue;
        if (c->Container().empty()) {
            menuBar_->addAction(b.action);
            continue;
        }
        Control* parent = form_->Find(c->Container());
        if (!parent) {
            for (Control* other : form_->Controls())
                if (other->Type() == ControlType::Menu && other->Name() == c->Container()) {
                    parent = other;
                    break;
                }
        }
        if (parent && byControl_.count(parent) && bindings_[byControl_[parent]].menu)
            bindings_[byControl_[parent]].menu->addAction(b.action);
    }
}

void FormWindow::Watch(QObject* object, Control& control) {
    watched_[object] = &control;
    object->installEventFilter(this);
    if (auto* w = qobject_cast<QWidget*>(object)) w->setAcceptDrops(true);
}

namespace {
const QString kDragFormat = QStringLiteral("application/x-scheduler-control");
}

// A control with dragging on is dragged by the mouse; the control it is dropped on gets
// DragDrop with the dragged control as its source.
bool FormWindow::HandleDrag(Control& control, QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress: {
            auto* mouse = static_cast<QMouseEvent*>(event);
            if (control.DragEnabled() && mouse->button() == Qt::LeftButton) {
                dragSource_ = control.Key();
                dragStart_ = mouse->globalPosition().toPoint();
            }
            return false;
        }
        case QEvent::MouseMove: {
            auto* mouse = static_cast<QMouseEvent*>(event);
            if (dragSource_ != control.Key() || !(mouse->buttons() & Qt::LeftButton) ||
                (mouse->globalPosition().toPoint() - dragStart_).manhattanLength() <
                    QApplication::startDragDistance())
                return false;
            const std::string source = dragSource_;
            dragSource_.clear();
            auto* drag = new QDrag(qobject_cast<QWidget*>(watched));
            auto* data = new QMimeData;
            data->setData(kDragFormat, QByteArray::fromStdString(source));
            drag->setMimeData(data);
            drag->exec(Qt::MoveAction);
            return true;
        }
        case QEvent::DragEnter:
        case QEvent::DragMove: {
            auto* drag = static_cast<QDropEvent*>(event);
            if (!drag->mimeData()->hasFormat(kDragFormat)) return false;
            drag->acceptProposedAction();
            return true;
        }
        case QEvent::Drop: {
            auto* drop = static_cast<QDropEvent*>(event);
            if (!drop->mimeData()->hasFormat(kDragFormat)) return false;
            drop->acceptProposedAction();
            Control* source = form_->Find(drop->mimeData()->data(kDragFormat).toStdString());
            Control* target = &control;
            const QPointF at = drop->position();
            Act(target, [target, source, at] {
                EventArgs args;
                args.source = source;
                args.x = at.x() / kScale * 15.0;
                args.y = at.y() / kScale * 15.0;
                target->Raise("DragDrop", args);
            });
            return true;
        }
        default:
            return false;
    }
}

QWidget* FormWindow::ParentFor(const Control& control) const {
    if (control.Container().empty()) return canvas_;
    Control* container = form_->Find(control.Container());
    if (!container) {
        for (Control* c : form_->Controls())
            if (c->Name() == control.Container()) {
                container = c;
                break;
            }
    }
    if (!container || container == &control) return canvas_;
    auto it = byControl_.find(container);
    if (it == byControl_.end()) return canvas_;
    const Binding& b = bindings_[it->second];
    if (container->Type() == ControlType::Tab)
        return static_cast<TabHost*>(b.widget)->Page(
            static_cast<size_t>(std::max(0, control.TabPage())));
    if (container->Type() == ControlType::Frame) return b.widget;
    return canvas_;
}

QWidget* FormWindow::WidgetOf(const Control& control) const {
    auto it = byControl_.find(&control);
    return it == byControl_.end() ? nullptr : bindings_[it->second].widget;
}

QAction* FormWindow::ActionOf(const Control& menu) const {
    auto it = byControl_.find(&menu);
    return it == byControl_.end() ? nullptr : bindings_[it->second].action;
}

// ---- Model to screen

void FormWindow::MarkDirty(Control& control) {
    dirty_.insert(&control);
    if (!flushPosted_) {
        flushPosted_ = true;
        QTimer::singleShot(0, this, [this] { Flush(); });
    }
}

void FormWindow::FlushAll() {
    formDirty_ = true;
    for (Binding& b : bindings_) dirty_.insert(b.control);
    Flush();
}

void FormWindow::Flush() {
    flushPosted_ = false;
    if (detached_) return;
    ++syncing_;
    if (formDirty_) {
        formDirty_ = false;
        UpdateWindowGeometry();
    }
    // Containers first: a frame or tab page must exist before its controls move in.
    std::vector<size_t> order;
    order.reserve(dirty_.size());
    for (Control* c : dirty_) {
        auto it = byControl_.find(c);
        if (it != byControl_.end()) order.push_back(it->second);
    }
    dirty_.clear();
    std::sort(order.begin(), order.end(), [this](size_t a, size_t b) {
        const bool ca = bindings_[a].control->Type() == ControlType::Frame ||
                        bindings_[a].control->Type() == ControlType::Tab;
        const bool cb = bindings_[b].control->Type() == ControlType::Frame ||
                        bindings_[b].control->Type() == ControlType::Tab;
        return ca != cb ? ca : a < b;
    });
    for (size_t i : order) {
        if (bindings_[i].widget && bindings_[i].control->Container().empty()) formDirty_ = true;
        try {
            Sync(bindings_[i]);
        } catch (const std::exception&) {
            // A property the widget cannot show yet; the next change shows it.
        }
    }
    if (formDirty_) {
        formDirty_ = false;
        UpdateWindowGeometry();
    }
    --syncing_;
}

void FormWindow::UpdateWindowGeometry() {
    bool hasMenu = false;
    // A control that sticks out past the form's edge is still reached: the drawing
    // surface grows to hold it rather than cut it off.
    int right = 0, bottom = 0;
    for (const Binding& b : bindings_) {
        const Control& c = *b.control;
        if (c.Type() == ControlType::Menu && c.Container().empty() && c.Visible()) hasMenu = true;
        if (b.widget && c.Container().empty() && c.Visible()) {
            right = std::max(right, c.Left() + c.Width());
            bottom = std::max(bottom, c.Top() + c.Height());
        }
    }
    menuBar_->setVisible(hasMenu);
    const int clientWidth = std::max(0, form_->Width() - kBorderWidth);
    const int clientHeight =
        std::max(0, form_->Height() - kCaptionHeight - (hasMenu ? kMenuHeight : 0));
    const QSize canvas(ToPixels(std::max(clientWidth, right)),
                       ToPixels(std::max(clientHeight, bottom)));
    setWindowTitle(FromAnsi(form_->Caption()));
    if (canvas == canvas_->size() && canvasSized_) return;
    canvasSized_ = true;
    canvas_->setFixedSize(canvas);
    FitContents();
}

void FormWindow::FitContents() {
    QSize wanted = NaturalSize();
    if (const QScreen* screen = QApplication::primaryScreen()) {
        const QSize room = screen->availableGeometry().size() - QSize(16, 48);
        wanted = wanted.boundedTo(room);
    }
    resize(wanted);
}

QSize FormWindow::NaturalSize() const {
    // Before the window is first shown its menu bar is not yet visible to it; what counts is
    // whether the bar has been hidden. The scroll area's frame needs its room too.
    const int frame = 2 * scroll_->frameWidth();
    return canvas_->size() +
           QSize(frame, frame + (menuBar_->isHidden() ? 0 : menuBar_->sizeHint().height()));
}

void FormWindow::SyncCommon(Binding& b) {
    Control& c = *b.control;
    QWidget* w = b.widget;
    QWidget* parent = ParentFor(c);
    if (w->parentWidget() != parent) w->setParent(parent);
    w->setGeometry(ToPixels(c.Left()), ToPixels(c.Top()), std::max(1, ToPixels(c.Width())),
                   std::max(1, ToPixels(c.Height())));
    w->setEnabled(c.Enabled());
    w->setToolTip(FromAnsi(c.ToolTipText()));
    QFont font = QApplication::font();
    if (c.FontSize() != kDefaultFontSize)
        font.setPixelSize(static_cast<int>(std::lround(c.FontSize() * 96.0 / 72.0 * kScale)));
    font.setBold(c.FontBold());
    w->setFont(font);
    QPalette pal = parent->palette();
    const bool ownFore = c.ForeColor() != kWindowText;
    const bool textLike = c.Type() == ControlType::TextBox || c.Type() == ControlType::ListBox ||
                          c.Type() == ControlType::ComboBox || c.Type() == ControlType::Grid;
    if (ownFore) {
        const QColor fore = ToColor(c.ForeColor());
        pal.setColor(QPalette::WindowText, fore);
        pal.setColor(QPalette::ButtonText, fore);
        pal.setColor(QPalette::Text, fore);
    }
    const bool ownBack = textLike ? c.BackColor() != kWhite : c.BackColor() != kWindowBackground;
    if (ownBack && c.Type() != ControlType::CommandButton) {
        const QColor back = ToColor(c.BackColor());
        pal.setColor(textLike ? QPalette::Base : QPalette::Window, back);
        w->setAutoFillBackground(!textLike);
    }
    w->setPalette(pal);
    w->setVisible(c.Visible());
}

void FormWindow::Sync(Binding& b) {
    Control& c = *b.control;
    if (c.Type() == ControlType::Menu) return SyncMenu(b);
    if (c.Type() == ControlType::Timer) return SyncTimer(b);
    SyncCommon(b);
    const QString caption = FromAnsi(c.Caption());
    switch (c.Type()) {
        case ControlType::CommandButton:
            static_cast<QPushButton*>(b.widget)->setText(
                WrappedCaption(caption, b.widget->fontMetrics(), b.widget->width() - 10));
            break;
        case ControlType::Label: {
            auto* label = static_cast<QLabel*>(b.widget);
            auto& model = static_cast<Label&>(c);
            label->setText(WithoutMnemonic(caption));
            label->setWordWrap(model.WordWrap());
            const Qt::Alignment h = c.Alignment() == 1   ? Qt::AlignRight
                                    : c.Alignment() == 2 ? Qt::AlignHCenter
                                                         : Qt::AlignLeft;
            label->setAlignment(h | Qt::AlignTop);
            label->setFrameStyle(model.BorderStyle() ? QFrame::Panel | QFrame::Sunken
                                                     : QFrame::NoFrame);
            break;
        }
        case ControlType::TextBox: {
            auto& box = static_cast<TextBox&>(c);
            const QString want = ToWidgetText(box.Text(), box.MultiLine());
            const bool selectionMoved =
                box.SelStart() != b.selStart || box.SelLength() != b.selLength;
            const int start = ModelToWidget(box.Text(), box.SelStart(), box.MultiLine());
            const int end =
                ModelToWidget(box.Text(), box.SelStart() + box.SelLength(), box.MultiLine());
            if (auto* edit = qobject_cast<QLineEdit*>(b.widget)) {
                // The limit holds for typing; text set in code may be longer.
                edit->setMaxLength(
                    box.MaxLength() > 0
                        ? std::max<int>(box.MaxLength(), static_cast<int>(want.size()))
                        : 32767);
                edit->setReadOnly(box.Locked());
                edit->setAlignment(c.Alignment() == 1   ? Qt::AlignRight
                                   : c.Alignment() == 2 ? Qt::AlignHCenter
                                                        : Qt::AlignLeft);
                if (edit->text() != want) {
                    edit->setText(want);
                    edit->setSelection(start, end - start);
                    if (end == start) edit->setCursorPosition(start);
                } else if (selectionMoved) {
                    if (end > start)
                        edit->setSelection(start, end - start);
                    else
                        edit->setCursorPosition(start);
                }
            } else if (auto* area = qobject_cast<QPlainTextEdit*>(b.widget)) {
                area->setReadOnly(box.Locked());
                if (area->toPlainText() != want || selectionMoved) {
                    if (area->toPlainText() != want) area->setPlainText(want);
                    QTextCursor cursor = area->textCursor();
                    cursor.setPosition(std::min<int>(start, static_cast<int>(want.size())));
                    cursor.setPosition(std::min<int>(end, static_cast<int>(want.size())),
                                       QTextCursor::KeepAnchor);
                    area->setTextCursor(cursor);
                }
            }
            b.selStart = box.SelStart();
            b.selLength = box.SelLength();
            break;
        }
        case ControlType::CheckBox: {
            auto* check = static_cast<QCheckBox*>(b.widget);
            check->setText(WrappedCaption(caption, check->fontMetrics(), check->width() - 24));
            const int v = static_cast<CheckBox&>(c).Value();
            check->setCheckState(v == 1   ? Qt::Checked
                                 : v == 2 ? Qt::PartiallyChecked
                                          : Qt::Unchecked);
            break;
        }
        case ControlType::OptionButton: {
            auto* option = static_cast<QRadioButton*>(b.widget);
            option->setText(WrappedCaption(caption, option->fontMetrics(), option->width() - 24));
            option->setChecked(static_cast<OptionButton&>(c).Value());
            break;
        }
        case ControlType::Frame:
            static_cast<QGroupBox*>(b.widget)->setTitle(WithoutMnemonic(caption));
            break;
        case ControlType::ListBox: {
            auto* list = static_cast<QListWidget*>(b.widget);
            auto& model = static_cast<ListBox&>(c);
            QStringList items;
            items.reserve(model.ListCount());
            for (const ListEntry& e : model.Items()) items.append(FromAnsi(e.text));
            if (items != b.items) {
                list->clear();
                list->addItems(items);
                b.items = items;
            }
            list->setSelectionMode(model.MultiSelect() ? QAbstractItemView::MultiSelection
                                                       : QAbstractItemView::SingleSelection);
            if (model.MultiSelect()) {
                for (int i = 0; i < list->count(); ++i)
                    list->item(i)->setSelected(model.Selected(i));
            } else if (list->currentRow() != model.ListIndex()) {
                list->setCurrentRow(model.ListIndex());
                if (model.ListIndex() < 0) list->clearSelection();
            }
            if (model.TopIndex() != b.topRow) {
                b.topRow = model.TopIndex();
                if (QListWidgetItem* top = list->item(model.TopIndex()))
                    list->scrollToItem(top, QAbstractItemView::PositionAtTop);
            }
            break;
        }
        case ControlType::ComboBox: {
            auto* combo = qobject_cast<QComboBox*>(b.widget);
            auto* simple = combo ? nullptr : static_cast<SimpleCombo*>(b.widget);
            auto& model = static_cast<ComboBox&>(c);
            QStringList items;
            items.reserve(model.ListCount());
            for (const ListEntry& e : model.Items()) items.append(FromAnsi(e.text));
            if (items != b.items) {
                if (combo) {
                    combo->clear();
                    combo->addItems(items);
                } else {
                    simple->list->clear();
                    simple->list->addItems(items);
                }
                b.items = items;
            }
            if (combo && combo->currentIndex() != model.ListIndex())
                combo->setCurrentIndex(model.ListIndex());
            if (simple && simple->list->currentRow() != model.ListIndex()) {
                simple->list->setCurrentRow(model.ListIndex());
                if (model.ListIndex() < 0) simple->list->clearSelection();
            }
            if (QLineEdit* edit = ComboEdit(b.widget)) {
                const QString want = FromAnsi(model.Text());
                const bool selectionMoved =
                    model.SelStart() != b.selStart || model.SelLength() != b.selLength;
                if (edit->text() != want || selectionMoved) {
                    if (edit->text() != want) edit->setText(want);
                    if (model.SelLength() > 0)
                        edit->setSelection(model.SelStart(), model.SelLength());
                    else
                        edit->setCursorPosition(model.SelStart());
                }
                b.selStart = model.SelStart();
                b.selLength = model.SelLength();
            }
            break;
        }
        case ControlType::Grid: {
            auto* view = static_cast<QTableView*>(b.widget);
            auto& g = static_cast<Grid&>(c);
            b.grid->Refresh();
            const int hr = b.grid->HeadRows(), hc = b.grid->HeadCols();
            view->horizontalHeader()->setVisible(hr > 0);
            view->verticalHeader()->setVisible(hc > 0);
            if (hr > 0) view->horizontalHeader()->setFixedHeight(ToPixels(RowHeightTwips(g, 0)));
            if (hc > 0) view->verticalHeader()->setFixedWidth(ToPixels(ColumnWidthTwips(g, 0)));
            for (int col = hc; col < g.Cols(); ++col)
                view->setColumnWidth(col - hc, ToPixels(ColumnWidthTwips(g, col)));
            for (int row = hr; row < g.Rows(); ++row)
                if (g.RowHeight(row) >= 0) view->setRowHeight(row - hr, ToPixels(g.RowHeight(row)));
            const QModelIndex current = b.grid->index(g.Row() - hr, g.Col() - hc);
            if (current.isValid() && g.Row() >= g.FixedRows() && g.Col() >= g.FixedCols()) {
                if (view->currentIndex() != current)
                    view->selectionModel()->setCurrentIndex(current,
                                                            QItemSelectionModel::ClearAndSelect);
            } else {
                view->selectionModel()->clear();
            }
            if (g.TopRow() != b.topRow) {
                b.topRow = g.TopRow();
                const QModelIndex top = b.grid->index(g.TopRow() - hr, 0);
                if (top.isValid()) view->scrollTo(top, QAbstractItemView::PositionAtTop);
            }
            break;
        }
        case ControlType::MonthView: {
            auto* cal = static_cast<QCalendarWidget*>(b.widget);
            auto& d = static_cast<DateControl&>(c);
            cal->setDateRange(ToQDate(d.MinDate()), ToQDate(d.MaxDate()));
            if (cal->selectedDate() != ToQDate(d.Value())) cal->setSelectedDate(ToQDate(d.Value()));
            break;
        }
        case ControlType::DatePicker: {
            auto* edit = static_cast<QDateEdit*>(b.widget);
            auto& d = static_cast<DateControl&>(c);
            edit->setDateRange(ToQDate(d.MinDate()), ToQDate(d.MaxDate()));
            if (edit->date() != ToQDate(d.Value())) edit->setDate(ToQDate(d.Value()));
            break;
        }
        case ControlType::UpDown:
            break;
        case ControlType::Tab: {
            auto* host = static_cast<TabHost*>(b.widget);
            auto& tab = static_cast<Tab&>(c);
            while (host->bar->count() < tab.Tabs()) host->bar->addTab(QString());
            while (host->bar->count() > tab.Tabs()) host->bar->removeTab(host->bar->count() - 1);
            for (int i = 0; i < tab.Tabs(); ++i) {
                host->bar->setTabText(i, FromAnsi(tab.TabCaption(i)));
                host->bar->setTabEnabled(i, tab.TabEnabled(i));
                host->bar->setTabVisible(i, tab.TabVisible(i));
                host->Page(static_cast<size_t>(i));
            }
            if (host->bar->currentIndex() != tab.CurrentTab())
                host->bar->setCurrentIndex(tab.CurrentTab());
            host->ShowPage(tab.CurrentTab());
            break;
        }
        case ControlType::ProgressBar: {
            auto* bar = static_cast<QProgressBar*>(b.widget);
            auto& p = static_cast<ProgressBar&>(c);
            bar->setRange(p.Min(), p.Max());
            bar->setValue(p.Value());
            break;
        }
        case ControlType::Image: {
            auto* image = static_cast<QLabel*>(b.widget);
            auto& model = static_cast<Image&>(c);
            const QString path = QString::fromStdString(model.Picture());
            if (b.items.isEmpty() || b.items.front() != path) {
                b.items = QStringList{path};
                QPixmap pixmap;
                if (!path.isEmpty()) {
                    if (QFileInfo::exists(path))
                        pixmap.load(path);
                    else
                        pixmap.load(QString::fromStdString(ResolvePath(model.Picture()).string()));
                }
                image->setPixmap(pixmap);
            }
            image->setScaledContents(model.Stretch());
            break;
        }
        case ControlType::Menu:
        case ControlType::Timer:
            break;
    }
}

void FormWindow::SyncMenu(Binding& b) {
    Control& c = *b.control;
    if (!b.action) return;
    const QString caption = FromAnsi(c.Caption());
    b.action->setSeparator(caption == QStringLiteral("-"));
    b.action->setText(caption);
    if (b.menu) b.menu->setTitle(caption);
    b.action->setVisible(c.Visible());
    b.action->setEnabled(c.Enabled());
    const bool checked = static_cast<Menu&>(c).Checked();
    b.action->setCheckable(checked || b.action->isCheckable());
    b.action->setChecked(checked);
    if (c.Container().empty()) formDirty_ = true;  // the menu bar may come or go
}

void FormWindow::SyncTimer(Binding& b) {
    auto& t = static_cast<Timer&>(*b.control);
    if (!detached_ && t.Enabled() && t.Interval() > 0) {
        if (!b.timer->isActive() || b.timer->interval() != t.Interval())
            b.timer->start(t.Interval());
    } else {
        b.timer->stop();
    }
}

void FormWindow::StopTimers() {
    for (Binding& b : bindings_)
        if (b.timer) b.timer->stop();
}

void FormWindow::Detach() {
    if (detached_) return;
    detached_ = true;
    StopTimers();
    for (Binding& b : bindings_) {
        b.control->SetObserver(nullptr);
        if (b.grid) b.grid->Detach();
    }
    form_->SetObserver(nullptr);
    dirty_.clear();
}

// ---- Screen to model

void FormWindow::Act(Control* control, const std::function<void()>& work,
                     const std::function<void()>& beforeShowing) {
    if (detached_ || syncing_ || ProgramHasEnded()) return;
    QPointer<FormWindow> self(this);
    Dispatch(work);
    if (!self) return;
    if (!detached_ && !ProgramHasEnded()) {
        if (beforeShowing) beforeShowing();
        if (control) MarkDirty(*control);
    }
    backend_.FlushAll();
}

void FormWindow::SelectionToModel(Control& control) {
    auto it = byControl_.find(&control);
    if (it == byControl_.end()) return;
    Binding& b = bindings_[it->second];
    int start = 0, length = 0;
    if (control.Type() == ControlType::TextBox) {
        auto& box = static_cast<TextBox&>(control);
        if (auto* edit = qobject_cast<QLineEdit*>(b.widget)) {
            start = edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
            length = edit->hasSelectedText() ? static_cast<int>(edit->selectedText().size()) : 0;
        } else if (auto* area = qobject_cast<QPlainTextEdit*>(b.widget)) {
            const QTextCursor cursor = area->textCursor();
            start = WidgetToModel(box.Text(), cursor.selectionStart(), true);
            length = WidgetToModel(box.Text(), cursor.selectionEnd(), true) - start;
        }
        box.SetSelStart(start);
        box.SetSelLength(length);
        b.selStart = box.SelStart();
        b.selLength = box.SelLength();
    } else if (control.Type() == ControlType::ComboBox) {
        auto& combo = static_cast<ComboBox&>(control);
        QLineEdit* edit = ComboEdit(b.widget);
        if (!edit) return;
        start = edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
        length = edit->hasSelectedText() ? static_cast<int>(edit->selectedText().size()) : 0;
        combo.SetSelStart(start);
        combo.SetSelLength(length);
        b.selStart = combo.SelStart();
        b.selLength = combo.SelLength();
    }
}

Control* FormWindow::DefaultButton(bool cancel) const {
    for (const Binding& b : bindings_) {
        if (b.control->Type() != ControlType::CommandButton) continue;
        auto* button = static_cast<CommandButton*>(b.control);
        if ((cancel ? button->IsCancel() : button->IsDefault()) && b.widget->isVisibleTo(this) &&
            b.widget->isEnabled())
            return button;
    }
    return nullptr;
}

bool FormWindow::HandleKey(Control& control, QKeyEvent* event) {
    const std::string name = control.Name();
    Control* c = &control;
    if (const int code = VbKeyCode(event); code && form_->HasHandler(name + ".KeyDown")) {
        EventArgs args;
        args.keyCode = code;
        args.shift = ShiftOf(event->modifiers());
        Act(c, [c, &args] { c->Raise("KeyDown", args); });
        if (detached_) return true;
    }
    const int ascii = AsciiOf(event);
    if (!ascii) return false;  // arrows, Delete, shortcuts: the widget's own editing
    const bool multiLine =
        control.Type() == ControlType::TextBox && static_cast<TextBox&>(control).MultiLine();
    if ((ascii == 13 && !multiLine) || ascii == 27) {
        if (Control* button = DefaultButton(ascii == 27)) {
            Act(button, [button] { static_cast<CommandButton*>(button)->Click(); });
            return true;
        }
    }
    switch (control.Type()) {
        case ControlType::TextBox:
            SelectionToModel(control);
            Act(c, [c, ascii] { static_cast<TextBox*>(c)->TypeKey(ascii); });
            return true;
        case ControlType::ComboBox: {
            auto* combo = static_cast<ComboBox*>(c);
            if (combo->Style() == ComboBox::DropDownList) {
                EventArgs args;
                args.keyAscii = ascii;
                Act(c, [c, &args] { c->Raise("KeyPress", args); });
                return args.keyAscii == 0;
            }
            SelectionToModel(control);
            Act(c, [combo, ascii] { combo->TypeKey(ascii); });
            return true;
        }
        default: {
            if (!form_->HasHandler(name + ".KeyPress")) return false;
            EventArgs args;
            args.keyAscii = ascii;
            Act(c, [c, &args] { c->Raise("KeyPress", args); });
            return args.keyAscii == 0;
        }
    }
}

bool FormWindow::HandleMouse(Control& control, QObject* watched, QMouseEvent* event) {
    Control* c = &control;
    const int button = ButtonOf(event->button());
    const std::string name = control.Name();
    if (control.Type() == ControlType::Grid) {
        auto it = byControl_.find(c);
        auto* view = static_cast<QTableView*>(bindings_[it->second].widget);
        const GridModel* model = bindings_[it->second].grid;
        int row = -1, col = -1;
        const QPoint pos = event->position().toPoint();
        if (watched == view->viewport()) {
            const QModelIndex index = view->indexAt(pos);
            if (!index.isValid()) return event->type() != QEvent::MouseMove;
            row = index.row() + model->HeadRows();
            col = index.column() + model->HeadCols();
        } else if (watched == view->horizontalHeader()->viewport()) {
            row = 0;
            col = view->horizontalHeader()->logicalIndexAt(pos) + model->HeadCols();
            if (col < model->HeadCols()) return true;
        } else {
            col = 0;
            row = view->verticalHeader()->logicalIndexAt(pos) + model->HeadRows();
            if (row < model->HeadRows()) return true;
        }
        auto* g = static_cast<Grid*>(c);
        if (event->type() == QEvent::MouseButtonPress) {
            view->setFocus(Qt::MouseFocusReason);
            Act(c, [g, row, col, button] { g->UserClick(row, col, button == 0 ? 1 : button); });
        } else if (event->type() == QEvent::MouseButtonDblClick && button == 1) {
            Act(c, [g] { g->Raise("DblClick"); });
        }
        return event->type() != QEvent::MouseMove || event->buttons() != Qt::NoButton;
    }
    EventArgs args;
    args.button = button;
    args.shift = ShiftOf(event->modifiers());
    args.x = event->position().x() / kScale * 15.0;
    args.y = event->position().y() / kScale * 15.0;
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            if (form_->HasHandler(name + ".MouseDown"))
                Act(c, [c, args]() mutable { c->Raise("MouseDown", args); });
            break;
        case QEvent::MouseButtonRelease: {
            if (form_->HasHandler(name + ".MouseUp"))
                Act(c, [c, args]() mutable { c->Raise("MouseUp", args); });
            if (detached_) return true;
            const bool clickable = control.Type() == ControlType::Label ||
                                   control.Type() == ControlType::Image ||
                                   control.Type() == ControlType::Frame;
            auto* w = qobject_cast<QWidget*>(watched);
            if (clickable && button == 1 && w && w->rect().contains(event->position().toPoint()))
                Act(c, [c] { c->Raise("Click"); });
            break;
        }
        case QEvent::MouseButtonDblClick:
            if (button == 1 && form_->HasHandler(name + ".DblClick")) {
                Act(c, [c] { c->Raise("DblClick"); });
                return true;
            }
            break;
        default:
            break;
    }
    return false;
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (detached_ || ProgramHasEnded()) return false;
    auto it = watched_.find(watched);
    if (it == watched_.end()) return false;
    Control& control = *it->second;
    switch (event->type()) {
        case QEvent::KeyPress:
            return HandleKey(control, static_cast<QKeyEvent*>(event));
        case QEvent::MouseButtonPress:
            HandleDrag(control, watched, event);
            return HandleMouse(control, watched, static_cast<QMouseEvent*>(event));
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
            return HandleMouse(control, watched, static_cast<QMouseEvent*>(event));
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            return HandleDrag(control, watched, event);
        case QEvent::MouseMove:
            if (HandleDrag(control, watched, event)) return true;
            if (control.Type() == ControlType::Grid)
                return HandleMouse(control, watched, static_cast<QMouseEvent*>(event));
            return false;
        case QEvent::FocusIn:
        case QEvent::FocusOut: {
            if (watched != WidgetOf(control)) return false;
            const auto reason = static_cast<QFocusEvent*>(event)->reason();
            if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
                return false;
            const bool in = event->type() == QEvent::FocusIn;
            if (in) form_->SetFocusedControl(&control);
            const std::string handler = control.Name() + (in ? ".GotFocus" : ".LostFocus");
            if (!form_->HasHandler(handler)) return false;
            // As on the original platform, the focus events run after the current one.
            const std::string key = control.Key();
            QTimer::singleShot(0, this, [this, key, in] {
                if (detached_) return;
                if (Control* c = form_->Find(key))
                    Act(c, [c, in] { c->Raise(in ? "GotFocus" : "LostFocus"); });
            });
            return false;
        }
        default:
            return false;
    }
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if ((enter || event->key() == Qt::Key_Escape) && !detached_) {
        if (Control* button = DefaultButton(!enter)) {
            Act(button, [button] { static_cast<CommandButton*>(button)->Click(); });
            return;
        }
    }
    QWidget::keyPressEvent(event);
}

void FormWindow::closeEvent(QCloseEvent* event) {
    // The screen's own logic decides; most end the whole program.
    event->ignore();
    if (detached_ || ProgramHasEnded()) return;
    Form* form = form_;
    Act(nullptr, [form] { form->UserClose(); });
}

void FormWindow::FocusControl(Control& control) {
    if (detached_) return;
    if (QWidget* w = WidgetOf(control)) w->setFocus(Qt::OtherFocusReason);
}

void FormWindow::ShowPopup(Control& menu) {
    auto it = byControl_.find(&menu);
    if (it == byControl_.end() || !bindings_[it->second].menu) return;
    Flush();
    bindings_[it->second].menu->exec(QCursor::pos());
}

}  // namespace platform::qt
