#pragma once

#include <string>

#include "platform/Controls.h"

// Places a control of a customer screen: its frame (none for the form itself) and its box
// in twips, relative to that frame as the platform's forms have it.
inline void Place(platform::Control& control, const std::string& frame, int left, int top,
                  int width, int height) {
    control.SetContainer(frame);
    control.Move(left, top, width, height);
}

// A caption with its box.
inline void Place(platform::Control& control, const std::string& frame, int left, int top,
                  int width, int height, const std::string& caption) {
    Place(control, frame, left, top, width, height);
    control.SetCaption(caption);
}
