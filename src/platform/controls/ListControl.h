#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/controls/Control.h"

namespace platform {

struct ListEntry {
    std::string text;
    std::int32_t itemData = 0;
    bool selected = false;
};

// Entries, ItemData and ListIndex, shared by lists and combo boxes.
class ListControl : public Control {
  public:
    using Control::Control;
    void AddItem(const std::string& text, int index = -1);
    void RemoveItem(int index);
    void Clear();
    int ListCount() const { return static_cast<int>(items_.size()); }
    const std::string& List(int index) const;
    void SetList(int index, const std::string& text);
    std::int32_t ItemData(int index) const;
    void SetItemData(int index, std::int32_t value);
    int NewIndex() const { return newIndex_; }
    int ListIndex() const { return listIndex_; }
    virtual void SetListIndex(int index);  // raises Click
    bool Sorted() const { return sorted_; }
    void SetSorted(bool value) { sorted_ = value; }
    const std::vector<ListEntry>& Items() const { return items_; }
    std::map<std::string, std::string> Properties() const override;

  protected:
    std::vector<ListEntry> items_;
    int listIndex_ = -1;
    int newIndex_ = -1;
    bool sorted_ = false;
};

}  // namespace platform
