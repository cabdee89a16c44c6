#include "setup/ScreenLinks.h"

#include "platform/Form.h"

platform::Control* ControlOnScreen(const std::string& form, const std::string& control) {
    if (!platform::Forms::Known(form)) return nullptr;
    return platform::Forms::Get(form).Find(control);
}

platform::ListControl* ListOnScreen(const std::string& form, const std::string& control) {
    platform::Control* c = ControlOnScreen(form, control);
    if (!c) return nullptr;
    if (c->Type() != platform::ControlType::ListBox && c->Type() != platform::ControlType::ComboBox)
        return nullptr;
    return static_cast<platform::ListControl*>(c);
}

platform::OptionButton* OptionOnScreen(const std::string& form, const std::string& control) {
    platform::Control* c = ControlOnScreen(form, control);
    if (!c || c->Type() != platform::ControlType::OptionButton) return nullptr;
    return static_cast<platform::OptionButton*>(c);
}

void ClearCombo(platform::ComboBox& combo) {
    combo.Clear();
    if (!combo.Text().empty()) combo.SetText("");
}
