#include "support/TestFolder.h"

#include <fstream>
#include <random>
#include <sstream>

#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/RuntimeError.h"
#include "platform/Ui.h"

namespace fs = std::filesystem;

namespace testing_support {

TestFolder::TestFolder(platform::DateTime now) {
    std::random_device rd;
    path_ = fs::temp_directory_path() /
            ("scheduler-test-" + std::to_string(rd()) + std::to_string(rd()));
    fs::create_directories(path_);
    platform::SetAppFolder(path_.string());
    platform::SetProgramFileName("NorvaxConstructionScheduler");
    backend_.SetNow(now);
    platform::SetBackend(&backend_);
    platform::ClearProgramEnded();
    platform::Forms::Reset();
}

TestFolder::~TestFolder() {
    platform::AbandonAll();
    platform::Forms::Reset();
    platform::SetBackend(nullptr);
    platform::ClearProgramEnded();
    std::error_code ec;
    fs::remove_all(path_, ec);
}

void TestFolder::Write(const std::string& relative, const std::string& bytes) const {
    fs::path p = path_ / relative;
    fs::create_directories(p.parent_path());
    std::ofstream(p, std::ios::binary) << bytes;
}

std::string TestFolder::Read(const std::string& relative) const {
    std::ifstream in(path_ / relative, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

bool TestFolder::Exists(const std::string& relative) const {
    return fs::exists(path_ / relative);
}

void TestFolder::MakeDirs(const std::string& relative) const {
    fs::create_directories(path_ / relative);
}

std::string TestFolder::Golden(const std::string& name) {
    std::ifstream in(fs::path(TEST_DATA_DIR) / name, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

std::string DayFileBytes(const std::string (&slots)[12]) {
    std::string out;
    for (const auto& s : slots) out += "\"" + s + "\"\r\n";
    return out;
}

std::string FreeDayBytes() {
    std::string out;
    for (int i = 0; i < 12; ++i) out += "\"No Event Scheduled\"\r\n";
    return out;
}

int ErrorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const platform::RuntimeError& e) {
        return e.Number();
    }
    return 0;
}

}  // namespace testing_support
