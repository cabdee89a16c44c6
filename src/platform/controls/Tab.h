#pragma once

#include <string>
#include <vector>

#include "platform/controls/Control.h"

namespace platform {

class Tab : public Control {
  public:
    Tab(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::Tab, std::move(name), index) {}
    int Tabs() const { return static_cast<int>(captions_.size()); }
    void SetTabs(int count);
    int CurrentTab() const { return tab_; }
    void SetTab(int tab);  // raises Click with the previous tab
    const std::string& TabCaption(int tab) const;
    void SetTabCaption(int tab, const std::string& caption);
    bool TabEnabled(int tab) const;
    void SetTabEnabled(int tab, bool enabled);
    bool TabVisible(int tab) const;
    void SetTabVisible(int tab, bool visible);
    std::map<std::string, std::string> Properties() const override;

  private:
    int tab_ = 0;
    std::vector<std::string> captions_;
    std::vector<bool> enabled_;
    std::vector<bool> visible_;
};

}  // namespace platform
