#pragma once

#include "platform/controls/Control.h"

namespace platform {

class TextBox : public Control {
  public:
    TextBox(Form& form, std::string name, int index = -1);
    const std::string& Text() const { return text_; }
    void SetText(const std::string& text);  // raises Change when the text differs
    int MaxLength() const { return maxLength_; }
    void SetMaxLength(int n) { maxLength_ = n; }
    bool MultiLine() const { return multiLine_; }
    void SetMultiLine(bool value) { multiLine_ = value; }
    bool Locked() const { return locked_; }
    void SetLocked(bool value);
    int SelStart() const { return selStart_; }
    void SetSelStart(int value);
    int SelLength() const { return selLength_; }
    void SetSelLength(int value);
    // A key typed by the user: KeyPress may refuse or change it, then the text changes.
    void TypeKey(int keyAscii);
    void TypeText(const std::string& text);
    std::map<std::string, std::string> Properties() const override;

  private:
    std::string text_;
    int maxLength_ = 0;
    bool multiLine_ = false;
    bool locked_ = false;
    int selStart_ = 0;
    int selLength_ = 0;
};

}  // namespace platform
