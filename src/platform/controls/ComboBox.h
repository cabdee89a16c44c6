#pragma once

#include <string>

#include "platform/controls/ListControl.h"

namespace platform {

class ComboBox : public ListControl {
  public:
    enum Style { DropDownCombo = 0, SimpleCombo = 1, DropDownList = 2 };
    ComboBox(Form& form, std::string name, int index = -1)
        : ListControl(form, ControlType::ComboBox, std::move(name), index) {}
    int Style() const { return style_; }
    void SetStyle(int style) { style_ = style; }
    const std::string& Text() const { return text_; }
    // Raises Change; the entry that holds the text becomes selected, none if no entry does.
    void SetText(const std::string& text);
    void SetListIndex(int index) override;  // shows the entry and raises Click
    int SelStart() const { return selStart_; }
    void SetSelStart(int value);
    int SelLength() const { return selLength_; }
    void SetSelLength(int value);
    // First entry starting with the text, without regard to case, from `start` + 1; -1 if none.
    int FindString(const std::string& prefix, int start = -1) const;
    void TypeKey(int keyAscii);
    void TypeText(const std::string& text);
    std::map<std::string, std::string> Properties() const override;

  private:
    void SelectByText();

    int style_ = DropDownCombo;
    std::string text_;
    int selStart_ = 0;
    int selLength_ = 0;
};

}  // namespace platform
