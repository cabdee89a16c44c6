#pragma once

#include <functional>

// Ways out of the set-up screen into screens that sit above it. The start-up code sets
// them; when they are not set, the set-up screen falls back on the screen registry.

// Ends the whole program (the exit routine with its backup). Fallback: platform::End().
extern std::function<void()> ExitProgramHook;
// Shows the main menu. Fallback: shows "frmStartup" if that screen is known.
extern std::function<void()> ShowMainMenuHook;
// Looks for the modem on the serial ports and sets the port on the phone page. Run first
// by the phone settings at load; with none set, the stored port is all there is.
extern std::function<void()> ProbeModemHook;
// Starts the browser on the user manual. Fallback: the platform opens the address.
extern std::function<void()> OpenManualHook;

// Runs the hook, or its fallback.
void ExitProgramFromSetup();
void ShowMainMenuFromSetup();
void OpenManualFromSetup();
