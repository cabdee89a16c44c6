#include "frame/SubMain.h"

#include "blocked/frmAdmin.h"
#include "blocked/frmBlock.h"
#include "contacts/frmContacts.h"
#include "control/ProjectListRoutines.h"
#include "control/ProjectTables.h"
#include "control/frmProjectControl.h"
#include "customers/CustomerDiskRoutines.h"
#include "customers/CustomerHandOff.h"
#include "customers/CustomerRoutines.h"
#include "customers/frmCustomer.h"
#include "customers/frmCustomerSelection.h"
#include "frame/Navigation.h"
#include "frame/frmAbout.h"
#include "frame/frmStartup.h"
#include "frame/frmWelcome.h"
#include "platform/FileSafety.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/InstanceLock.h"
#include "platform/Printer.h"
#include "platform/RecordLayout.h"
#include "platform/Records.h"
#include "platform/RuntimeError.h"
#include "platform/SerialPort.h"
#include "platform/Ui.h"
#include "printing/WorkSchedulePrintout.h"
#include "projects/CreationWizard.h"
#include "projects/ProjectRecord.h"
#include "projects/WorkSchedule.h"
#include "projects/frmMain.h"
#include "schedule/SchedulerRoutines.h"
#include "schedule/Teams.h"
#include "setup/AssignmentRoutines.h"
#include "setup/CharacteristicsRoutines.h"
#include "setup/SettingsRoutines.h"
#include "setup/SetupHooks.h"
#include "setup/frmSetup.h"
#include "store/BasicDiskRoutines.h"
#include "store/Journal.h"
#include "store/SharedState.h"
#include "telephony/ModemRoutines.h"
#include "telephony/frmCallBack.h"
#include "telephony/frmCallID.h"
#include "telephony/frmDialer.h"
#include "workorders/frmSlip.h"
#include "workorders/frmWorkOrder.h"

using namespace platform;

namespace {

template <typename T>
void Register() {
    Forms::RegisterFactory(T::kName, [] { return std::make_unique<T>(); });
}

void LoadIfKnown(const char* screen) {
    if (Forms::Known(screen)) Forms::Get(screen).Load();
}

}  // namespace

void RegisterScreens() {
    Register<frmStartup>();
    Register<frmAbout>();
    Register<frmWelcome>();
    Register<frmSetup>();
    Register<frmBlock>();
    Register<frmAdmin>();
    Register<frmProjectControl>();
    Register<frmMain>();
    Register<frmCustomer>();
    Register<frmCustomerSelection>();
    Register<frmDialer>();
    Register<frmCallID>();
    Register<frmCallBack>();
    Register<frmSlip>();
    Register<frmContacts>();
    Register<frmWorkOrder>();
    ExitProgramHook = [] { ExitProgram(); };
    ShowMainMenuHook = [] { Forms::Get(frmStartup::kName).Show(); };
    OpenManualHook = [] { OpenAddress(kManualAddress); };
    ProbeModemHook = [] { StartModem(); };
    PrintWorkSchedulesHook = [](frmMain& form) { PrintWorkSchedules(form); };
    // The day view of the team schedule reads the projects through the control screen's tables.
    VisitProjectsHook = [](const ProjectVisitor& visit) {
        LoadProjects(Screen<frmProjectControl>());
        if (!ProjectsLoaded) return false;
        for (int p = 1; p <= ProjectCount; ++p)
            for (int m = 1; m <= HeaderOf(p).milestoneCount; ++m)
                if (!visit(HeaderOf(p), MilestoneOf(p, m))) return true;
        return true;
    };
}

void ResetProgramState() {
    Forms::Reset();
    ClearProgramEnded();
    ResetSharedState();
    ResetDayState();
    ResetCharacteristics();
    ResetProjectTables();
    ResetCreationState();
    ResetCustomerBuffers();
    HandedOffAccount = AccountHandOff{};
    // A new process finds the serial port closed.
    SharedSerialPort().Reset();
    // ... and holds no program folder.
    ReleaseProgramFolders();
    // ... and the printer with its first settings.
    Printer().Reset();
}

void SubMain() {
    BuildFolderTree();
    CheckPrevInstance();
    FinishInterruptedWork();
    LoadAssignments();
    BuildBackupYearFolders();
    InitTables();
    InitScreens();
    Forms::Get("frmSetup").Load();
    Forms::Get(frmStartup::kName).Load();
    if (CheckRequiredFiles()) {
        Forms::Get(frmStartup::kName).Show();
    } else {
        Forms::Get(frmWelcome::kName).Show();
    }
}

void BuildFolderTree() {
    const std::string year = std::to_string(Today().Year());
    for (const std::string& folder :
         {"/" + year, std::string("/Templates"), std::string("/NIActiveAccounts"),
          std::string("/Backup"), std::string("/Backup/NIActiveAccounts"),
          std::string("/Backup/NIActiveAccountsBACK"), std::string("/AuxFiles")})
        MakeFolder(folder);
    // Every account has its folders of auxiliary data; a new one gets them here at the latest.
    ForEachCustomer(CountCustomers(), [](std::int32_t, const Record& record) {
        MakeAuxFolders(record.Trimmed("AccountNo"));
    });
    BuildProgramFolders();
    BuildDocumentFolders();
}

