#pragma once

// The modem at start-up: found on one of the serial ports, its port shown on the phone
// page and in the dialler, its caller-ID reporting switched on.

// Looks for the modem on ports 1 to 16, then switches on caller ID on the port found and
// leaves that port open. True when a modem answered.
bool ProbeModem();
// No modem: the phone options can't be used.
void DisablePhoneOptions();
// After a probe that found the modem: when the modem took the caller-ID command and
// CallID.txt does not yet say caller ID is in use, it says so from now on, so that the
// main menu offers call monitoring once a modem that reports callers is connected.
void EnableCallerIDIfAnswered();
// The probe and the caller-ID check, as the phone page's load runs them.
void StartModem();
