#include "platform/Form.h"

#include <algorithm>

#include "platform/RuntimeError.h"
#include "platform/Ui.h"

namespace platform {
namespace {

struct Registry {
    std::map<std::string, Forms::Factory> factories;
    std::map<std::string, std::unique_ptr<Form>> live;
    std::vector<std::unique_ptr<Form>> discarded;
    std::vector<Form*> loadOrder;
    std::vector<Form*> activation;  // most recently activated last
};

Registry& Reg() {
    static Registry registry;
    return registry;
}

}  // namespace

// ---- Form

Form::Form(std::string name) : name_(std::move(name)), caption_(name_) {}

Form::~Form() = default;

void Form::SetCaption(const std::string& caption) {
    caption_ = caption;
    Notify();
}

void Form::SetSize(int width, int height) {
    width_ = width;
    height_ = height;
    Notify();
}

void Form::Notify() {
    if (observer_) observer_(*this);
}

void Form::Load() {
    if (loaded_) return;
    loaded_ = true;
    Forms::LoadedNow(*this);
    Ui().FormLoaded(*this);
    Raise("Form.Load");
}

void Form::Show(int modal) {
    Load();
    if (!loaded_) return;  // Form_Load unloaded it again
    const bool wasVisible = visible_;
    visible_ = true;
    modal_ = modal == vbModal;
    if (!wasVisible) Ui().FormShown(*this);
    Forms::Activate(*this);
    if (modal_) {
        Ui().RunModal(*this);
        modal_ = false;
        if (ProgramHasEnded()) throw ProgramEnded{};
    }
}

void Form::Hide() {
    if (!visible_) return;
    visible_ = false;
    Ui().FormHidden(*this);
    Forms::Deactivated(*this);
}

bool Form::Unload(int unloadMode) {
    if (!loaded_ || unloading_) return true;
    EventArgs query;
    query.unloadMode = unloadMode;
    Raise("Form.QueryUnload", query);
    if (query.cancel) return false;
    EventArgs args;
    Raise("Form.Unload", args);
    if (args.cancel) return false;
    unloading_ = true;
    const bool wasVisible = visible_;
    visible_ = false;
    loaded_ = false;
    if (wasVisible) Ui().FormHidden(*this);
    Ui().FormUnloaded(*this);
    Forms::Deactivated(*this);
    Forms::Unloaded(*this);
    return true;
}

void Form::UserClose() {
    Unload(0);
}

void Form::PopupMenu(Control& menu) {
    Ui().PopupMenu(*this, menu);
}

void Form::Register(Control& control) {
    controls_.push_back(&control);
    byKey_[control.Key()] = &control;
}

Control* Form::Find(const std::string& key) const {
    auto it = byKey_.find(key);
    return it == byKey_.end() ? nullptr : it->second;
}

std::vector<Control*> Form::Array(const std::string& name) const {
    std::vector<Control*> elements;
    for (Control* c : controls_)
        if (c->Name() == name && c->Index() >= 0) elements.push_back(c);
    std::sort(elements.begin(), elements.end(),
              [](Control* a, Control* b) { return a->Index() < b->Index(); });
    return elements;
}

void Form::On(const std::string& key, Handler handler) {
    handlers_[key] = std::move(handler);
}

bool Form::HasHandler(const std::string& key) const {
    return handlers_.count(key) > 0;
}

bool Form::Raise(const std::string& key, EventArgs& args) {
    auto it = handlers_.find(key);
    if (it == handlers_.end()) return false;
    Handler handler = it->second;  // the handler may replace itself while it runs
    handler(args);
    return true;
}

bool Form::Raise(const std::string& key) {
    EventArgs args;
    return Raise(key, args);
}

void Form::SetFocusedControl(Control* control) {
    focus_ = control;
}

// ---- Forms

void Forms::RegisterFactory(const std::string& name, Factory factory) {
    Reg().factories[name] = std::move(factory);
}

bool Forms::Known(const std::string& name) {
    return Reg().factories.count(name) > 0;
}

std::vector<std::string> Forms::Names() {
    std::vector<std::string> names;
    for (const auto& [name, factory] : Reg().factories) names.push_back(name);
    return names;
}

Form& Forms::Get(const std::string& name) {
    auto& reg = Reg();
    auto it = reg.live.find(name);
    if (it != reg.live.end()) return *it->second;
    auto f = reg.factories.find(name);
    if (f == reg.factories.end()) Raise(err::SubscriptOutOfRange, "screen " + name);
    auto form = f->second();
    Form& ref = *form;
    reg.live[name] = std::move(form);
    return ref;
}

Form* Forms::Existing(const std::string& name) {
    auto it = Reg().live.find(name);
    return it == Reg().live.end() ? nullptr : it->second.get();
}

std::vector<Form*> Forms::Loaded() {
    return Reg().loadOrder;
}

Form* Forms::Active() {
    auto& act = Reg().activation;
    return act.empty() ? nullptr : act.back();
}

void Forms::Activate(Form& form) {
    auto& act = Reg().activation;
    if (!act.empty() && act.back() == &form) return;
    // The screen that had the focus loses it first, as when a modal screen comes up over it.
    // A screen that is hidden or unloaded has left the list already and hears nothing.
    if (!act.empty()) act.back()->Raise("Form.Deactivate");
    act.erase(std::remove(act.begin(), act.end(), &form), act.end());
    act.push_back(&form);
    form.Raise("Form.Activate");
}

void Forms::Deactivated(Form& form) {
    auto& act = Reg().activation;
    const bool wasActive = !act.empty() && act.back() == &form;
    act.erase(std::remove(act.begin(), act.end(), &form), act.end());
    if (!wasActive) return;
    // The screen shown before it takes the focus back and is activated again.
    while (!act.empty() && !act.back()->Visible()) act.pop_back();
    if (!act.empty()) act.back()->Raise("Form.Activate");
}

void Forms::LoadedNow(Form& form) {
    Reg().loadOrder.push_back(&form);
}

void Forms::Unloaded(Form& form) {
    auto& reg = Reg();
    reg.loadOrder.erase(std::remove(reg.loadOrder.begin(), reg.loadOrder.end(), &form),
                        reg.loadOrder.end());
    auto it = reg.live.find(form.Name());
    if (it != reg.live.end() && it->second.get() == &form) {
        reg.discarded.push_back(std::move(it->second));
        reg.live.erase(it);
    }
}

void Forms::Collect() {
    Reg().discarded.clear();
}

void Forms::UnloadAll() {
    auto order = Reg().loadOrder;
    for (auto it = order.rbegin(); it != order.rend(); ++it) {
        Form* form = *it;
        form->visible_ = false;
        form->loaded_ = false;
        form->unloading_ = true;
        Ui().FormHidden(*form);
        Ui().FormUnloaded(*form);
        Unloaded(*form);
    }
    Reg().activation.clear();
}

void Forms::Reset() {
    auto& reg = Reg();
    reg.loadOrder.clear();
    reg.activation.clear();
    for (auto& [name, form] : reg.live) reg.discarded.push_back(std::move(form));
    reg.live.clear();
    reg.discarded.clear();
}

}  // namespace platform
