#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "support/SVNRepository.h"

// What the client says about one file.
struct SVNAnswer {
  std::string Revision;
  // Whether the working copy holds a lock.
  bool LockedHere = false;
  // Whoever has the lock in the repository; empty when nobody has.
  std::string LockOwner;
  std::string LockComment;
};

// Asks the installed client itself about all files and folders of a working copy of the repository's root.
// The keys are paths below it.
std::map<std::string, SVNAnswer> AskSVN(const SVNRepository& repository,
                                        const std::filesystem::path& workingCopy);
