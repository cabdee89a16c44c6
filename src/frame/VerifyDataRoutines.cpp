#include "frame/VerifyDataRoutines.h"

#include "platform/Controls.h"
#include "platform/Numbers.h"
#include "platform/Records.h"
#include "platform/Ui.h"
#include "store/SharedState.h"

using namespace platform;

void ShowCalendarError() {
    MsgBox("Your Calendar Selection is Invalid");
}

std::int16_t CheckKey(int keyAscii, TextBox& field) {
    if (keyAscii == 8) return static_cast<std::int16_t>(keyAscii);
    // Amounts may be typed: a field that holds a number takes any key.
    if (IsNumeric(field.Text())) return static_cast<std::int16_t>(keyAscii);
    static const int refused[] = {44, 38, 46, 92, 42, 47, 63};
    for (int c : refused) {
        if (keyAscii != c) continue;
        AlarmBeep();
        MsgBox("This character, (" + std::string(1, static_cast<char>(c)) +
                   ") is invalid for this field",
               vbOKOnly, "Invalid Key entry");
        field.SetFocus();
        return 0;
    }
    return static_cast<std::int16_t>(keyAscii);
}

std::string JoinName(const std::string& first, const std::string& second, const std::string&,
                     const std::string& fourth) {
    std::string name;
    if (!Trim(first).empty()) name += Trim(first) + " ";
    if (!Trim(second).empty()) name += Trim(second) + " ";
    if (!Trim(fourth).empty()) name += Trim(fourth);
    return name;
}
