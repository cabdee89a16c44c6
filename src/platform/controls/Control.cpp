#include "platform/controls/Control.h"

#include "platform/Form.h"
#include "platform/Ui.h"
#include "platform/controls/TextRules.h"

namespace platform {

using text_rules::YesNo;

const char* TypeName(ControlType type) {
    switch (type) {
        case ControlType::CommandButton:
            return "CommandButton";
        case ControlType::Label:
            return "Label";
        case ControlType::TextBox:
            return "TextBox";
        case ControlType::CheckBox:
            return "CheckBox";
        case ControlType::OptionButton:
            return "OptionButton";
        case ControlType::Frame:
            return "Frame";
        case ControlType::ListBox:
            return "ListBox";
        case ControlType::ComboBox:
            return "ComboBox";
        case ControlType::Grid:
            return "MSFlexGrid";
        case ControlType::MonthView:
            return "MonthView";
        case ControlType::DatePicker:
            return "DTPicker";
        case ControlType::UpDown:
            return "UpDown";
        case ControlType::Tab:
            return "SSTab";
        case ControlType::ProgressBar:
            return "ProgressBar";
        case ControlType::Image:
            return "Image";
        case ControlType::Menu:
            return "Menu";
        case ControlType::Timer:
            return "Timer";
    }
    return "Control";
}

Control::Control(Form& form, ControlType type, std::string name, int index)
    : form_(form), type_(type), name_(std::move(name)), index_(index) {
    if (type == ControlType::TextBox || type == ControlType::ListBox ||
        type == ControlType::ComboBox || type == ControlType::Grid)
        backColor_ = kWhite;
    form_.Register(*this);
}

Control::~Control() = default;

std::string Control::Key() const {
    return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::Notify() {
    if (observer_) observer_(*this);
}

void Control::SetCaption(const std::string& caption) {
    if (caption_ == caption) return;
    caption_ = caption;
    Notify();
}

void Control::SetVisible(bool visible) {
    if (visible_ == visible) return;
    visible_ = visible;
    Notify();
}

void Control::SetEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    Notify();
}

void Control::SetTag(const std::string& tag) {
    tag_ = tag;
}

void Control::SetToolTipText(const std::string& text) {
    toolTip_ = text;
    Notify();
}

void Control::SetForeColor(std::int32_t color) {
    foreColor_ = color;
    Notify();
}

void Control::SetBackColor(std::int32_t color) {
    backColor_ = color;
    Notify();
}

void Control::SetFontBold(bool bold) {
    fontBold_ = bold;
    Notify();
}

void Control::SetFontSize(double size) {
    fontSize_ = size;
    Notify();
}

void Control::SetAlignment(int alignment) {
    alignment_ = alignment;
    Notify();
}

void Control::Move(int left, int top, int width, int height) {
    left_ = left, top_ = top, width_ = width, height_ = height;
    Notify();
}

void Control::SetContainer(const std::string& container, int tabPage) {
    container_ = container;
    tabPage_ = tabPage;
}

void Control::SetFocus() {
    // The platform refuses focus to a hidden or disabled control with a run-time error;
    // the screens only ask for it where the control can take it.
    form_.SetFocusedControl(this);
    Ui().FocusRequested(*this);
}

bool Control::HasFocus() const {
    return form_.FocusedControl() == this;
}

bool Control::Raise(const std::string& event, EventArgs& args) {
    args.index = index_;
    return form_.Raise(name_ + "." + event, args);
}

bool Control::Raise(const std::string& event) {
    EventArgs args;
    return Raise(event, args);
}

std::map<std::string, std::string> Control::Properties() const {
    std::map<std::string, std::string> p;
    p["Type"] = TypeName(type_);
    if (!caption_.empty()) p["Caption"] = caption_;
    p["Visible"] = YesNo(visible_);
    p["Enabled"] = YesNo(enabled_);
    if (!tag_.empty()) p["Tag"] = tag_;
    if (!toolTip_.empty()) p["ToolTipText"] = toolTip_;
    return p;
}

}  // namespace platform
