#include "platform/controls/ListControl.h"

#include <algorithm>

#include "platform/RuntimeError.h"
#include "platform/controls/TextRules.h"

namespace platform {

using text_rules::kEmpty;
using text_rules::LessNoCase;

void ListControl::AddItem(const std::string& text, int index) {
    if (index > ListCount()) platform::Raise(err::InvalidProcedureCall, Key());
    int at = index;
    if (at < 0) {
        at = ListCount();
        if (sorted_) {
            auto it = std::upper_bound(
                items_.begin(), items_.end(), text,
                [](const std::string& t, const ListEntry& e) { return LessNoCase(t, e.text); });
            at = static_cast<int>(it - items_.begin());
        }
    }
    items_.insert(items_.begin() + at, ListEntry{text, 0, false});
    if (listIndex_ >= at) ++listIndex_;
    newIndex_ = at;
    Notify();
}

void ListControl::RemoveItem(int index) {
    if (index < 0 || index >= ListCount()) platform::Raise(err::InvalidProcedureCall, Key());
    items_.erase(items_.begin() + index);
    if (listIndex_ == index)
        listIndex_ = -1;
    else if (listIndex_ > index)
        --listIndex_;
    Notify();
}

void ListControl::Clear() {
    items_.clear();
    listIndex_ = -1;
    newIndex_ = -1;
    Notify();
}

const std::string& ListControl::List(int index) const {
    if (index < 0 || index >= ListCount()) return kEmpty;
    return items_[static_cast<size_t>(index)].text;
}

void ListControl::SetList(int index, const std::string& text) {
    if (index < 0 || index >= ListCount()) return;
    items_[static_cast<size_t>(index)].text = text;
    Notify();
}

std::int32_t ListControl::ItemData(int index) const {
    if (index < 0 || index >= ListCount()) platform::Raise(err::InvalidProcedureCall, Key());
    return items_[static_cast<size_t>(index)].itemData;
}

void ListControl::SetItemData(int index, std::int32_t value) {
    if (index < 0 || index >= ListCount()) platform::Raise(err::InvalidProcedureCall, Key());
    items_[static_cast<size_t>(index)].itemData = value;
}

void ListControl::SetListIndex(int index) {
    if (index < -1 || index >= ListCount()) platform::Raise(err::InvalidProcedureCall, Key());
    if (listIndex_ == index) return;
    listIndex_ = index;
    Notify();
    Raise("Click");
}

std::map<std::string, std::string> ListControl::Properties() const {
    auto p = Control::Properties();
    p["ListCount"] = std::to_string(ListCount());
    p["ListIndex"] = std::to_string(listIndex_);
    std::string all;
    for (size_t i = 0; i < items_.size(); ++i) {
        if (i) all += " | ";
        all += items_[i].text;
    }
    p["List"] = all;
    return p;
}

}  // namespace platform
