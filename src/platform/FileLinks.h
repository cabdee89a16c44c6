#pragma once

#include <string>
#include <string_view>

// Folders kept equal to other folders by hard links. A file shared this way is safe only
// because no routine writes into an existing file in place: every write goes to a
// temporary name and is renamed over the old one, which leaves the other name's content.
namespace platform {

// Makes folder `target` hold exactly the files of folder `source` whose names match
// `pattern`, under the same names. A target file that is already the same file as its
// source (a hard link) stays as it is; every other file of the target goes; each source
// file then missing is linked, or copied where the file system has no links. Folders in
// the target are left alone. A missing source holds no files; a missing target is the
// platform's "Path not found" once there is a file to put in it. Returns the files put.
int MirrorFolder(const std::string& source, const std::string& target, std::string_view pattern);

// Gives the file `source` the second name `keep`, which holds the file's present bytes while
// its first name is replaced by a rename or deleted: a hard link, or a copy where the file
// system has no links or where `inPlace` says that records will be written into the file
// itself. A file already under `keep` goes first.
void KeepOldBytes(const std::string& source, const std::string& keep, bool inPlace);

}  // namespace platform
