#pragma once

#include <string>

// The way every screen with a dial picture reaches the dialler: the name and the number go
// into the dialler's labels, and the dialler shows, modal, until the call is done. False
// (and nothing shown) in a program that has no dialler.
bool ShowDialer(const std::string& name, const std::string& number);
