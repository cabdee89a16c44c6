#pragma once

#include <string>
#include <vector>

// The script actions on the simulated modem: place it on a port, take it away, ring it,
// and look at what the program sent to it and at the program's serial port.

bool IsModemAction(const std::string& verb);
// Carries out the action, its escapes (\r, \n) already undone; what it shows goes to `shown`, one
// line each. Returns what went wrong, or an empty text.
std::string RunModemAction(const std::string& verb, const std::string& rest,
                           std::vector<std::string>& shown);
// Time passes between two actions of a script; the one right after a ring is the ring's own.
void ModemTimePasses();
// No modem, as at the start of a script.
void ResetModemActions();
