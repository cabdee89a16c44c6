#include "platform/qt/FrameView.h"

#include <QGroupBox>

#include "platform/qt/Ansi.h"
#include "platform/qt/WidgetText.h"

namespace platform::qt {

FrameView::FrameView(Control& control, FormWindow& window) : ControlView(control, window) {
    SetWidget(new QGroupBox(Canvas()));
}

void FrameView::SyncOwn() {
    static_cast<QGroupBox*>(widget_)->setTitle(WithoutMnemonic(FromAnsi(control_.Caption())));
}

}  // namespace platform::qt
