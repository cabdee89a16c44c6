#pragma once

// A program folder holding every data file that start-up and the set-up screen read, each
// well formed, and the means to start the program on it and to tell what became of it.

#include <filesystem>
#include <map>
#include <string>

#include "frame/SubMain.h"
#include "platform/Form.h"
#include "platform/Records.h"
#include "platform/Ui.h"
#include "support/TestFolder.h"

namespace office {

// A meeting record: its date stands at offset 30.
inline std::string MeetingRecord(const std::string& date) {
    platform::RecordWriter w;
    w.Text("", 10);
    w.Text("Pj1-1", 10);
    w.Text("1", 2);
    w.Text("Hours", 6);
    w.Text("1", 2);
    w.Text(date, 10);
    w.Text("", 297 - 40);
    return w.Bytes();
}

inline std::string CustomerRecord(const std::string& account) {
    platform::RecordWriter w;
    w.Text(account, 20);
    w.Text("Customer " + account, 308);
    return w.Bytes();
}

inline std::string VendorRecord(const std::string& name, const std::string& category) {
    platform::RecordWriter w;
    w.Text("V1", 20);
    w.Text(name, 30);
    w.Text("", 35 + 25 + 20 + 2 + 10 + 13 + 30);
    w.Text(category, 20);
    w.Text("", 30);
    return w.Bytes();
}

// Every data file read at start, by its name, well formed. The clock is 15 June 2026.
inline std::map<std::string, std::string> WellFormedFiles() {
    return {
        {"NorvaxConstructionSchedulerSettings.txt", "8\r\n5\r\n\"\"\r\n\"\"\r\n#TRUE#\r\n"},
        {"Prompts.txt", "#TRUE#,#FALSE#\r\n"},
        {"MyBusinessData.txt",
         "\"Acme\",\"1 Main St\",\"\",\"Springfield\",\"IL\",\"62701\",\"217-555-0100\",\"\","
         "\"\"\r\n"},
        {"Assignto.txt", "\"Crew A\"\r\n\"Crew B\"\r\n"},
        {"Characteristics.txt", "\"Framing\",2,2,0,0\r\n\"Inspection\",1,2,1,2\r\n"},
        {"PurgedDate.txt", "160\r\n"},
        {"LogoSettings.txt", "1440,1200\r\n"},
        {"PrintColors.txt", "255\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n"},
        {"CompanyLogo.txt", "\"C:\\Logos\\acme.bmp\"\r\n"},
        {"Phone.txt", "#TRUE#\r\n3\r\n"},
        {"CallID.txt", "#FALSE#\r\n"},
        {"CustomerData.txt", CustomerRecord("A100") + CustomerRecord("B200")},
        {"Meetings.txt", MeetingRecord("6/1/2026") + MeetingRecord("6/20/2026")},
        {"VendorData.txt", VendorRecord("Ace Plumbing", "Sub-Contractor")},
        {"2026/Team#1/170.txt", "\"Pj160-1-Framing\"\r\n"},
    };
}

// Files the start writes when it comes through: they may change.
inline bool WrittenByTheStart(const std::string& name) {
    return name == "PurgedDate.txt" || name == "Meetings.txt" || name == "TemporaryFile.txt";
}

// Every file below the folder, by its path relative to it.
inline std::map<std::string, std::string> Snapshot(const testing_support::TestFolder& folder) {
    std::map<std::string, std::string> files;
    std::error_code ec;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path(), ec))
        if (entry.is_regular_file(ec)) {
            const std::string relative =
                std::filesystem::relative(entry.path(), folder.Path()).generic_string();
            files[relative] = folder.Read(relative);
        }
    return files;
}

// The run-time error the last start stopped with; 0 when it came through.
inline int StartError(testing_support::TestFolder& folder) {
    if (!platform::ProgramHasEnded()) return 0;
    for (auto it = folder.Ui().Boxes().rbegin(); it != folder.Ui().Boxes().rend(); ++it) {
        const std::string& text = it->prompt;
        if (text.rfind("Run-time error '", 0) == 0) return std::stoi(text.substr(16));
    }
    return -1;  // ended without saying why
}

// Starts the program on the folder and comes to the set-up screen, as the user would.
inline int StartAndOpenSetup(testing_support::TestFolder& folder) {
    folder.Ui().ClearLog();
    ResetProgramState();
    RegisterScreens();
    platform::Dispatch([] { SubMain(); });
    if (!platform::ProgramHasEnded())
        platform::Dispatch([] { platform::Forms::Get("frmSetup").Show(); });
    return StartError(folder);
}

}  // namespace office
