#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/Controls.h"
#include "platform/Dialogs.h"
#include "platform/Form.h"
#include "platform/Printer.h"
#include "platform/headless/HeadlessDialogs.h"
#include "platform/headless/HeadlessPrinter.h"
#include "store/SharedState.h"
#include "support/ScreenTesting.h"
#include "support/TestFolder.h"

namespace printing_tests {

// The controls of the set-up screen that printing reads, and nothing else.
class SetupStandIn : public platform::Form {
  public:
    static constexpr const char* kName = "frmSetup";
    SetupStandIn() : platform::Form(kName) {}
    platform::CheckBox ckColor{*this, "ckColor"};
    platform::TextBox txtBorders{*this, "txtBorders"};
    platform::TextBox txtData{*this, "txtData"};
    platform::Label lblFont{*this, "lblFont"};
    platform::CommandButton cmdAddress{*this, "cmdAddress"};
    platform::Image Image2{*this, "Image2"};
    platform::Image Image3{*this, "Image3"};
};

constexpr std::int32_t kBorderGreen = platform::Rgb(0, 128, 0);
constexpr std::int32_t kDataMaroon = platform::Rgb(128, 0, 0);

// One line of Arial at a size, as the recorder measures it.
inline double LineHeight(double points) {
    return points * 20.0 * 2355.0 / 2048.0;
}

class PrintingTest : public ::testing::Test {
  protected:
    PrintingTest() {
        testing_support::RegisterScreen<SetupStandIn>();
        setup = &static_cast<SetupStandIn&>(platform::Forms::Get(SetupStandIn::kName));
        setup->ckColor.SetValue(1);
        setup->txtBorders.SetBackColor(kBorderGreen);
        setup->txtData.SetBackColor(kDataMaroon);
        setup->lblFont.SetCaption("Arial");
        setup->cmdAddress.SetCaption("USA Style Address");
        setup->Image3.Move(0, 0, 1440, 1440);
        BusinessData = {"Acme Builders", "12 Main Street",   "", "Springfield", "IL", "62701",
                        "217-555-0100",  "FAX 217-555-0101", ""};
        testing_support::ResetPrintingAndDialogs();
    }
    ~PrintingTest() override {
        platform::Printer().Reset();
        platform::RecordingPrinter().Clear();
        platform::QueuedDialogs().ClearQueue();
        BusinessData = {};
    }

    // What has been drawn so far on the page being printed.
    const std::vector<platform::PrintOperation>& Drawn(int page = 1) const {
        return platform::Printer().Pending().pages.at(page - 1).operations;
    }
    std::vector<platform::PrintOperation> Texts(int page = 1) const {
        std::vector<platform::PrintOperation> texts;
        for (const auto& op : Drawn(page)) {
            if (op.kind == platform::PrintOperation::Kind::Text) texts.push_back(op);
        }
        return texts;
    }
    std::vector<platform::PrintOperation> Lines(int page = 1) const {
        std::vector<platform::PrintOperation> lines;
        for (const auto& op : Drawn(page)) {
            if (op.kind == platform::PrintOperation::Kind::Line) lines.push_back(op);
        }
        return lines;
    }

    testing_support::TestFolder folder;
    SetupStandIn* setup = nullptr;
};

}  // namespace printing_tests
