#include "platform/controls/ListBox.h"

#include <algorithm>

#include "platform/RuntimeError.h"

namespace platform {

bool ListBox::Selected(int index) const {
    if (index < 0 || index >= ListCount()) return false;
    return items_[static_cast<size_t>(index)].selected;
}

void ListBox::SetSelected(int index, bool value) {
    if (index < 0 || index >= ListCount()) platform::Raise(err::InvalidProcedureCall, Key());
    if (!multiSelect_) {
        if (value) {
            SetListIndex(index);
        } else if (listIndex_ == index) {
            items_[static_cast<size_t>(index)].selected = false;
            listIndex_ = -1;
            Notify();
        }
        return;
    }
    items_[static_cast<size_t>(index)].selected = value;
    listIndex_ = index;
    Notify();
    Raise("Click");
}

int ListBox::SelCount() const {
    return static_cast<int>(
        std::count_if(items_.begin(), items_.end(), [](const ListEntry& e) { return e.selected; }));
}

void ListBox::SetListIndex(int index) {
    if (!multiSelect_) {
        for (auto& e : items_) e.selected = false;
        if (index >= 0 && index < ListCount()) items_[static_cast<size_t>(index)].selected = true;
    }
    ListControl::SetListIndex(index);
}

void ListBox::SetTopIndex(int index) {
    topIndex_ = std::clamp(index, 0, std::max(0, ListCount() - 1));
    Notify();
}

}  // namespace platform
