#include "app/script/ScriptDriver.h"

#include <cctype>
#include <fstream>
#include <ostream>
#include <sstream>

#include "app/script/ModemActions.h"
#include "frame/SubMain.h"
#include "platform/Controls.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/Printer.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"
#include "platform/headless/HeadlessDialogs.h"

using namespace platform;

namespace {

struct ScriptError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::string Unescape(const std::string& text) {
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 1 < text.size()) {
            const char c = text[++i];
            if (c == 'r')
                out += '\r';
            else if (c == 'n')
                out += '\n';
            else if (c == 't')
                out += '\t';
            else if (c == '\\')
                out += '\\';
            else if (c == 'x' && i + 2 < text.size() &&
                     std::isxdigit(static_cast<unsigned char>(text[i + 1])) &&
                     std::isxdigit(static_cast<unsigned char>(text[i + 2])))
                out += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16)), i += 2;
            else
                out += '\\', out += c;
        } else {
            out += text[i];
        }
    }
    return out;
}

// A byte that is no printable ASCII character, as \xHH: binary record files and Windows-1252
// letters stay readable in a transcript.
std::string Hex(unsigned char byte) {
    const char* digits = "0123456789ABCDEF";
    return std::string("\\x") + digits[byte >> 4] + digits[byte & 15];
}

// Paths in the program folder show from the folder on, as the scripts name them: the folder
// is a new temporary one on every run.
std::string Escape(const std::string& text) {
    std::string plain = text;
    const std::string& folder = AppFolder();
    for (size_t at; !folder.empty() && (at = plain.find(folder)) != std::string::npos;)
        plain.erase(at, folder.size());
    std::string out;
    for (char c : plain) {
        if (c == '\r')
            out += "\\r";
        else if (c == '\n')
            out += "\\n";
        else if (c == '\t')
            out += "\\t";
        else if (static_cast<unsigned char>(c) < 0x20 || static_cast<unsigned char>(c) >= 0x7F)
            out += Hex(static_cast<unsigned char>(c));
        else
            out += c;
    }
    return out;
}

// "form.control(3)" -> the control; "form" alone -> nullptr with the form.
Control& FindControl(const std::string& target, Form*& form) {
    const auto dot = target.find('.');
    if (dot == std::string::npos) throw ScriptError("expected form.control: " + target);
    const std::string formName = target.substr(0, dot);
    if (!Forms::Known(formName)) throw ScriptError("no screen " + formName);
    form = &Forms::Get(formName);
    Control* control = form->Find(target.substr(dot + 1));
    if (!control) throw ScriptError("no control " + target);
    return *control;
}

Form& FindForm(const std::string& name) {
    if (!Forms::Known(name)) throw ScriptError("no screen " + name);
    return Forms::Get(name);
}

DateTime ParseWhen(const std::string& text) {
    DateTime when;
    if (!ParseDate(text, when)) throw ScriptError("not a date: " + text);
    return when;
}

int Answer(const std::string& word) {
    if (word == "Yes") return vbYes;
    if (word == "No") return vbNo;
    if (word == "Cancel") return vbCancel;
    if (word == "OK") return vbOK;
    throw ScriptError("unknown answer " + word);
}

void Require(bool ok, const std::string& what) {
    if (!ok) throw ScriptError(what);
}

// Actions that do not need the program running: they prepare or inspect the folder, or set
// the clock for the next start.
bool WorksWhileEnded(const std::string& verb) {
    static const char* const kVerbs[] = {
        "start",  "clock",       "file",   "exists",         "dir",   "remove", "write", "mkdir",
        "dialog", "choose-file", "answer", "other-instance", "modem", "preview"};
    for (const char* v : kVerbs)
        if (verb == v) return true;
    return false;
}

// "dialog color 255": the answer the next common dialogue takes.
void QueueDialogAnswer(const std::string& kind, const std::string& value) {
    HeadlessDialogs& dialogs = QueuedDialogs();
    if (kind == "color") {
        std::int32_t color = 0;
        try {
            color = value.rfind("&H", 0) == 0 ? std::stoi(value.substr(2), nullptr, 16)
                                              : std::stoi(value);
        } catch (const std::exception&) {
            throw ScriptError("not a colour: " + value);
        }
        dialogs.QueueColor(color);
    } else if (kind == "font") {
        Require(!value.empty(), "dialog font needs a font name");
        dialogs.QueueFont(value);
    } else if (kind == "printer") {
        dialogs.QueuePrinter(value.empty() ? 0 : std::stoi(value));
    } else if (kind == "pdf") {
        Require(!value.empty(), "dialog pdf needs a /path");
        dialogs.QueuePdfFile(AppFolder() + value);
    } else if (kind == "preview") {
        Require(value == "print" || value == "cancel", "dialog preview needs print or cancel");
        dialogs.QueuePreview(value == "print");
    } else if (kind == "cancel") {
        dialogs.QueueCancel();
    } else {
        throw ScriptError("unknown dialog " + kind);
    }
}

