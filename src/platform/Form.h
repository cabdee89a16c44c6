#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/Controls.h"

namespace platform {

constexpr int vbModeless = 0;
constexpr int vbModal = 1;

// A screen: its controls and handlers are registered by name, so that the desktop
// renderer, the tests and the script driver reach them the same way.
class Form {
  public:
    explicit Form(std::string name);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form();

    const std::string& Name() const { return name_; }
    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption);
    int Width() const { return width_; }
    int Height() const { return height_; }
    void SetSize(int width, int height);
    bool Visible() const { return visible_; }
    bool IsLoaded() const { return loaded_; }
    bool IsModal() const { return modal_; }

    // Lifecycle, as the platform's forms have it. Load runs Form_Load once; Show loads,
    // shows and activates; a modal Show returns when the form is hidden or unloaded.
    void Load();
    void Show(int modal = vbModeless);
    void Hide();
    // Runs QueryUnload and Unload; a handler may cancel. The form object is discarded
    // once the event that unloaded it has finished, and a later access makes a fresh one.
    bool Unload(int unloadMode = 1);
    // The user closes the window by its title bar.
    void UserClose();
    void PopupMenu(Control& menu);

    // Registry.
    void Register(Control& control);
    Control* Find(const std::string& key) const;  // "cmdStart", "optProgramRoutine(9)"
    const std::vector<Control*>& Controls() const { return controls_; }
    std::vector<Control*> Array(const std::string& name) const;  // elements in index order
    using Handler = std::function<void(EventArgs&)>;
    // "cmdStart.Click", "optProgramRoutine.Click" (any element), "Form.Activate".
    void On(const std::string& key, Handler handler);
    bool HasHandler(const std::string& key) const;
    bool Raise(const std::string& key, EventArgs& args);
    bool Raise(const std::string& key);
    Control* FocusedControl() const { return focus_; }
    void SetFocusedControl(Control* control);

    using Observer = std::function<void(Form&)>;
    void SetObserver(Observer observer) { observer_ = std::move(observer); }
    void Notify();

  private:
    friend class Forms;
    std::string name_;
    std::string caption_;
    int width_ = 6000, height_ = 4500;
    bool visible_ = false;
    bool loaded_ = false;
    bool modal_ = false;
    bool unloading_ = false;
    std::vector<Control*> controls_;
    std::map<std::string, Control*> byKey_;
    std::map<std::string, Handler> handlers_;
    Control* focus_ = nullptr;
    Observer observer_;
};

// The screens of the program by name. A screen is made on first access; once unloaded,
// its object is kept until the running event ends, then discarded.
class Forms {
  public:
    using Factory = std::function<std::unique_ptr<Form>()>;
    static void RegisterFactory(const std::string& name, Factory factory);
    static bool Known(const std::string& name);
    static std::vector<std::string> Names();  // every registered screen, in name order
    static Form& Get(const std::string& name);
    static Form* Existing(const std::string& name);
    static std::vector<Form*> Loaded();  // in load order
    static Form* Active();
    static void Collect();    // discards unloaded screens; call when no handler runs
    static void UnloadAll();  // last loaded first, without their handlers
    static void Reset();      // tests: forget every screen

    template <typename T>
    static T& Get() {
        if (!Known(T::kName)) RegisterFactory(T::kName, [] { return std::make_unique<T>(); });
        return static_cast<T&>(Get(T::kName));
    }

  private:
    friend class Form;
    static void Activate(Form& form);
    static void Deactivated(Form& form);
    static void LoadedNow(Form& form);
    static void Unloaded(Form& form);
};

// The screen `T` (its default instance), made on first access.
template <typename T>
T& Screen() {
    return Forms::Get<T>();
}

}  // namespace platform
