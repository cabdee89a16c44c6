#include "platform/controls/OptionButton.h"

#include "platform/Form.h"
#include "platform/controls/TextRules.h"

namespace platform {

using text_rules::YesNo;

void OptionButton::SetValue(bool value) {
    if (value_ == value) return;
    value_ = value;
    if (value) {
        for (Control* c : Parent().Controls()) {
            if (c == this || c->Type() != ControlType::OptionButton) continue;
            if (c->Container() != Container()) continue;
            auto* other = static_cast<OptionButton*>(c);
            if (other->value_) {
                other->value_ = false;
                other->Notify();
            }
        }
    }
    Notify();
    if (value) Raise("Click");
}

std::map<std::string, std::string> OptionButton::Properties() const {
    auto p = Control::Properties();
    p["Value"] = YesNo(value_);
    return p;
}

}  // namespace platform
