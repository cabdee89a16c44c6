#include "platform/qt/LabelView.h"

#include <QLabel>

#include "platform/qt/Ansi.h"
#include "platform/qt/WidgetText.h"

namespace platform::qt {

LabelView::LabelView(Control& control, FormWindow& window) : ControlView(control, window) {
    auto* label = new QLabel(Canvas());
    label->setTextFormat(Qt::PlainText);
    SetWidget(label);
}

void LabelView::SyncOwn() {
    auto* label = static_cast<QLabel*>(widget_);
    auto& model = static_cast<Label&>(control_);
    label->setText(WithoutMnemonic(FromAnsi(model.Caption())));
    label->setWordWrap(model.WordWrap());
    const Qt::Alignment h = model.Alignment() == 1   ? Qt::AlignRight
                            : model.Alignment() == 2 ? Qt::AlignHCenter
                                                     : Qt::AlignLeft;
    label->setAlignment(h | Qt::AlignTop);
    label->setFrameStyle(model.BorderStyle() ? QFrame::Panel | QFrame::Sunken : QFrame::NoFrame);
}

}  // namespace platform::qt
