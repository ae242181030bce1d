#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

// The text form of a working copy's entries, in which Subversion kept them up to 1.6, from what today's
// client says.

// One file or folder as `svn info --xml` tells it; empty where it tells nothing.
struct SVNEntry {
  std::string Path;
  std::string Kind;
  std::string Revision;
  std::string URL;
  std::string RepositoryRoot;
  std::string RepositoryUUID;
  std::string Schedule;
  std::string Checksum;
  std::string CommitDate;
  std::string CommitRevision;
  std::string CommitAuthor;
  std::string LockToken;
  std::string LockOwner;
  std::string LockComment;
  std::string LockDate;
};

// The entries of a report of `svn info --xml`, in its order; none when it cannot be read, as when it is not
// well-formed.
std::vector<SVNEntry> ParseSVNInfo(std::string_view report);

// The text of each folder's entries file, less its first line, by the folder's path: the folder itself, its
// files and its subfolders.
std::map<std::string, std::string> BuildSVNEntriesTexts(const std::vector<SVNEntry>& entries);
