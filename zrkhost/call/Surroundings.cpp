#include "call/Surroundings.h"

#include <initializer_list>

namespace zrkhost {

namespace fs = std::filesystem;

fs::path DefaultPlugin() {
  const auto folder = ProgramFile().parent_path();
  const auto beside = folder / PluginFileName();
  std::error_code error;
  if (fs::exists(beside, error)) return beside;
  const auto installed = (folder / ".." / ZRKHOST_LIBRARY_FOLDER / PluginFileName()).lexically_normal();
  return fs::exists(installed, error) ? installed : beside;
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
