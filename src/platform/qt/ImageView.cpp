#include "platform/qt/ImageView.h"

#include <QFileInfo>
#include <QPainter>
#include <QPixmap>

#include "platform/Files.h"
#include "platform/qt/FormWindow.h"
#include "platform/qt/ProgramPictures.h"

namespace platform::qt {

// Draws its picture: stretched to the box with its proportions kept, or at its own size
// (grown and shrunk with the window) from the top left corner.
class PictureBox : public QWidget {
  public:
    explicit PictureBox(QWidget* parent) : QWidget(parent) {}
    void SetPicture(const QPixmap& picture, bool stretch, double scale) {
        picture_ = picture;
        stretch_ = stretch;
        scale_ = scale;
        update();
    }
    const QPixmap& Picture() const { return picture_; }

  protected:
    void paintEvent(QPaintEvent*) override {
        if (picture_.isNull()) return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        const QSizeF own = QSizeF(picture_.size()) / picture_.devicePixelRatio();
        const QSizeF size = stretch_ ? own.scaled(QSizeF(this->size()), Qt::KeepAspectRatio)
                                     : own * (scale_ / kBaseScale);
        const QPointF at =
            stretch_ ? QPointF((width() - size.width()) / 2, (height() - size.height()) / 2)
                     : QPointF(0, 0);
        painter.drawPixmap(QRectF(at, size), picture_, QRectF(picture_.rect()));
    }

  private:
    QPixmap picture_;
    bool stretch_ = false;
    double scale_ = kBaseScale;
};

ImageView::ImageView(Control& control, FormWindow& window) : ControlView(control, window) {
    box_ = new PictureBox(Canvas());
    SetWidget(box_);
}

bool ImageView::ShowsPicture() const {
    return !box_->Picture().isNull();
}

void ImageView::SyncOwn() {
    auto& model = static_cast<Image&>(control_);
    QPixmap picture = box_->Picture();
    if (!loaded_ || shown_ != model.Picture()) {
        loaded_ = true;
        shown_ = model.Picture();
        picture = QPixmap();
        role_ = IsRolePicture(shown_) ? RoleIcon(shown_) : QIcon();
        const QString path = QString::fromStdString(shown_);
        if (!path.isEmpty() && role_.isNull()) {
            if (QFileInfo::exists(path))
                picture.load(path);
            else
                picture.load(QString::fromStdString(ResolvePath(shown_).string()));
        }
    }
    // A role's picture fills its box at the box's own size, however the window is scaled.
    if (!role_.isNull())
        return box_->SetPicture(role_.pixmap(box_->size(), box_->devicePixelRatioF()), true,
                                window_.CurrentScale().Text());
    box_->SetPicture(picture, model.Stretch(), window_.CurrentScale().Text());
}

}  // namespace platform::qt
