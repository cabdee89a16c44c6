#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/Dialogs.h"
#include "platform/Form.h"
#include "platform/Printer.h"
#include "platform/headless/HeadlessBackend.h"
#include "platform/headless/HeadlessDialogs.h"
#include "platform/headless/HeadlessPrinter.h"

// Helpers of the tests that drive screens: screens known by name, the printer and the common
// dialogs as a new process finds them, the message boxes shown, typing as the user does.
namespace testing_support {

template <typename T>
void RegisterScreen() {
    platform::Forms::RegisterFactory(T::kName, [] { return std::make_unique<T>(); });
}

// No document printed or pending, no dialogue answered or shown.
inline void ResetPrintingAndDialogs() {
    platform::QueuedDialogs().ClearQueue();
    platform::QueuedDialogs().ClearShown();
    platform::RecordingPrinter().Clear();
    platform::Printer().Reset();
    platform::SharedDialog() = platform::CommonDialog{};
}

// Every message box shown, as "[title] text".
inline std::vector<std::string> BoxTexts(const platform::HeadlessBackend& ui) {
    std::vector<std::string> texts;
    for (const auto& box : ui.Boxes()) texts.push_back("[" + box.title + "] " + box.prompt);
    return texts;
}

// Typing into a box as the user does: what it holds is selected and typed over.
template <typename Box>
void TypeInto(Box& box, const std::string& text) {
    box.SetSelStart(0);
    box.SetSelLength(static_cast<int>(box.Text().size()));
    box.TypeText(text);
}

}  // namespace testing_support
