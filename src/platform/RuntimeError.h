#pragma once

#include <stdexcept>
#include <string>

namespace platform {

// The platform's run-time failure: a numbered error that nothing in the system catches.
// The top of the event loop shows it and ends the program without writing further.
class RuntimeError : public std::runtime_error {
  public:
    RuntimeError(int number, std::string description, std::string where = {});

    int Number() const { return number_; }
    const std::string& Description() const { return description_; }
    const std::string& Where() const { return where_; }

  private:
    int number_;
    std::string description_;
    std::string where_;
};

// Thrown by `End`: unwinds every handler on the stack, to the top of the event loop.
struct ProgramEnded {};

// Error numbers the system can meet; ErrorDescription gives the platform's own text of each.
namespace err {
constexpr int InvalidProcedureCall = 5;
constexpr int Overflow = 6;
constexpr int SubscriptOutOfRange = 9;
constexpr int TypeMismatch = 13;
constexpr int BadFileNameOrNumber = 52;
constexpr int FileNotFound = 53;
constexpr int BadFileMode = 54;
constexpr int FileAlreadyOpen = 55;
constexpr int DeviceIOError = 57;
constexpr int FileAlreadyExists = 58;
constexpr int BadRecordLength = 59;
constexpr int DiskFull = 61;
constexpr int InputPastEnd = 62;
constexpr int BadRecordNumber = 63;
constexpr int TooManyFiles = 67;
constexpr int PermissionDenied = 70;
constexpr int DiskNotReady = 71;
constexpr int PathFileAccessError = 75;
constexpr int PathNotFound = 76;
constexpr int InvalidPropertyValue = 380;
constexpr int InvalidPropertyArrayIndex = 381;
constexpr int TextPropertyReadOnly = 383;
constexpr int InvalidPicture = 481;
constexpr int PrinterError = 482;
}  // namespace err

[[noreturn]] void Raise(int number, const std::string& where = {});
std::string ErrorDescription(int number);

}  // namespace platform