void Click(Control& c) {
    Require(c.Visible() && c.Enabled(), c.Key() + " cannot be clicked: hidden or disabled");
    switch (c.Type()) {
        case ControlType::OptionButton:
            static_cast<OptionButton&>(c).SetValue(true);
            break;
        case ControlType::CheckBox: {
            auto& box = static_cast<CheckBox&>(c);
            box.SetValue(box.Value() == 1 ? 0 : 1);
            break;
        }
        default:
            c.Raise("Click");
            break;
    }
}

void Choose(Control& c, const std::string& entry) {
    Require(c.Visible() && c.Enabled(), c.Key() + " cannot be used: hidden or disabled");
    Require(c.Type() == ControlType::ListBox || c.Type() == ControlType::ComboBox,
            c.Key() + " is not a list");
    auto& list = static_cast<ListControl&>(c);
    int index = -1;
    if (!entry.empty() && entry[0] == '#') {
        index = std::stoi(entry.substr(1));
    } else {
        for (int i = 0; i < list.ListCount(); ++i)
            if (list.List(i) == entry) index = i;
    }
    Require(index >= 0 && index < list.ListCount(), "no entry " + entry + " in " + c.Key());
    if (c.Type() == ControlType::ListBox && static_cast<ListBox&>(c).MultiSelect()) {
        auto& box = static_cast<ListBox&>(c);
        box.SetSelected(index, !box.Selected(index));
    } else {
        list.SetListIndex(index);
    }
}

}  // namespace

ScriptDriver::ScriptDriver(std::string appFolder, std::ostream& out)
    : appFolder_(std::move(appFolder)), out_(out) {
    SetAppFolder(appFolder_);
    SetProgramFileName("NorvaxConstructionScheduler");
    SetBackend(&backend_);
    ClearProgramEnded();
    Forms::Reset();
    QueuedDialogs().ClearQueue();
    // Scripts look at the print preview only when they turn it on.
    SetPrintPreview(false);
    ResetModemActions();
    backend_.SetModalDriver([this](Form& form) { DriveModal(form); });
}

ScriptDriver::~ScriptDriver() {
    AbandonAll();
    Forms::Reset();
    SetBackend(nullptr);
}

int ScriptDriver::RunFile(const std::string& path) {
    std::ifstream in(path);
    if (!in) {
        out_ << "cannot read " << path << "\n";
        return 1;
    }
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(line);
    }
    return Run(lines);
}

int ScriptDriver::Run(const std::vector<std::string>& lines) {
    lines_ = lines;
    next_ = 0;
    while (next_ < lines_.size()) Next();
    Flush();
    return failures_;
}

void ScriptDriver::Next() {
    const std::string line = lines_[next_++];
    const auto first = line.find_first_not_of(" \t");
    if (first == std::string::npos || line[first] == '#') return;
    out_ << "> " << line.substr(first) << "\n";
    const std::string verb = line.substr(first, line.find_first_of(" \t", first) - first);
    if (ProgramHasEnded() && !WorksWhileEnded(verb)) {
        out_ << "! the program has ended\n";
        ++failures_;
        return;
    }
    try {
        Execute(line.substr(first));
    } catch (const ScriptError& e) {
        Flush();
        out_ << "! " << e.what() << "\n";
        ++failures_;
    }
    ModemTimePasses();
    Flush();
}

void ScriptDriver::DriveModal(Form& form) {
    Flush();
    while (form.Visible() && !ProgramHasEnded() && next_ < lines_.size()) Next();
}

void ScriptDriver::Flush() {
    const auto& log = backend_.Transcript();
    for (; logged_ < log.size(); ++logged_) out_ << "  " << Escape(log[logged_]) << "\n";
}

