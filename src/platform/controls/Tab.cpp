#include "platform/controls/Tab.h"

#include "platform/RuntimeError.h"
#include "platform/controls/TextRules.h"

namespace platform {

using text_rules::kEmpty;
using text_rules::YesNo;

void Tab::SetTabs(int count) {
    captions_.resize(static_cast<size_t>(count));
    enabled_.resize(static_cast<size_t>(count), true);
    visible_.resize(static_cast<size_t>(count), true);
    Notify();
}

void Tab::SetTab(int tab) {
    if (tab < 0 || tab >= Tabs()) platform::Raise(380, Key());  // Invalid property value
    if (tab == tab_) return;
    EventArgs args;
    args.previousTab = tab_;
    tab_ = tab;
    Notify();
    Raise("Click", args);
}

const std::string& Tab::TabCaption(int tab) const {
    if (tab < 0 || tab >= Tabs()) return kEmpty;
    return captions_[static_cast<size_t>(tab)];
}

void Tab::SetTabCaption(int tab, const std::string& caption) {
    if (tab >= Tabs()) SetTabs(tab + 1);
    captions_[static_cast<size_t>(tab)] = caption;
    Notify();
}

bool Tab::TabEnabled(int tab) const {
    return tab >= 0 && tab < Tabs() && enabled_[static_cast<size_t>(tab)];
}

void Tab::SetTabEnabled(int tab, bool enabled) {
    if (tab < 0 || tab >= Tabs()) platform::Raise(380, Key());
    enabled_[static_cast<size_t>(tab)] = enabled;
    Notify();
}

bool Tab::TabVisible(int tab) const {
    return tab >= 0 && tab < Tabs() && visible_[static_cast<size_t>(tab)];
}

void Tab::SetTabVisible(int tab, bool visible) {
    if (tab < 0 || tab >= Tabs()) platform::Raise(380, Key());
    visible_[static_cast<size_t>(tab)] = visible;
    Notify();
}

std::map<std::string, std::string> Tab::Properties() const {
    auto p = Control::Properties();
    p["Tab"] = std::to_string(tab_);
    p["TabCaption"] = TabCaption(tab_);
    std::string enabled;
    for (int t = 0; t < Tabs(); ++t) enabled += (t ? " " : "") + YesNo(TabEnabled(t));
    p["TabEnabled"] = enabled;
    return p;
}

}  // namespace platform
