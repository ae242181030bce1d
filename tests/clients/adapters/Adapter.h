#pragma once

#include <string>
#include <vector>

#include "support/Command.h"
#include "support/Files.h"
#include "support/Platform.h"

// Runs an adapter as the component does: the arguments behind the program's name.
inline CommandResult RunAdapter(const std::string& name, std::vector<std::string> arguments,
                                const CommandOptions& options = {}) {
  arguments.insert(arguments.begin(), (ExecutableFolder() / "clients" / name).string());
  return RunCommand(arguments, options);
}

// Writes a shell script that stands in for the client of this system.
inline void WriteProgram(const std::filesystem::path& path, const std::string& commands) {
  WriteFile(path, "#!/bin/sh\n" + commands);
  std::filesystem::permissions(path, std::filesystem::perms::owner_all);
}
