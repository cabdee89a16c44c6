#include "platform/qt/ComboBoxView.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>

#include "platform/qt/Ansi.h"
#include "platform/qt/FormWindow.h"

namespace platform::qt {
namespace {

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

}  // namespace

ComboBoxView::ComboBoxView(Control& control, FormWindow& window) : ControlView(control, window) {
    ComboBox* model = &Combo();
    if (model->Style() == ComboBox::SimpleCombo) {
        auto* simple = new SimpleCombo(Canvas());
        edit_ = simple->edit;
        QObject::connect(simple->list, &QListWidget::currentRowChanged, &window_,
                         [this, model](int row) {
                             if (row < 0 || row >= model->ListCount() || row == model->ListIndex())
                                 return;
                             window_.Act(model, [model, row] { model->SetListIndex(row); });
                         });
        window_.Watch(simple->list->viewport(), control_);
        SetWidget(simple);
    } else {
        auto* combo = new QComboBox(Canvas());
        combo->setInsertPolicy(QComboBox::NoInsert);
        combo->setMaxVisibleItems(12);
        if (model->Style() != ComboBox::DropDownList) {
            combo->setEditable(true);
            combo->setCompleter(nullptr);
            edit_ = combo->lineEdit();
        }
        QObject::connect(combo, &QComboBox::activated, &window_, [this, model](int index) {
            window_.Act(model, [model, index] {
                if (index < model->ListCount()) model->SetListIndex(index);
            });
        });
        SetWidget(combo);
    }
    if (edit_) {
        window_.Watch(edit_, control_);
        QObject::connect(
            edit_, &QLineEdit::textEdited, &window_, [this, model](const QString& text) {
                const std::string now = ToAnsi(text);
                window_.Act(
                    model, [model, now] { model->SetText(now); }, [this] { SelectionToModel(); });
            });
    }
}

void ComboBoxView::SelectionToModel() {
    if (!edit_) return;
    ComboBox& model = Combo();
    const int start = edit_->hasSelectedText() ? edit_->selectionStart() : edit_->cursorPosition();
    const int length =
        edit_->hasSelectedText() ? static_cast<int>(edit_->selectedText().size()) : 0;
    model.SetSelStart(start);
    model.SetSelLength(length);
    selStart_ = model.SelStart();
    selLength_ = model.SelLength();
}

bool ComboBoxView::TypeKey(int ascii) {
    ComboBox* model = &Combo();
    if (model->Style() == ComboBox::DropDownList) {
        EventArgs args;
        args.keyAscii = ascii;
        window_.Act(model, [model, &args] { model->Raise("KeyPress", args); });
        return args.keyAscii == 0;
    }
    SelectionToModel();
    window_.Act(model, [model, ascii] { model->TypeKey(ascii); });
    return true;
}

void ComboBoxView::SyncOwn() {
    auto* combo = qobject_cast<QComboBox*>(widget_);
    auto* simple = combo ? nullptr : static_cast<SimpleCombo*>(widget_);
    ComboBox& model = Combo();
    QStringList items;
    items.reserve(model.ListCount());
    for (const ListEntry& e : model.Items()) items.append(FromAnsi(e.text));
    if (items != shown_) {
        if (combo) {
            combo->clear();
            combo->addItems(items);
        } else {
            simple->list->clear();
            simple->list->addItems(items);
        }
        shown_ = items;
    }
    if (combo && combo->currentIndex() != model.ListIndex())
        combo->setCurrentIndex(model.ListIndex());
    if (simple && simple->list->currentRow() != model.ListIndex()) {
        simple->list->setCurrentRow(model.ListIndex());
        if (model.ListIndex() < 0) simple->list->clearSelection();
    }
    if (edit_) {
        const QString want = FromAnsi(model.Text());
        const bool selectionMoved =
            model.SelStart() != selStart_ || model.SelLength() != selLength_;
        if (edit_->text() != want || selectionMoved) {
            if (edit_->text() != want) edit_->setText(want);
            if (model.SelLength() > 0)
                edit_->setSelection(model.SelStart(), model.SelLength());
            else
                edit_->setCursorPosition(model.SelStart());
        }
        selStart_ = model.SelStart();
        selLength_ = model.SelLength();
    }
}

}  // namespace platform::qt
