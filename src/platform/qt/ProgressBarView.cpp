#include "platform/qt/ProgressBarView.h"

#include <QProgressBar>

namespace platform::qt {

ProgressBarView::ProgressBarView(Control& control, FormWindow& window)
    : ControlView(control, window) {
    auto* bar = new QProgressBar(Canvas());
    bar->setTextVisible(false);
    SetWidget(bar);
}

void ProgressBarView::SyncOwn() {
    auto* bar = static_cast<QProgressBar*>(widget_);
    auto& p = static_cast<ProgressBar&>(control_);
    bar->setRange(p.Min(), p.Max());
    bar->setValue(p.Value());
}

}  // namespace platform::qt
