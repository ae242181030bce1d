#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "support/Command.h"

// A repository of the installed CVS client. Linux only. Everything throws, with the client's output, when
// the client refuses. A checkout or a commit takes up to a second: the client waits until no file it wrote
// can change within the second of its time stamp.
class CVSRepository {
public:
  // Makes a repository in a new folder `path`.
  explicit CVSRepository(const std::filesystem::path& path);

  // The root to reach it through: by the client itself, or through a server of its own.
  std::string LocalRoot() const { return path_.string(); }
  std::string ForkRoot() const { return ":fork:" + path_.string(); }

  // Puts the files of a new module into the repository, without tags; the keys are paths below it. Their
  // revision is 1.1.1.1, as that of all that is imported, and 1.2 after the first commit.
  void Import(const std::string& module, const std::map<std::string, std::string>& files) const;
  // Makes the working copy `parent`/`module`. CVS/Root holds `root`; the default is LocalRoot().
  void Checkout(const std::string& module, const std::filesystem::path& parent,
                const std::string& root = "") const;
  // From here on files of the module are checked out read-only.
  void WatchOn(const std::string& module) const;
  void Tag(const std::filesystem::path& workingCopy, const std::string& tag) const;
  // Takes the file for editing; its editor bears the user's name, whichever account runs the tests.
  void Edit(const std::filesystem::path& folder, const std::string& file, const std::string& user) const;
  // Commits new contents of a file of a working copy.
  void Commit(const std::filesystem::path& folder, const std::string& file,
              const std::string& contents) const;

  // Replaces an administrative file, such as "config", as the client reads it.
  void WriteAdminFile(const std::string& name, const std::string& text) const;

  // The name that the client itself gives the user: that of LOGNAME only for the administrator, else that of
  // the account.
  static std::string NameOf(const std::string& user);
  // Names the editors of a file as `cvs editors` prints them.
  std::string Editors(const std::filesystem::path& folder, const std::string& file) const;

  // `cvs -Q -d ROOT ARGUMENTS` as that user.
  std::string Run(const std::vector<std::string>& arguments, const std::filesystem::path& folder,
                  const std::string& user = "anna") const;

private:
  std::filesystem::path path_;
};
