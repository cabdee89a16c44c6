#pragma once

#include <string>

#include "platform/controls/ListControl.h"

namespace platform {

class ListBox : public ListControl {
  public:
    ListBox(Form& form, std::string name, int index = -1)
        : ListControl(form, ControlType::ListBox, std::move(name), index) {}
    std::string Text() const { return listIndex_ >= 0 ? List(listIndex_) : std::string(); }
    bool MultiSelect() const { return multiSelect_; }
    void SetMultiSelect(bool value) { multiSelect_ = value; }
    bool Selected(int index) const;
    void SetSelected(int index, bool value);  // raises Click
    int SelCount() const;
    void SetListIndex(int index) override;
    int TopIndex() const { return topIndex_; }
    void SetTopIndex(int index);

  private:
    bool multiSelect_ = false;
    int topIndex_ = 0;
};

}  // namespace platform
