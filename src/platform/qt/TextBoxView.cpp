#include "platform/qt/TextBoxView.h"

#include <QLineEdit>
#include <QPlainTextEdit>

#include "platform/qt/Ansi.h"
#include "platform/qt/FormWindow.h"
#include "platform/qt/WidgetText.h"

namespace platform::qt {

TextBoxView::TextBoxView(Control& control, FormWindow& window) : ControlView(control, window) {
    TextBox* box = &Box();
    if (box->MultiLine()) {
        auto* area = new QPlainTextEdit(Canvas());
        area->setTabChangesFocus(true);
        QObject::connect(area, &QPlainTextEdit::textChanged, &window_, [this, box, area] {
            if (Syncing()) return;
            const std::string now = FromWidgetText(area->toPlainText(), true);
            if (now == box->Text()) return;
            window_.Act(
                box, [box, now] { box->SetText(now); }, [this] { SelectionToModel(); });
        });
        window_.Watch(area->viewport(), control_);
        SetWidget(area);
    } else {
        auto* edit = new QLineEdit(Canvas());
        QObject::connect(edit, &QLineEdit::textEdited, &window_, [this, box](const QString& text) {
            const std::string now = ToAnsi(text);
            window_.Act(
                box, [box, now] { box->SetText(now); }, [this] { SelectionToModel(); });
        });
        SetWidget(edit);
    }
}

QLineEdit* TextBoxView::EditLine() const {
    return qobject_cast<QLineEdit*>(widget_);
}

void TextBoxView::SelectionToModel() {
    TextBox& box = Box();
    int start = 0, length = 0;
    if (auto* edit = qobject_cast<QLineEdit*>(widget_)) {
        start = edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
        length = edit->hasSelectedText() ? static_cast<int>(edit->selectedText().size()) : 0;
    } else if (auto* area = qobject_cast<QPlainTextEdit*>(widget_)) {
        const QTextCursor cursor = area->textCursor();
        start = WidgetToModel(box.Text(), cursor.selectionStart(), true);
        length = WidgetToModel(box.Text(), cursor.selectionEnd(), true) - start;
    }
    box.SetSelStart(start);
    box.SetSelLength(length);
    selStart_ = box.SelStart();
    selLength_ = box.SelLength();
}

bool TextBoxView::TypeKey(int ascii) {
    SelectionToModel();
    TextBox* box = &Box();
    window_.Act(box, [box, ascii] { box->TypeKey(ascii); });
    return true;
}

void TextBoxView::SyncOwn() {
    TextBox& box = Box();
    const QString want = ToWidgetText(box.Text(), box.MultiLine());
    const bool selectionMoved = box.SelStart() != selStart_ || box.SelLength() != selLength_;
    const int start = ModelToWidget(box.Text(), box.SelStart(), box.MultiLine());
    const int end = ModelToWidget(box.Text(), box.SelStart() + box.SelLength(), box.MultiLine());
    if (auto* edit = qobject_cast<QLineEdit*>(widget_)) {
        // The limit holds for typing; text set in code may be longer.
        edit->setMaxLength(box.MaxLength() > 0
                               ? std::max<int>(box.MaxLength(), static_cast<int>(want.size()))
                               : 32767);
        edit->setReadOnly(box.Locked());
        edit->setAlignment(box.Alignment() == 1   ? Qt::AlignRight
                           : box.Alignment() == 2 ? Qt::AlignHCenter
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
    } else if (auto* area = qobject_cast<QPlainTextEdit*>(widget_)) {
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
    selStart_ = box.SelStart();
    selLength_ = box.SelLength();
}

}  // namespace platform::qt
