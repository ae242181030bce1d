#include "support/SVNRepository.h"

#include "support/Files.h"
#include "support/TemporaryFolder.h"

namespace {

// The character type of whoever runs the tests may be one that has no letters beyond ASCII.
CommandOptions InUTF8() {
  return {.Folder = {}, .Input = "", .Environment = {{"LC_ALL", "C.UTF-8"}}};
}

}  // namespace

SVNRepository::SVNRepository(const std::filesystem::path& path) : path_(path) {
  RunCommandOrThrow({"svnadmin", "create", path_.string()}, InUTF8());
}

void SVNRepository::Import(const std::map<std::string, std::string>& files) const {
  const TemporaryFolder folder;
  for (const auto& [name, contents] : files) WriteFile(folder / name, contents);
  Run({"import", "-m", "first", folder.Path().string(), URL()});
}

void SVNRepository::Checkout(const std::filesystem::path& workingCopy) const {
  Run({"checkout", URL(), workingCopy.string()});
}

void SVNRepository::Lock(const std::filesystem::path& file, const std::string& user,
                         const std::string& comment) const {
  Run({"lock", "-m", comment, file.string() + "@"}, user);
}

void SVNRepository::Commit(const std::filesystem::path& file, const std::string& contents) const {
  WriteFile(file, contents);
  Run({"commit", "-m", "next", file.string() + "@"});
}

std::string SVNRepository::Run(const std::vector<std::string>& arguments, const std::string& user) const {
  std::vector<std::string> command = {"svn", "--non-interactive", "--no-auth-cache", "--username", user};
  command.insert(command.end(), arguments.begin(), arguments.end());
  return RunCommandOrThrow(command, InUTF8());
}
