#include "platform/qt/CheckBoxView.h"

#include <QCheckBox>

#include "platform/qt/Ansi.h"
#include "platform/qt/FormWindow.h"
#include "platform/qt/WidgetText.h"

namespace platform::qt {

CheckBoxView::CheckBoxView(Control& control, FormWindow& window) : ControlView(control, window) {
    auto* check = new WholeBoxButton<QCheckBox>(Canvas());
    auto* model = static_cast<CheckBox*>(&control_);
    QObject::connect(check, &QCheckBox::clicked, &window_, [this, model] {
        window_.Act(model, [model] { model->SetValue(model->Value() == 1 ? 0 : 1); });
    });
    SetWidget(check);
}

void CheckBoxView::SyncOwn() {
    auto* check = static_cast<QCheckBox*>(widget_);
    const QString caption = FromAnsi(control_.Caption());
    check->setText(WrappedCaption(caption, check->fontMetrics(), check->width() - 24));
    const int v = static_cast<CheckBox&>(control_).Value();
    check->setCheckState(v == 1 ? Qt::Checked : v == 2 ? Qt::PartiallyChecked : Qt::Unchecked);
}

}  // namespace platform::qt
