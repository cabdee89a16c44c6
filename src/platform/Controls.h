#pragma once

// Controls of a screen. They keep as data the properties the system reads and writes,
// and raise their own events as the platform does: setting ListIndex, Text, a calendar
// date or an option button's Value in code raises the same handler as the user would.
// Each kind of control has its own header under controls/; this one brings them all.
#include "platform/controls/CheckBox.h"
#include "platform/controls/ComboBox.h"
#include "platform/controls/CommandButton.h"
#include "platform/controls/Control.h"
#include "platform/controls/DateControl.h"
#include "platform/controls/Frame.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Image.h"
#include "platform/controls/Label.h"
#include "platform/controls/ListBox.h"
#include "platform/controls/ListControl.h"
#include "platform/controls/Menu.h"
#include "platform/controls/OptionButton.h"
#include "platform/controls/ProgressBar.h"
#include "platform/controls/Tab.h"
#include "platform/controls/TextBox.h"
#include "platform/controls/Timer.h"
#include "platform/controls/UpDown.h"
