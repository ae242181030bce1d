#include "support/CVSRepository.h"

#include <pwd.h>
#include <unistd.h>

#include <regex>

#include "support/Files.h"
#include "support/TemporaryFolder.h"

namespace fs = std::filesystem;

CVSRepository::CVSRepository(const fs::path& path) : path_(path) {
  RunCommandOrThrow({"cvs", "-d", LocalRoot(), "init"});
}

void CVSRepository::Import(const std::string& module, const std::map<std::string, std::string>& files) const {
  const TemporaryFolder folder;
  for (const auto& [name, contents] : files) WriteFile(folder / name, contents);
  Run({"import", "-kb", "-I", "!", "-m", "first", module, "VENDOR", "START"}, folder.Path());
  Run({"rtag", "-d", "START", module}, folder.Path());
  Run({"rtag", "-d", "-B", "VENDOR", module}, folder.Path());
}

void CVSRepository::Checkout(const std::string& module, const fs::path& parent,
                             const std::string& root) const {
  fs::create_directories(parent);
  RunCommandOrThrow({"cvs", "-Q", "-d", root.empty() ? LocalRoot() : root, "checkout", module},
                    {.Folder = parent, .Input = "", .Environment = {}});
}

void CVSRepository::WatchOn(const std::string& module) const {
  // What `cvs watch on` leaves in the repository. It wants a working copy, and the client waits out the
  // second in which it made one.
  std::map<fs::path, std::string> attributes;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path_ / module)) {
    if (!entry.path().string().ends_with(",v")) continue;
    const std::string name = entry.path().filename().string();
    std::string& lines = attributes[entry.path().parent_path()];
    lines.append("F").append(name, 0, name.size() - 2).append("\t_watched=\n");
  }
  for (const auto& [folder, lines] : attributes) WriteFile(folder / "CVS/fileattr", lines + "D\t_watched=\n");
}

void CVSRepository::Tag(const fs::path& workingCopy, const std::string& tag) const {
  Run({"tag", tag}, workingCopy);
}

void CVSRepository::Edit(const fs::path& folder, const std::string& file, const std::string& user) const {
  Run({"edit", file}, folder, user);
  const std::string named = NameOf(user);
  if (named == user) return;
  // As the repository keeps it, in the folder of the file.
  const fs::path edited = folder / file;
  std::string parent = ReadFile(edited.parent_path() / "CVS/Repository");
  parent.pop_back();
  const fs::path attributes = path_ / parent / "CVS/fileattr";
  const std::regex editor("(\nF" + edited.filename().string() + "\t(?:.*;)?_editors=(?:.*,)?)" + named + ">");
  WriteFile(attributes, std::regex_replace("\n" + ReadFile(attributes), editor, "$1" + user + ">").substr(1));
}

void CVSRepository::Commit(const fs::path& folder, const std::string& file,
                           const std::string& contents) const {
  if (!IsWritable(folder / file)) Run({"edit", file}, folder);
  WriteFile(folder / file, contents);
  // The client sees a change by the time of the file, which has whole seconds here; it is made to commit.
  Run({"commit", "-f", "-m", "next", file}, folder);
}

void CVSRepository::WriteAdminFile(const std::string& name, const std::string& text) const {
  const fs::path file = path_ / "CVSROOT" / name;
  if (fs::exists(file)) SetWritable(file);
  WriteFile(file, text);
}

std::string CVSRepository::NameOf(const std::string& user) {
  const passwd* account = getuid() == 0 ? nullptr : getpwuid(getuid());
  return account ? account->pw_name : user;
}

std::string CVSRepository::Editors(const fs::path& folder, const std::string& file) const {
  return Run({"editors", file}, folder);
}

std::string CVSRepository::Run(const std::vector<std::string>& arguments, const fs::path& folder,
                               const std::string& user) const {
  std::vector<std::string> command = {"cvs", "-Q", "-d", LocalRoot()};
  command.insert(command.end(), arguments.begin(), arguments.end());
  // The client takes the name of the administrator's account from here, and refuses commits of that name.
  return RunCommandOrThrow(command, {.Folder = folder, .Input = "", .Environment = {{"LOGNAME", user}}});
}
