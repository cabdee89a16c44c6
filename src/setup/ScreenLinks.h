#pragma once

#include <string>

#include "platform/Controls.h"

// Controls of screens that sit above the set-up screen, reached by name through the
// screen registry. Nothing is returned while the screen is unknown to this program; a known
// screen without that control, or with a control of another kind there, is a run-time failure.
platform::Control* ControlOnScreen(const std::string& form, const std::string& control);
platform::ListControl* ListOnScreen(const std::string& form, const std::string& control);
platform::OptionButton* OptionOnScreen(const std::string& form, const std::string& control);

// Empties a combo box, its text included.
void ClearCombo(platform::ComboBox& combo);
