#pragma once

#include <string>

// One running program a program folder. The claim is an advisory lock on a file inside the
// folder, so it holds for every computer that opens the folder, through any path to it (a
// share, a link, a bind mount), and the system drops it when the process ends in any way: a
// crashed run never keeps the user out.
namespace platform {

constexpr const char* kInstanceLockSuffix = ".lock";

// Claims `folder` for this process, unless another process holds it: then false. A claim
// this process holds already is simply kept. A folder where no lock can be taken (no file
// may be made there) is not guarded.
bool ClaimProgramFolder(const std::string& folder);
// Whether the run before this one on a folder this process claimed died without ending (its
// temporary files may still lie about); true where that is not known.
bool EarlierRunDied(const std::string& folder);
// Gives every claim of this process up (for tests that play a second process).
void ReleaseProgramFolders();

}  // namespace platform
