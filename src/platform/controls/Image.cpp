#include "platform/controls/Image.h"

namespace platform {

void Image::SetPicture(const std::string& path) {
    picture_ = path;
    Notify();
}

void Image::SetStretch(bool value) {
    stretch_ = value;
    Notify();
}

std::map<std::string, std::string> Image::Properties() const {
    auto p = Control::Properties();
    p["Picture"] = picture_;
    p["Width"] = std::to_string(Width());
    p["Height"] = std::to_string(Height());
    return p;
}

}  // namespace platform
