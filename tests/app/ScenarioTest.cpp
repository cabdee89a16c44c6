// Runs each scenario script of tests/scenarios on an empty program folder and compares the
// transcript with the expected one beside it. UPDATE_SCENARIOS=1 rewrites the expected files.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "app/script/ScriptDriver.h"

namespace fs = std::filesystem;

namespace {

std::string ReadAll(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

std::vector<std::string> Scenarios() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(SCENARIO_DIR))
        if (entry.path().extension() == ".script") names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

class Scenario : public ::testing::TestWithParam<std::string> {};

}  // namespace

TEST_P(Scenario, TranscriptMatches) {
    const fs::path script = fs::path(SCENARIO_DIR) / (GetParam() + ".script");
    const fs::path expected = fs::path(SCENARIO_DIR) / (GetParam() + ".expected");
    std::random_device rd;
    const fs::path folder =
        fs::temp_directory_path() / ("scheduler-scenario-" + std::to_string(rd()));
    fs::create_directories(folder);
    std::ostringstream out;
    int failures = 0;
    {
        ScriptDriver driver(folder.string(), out);
        failures = driver.RunFile(script.string());
    }
    fs::remove_all(folder);
    if (std::getenv("UPDATE_SCENARIOS")) std::ofstream(expected, std::ios::binary) << out.str();
    EXPECT_EQ(failures, 0) << out.str();
    EXPECT_EQ(out.str(), ReadAll(expected));
}

INSTANTIATE_TEST_SUITE_P(Scripts, Scenario, ::testing::ValuesIn(Scenarios()), [](const auto& test) {
    std::string name = test.param;
    for (auto& c : name)
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    return name;
});
