#include "platform/controls/DateControl.h"

#include "platform/RuntimeError.h"
#include "platform/Ui.h"

namespace platform {

DateControl::DateControl(Form& form, ControlType type, std::string name, int index)
    : Control(form, type, std::move(name), index), value_(Today()) {}

void DateControl::SetValue(DateTime value) {
    if (value < minDate_ || value > maxDate_)
        platform::Raise(35775, Key());  // outside MinDate/MaxDate
    if (value_ == value) return;
    value_ = value;
    Notify();
    Raise(Type() == ControlType::MonthView ? "SelChange" : "Change");
}

void DateControl::SetMinDate(DateTime date) {
    minDate_ = date;
    if (value_ < minDate_) value_ = minDate_;
    Notify();
}

void DateControl::SetMaxDate(DateTime date) {
    maxDate_ = date;
    if (value_ > maxDate_) value_ = maxDate_;
    Notify();
}

void DateControl::UserPick(DateTime date) {
    if (date < minDate_ || date > maxDate_) return;  // the calendar does not offer it
    SetValue(date);
    if (Type() == ControlType::MonthView) Raise("DateClick");
}

std::map<std::string, std::string> DateControl::Properties() const {
    auto p = Control::Properties();
    p["Value"] = ShortDate(value_);
    p["MinDate"] = ShortDate(minDate_);
    p["MaxDate"] = ShortDate(maxDate_);
    return p;
}

}  // namespace platform
