#pragma once

#include <string>

// Leaving the program and reaching the outside world.

// The one way out: backs up the data files, unloads every screen and ends the process.
[[noreturn]] void ExitProgram();
// Starts the system's browser on an address through an Internet shortcut file.
void OpenAddress(const std::string& url);
void ShowMessage(const std::string& text, const std::string& title);

// Addresses of the maker and its suppliers.
extern const char* const kMakerAddress;
extern const char* const kManualAddress;
