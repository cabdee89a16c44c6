#include "platform/qt/DatePickerView.h"

#include <QDateEdit>

#include "platform/qt/FormWindow.h"
#include "platform/qt/WidgetText.h"

namespace platform::qt {

DatePickerView::DatePickerView(Control& control, FormWindow& window)
    : ControlView(control, window) {
    auto* edit = new QDateEdit(Canvas());
    edit->setCalendarPopup(true);
    edit->setDisplayFormat(QStringLiteral("M/d/yyyy"));
    edit->setKeyboardTracking(false);
    auto* model = static_cast<DateControl*>(&control_);
    QObject::connect(edit, &QDateEdit::dateChanged, &window_, [this, model](QDate date) {
        if (Syncing() || FromQDate(date) == model->Value()) return;
        window_.Act(model, [model, date] { model->UserPick(FromQDate(date)); });
    });
    SetWidget(edit);
}

void DatePickerView::SyncOwn() {
    auto* edit = static_cast<QDateEdit*>(widget_);
    auto& d = static_cast<DateControl&>(control_);
    edit->setDateRange(ToQDate(d.MinDate()), ToQDate(d.MaxDate()));
    if (edit->date() != ToQDate(d.Value())) edit->setDate(ToQDate(d.Value()));
}

}  // namespace platform::qt
