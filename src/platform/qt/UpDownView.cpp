#include "platform/qt/UpDownView.h"

#include <QToolButton>

#include "platform/qt/FormWindow.h"

namespace platform::qt {
namespace {

class SpinButtons : public QWidget {
  public:
    explicit SpinButtons(QWidget* parent) : QWidget(parent) {
        up = new QToolButton(this);
        down = new QToolButton(this);
        for (QToolButton* b : {up, down}) {
            b->setAutoRepeat(true);
            b->setFocusPolicy(Qt::NoFocus);
        }
    }
    QToolButton* up;
    QToolButton* down;

  protected:
    void resizeEvent(QResizeEvent*) override {
        const bool horizontal = width() > height();
        up->setArrowType(horizontal ? Qt::RightArrow : Qt::UpArrow);
        down->setArrowType(horizontal ? Qt::LeftArrow : Qt::DownArrow);
        if (horizontal) {
            down->setGeometry(0, 0, width() / 2, height());
            up->setGeometry(width() / 2, 0, width() - width() / 2, height());
        } else {
            up->setGeometry(0, 0, width(), height() / 2);
            down->setGeometry(0, height() / 2, width(), height() - height() / 2);
        }
    }
};

}  // namespace

UpDownView::UpDownView(Control& control, FormWindow& window) : ControlView(control, window) {
    auto* spin = new SpinButtons(Canvas());
    auto* model = static_cast<UpDown*>(&control_);
    QObject::connect(spin->up, &QToolButton::clicked, &window_,
                     [this, model] { window_.Act(model, [model] { model->UserUp(); }); });
    QObject::connect(spin->down, &QToolButton::clicked, &window_,
                     [this, model] { window_.Act(model, [model] { model->UserDown(); }); });
    SetWidget(spin);
}

void UpDownView::SyncOwn() {}

}  // namespace platform::qt
