#include "component/shell/ExportedSurface.h"

#include <cstdio>
#include <memory>
#include <stdexcept>

#include "support/Platform.h"

namespace {

struct CommandEnder {
  void operator()(std::FILE* command) const { pclose(command); }
};

}  // namespace

std::set<std::string> ExportedNames() {
  const std::filesystem::path library = ExecutableFolder() / ZRK_COMPONENT_LIBRARY;
  const std::string list = "'" ZRK_NM "' --dynamic --defined-only '" + library.string() + "'";
  const std::unique_ptr<std::FILE, CommandEnder> command(popen(list.c_str(), "r"));
  if (!command) throw std::runtime_error("nm cannot be run");
  std::set<std::string> names;
  char line[1024];
  while (std::fgets(line, sizeof(line), command.get())) {
    // An address, a letter for the kind, the name.
    const std::string text(line);
    const std::size_t name = text.find(' ', text.find(' ') + 1) + 1;
    names.insert(text.substr(name, text.find_last_not_of('\n') + 1 - name));
  }
  return names;
}
