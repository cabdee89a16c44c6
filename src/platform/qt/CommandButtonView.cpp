#include "platform/qt/CommandButtonView.h"

#include <QPushButton>

#include "platform/qt/Ansi.h"
#include "platform/qt/FormWindow.h"
#include "platform/qt/WidgetText.h"

namespace platform::qt {

CommandButtonView::CommandButtonView(Control& control, FormWindow& window)
    : ControlView(control, window) {
    auto* button = new QPushButton(Canvas());
    // Enter is answered by the form's default button alone, as on the original platform.
    button->setAutoDefault(false);
    Control* c = &control_;
    QObject::connect(button, &QPushButton::clicked, &window_, [this, c] {
        window_.Act(c, [c] { static_cast<CommandButton*>(c)->Click(); });
    });
    SetWidget(button);
}

void CommandButtonView::SyncOwn() {
    auto* button = static_cast<QPushButton*>(widget_);
    const QString caption = FromAnsi(control_.Caption());
    button->setText(WrappedCaption(caption, button->fontMetrics(), button->width() - 10));
}

}  // namespace platform::qt
