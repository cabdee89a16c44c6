#pragma once

#include "platform/DateTime.h"
#include "platform/controls/Control.h"

namespace platform {

// The month calendar (MonthView) and the date picker (DTPicker).
class DateControl : public Control {
  public:
    DateControl(Form& form, ControlType type, std::string name, int index);
    DateTime Value() const { return value_; }
    // A date set in code or by the user raises SelChange (calendar) or Change (picker).
    void SetValue(DateTime value);
    DateTime MinDate() const { return minDate_; }
    void SetMinDate(DateTime date);
    DateTime MaxDate() const { return maxDate_; }
    void SetMaxDate(DateTime date);
    void UserPick(DateTime date);  // the user clicks a date: the change, then DateClick
    std::map<std::string, std::string> Properties() const override;

  private:
    DateTime value_;
    DateTime minDate_ = DateTime::FromYmd(1900, 1, 1);
    DateTime maxDate_ = DateTime::FromYmd(9999, 12, 31);
};

class MonthView : public DateControl {
  public:
    MonthView(Form& form, std::string name, int index = -1)
        : DateControl(form, ControlType::MonthView, std::move(name), index) {}
};

class DatePicker : public DateControl {
  public:
    DatePicker(Form& form, std::string name, int index = -1)
        : DateControl(form, ControlType::DatePicker, std::move(name), index) {}
};

}  // namespace platform
