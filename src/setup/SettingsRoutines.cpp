#include "setup/SettingsRoutines.h"

#include <cmath>

#include "platform/Files.h"
#include "platform/RuntimeError.h"
#include "schedule/Teams.h"
#include "setup/AssignmentRoutines.h"
#include "setup/BusinessRoutines.h"
#include "setup/CharacteristicsRoutines.h"
#include "setup/PhoneOptionRoutines.h"
#include "setup/ScreenLinks.h"
#include "setup/frmSetup.h"
#include "store/BasicDiskRoutines.h"
#include "store/SharedState.h"

using namespace platform;

namespace {

constexpr const char* kPromptsFile = "/Prompts.txt";
// The name the settings file had in the program's first edition; the delete before each
// save still uses it.
constexpr const char* kFixedSettingsName = "\\ConstructionSchedulerSettings.txt";

}  // namespace

std::string SettingsFilePath() {
    return "/" + ProgramFileName() + "Settings.txt";
}

void LoadConstructionSettings(frmSetup& form) {
    const std::string path = SettingsFilePath();
    if (FindFile(path)) {
        OpenForInput(path);
        const int file = MainFileNo;
        StartHour = InputByte(file);
        WorkWeek = InputByte(file);
        InputString(file);  // two reserved values
        InputString(file);
        DaysDefault = InputBool(file);
    } else {
        StartHour = 8;
        WorkWeek = 5;
        DaysDefault = true;
    }
    CloseAll();

    if (StartHour == 7) {
        form.ck7.SetValue(true);
    } else {
        // The day starts at 7 or at 8; the option turned on stands for any other hour.
        StartHour = 8;
        form.ck8.SetValue(true);
    }

    switch (WorkWeek) {
        case 5:
            form.optMF.SetValue(true);
            break;
        case 61:
            form.optMS.SetValue(true);
            break;
        case 62:
            form.optSF.SetValue(true);
            break;
        case 7:
            form.optSS.SetValue(true);
            break;
        default:
            WorkWeek = 5;
            form.optMF.SetValue(true);
            break;
    }

    const bool days = DaysDefault;
    form.ckDays.SetValue(days ? 1 : 0);
    DaysDefault = days;
    if (OptionButton* unit = OptionOnScreen("frmMain", days ? "optSelect(1)" : "optSelect(0)"))
        unit->SetValue(true);
}

void SaveConstructionSettings(frmSetup& form) {
    const std::string path = SettingsFilePath();
    const bool found = FindFile(path);
    OpenForRewrite(path);
    const int file = MainFileNo;
    WriteFields(file, {double(StartHour)});
    WriteFields(file, {double(WorkWeek)});
    WriteFields(file, {Text("")});
    WriteFields(file, {Text("")});
    WriteFields(file, {DaysDefault});
    CloseAll();
    // The settings under the program's fixed name go, with their Backup copy, once the new
    // file is in place (when that name is this file's, only its Backup copy).
    if (found) {
        DeleteFile(std::string("/Backup") + kFixedSettingsName);
        if (ResolvePath(DataPath(kFixedSettingsName)) != ResolvePath(DataPath(path)))
            DeleteFile(kFixedSettingsName);
    }
    LoadConstructionSettings(form);
}

void LoadPrompts(frmSetup& form) {
    if (FindFile(kPromptsFile)) {
        OpenForInput(kPromptsFile);
        const int file = MainFileNo;
        ShowPrompts = InputBool(file);
        SoundAlarms = InputBool(file);
        CloseAll();
    } else {
        ShowPrompts = true;
        SoundAlarms = true;
    }
    const bool prompts = ShowPrompts;
    const bool alarms = SoundAlarms;
    form.ckPrompts.SetValue(prompts ? 1 : 0);
    form.ckAlarms.SetValue(alarms ? 1 : 0);
    ShowPrompts = prompts;
    SoundAlarms = alarms;
}

void SavePrompts() {
    OpenForRewrite(kPromptsFile);
    WriteFields(MainFileNo, {ShowPrompts, SoundAlarms});
    CloseAll();
}

void SaveSetupData(frmSetup& form) {
    SaveBusinessData(form);
    ReloadBusinessData(form);

    SaveAssignments(form);
    LoadAssignments();
    LoadTeamLists(form);

    SavePhoneOptions(form);
    SaveConstructionSettings(form);
    SavePrompts();
    LoadConstructionSettings(form);

    if (form.cboMilestones.ListCount() > 0) {
        SaveCharacteristics(form);
        LoadCharacteristics(form);
        if (form.cboMilestones.ListCount() > 0) {
            SaveCharacteristics(form);
            LoadCharacteristics(form);
        }
    } else {
        // An empty list never reaches the disk.
        AlarmBeep();
    }

    SavePrintColors(form);
}

bool CheckRequiredFiles() {
    for (const std::string& path :
         {SettingsFilePath(), std::string("\\MyBusinessData.txt"), std::string(kAssignmentsFile),
          std::string(kCharacteristicsFile)})
        if (!FindFile(path)) return false;
    return true;
}
