#include "call/Surroundings.h"

#include <initializer_list>

namespace zrkhost {

namespace fs = std::filesystem;

namespace {

fs::path LibraryBeside(const std::string& name) {
  const auto folder = ProgramFile().parent_path();
  const auto beside = folder / LibraryFileName(name);
  std::error_code error;
  if (fs::exists(beside, error)) return beside;
  const auto installed = (folder / ".." / ZRKHOST_LIBRARY_FOLDER / LibraryFileName(name)).lexically_normal();
  return fs::exists(installed, error) ? installed : beside;
}

}  // namespace

fs::path DefaultPlugin() {
  return LibraryBeside("ZRKCVSManager");
}

fs::path DefaultHostCheck() {
  return LibraryBeside("ZRKHostCheck");
}

fs::path DefaultClients() {
  const auto folder = ProgramFile().parent_path();
  for (const auto& candidate :
       {folder / "clients", folder / ".." / ZRKHOST_LIBEXEC_FOLDER / "zrkhost" / "clients"}) {
    std::error_code error;
    if (fs::is_directory(candidate, error)) return candidate.lexically_normal();
  }
  return {};
}

}  // namespace zrkhost
