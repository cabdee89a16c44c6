#pragma once

#include <string>

#include "platform/controls/Control.h"

namespace platform {

// A picture: an image file shown in the box, or nothing.
class Image : public Control {
  public:
    Image(Form& form, std::string name, int index = -1)
        : Control(form, ControlType::Image, std::move(name), index) {}
    const std::string& Picture() const { return picture_; }  // full path of the file, or empty
    void SetPicture(const std::string& path);
    bool Stretch() const { return stretch_; }
    void SetStretch(bool value);
    std::map<std::string, std::string> Properties() const override;

  private:
    std::string picture_;
    bool stretch_ = false;
};

}  // namespace platform
