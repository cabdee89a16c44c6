#include "platform/controls/TextBox.h"

#include <algorithm>

#include "platform/controls/TextRules.h"

namespace platform {

using text_rules::EditByKey;

TextBox::TextBox(Form& form, std::string name, int index)
    : Control(form, ControlType::TextBox, std::move(name), index) {}

void TextBox::SetText(const std::string& text) {
    if (text_ == text) return;
    text_ = text;
    selStart_ = std::min<int>(selStart_, static_cast<int>(text_.size()));
    selLength_ = 0;
    Notify();
    Raise("Change");
}

void TextBox::SetLocked(bool value) {
    locked_ = value;
    Notify();
}

void TextBox::SetSelStart(int value) {
    selStart_ = std::clamp(value, 0, static_cast<int>(text_.size()));
    selLength_ = 0;
}

void TextBox::SetSelLength(int value) {
    selLength_ = std::clamp(value, 0, static_cast<int>(text_.size()) - selStart_);
}

void TextBox::TypeKey(int keyAscii) {
    EventArgs args;
    args.keyAscii = keyAscii;
    Raise("KeyPress", args);
    if (args.keyAscii == 0 || locked_) return;
    std::string next = text_;
    int caret = selStart_;
    if (!EditByKey(next, caret, selLength_, args.keyAscii, multiLine_, maxLength_)) return;
    text_ = next;
    selStart_ = caret;
    selLength_ = 0;
    Notify();
    Raise("Change");
}

void TextBox::TypeText(const std::string& text) {
    for (unsigned char c : text) TypeKey(c);
}

std::map<std::string, std::string> TextBox::Properties() const {
    auto p = Control::Properties();
    p["Text"] = text_;
    if (maxLength_) p["MaxLength"] = std::to_string(maxLength_);
    if (locked_) p["Locked"] = "True";
    return p;
}

}  // namespace platform
