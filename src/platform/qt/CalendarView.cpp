#include "platform/qt/CalendarView.h"

#include <QCalendarWidget>

#include "platform/qt/FormWindow.h"
#include "platform/qt/WidgetText.h"

namespace platform::qt {

CalendarView::CalendarView(Control& control, FormWindow& window) : ControlView(control, window) {
    auto* cal = new QCalendarWidget(Canvas());
    cal->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    cal->setGridVisible(false);
    auto* model = static_cast<DateControl*>(&control_);
    QObject::connect(cal, &QCalendarWidget::selectionChanged, &window_, [this, model, cal] {
        if (Syncing()) return;
        const DateTime picked = FromQDate(cal->selectedDate());
        if (picked == model->Value()) return;
        window_.Act(model, [model, picked] { model->SetValue(picked); });
    });
    QObject::connect(cal, &QCalendarWidget::clicked, &window_, [this, model](QDate date) {
        window_.Act(model, [model, date] { model->UserPick(FromQDate(date)); });
    });
    SetWidget(cal);
}

void CalendarView::SyncOwn() {
    auto* cal = static_cast<QCalendarWidget*>(widget_);
    auto& d = static_cast<DateControl&>(control_);
    cal->setDateRange(ToQDate(d.MinDate()), ToQDate(d.MaxDate()));
    if (cal->selectedDate() != ToQDate(d.Value())) cal->setSelectedDate(ToQDate(d.Value()));
}

}  // namespace platform::qt
