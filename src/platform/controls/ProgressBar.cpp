#include "platform/controls/ProgressBar.h"

#include "platform/RuntimeError.h"

namespace platform {

void ProgressBar::SetValue(int v) {
    if (v < min_ || v > max_) platform::Raise(380, Key());
    value_ = v;
    Notify();
}

}  // namespace platform