void ScriptDriver::Execute(const std::string& line) {
    std::istringstream in(line);
    std::string verb, target;
    in >> verb;
    std::string rest;
    std::getline(in, rest);
    rest = rest.empty() ? rest
                        : rest.substr(rest.find_first_not_of(' ') == std::string::npos
                                          ? rest.size()
                                          : rest.find_first_not_of(' '));
    std::istringstream args(rest);
    args >> target;
    std::string tail;
    std::getline(args, tail);
    if (!tail.empty() && tail[0] == ' ') tail.erase(0, 1);
    Form* form = nullptr;
    // Actions on one path take the whole rest of the line: folder names may hold blanks.
    if (verb == "file" || verb == "exists" || verb == "remove" || verb == "mkdir") target = rest;

    auto user = [&](const std::function<void()>& action) { Dispatch(action); };

    if (verb == "clock") {
        backend_.SetNow(ParseWhen(rest));
    } else if (verb == "start") {
        ResetProgramState();
        RegisterScreens();
        user([] { SubMain(); });
    } else if (verb == "other-instance") {
        backend_.SetOtherInstanceRunning(rest == "on");
    } else if (verb == "answer") {
        backend_.QueueAnswer(Answer(rest));
    } else if (verb == "choose-file") {
        if (rest == "cancel")
            QueuedDialogs().QueueCancel();
        else
            QueuedDialogs().QueueFile(AppFolder() + rest);
    } else if (verb == "preview") {
        Require(rest == "on" || rest == "off", "preview needs on or off");
        SetPrintPreview(rest == "on");
    } else if (verb == "dialog") {
        QueueDialogAnswer(target, tail);
    } else if (verb == "click") {
        Control& c = FindControl(target, form);
        user([&] { Click(c); });
    } else if (verb == "dblclick") {
        Control& c = FindControl(target, form);
        Require(c.Visible() && c.Enabled(), c.Key() + " cannot be clicked: hidden or disabled");
        user([&] {
            if (c.Type() == ControlType::OptionButton)
                static_cast<OptionButton&>(c).SetValue(true);
            else if (c.Type() != ControlType::Label)
                c.Raise("Click");
            c.Raise("DblClick");
        });
    } else if (verb == "type") {
        Control& c = FindControl(target, form);
        Require(c.Visible() && c.Enabled(), c.Key() + " cannot take keys: hidden or disabled");
        const std::string text = Unescape(tail);
        user([&] {
            if (c.Type() == ControlType::TextBox)
                static_cast<TextBox&>(c).TypeText(text);
            else if (c.Type() == ControlType::ComboBox)
                static_cast<ComboBox&>(c).TypeText(text);
            else
                throw ScriptError(c.Key() + " takes no text");
        });
    } else if (verb == "clear") {
        Control& c = FindControl(target, form);
        user([&] {
            if (c.Type() == ControlType::TextBox)
                static_cast<TextBox&>(c).SetText("");
            else if (c.Type() == ControlType::ComboBox)
                static_cast<ComboBox&>(c).SetText("");
        });
    } else if (verb == "key") {
        Control& c = FindControl(target, form);
        const int key = std::stoi(tail);
        user([&] {
            if (c.Type() == ControlType::TextBox)
                static_cast<TextBox&>(c).TypeKey(key);
            else if (c.Type() == ControlType::ComboBox)
                static_cast<ComboBox&>(c).TypeKey(key);
        });
    } else if (verb == "leave") {
        Control& c = FindControl(target, form);
        user([&] { c.Raise("LostFocus"); });
    } else if (verb == "choose") {
        Control& c = FindControl(target, form);
        user([&] { Choose(c, tail); });
    } else if (verb == "select") {
        Control& c = FindControl(target, form);
        Require(c.Type() == ControlType::Grid, c.Key() + " is not a grid");
        int row = 0, col = 0;
        std::istringstream(tail) >> row >> col;
        auto& grid = static_cast<Grid&>(c);
        Require(row >= grid.FixedRows() && row < grid.Rows() && col >= grid.FixedCols() &&
                    col < grid.Cols(),
                "no such cell");
        user([&] { grid.UserExtendSelection(row, col); });
    } else if (verb == "cell" || verb == "dblcell" || verb == "rightcell") {
        Control& c = FindControl(target, form);
        Require(c.Type() == ControlType::Grid, c.Key() + " is not a grid");
        int row = 0, col = 0;
        std::istringstream(tail) >> row >> col;
        auto& grid = static_cast<Grid&>(c);
        Require(row >= 0 && row < grid.Rows() && col >= 0 && col < grid.Cols(), "no such cell");
        user([&] {
            if (verb == "cell")
                grid.UserClick(row, col, 1);
            else if (verb == "rightcell")
                grid.UserClick(row, col, 2);
            else
                grid.UserDoubleClick(row, col);
        });
    } else if (verb == "pick") {
        Control& c = FindControl(target, form);
        Require(c.Type() == ControlType::MonthView || c.Type() == ControlType::DatePicker,
                c.Key() + " is no calendar");
        const DateTime when = ParseWhen(tail);
        user([&] { static_cast<DateControl&>(c).UserPick(when); });
    } else if (verb == "up" || verb == "down") {
        Control& c = FindControl(target, form);
        Require(c.Type() == ControlType::UpDown, c.Key() + " is no spinner");
        user([&] {
            if (verb == "up")
                static_cast<UpDown&>(c).UserUp();
            else
                static_cast<UpDown&>(c).UserDown();
        });
    } else if (verb == "tab") {
        Control& c = FindControl(target, form);
        Require(c.Type() == ControlType::Tab, c.Key() + " is no tab control");
        const int tab = std::stoi(tail);
        user([&] { static_cast<Tab&>(c).SetTab(tab); });
    } else if (verb == "tick") {
        Control& c = FindControl(target, form);
        Require(c.Type() == ControlType::Timer, c.Key() + " is no timer");
        user([&] { static_cast<Timer&>(c).Tick(); });
    } else if (verb == "drag") {
        Control& source = FindControl(target, form);
        Form* targetForm = nullptr;
        Control& onto = FindControl(tail, targetForm);
        user([&] {
            EventArgs e;
            e.source = &source;
            onto.Raise("DragDrop", e);
        });
    } else if (verb == "close") {
        Form& f = FindForm(target);
        user([&] { f.UserClose(); });
    } else if (verb == "show") {
        if (target.find('.') == std::string::npos) {
            Form& f = FindForm(target);
            out_ << "  " << f.Name() << ": Caption=" << f.Caption()
                 << " Visible=" << (f.Visible() ? "True" : "False")
                 << " Loaded=" << (f.IsLoaded() ? "True" : "False") << "\n";
        } else {
            Control& c = FindControl(target, form);
            out_ << "  " << target << ":";
            for (const auto& [name, value] : c.Properties())
                out_ << " " << name << "=" << Escape(value);
            out_ << "\n";
        }
    } else if (verb == "cells") {
        Control& c = FindControl(target, form);
        Require(c.Type() == ControlType::Grid, c.Key() + " is not a grid");
        auto& grid = static_cast<Grid&>(c);
        for (int r = 0; r < grid.Rows(); ++r) {
            out_ << "  ";
            for (int col = 0; col < grid.Cols(); ++col)
                out_ << (col ? " | " : "") << grid.TextMatrix(r, col);
            out_ << "\n";
        }
    } else if (verb == "write") {
        const std::string path = target;
        std::error_code ec;
        std::filesystem::create_directories(ResolvePath(AppFolder() + path).parent_path(), ec);
        std::ofstream file(ResolvePath(AppFolder() + path), std::ios::binary);
        Require(static_cast<bool>(file), "cannot write " + path);
        file << Unescape(tail);
    } else if (verb == "remove") {
        std::error_code ec;
        std::filesystem::remove(ResolvePath(AppFolder() + target), ec);
    } else if (verb == "mkdir") {
        std::error_code ec;
        std::filesystem::create_directories(ResolvePath(AppFolder() + target), ec);
    } else if (verb == "file") {
        const std::string path = AppFolder() + target;
        if (!FileExists(path)) {
            out_ << "  " << target << ": missing\n";
        } else {
            std::ifstream file(ResolvePath(path), std::ios::binary);
            std::stringstream ss;
            ss << file.rdbuf();
            out_ << "  " << target << ": " << Escape(ss.str()) << "\n";
        }
    } else if (verb == "exists") {
        const std::string path = AppFolder() + target;
        out_ << "  " << target << ": "
             << (FileExists(path)     ? "file"
                 : FolderExists(path) ? "folder"
                                      : "missing")
             << "\n";
    } else if (verb == "dir") {
        out_ << "  " << target << ":";
        const bool folders = tail == "folders";
        for (const auto& name : Dir(AppFolder() + target, folders)) out_ << " " << name;
        out_ << "\n";
    } else if (IsModemAction(verb)) {
        std::vector<std::string> shown;
        const std::string problem = RunModemAction(verb, Unescape(rest), shown);
        for (const auto& text : shown) out_ << "  " << Escape(text) << "\n";
        Require(problem.empty(), problem);
    } else {
        throw ScriptError("unknown action " + verb);
    }
}
