// A whole refresh with the real CVS client, and the same client commands run bare from a shell.

#include <cstdlib>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "ManyParts.h"
#include "Measurement.h"
#include "ZRKICVSManager.h"
#include "support/Assembly.h"
#include "support/CVSRepository.h"
#include "support/Command.h"
#include "support/EnvironmentVariable.h"
#include "support/Files.h"
#include "support/Launches.h"
#include "support/Session.h"

namespace {

constexpr int kWatchedFiles = 5'000;

// What the launches told Windows' command line, for a shell: the client itself, "/" in paths, and the
// question for editors in the client's own words.
std::string ShellScript(const std::vector<standin::Launch>& launches, const std::string& folder,
                        const std::string& target) {
  std::string script = "cd '" + folder + "'\n";
  for (const standin::Launch& launch : launches) {
    std::string line(launch.CommandLine.begin(), launch.CommandLine.end());
    for (char& character : line) {
      if (character == '\\') character = '/';
    }
    if (const std::size_t edit = line.find("-n edit"); edit != std::string::npos) {
      line.replace(edit, 7, "editors");
    }
    script += "cvs" + line + " 2>&1 " + target + '\n';
  }
  return script;
}

// A working copy of kWatchedFiles files, and the product of each.
Assembly CheckOutAssembly(const TemporaryFolder& folder) {
  const CVSRepository repository(folder / "repository");
  repository.Import("car", FileContents(kWatchedFiles));
  repository.Checkout("car", folder.Path());

  Assembly assembly(folder);
  AddProducts(assembly, kWatchedFiles);
  return assembly;
}

// The client's launches in a refresh of the assembly.
std::vector<standin::Launch> LaunchesOfRefresh(const Assembly& assembly) {
  const CATBaseUnknown_var root = assembly.At("car");
  const Launches recorded;
  ZRKICVSManager_var(root)->RefreshStatus(root);
  const auto attributes = ReadStatusAttributes(assembly.At("car/part1"));
  if (!attributes || attributes->Revision.empty()) throw std::runtime_error("the refresh wrote nothing");
  return recorded.All();
}

}  // namespace

Measurements MeasureCVSRefresh() {
  constexpr int kRounds = 5;
  const Session session;
  const TemporaryFolder folder;
  const Assembly assembly = CheckOutAssembly(folder);
  const EnvironmentVariable path("PATH", std::string(std::getenv("PATH")) + ":" + CLIENTS_FOLDER);
  const CATBaseUnknown_var root = assembly.At("car");
  const ZRKICVSManager_var manager(root);
  const std::vector<standin::Launch> launches = LaunchesOfRefresh(assembly);

  const auto bare = [&](const std::string& name, const std::string& target) {
    WriteFile(folder / name, ShellScript(launches, folder.Path().string(), target));
    return std::vector<std::string>{"sh", (folder / name).string()};
  };
  const auto refresh = [&] { manager->RefreshStatus(root); };
  // The client writes each file's report on its own, and each time wakes whoever reads it from a pipe.
  const auto toPipe = bare("pipe.sh", "| cat >/dev/null");
  const auto toNothing = bare("nothing.sh", ">/dev/null");
  const SideBySide beside = Compare(kRounds, refresh, [&] { RunCommandOrThrow(toPipe); });
  const SideBySide alone = Compare(kRounds, refresh, [&] { RunCommandOrThrow(toNothing); });
  const std::string runs = ", " + std::to_string(launches.size()) + " runs";
  return {{"Refresh of 5,000 files with CVS to its bare commands, into a pipe", beside.Ratio(), "times", 1.05,
           beside.Detail("refresh", "commands") + runs},
          {"The same to the commands without a reader",
           alone.Ratio(),
           "times",
           {},
           alone.Detail("refresh", "commands") + runs}};
}
