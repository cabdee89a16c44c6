#pragma once

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "platform/Files.h"

// The table of open files, shared by the file services and the delimited-field reading and
// writing; nothing outside the platform's file layer uses it.
namespace platform::detail {

struct OpenFile {
    OpenMode mode{};
    std::filesystem::path target;
    std::filesystem::path temporary;  // sequential output goes here until the close
    std::string buffer;               // whole content for input, pending content for output
    size_t pos = 0;
    int recordLength = 128;
    std::unique_ptr<std::fstream> random;
};

// The open file under `fileNo`; "Bad file name or number" naming `where` when none is.
OpenFile& OpenFileOf(int fileNo, const char* where);

}  // namespace platform::detail
