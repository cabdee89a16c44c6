#pragma once

#include <QIcon>

#include "platform/qt/ControlView.h"

namespace platform::qt {

class PictureBox;

// An image control: a picture from a file, drawn whole inside its box, or a picture named by
// its role (platform/Pictures.h), drawn from the icon theme.
class ImageView : public ControlView {
  public:
    ImageView(Control& control, FormWindow& window);
    // True when a picture is drawn: a file that loaded, or a role's icon.
    bool ShowsPicture() const;

  protected:
    void SyncOwn() override;

  private:
    PictureBox* box_ = nullptr;
    std::string shown_;
    bool loaded_ = false;
    QIcon role_;
};

}  // namespace platform::qt
