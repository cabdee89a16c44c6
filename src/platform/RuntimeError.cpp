#include "platform/RuntimeError.h"

namespace platform {

RuntimeError::RuntimeError(int number, std::string description, std::string where)
    : std::runtime_error("Run-time error '" + std::to_string(number) + "': " + description),
      number_(number),
      description_(std::move(description)),
      where_(std::move(where)) {}

std::string ErrorDescription(int number) {
    switch (number) {
        case err::InvalidProcedureCall:
            return "Invalid procedure call or argument";
        case err::SubscriptOutOfRange:
            return "Subscript out of range";
        case err::TypeMismatch:
            return "Type mismatch";
        case err::BadFileNameOrNumber:
            return "Bad file name or number";
        case err::FileNotFound:
            return "File not found";
        case err::BadFileMode:
            return "Bad file mode";
        case err::FileAlreadyOpen:
            return "File already open";
        case err::FileAlreadyExists:
            return "File already exists";
        case err::BadRecordLength:
            return "Bad record length";
        case err::InputPastEnd:
            return "Input past end of file";
        case err::BadRecordNumber:
            return "Bad record number";
        case err::PermissionDenied:
            return "Permission denied";
        case err::PathFileAccessError:
            return "Path/File access error";
        case err::PathNotFound:
            return "Path not found";
        default:
            return "Application-defined or object-defined error";
    }
}

void Raise(int number, const std::string& where) {
    throw RuntimeError(number, ErrorDescription(number), where);
}

}  // namespace platform
