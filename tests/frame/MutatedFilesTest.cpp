// A small, repeatable run of randomly damaged data files through start-up and the set-up
// screen: whatever the damage, the program comes through or stops with one of the
// platform's own errors, and no file but the damaged one and those the start writes is
// touched. The seed is fixed, so a failure can be run again.
#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "OfficeFolder.h"
#include "platform/RuntimeError.h"

using testing_support::TestFolder;

namespace {

constexpr unsigned kSeed = 20260615;
constexpr int kRuns = 120;

// Pieces that damaged or hand-edited files hold.
const std::vector<std::string> kPieces = {
    "nan",    "inf",          "-Infinity", "0x1A", "&H", "&HFFFF", "1e400",
    "1d5",    "99999",        "-1",        ",",    "\"", "\r\n",   std::string(1, '\0'),
    "#TRUE#", "#2026-02-30#", "..",        "/",    "\\", " ",
};

std::string Mutate(std::string bytes, std::mt19937& random) {
    const int edits = std::uniform_int_distribution<int>(1, 3)(random);
    for (int e = 0; e < edits; ++e) {
        const size_t at =
            bytes.empty() ? 0 : std::uniform_int_distribution<size_t>(0, bytes.size() - 1)(random);
        switch (std::uniform_int_distribution<int>(0, 5)(random)) {
            case 0:  // cut short
                bytes.resize(at);
                break;
            case 1:  // a byte changed
                if (!bytes.empty())
                    bytes[at] =
                        static_cast<char>(std::uniform_int_distribution<int>(0, 255)(random));
                break;
            case 2:  // a piece put in
                bytes.insert(
                    at,
                    kPieces[std::uniform_int_distribution<size_t>(0, kPieces.size() - 1)(random)]);
                break;
            case 3:  // a piece written over
            {
                const std::string& piece =
                    kPieces[std::uniform_int_distribution<size_t>(0, kPieces.size() - 1)(random)];
                bytes.replace(at, std::min(piece.size(), bytes.size() - at), piece);
                break;
            }
            case 4:  // a run taken out
                bytes.erase(at, std::uniform_int_distribution<size_t>(1, 16)(random));
                break;
            default:  // a run doubled
                bytes.insert(
                    at, bytes.substr(at, std::uniform_int_distribution<size_t>(1, 40)(random)));
                break;
        }
    }
    return bytes;
}

}  // namespace

TEST(MutatedFiles, EveryStartComesThroughOrStopsWithThePlatformsError) {
    std::mt19937 random(kSeed);
    const auto wellFormed = office::WellFormedFiles();
    std::vector<std::string> names;
    for (const auto& [name, bytes] : wellFormed) names.push_back(name);
    int stopped = 0;
    for (int run = 0; run < kRuns; ++run) {
        const std::string& damaged =
            names[std::uniform_int_distribution<size_t>(0, names.size() - 1)(random)];
        const std::string bytes = Mutate(wellFormed.at(damaged), random);
        SCOPED_TRACE("run " + std::to_string(run) + ", " + damaged);
        TestFolder folder;
        for (const auto& [name, content] : wellFormed)
            folder.Write(name, name == damaged ? bytes : content);
        const auto before = office::Snapshot(folder);

        const int error = office::StartAndOpenSetup(folder);

        if (error != 0) {
            ++stopped;
            EXPECT_GT(error, 0) << "the program ended without the platform's error";
            EXPECT_NE(platform::ErrorDescription(error),
                      "Application-defined or object-defined error")
                << error;
        }
        const auto after = office::Snapshot(folder);
        for (const auto& [name, content] : before) {
            if (name == damaged || office::WrittenByTheStart(name)) continue;
            const auto it = after.find(name);
            EXPECT_TRUE(it != after.end() && it->second == content) << name << " was changed";
        }
    }
    // The damage is real: some starts stop, most come through.
    EXPECT_GT(stopped, 0);
    EXPECT_LT(stopped, kRuns);
}
