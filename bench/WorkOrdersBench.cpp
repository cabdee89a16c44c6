// Times the work order screen. The item files count their records in one byte: a file of
// 5,000 inventory items stops the screen at loading, and that stop is timed; the actions
// are timed on the fullest lists the files can give, 255 records of each.
#include <cstdio>
#include <filesystem>
#include <string>

#include "BenchSupport.h"
#include "frame/SubMain.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "platform/headless/HeadlessBackend.h"
#include "workorders/frmWorkOrder.h"

namespace fs = std::filesystem;
using namespace platform;
using bench::Report;
using bench::Time;
using bench::WriteFile;

namespace {

std::string Inventory(int count) {
    std::string bytes;
    for (int i = 1; i <= count; ++i) {
        RecordWriter w;
        w.Text("Inventory item " + std::to_string(i), 40);
        w.Text("SKU" + std::to_string(i), 20);
        w.Double(1);
        w.Currency(12345 * i);
        w.Text(std::string(48, ' '), 48);
        bytes += w.Bytes();
    }
    return bytes;
}

std::string Services(int count) {
    std::string bytes;
    for (int i = 1; i <= count; ++i) {
        RecordWriter w;
        w.Text("Service " + std::to_string(i), 60);
        w.Text(std::to_string(25 + i) + ".00", 10);
        w.Int16(0);
        bytes += w.Bytes();
    }
    return bytes;
}

std::string CustomItems(int count) {
    std::string bytes;
    for (int i = 1; i <= count; ++i) {
        RecordWriter w;
        w.Text("Custom item " + std::to_string(i), 50);
        w.Currency(990000 + i);
        w.Text(std::string(12, ' '), 12);
        bytes += w.Bytes();
    }
    return bytes;
}

void StartProgram(HeadlessBackend& backend, const fs::path& root) {
    backend.SetNow(DateTime::FromYmdHms(2026, 6, 15, 9, 0, 0));
    SetBackend(&backend);
    SetAppFolder(root.string());
    SetProgramFileName("NorvaxConstructionScheduler");
    ResetProgramState();
    RegisterScreens();
    Dispatch([] { Forms::Get("frmSetup").Load(); });
}

}  // namespace

int main() {
    const fs::path root = fs::temp_directory_path() / "scheduler-workorders-bench";
    fs::remove_all(root);
    fs::create_directories(root / "Backup");
    fs::create_directories(root / "Templates");
    bool ok = true;

    {
        WriteFile(root / "UpdatedInventory.txt", Inventory(5000));
        HeadlessBackend backend;
        StartProgram(backend, root);
        bool stopped = false;
        ok &= Report("open with 5,000 inventory items (stops on the count)", Time([&] {
                         try {
                             Forms::Get(frmWorkOrder::kName).Show();
                         } catch (const RuntimeError&) {
                             stopped = true;
                         }
                     }));
        ok &= stopped;
        Forms::Reset();
        SetBackend(nullptr);
    }

    WriteFile(root / "UpdatedInventory.txt", Inventory(255));
    WriteFile(root / "CustomItems.txt", CustomItems(255));
    WriteFile(root / "Services.txt", Services(255));
    HeadlessBackend backend;
    StartProgram(backend, root);
    auto& form = static_cast<frmWorkOrder&>(Forms::Get(frmWorkOrder::kName));
    ok &= Report("open with 510 items and 255 services", Time([&] { form.Show(); }));
    ok &= Report("pick an item", Time([&] { form.lstItems.SetListIndex(400); }));
    ok &= Report("add the item", Time([&] { form.cmdWO[frmWorkOrder::kAddItem].Click(); }));
    ok &= Report("select all items", Time([&] { form.cmdWO[frmWorkOrder::kAllItems].Click(); }));
    ok &= Report("select all services",
                 Time([&] { form.cmdWO[frmWorkOrder::kAllServices].Click(); }));
    ok &= Report("add an item already chosen",
                 Time([&] { form.cmdWO[frmWorkOrder::kAddItem].Click(); }));
    std::string narrative;
    for (int i = 1; i <= 60; ++i) narrative += "Instruction line " + std::to_string(i) + "\r\n";
    form.txtWONarrative.SetText(narrative);
    ok &= Report("save the narrative template",
                 Time([&] { form.cmdWO[frmWorkOrder::kSaveTemplate].Click(); }));
    ok &= Report("load the narrative template",
                 Time([&] { form.cmdWO[frmWorkOrder::kLoadTemplate].Click(); }));
    form.ckCompletion.SetValue(1);
    ok &= Report("print the work order, 765 rows, and the summary",
                 Time([&] { form.cmdWO[frmWorkOrder::kPrint].Click(); }));
    form.Show();
    ok &= Report("clear the chosen lists",
                 Time([&] { form.cmdWO[frmWorkOrder::kClearLists].Click(); }));

    Forms::Reset();
    SetBackend(nullptr);
    fs::remove_all(root);
    std::printf("%s\n", ok ? "every action within its limit" : "SOME ACTION TOO SLOW");
    return ok ? 0 : 1;
}