void BuildProgramFolders() {
    const std::string exe = ProgramFileName();
    MakeFolder("/" + exe);
    MakeFolder("/NorvaxInvoicer");
    MakeFolder("/NorvaxInvoicer/IncompleteInvoices");
    MakeFolder("/Backup");
    MakeFolder("\\Backup\\ConstructionProjects");
    MakeFolder("/Backup/" + exe);
    MakeFolder("\\ConstructionProjects");
}

void BuildDocumentFolders() {
    MakeFolder("/Documents");
    MakeFolder("/Documents/Projects");
    MakeFolder("/Documents/Contracts");
    MakeFolder("/Documents/Work Orders");
}

void CheckPrevInstance() {
    if (!Ui().PrevInstance()) return;
    MsgBox(Ui().ProductName() + " is already Running!\r\nLook for it on the Task Bar", vbOKOnly);
    End();
}

void FinishInterruptedWork() {
    FinishJournal();
    // Temporaries are only ever left by a run that died: after an orderly end the walk
    // through years of day files and thousands of accounts is spared.
    if (!EarlierRunDied(AppFolder())) return;
    for (const std::string& folder : Dir(AppFolder() + "/*", true)) {
        // The user's documents and the folders of other programs are not the program's own.
        if (folder == "Documents" || folder == "NorvaxProposals") continue;
        RemoveLeftoverTemporaries(AppFolder() + "/" + folder);
    }
    for (const std::string& file : Dir(AppFolder() + "/*"))
        if (IsLeftoverTemporary(file)) Kill(AppFolder() + "/" + file);
    // The scratch files of the compactions: each is made anew before use, so one left here
    // is only what a crash left.
    for (const char* scratch : {"\\TemporaryFile.txt", "\\CUSTOMER.TMP", "\\Temp.txt"})
        DeleteFile(scratch);
}

void InitTables() {
    // HourLabels and DayNames are fixed tables; the per-project arrays start empty.
}

void InitScreens() {
    LoadIfKnown("frmProjectControl");
    if (TeamNames[0] != "empty") LoadTeamLists();
    CheckYearFolders();
    PurgeDayFiles();
    LoadIfKnown("frmCustomer");
    CurrentDate = Today();
}

void CheckYearFolders() {
    CurrentYearText = std::to_string(Today().Year());
    MakeYearTree(CurrentYearText);
    if (DatePart("y", Today()) > 120) {
        DeletePreviousYear();
        MakeYearTree(std::to_string(Today().Year() + 1));
    }
}

void DeletePreviousYear() {
    const std::string year = std::to_string(std::stoi(CurrentYearText) - 1);
    for (const std::string& root : {"\\" + year, "\\Backup\\" + year}) {
        if (!FolderExists(DataPath(root))) continue;
        for (int n = 1; n <= TeamCount(); ++n)
            DeleteFile(root + "\\Team#" + std::to_string(n) + "\\*.*");
        for (int n = 1; n <= TeamCount(); ++n) {
            const std::string team = root + "\\Team#" + std::to_string(n);
            if (FolderExists(DataPath(team))) RmDir(DataPath(team));
        }
        // A folder left by a team deleted earlier keeps the year from going: the platform's error.
        RmDir(DataPath(root));
    }
}

void PurgeDayFiles() {
    TodayDayNumber = DatePart("y", Today());
    int from = 1;
    if (FindFile("\\PurgedDate.txt")) {
        OpenForInput("\\PurgedDate.txt");
        from = InputInt16(MainFileNo);
        CloseAll();
        if (from < 1) from = 1;
    }
    // The team counter of this loop is a byte.
    const int teams = std::min(TeamCount(), 255);
    for (int n = 1; n <= teams; ++n) {
        const std::string folder = "\\" + CurrentYearText + "\\Team#" + std::to_string(n) + "\\";
        if (from > TodayDayNumber - 1 || !FolderExists(DataPath(folder))) continue;
        for (int day = from; day <= TodayDayNumber - 1; ++day) {
            const std::string file = folder + std::to_string(day) + ".txt";
            if (FileExists(DataPath(file))) DeleteFile(file);
        }
    }
    OpenForOutput("\\PurgedDate.txt");
    WriteFields(MainFileNo, {Field(static_cast<double>(TodayDayNumber - 1))});
    CloseAll();
    PurgeMeetings();
    CloseAll();
    FlushAllFiles();
}

void PurgeMeetings() {
    using projects::kMeetingsFile;
    using projects::kProjectRecord;
    const int length = static_cast<int>(kProjectRecord.Length());
    if (!FindFile(kMeetingsFile)) return;
    const int count = CountRecords(kMeetingsFile, length);
    if (count < 1) return;
    const DateTime today = Today();
    OpenRandom(kMeetingsFile, length);
    const int source = MainFileNo;
    OpenTemporaryFile(length);
    long kept = 0;
    for (int record = 1; record <= count; ++record) {
        const Record meeting = GetRecord(source, record, kProjectRecord);
        DateTime date;
        if (!ParseDate(meeting.Trimmed("Date"), date)) Raise(err::TypeMismatch, kMeetingsFile);
        if (date.DayOfYear() >= today.DayOfYear() || date.Year() > today.Year())
            PutRecord(TempFileNo, ++kept, meeting);
    }
    CloseAll();
    ReplaceWithTemporary("/Meetings.txt");
}
