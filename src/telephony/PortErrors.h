#pragma once

#include "platform/RuntimeError.h"

// Runs one statement on the serial port, passing over a failure of the port object, so that
// the next statement runs as if it had worked: a modem that is gone, or a port that will not
// open, leaves the screens waiting rather than ends the program.
template <typename Statement>
void IgnoringPortErrors(Statement statement) {
    try {
        statement();
    } catch (const platform::RuntimeError&) {
    }
}
