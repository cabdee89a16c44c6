#pragma once

class frmSetup;

// The phone page of the set-up screen: Phone.txt (a phone is connected, the modem's port)
// and CallID.txt (caller ID is in use).

// At load: the modem probe (when one is installed), then Phone.txt, then CallID.txt.
void StartPhoneOptions(frmSetup& form);
void LoadCallerIDOption(frmSetup& form);
// The stored caller-ID flag into inUse; false, with inUse untouched, when there is none.
bool ReadCallerIDOption(bool& inUse);
// Takes ckPhone into PhoneConnected and writes both files.
void SavePhoneOptions(frmSetup& form);
void SaveCallerIDOption();
