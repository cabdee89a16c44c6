#include "setup/ScreenLinks.h"

#include "platform/Form.h"
#include "platform/RuntimeError.h"

namespace {

// A screen of this program that lacks the control, or has it of another kind, is a fault of
// the program: it fails as the platform does, so that a misspelt name cannot pass unseen.
constexpr int kNoSuchControl = 438;  // Object doesn't support this property or method

template <typename T>
T* OfType(platform::Control* c, std::initializer_list<platform::ControlType> types) {
    if (!c) return nullptr;
    for (platform::ControlType type : types)
        if (c->Type() == type) return static_cast<T*>(c);
    platform::Raise(platform::err::TypeMismatch, c->Parent().Name() + "." + c->Key());
}

}  // namespace

platform::Control* ControlOnScreen(const std::string& form, const std::string& control) {
    if (!platform::Forms::Known(form)) return nullptr;
    platform::Control* c = platform::Forms::Get(form).Find(control);
    if (!c) platform::Raise(kNoSuchControl, form + "." + control);
    return c;
}

platform::ListControl* ListOnScreen(const std::string& form, const std::string& control) {
    return OfType<platform::ListControl>(
        ControlOnScreen(form, control),
        {platform::ControlType::ListBox, platform::ControlType::ComboBox});
}

platform::OptionButton* OptionOnScreen(const std::string& form, const std::string& control) {
    return OfType<platform::OptionButton>(ControlOnScreen(form, control),
                                          {platform::ControlType::OptionButton});
}

void ClearCombo(platform::ComboBox& combo) {
    combo.Clear();
    if (!combo.Text().empty()) combo.SetText("");
}
