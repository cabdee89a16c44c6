#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>

namespace platform {

class Form;

enum class ControlType {
    CommandButton,
    Label,
    TextBox,
    CheckBox,
    OptionButton,
    Frame,
    ListBox,
    ComboBox,
    Grid,
    MonthView,
    DatePicker,
    UpDown,
    Tab,
    ProgressBar,
    Image,
    Menu,
    Timer,
};

const char* TypeName(ControlType type);

// Arguments of an event. Handlers may change keyAscii and cancel, which go back to the caller.
struct EventArgs {
    int index = -1;    // element of a control array, -1 for a single control
    int keyAscii = 0;  // KeyPress
    int keyCode = 0;   // KeyDown, KeyUp
    int button = 0;    // MouseDown, MouseUp: 1 left, 2 right
    int shift = 0;
    double x = 0;  // twips
    double y = 0;
    int cancel = 0;                   // QueryUnload, Unload
    int unloadMode = 0;               // QueryUnload: 0 closed by the user, 1 by code
    int previousTab = 0;              // Tab.Click
    class Control* source = nullptr;  // DragDrop
};

// Colours are kept as the platform's long values: &H00BBGGRR.
constexpr std::int32_t Rgb(int r, int g, int b) {
    return r | (g << 8) | (b << 16);
}
constexpr std::int32_t kWindowBackground = Rgb(240, 240, 240);
constexpr std::int32_t kWindowText = 0;
constexpr std::int32_t kWhite = Rgb(255, 255, 255);

class Control {
  public:
    Control(Form& form, ControlType type, std::string name, int index = -1);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control();

    ControlType Type() const { return type_; }
    const std::string& Name() const { return name_; }
    int Index() const { return index_; }
    std::string Key() const;  // "cmdStart" or "optProgramRoutine(9)"
    Form& Parent() const { return form_; }

    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    const std::string& Tag() const { return tag_; }
    void SetTag(const std::string& tag);
    const std::string& ToolTipText() const { return toolTip_; }
    void SetToolTipText(const std::string& text);
    std::int32_t ForeColor() const { return foreColor_; }
    void SetForeColor(std::int32_t color);
    std::int32_t BackColor() const { return backColor_; }
    void SetBackColor(std::int32_t color);
    bool FontBold() const { return fontBold_; }
    void SetFontBold(bool bold);
    double FontSize() const { return fontSize_; }
    void SetFontSize(double size);
    int Alignment() const { return alignment_; }  // 0 left, 1 right, 2 centre
    void SetAlignment(int alignment);

    int Left() const { return left_; }
    int Top() const { return top_; }
    int Width() const { return width_; }
    int Height() const { return height_; }
    void Move(int left, int top, int width, int height);
    void SetLeft(int v) { Move(v, top_, width_, height_); }
    void SetTop(int v) { Move(left_, v, width_, height_); }
    void SetWidth(int v) { Move(left_, top_, v, height_); }
    void SetHeight(int v) { Move(left_, top_, width_, v); }

    // The control it sits in (a frame, a tab control or a menu), and the tab page.
    const std::string& Container() const { return container_; }
    int TabPage() const { return tabPage_; }
    void SetContainer(const std::string& container, int tabPage = -1);
    bool DragEnabled() const { return dragEnabled_; }
    void SetDragEnabled(bool enabled) { dragEnabled_ = enabled; }

    void SetFocus();
    bool HasFocus() const;

    // Raises an event through the form's registry; returns false when no handler is registered.
    bool Raise(const std::string& event, EventArgs& args);
    bool Raise(const std::string& event);

    virtual std::map<std::string, std::string> Properties() const;

    // The desktop renderer listens here; every change of a property calls it.
    using Observer = std::function<void(Control&)>;
    void SetObserver(Observer observer) { observer_ = std::move(observer); }

  protected:
    void Notify();

  private:
    Form& form_;
    ControlType type_;
    std::string name_;
    int index_;
    std::string caption_;
    bool visible_ = true;
    bool enabled_ = true;
    std::string tag_;
    std::string toolTip_;
    std::int32_t foreColor_ = kWindowText;
    std::int32_t backColor_ = kWindowBackground;
    bool fontBold_ = false;
    double fontSize_ = 8.25;
    int alignment_ = 0;
    int left_ = 0, top_ = 0, width_ = 1215, height_ = 375;
    std::string container_;
    int tabPage_ = -1;
    bool dragEnabled_ = false;
    Observer observer_;
};

}  // namespace platform
