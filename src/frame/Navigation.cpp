#include "frame/Navigation.h"

#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/Ui.h"
#include "store/BasicDiskRoutines.h"

using namespace platform;

const char* const kMakerAddress = "https://www.norvax.com/";
const char* const kManualAddress = "https://www.norvax.com/construction/manual.html";

void ExitProgram() {
    static bool exiting = false;
    if (!exiting) {
        exiting = true;
        BackupDataFiles();
        // Last loaded first; each screen's own unload logic runs, as when code unloads it.
        auto loaded = Forms::Loaded();
        for (auto it = loaded.rbegin(); it != loaded.rend(); ++it) {
            if ((*it)->IsLoaded()) (*it)->Unload(1);
        }
        exiting = false;
    }
    End();
}

void OpenAddress(const std::string& url) {
    OpenForOutput("/Temp.url");
    PrintLine(MainFileNo, "[InternetShortcut]");
    PrintLine(MainFileNo, "URL = " + url);
    CloseAll();
    Ui().OpenUrl(url);
}

void ShowMessage(const std::string& text, const std::string& title) {
    MsgBox(text, vbOKOnly, title);
}
