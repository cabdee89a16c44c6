#include "platform/controls/ComboBox.h"

#include <algorithm>

#include "platform/RuntimeError.h"
#include "platform/controls/TextRules.h"

namespace platform {

using text_rules::EditByKey;
using text_rules::EqualNoCase;
using text_rules::StartsWithNoCase;

void ComboBox::SetText(const std::string& text) {
    if (style_ == DropDownList) {
        for (int i = 0; i < ListCount(); ++i)
            if (List(i) == text) {
                SetListIndex(i);
                return;
            }
        if (!text.empty()) platform::Raise(383, Key());  // 'Text' property is read-only
        return;
    }
    if (text_ == text) return;
    text_ = text;
    selStart_ = static_cast<int>(text_.size());
    selLength_ = 0;
    SelectByText();
    Notify();
    Raise("Change");
}

void ComboBox::SelectByText() {
    // The list shows the entry that the text names, compared as the platform's exact find
    // does (without regard to case); a text that no entry holds leaves none selected. No
    // Click is raised: the user has chosen nothing from the list.
    if (listIndex_ >= 0 && List(listIndex_) == text_) return;
    listIndex_ = -1;
    for (int i = 0; i < ListCount(); ++i)
        if (EqualNoCase(List(i), text_)) {
            listIndex_ = i;
            break;
        }
}

void ComboBox::SetListIndex(int index) {
    if (index < -1 || index >= ListCount()) platform::Raise(err::InvalidProcedureCall, Key());
    if (listIndex_ == index) return;
    listIndex_ = index;
    text_ = index >= 0 ? List(index) : std::string();
    selStart_ = 0;
    selLength_ = static_cast<int>(text_.size());
    Notify();
    Raise("Click");
}

void ComboBox::SetSelStart(int value) {
    selStart_ = std::clamp(value, 0, static_cast<int>(text_.size()));
    selLength_ = 0;
}

void ComboBox::SetSelLength(int value) {
    selLength_ = std::clamp(value, 0, static_cast<int>(text_.size()) - selStart_);
}

int ComboBox::FindString(const std::string& prefix, int start) const {
    for (int i = std::max(0, start + 1); i < ListCount(); ++i)
        if (StartsWithNoCase(List(i), prefix)) return i;
    return -1;
}

void ComboBox::TypeKey(int keyAscii) {
    EventArgs args;
    args.keyAscii = keyAscii;
    Raise("KeyPress", args);
    if (args.keyAscii == 0 || style_ == DropDownList) return;
    std::string next = text_;
    int caret = selStart_;
    if (!EditByKey(next, caret, selLength_, args.keyAscii, false, 0)) return;
    // The selection is in place before Change runs, so that type-ahead can select what it adds.
    text_ = next;
    selStart_ = caret;
    selLength_ = 0;
    SelectByText();
    Notify();
    Raise("Change");
}

void ComboBox::TypeText(const std::string& text) {
    for (unsigned char c : text) TypeKey(c);
}

std::map<std::string, std::string> ComboBox::Properties() const {
    auto p = ListControl::Properties();
    p["Text"] = text_;
    return p;
}

}  // namespace platform
