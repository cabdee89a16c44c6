#pragma once

#include "platform/qt/ControlView.h"

namespace platform::qt {

class PictureBox;

// An image control: a picture from a file, drawn whole inside its box.
class ImageView : public ControlView {
  public:
    ImageView(Control& control, FormWindow& window);

  protected:
    void SyncOwn() override;

  private:
    PictureBox* box_ = nullptr;
    std::string shown_;
    bool loaded_ = false;
};

}  // namespace platform::qt
