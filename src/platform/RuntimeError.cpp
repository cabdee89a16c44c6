#include "platform/RuntimeError.h"

namespace platform {

RuntimeError::RuntimeError(int number, std::string description, std::string where)
    : std::runtime_error("Run-time error '" + std::to_string(number) + "': " + description),
      number_(number),
      description_(std::move(description)),
      where_(std::move(where)) {}

namespace {

struct ErrorText {
    int number;
    const char* text;
};

// The platform's descriptions, word for word, of every error the program can raise.
constexpr ErrorText kErrorTexts[] = {
    {err::InvalidProcedureCall, "Invalid procedure call or argument"},
    {err::Overflow, "Overflow"},
    {7, "Out of memory"},
    {err::SubscriptOutOfRange, "Subscript out of range"},
    {11, "Division by zero"},
    {err::TypeMismatch, "Type mismatch"},
    {err::BadFileNameOrNumber, "Bad file name or number"},
    {err::FileNotFound, "File not found"},
    {err::BadFileMode, "Bad file mode"},
    {err::FileAlreadyOpen, "File already open"},
    {err::DeviceIOError, "Device I/O error"},
    {err::FileAlreadyExists, "File already exists"},
    {err::BadRecordLength, "Bad record length"},
    {err::DiskFull, "Disk full"},
    {err::InputPastEnd, "Input past end of file"},
    {err::BadRecordNumber, "Bad record number"},
    {err::TooManyFiles, "Too many files"},
    {68, "Device unavailable"},
    {err::PermissionDenied, "Permission denied"},
    {err::DiskNotReady, "Disk not ready"},
    {74, "Can't rename with different drive"},
    {err::PathFileAccessError, "Path/File access error"},
    {err::PathNotFound, "Path not found"},
    {91, "Object variable or With block variable not set"},
    {94, "Invalid use of Null"},
    {err::InvalidPropertyValue, "Invalid property value"},
    {err::InvalidPropertyArrayIndex, "Invalid property array index"},
    {err::TextPropertyReadOnly, "'Text' property is read-only"},
    {err::InvalidPicture, "Invalid picture"},
    {err::PrinterError, "Printer error"},
    // The serial port, the grid, the calendar and the common dialog.
    {8002, "Invalid port number"},
    {8005, "Port already open"},
    {8012, "The device is not open"},
    {8018, "Operation valid only when the port is open"},
    {30009, "Invalid Row value"},
    {30010, "Invalid Col value"},
    {32755, "Cancel was selected."},
    {35775, "A date was specified that does not fall within the MinDate and MaxDate properties"},
};

}  // namespace

std::string ErrorDescription(int number) {
    for (const auto& entry : kErrorTexts)
        if (entry.number == number) return entry.text;
    return "Application-defined or object-defined error";
}

void Raise(int number, const std::string& where) {
    throw RuntimeError(number, ErrorDescription(number), where);
}

}  // namespace platform
