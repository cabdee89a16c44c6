#include "platform/qt/TimerView.h"

#include <QTimer>

#include "platform/qt/FormWindow.h"

namespace platform::qt {

TimerView::TimerView(Control& control, FormWindow& window) : ControlView(control, window) {
    timer_ = new QTimer(&window_);
    auto* model = static_cast<Timer*>(&control_);
    QObject::connect(timer_, &QTimer::timeout, &window_,
                     [this, model] { window_.Act(model, [model] { model->Tick(); }); });
}

void TimerView::Stop() {
    timer_->stop();
}

void TimerView::SyncOwn() {
    auto& t = static_cast<Timer&>(control_);
    if (!window_.Detached() && t.Enabled() && t.Interval() > 0) {
        if (!timer_->isActive() || timer_->interval() != t.Interval()) timer_->start(t.Interval());
    } else {
        timer_->stop();
    }
}

}  // namespace platform::qt
