#include <gtest/gtest.h>

#include <filesystem>

#include <sys/wait.h>
#include <unistd.h>

#include "platform/InstanceLock.h"
#include "support/TestFolder.h"

using namespace platform;
using testing_support::TestFolder;

namespace {

// Whether a second process may claim the folder by this path.
bool OtherProcessClaims(const std::string& path) {
    const pid_t pid = fork();
    if (pid == 0) _exit(ClaimProgramFolder(path) ? 0 : 1);
    int status = 0;
    waitpid(pid, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace

TEST(InstanceLock, OneProcessAProgramFolderThroughAnyPathToIt) {
    TestFolder folder;
    const std::filesystem::path link = folder.Path().string() + "-link";
    std::filesystem::create_directory_symlink(folder.Path(), link);
    const std::string path = folder.Path().string();

    EXPECT_TRUE(ClaimProgramFolder(path));
    EXPECT_FALSE(EarlierRunDied(path));              // the first run of all
    EXPECT_TRUE(ClaimProgramFolder(link.string()));  // this process holds it already
    EXPECT_TRUE(ClaimProgramFolder(path));
    EXPECT_FALSE(OtherProcessClaims(path));
    EXPECT_FALSE(OtherProcessClaims(link.string()));
    EXPECT_FALSE(OtherProcessClaims(path + "/./"));

    ReleaseProgramFolders();
    EXPECT_TRUE(OtherProcessClaims(link.string()));
    // The other process has ended, and with it its claim: a crashed run locks nobody out.
    EXPECT_TRUE(ClaimProgramFolder(path));
    // It ended without giving the folder up: its temporaries may lie about.
    EXPECT_TRUE(EarlierRunDied(path));
    ReleaseProgramFolders();
    EXPECT_TRUE(ClaimProgramFolder(link.string()));
    EXPECT_FALSE(EarlierRunDied(path));
    ReleaseProgramFolders();
    std::filesystem::remove(link);
}
