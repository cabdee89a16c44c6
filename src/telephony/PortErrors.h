#pragma once

#include "platform/RuntimeError.h"
#include "platform/SerialPort.h"

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

// What waits in the port's receive buffer; nothing when the line can't be read.
inline int BytesWaiting(platform::SerialPort& port) {
    int count = 0;
    IgnoringPortErrors([&] { count = port.InBufferCount(); });
    return count;
}
