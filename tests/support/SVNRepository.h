#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "support/Command.h"

// A repository of the installed Subversion client. Linux only. Everything throws, with the client's
// output, when the client refuses.
class SVNRepository {
public:
  // Makes a repository in a new folder `path`.
  explicit SVNRepository(const std::filesystem::path& path);

  std::string URL() const { return "file://" + path_.string(); }

  // Adds the files in one revision; the keys are paths below the root.
  void Import(const std::map<std::string, std::string>& files) const;
  // Makes a working copy of the root in the new folder `workingCopy`.
  void Checkout(const std::filesystem::path& workingCopy) const;
  void Lock(const std::filesystem::path& file, const std::string& user,
            const std::string& comment = "") const;
  // Commits new contents of a file of a working copy.
  void Commit(const std::filesystem::path& file, const std::string& contents) const;

  // `svn ARGUMENTS` as that user. A path that holds "@" must end in one.
  std::string Run(const std::vector<std::string>& arguments, const std::string& user = "anna") const;

private:
  std::filesystem::path path_;
};
