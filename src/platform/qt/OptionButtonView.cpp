#include "platform/qt/OptionButtonView.h"

#include <QRadioButton>

#include "platform/qt/Ansi.h"
#include "platform/qt/FormWindow.h"
#include "platform/qt/WidgetText.h"

namespace platform::qt {

OptionButtonView::OptionButtonView(Control& control, FormWindow& window)
    : ControlView(control, window) {
    auto* option = new WholeBoxButton<QRadioButton>(Canvas());
    option->setAutoExclusive(false);
    auto* model = static_cast<OptionButton*>(&control_);
    QObject::connect(option, &QRadioButton::clicked, &window_,
                     [this, model] { window_.Act(model, [model] { model->SetValue(true); }); });
    SetWidget(option);
}

void OptionButtonView::SyncOwn() {
    auto* option = static_cast<QRadioButton*>(widget_);
    const QString caption = FromAnsi(control_.Caption());
    option->setText(WrappedCaption(caption, option->fontMetrics(), option->width() - 24));
    option->setChecked(static_cast<OptionButton&>(control_).Value());
}

}  // namespace platform::qt
