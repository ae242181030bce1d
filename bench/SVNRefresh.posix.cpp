// A whole refresh of a Subversion working copy with a database with the real client, the same client command
// run bare from a shell, and the two runs for each file that a working copy of the text form takes.

#include <cstdlib>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "ManyParts.h"
#include "Measurement.h"
#include "ZRKICVSManager.h"
#include "core/HostPath.h"
#include "support/Assembly.h"
#include "support/Command.h"
#include "support/EnvironmentVariable.h"
#include "support/Files.h"
#include "support/Launches.h"
#include "support/SVNRepository.h"
#include "support/Session.h"
#include "svn/StatusReaders.h"
#include "tools/ToolLocation.h"

namespace {

// A working copy of that many files, and the product of each.
class WorkingCopy {
public:
  explicit WorkingCopy(int files) {
    const SVNRepository repository(folder_ / "repository");
    repository.Import(FileContents(files));
    repository.Checkout(Path());

    AddProducts(assembly_, files);
  }

  std::filesystem::path Path() const { return folder_ / "car"; }
  CATBaseUnknown_var Root() const { return assembly_.At("car"); }

  void Refresh() const { ZRKICVSManager_var(Root())->RefreshStatus(Root()); }

  // The command line of the one run that a refresh makes; the refresh is checked.
  std::string CommandLine() const {
    const Launches recorded;
    Refresh();
    const auto attributes = ReadStatusAttributes(assembly_.At("car/part1"));
    if (!attributes || attributes->Revision != "1") throw std::runtime_error("the refresh wrote nothing");
    if (recorded.All().size() != 1) throw std::runtime_error("the refresh took more than one run");
    const std::wstring& line = recorded.All()[0].CommandLine;
    return {line.begin(), line.end()};
  }

private:
  const TemporaryFolder folder_;
  Assembly assembly_{folder_};
};

// Two runs of the client for each file, as the library makes them for text entries.
void RefreshFileByFile(const WorkingCopy& copy) {
  const CATUnicodeString none;
  const CATUnicodeString folder = standin::HostPath(copy.Path()).c_str();
  const ZRKIAttClass_var attributeClass = StatusClass();
  CATUnicodeString cvs;
  CATUnicodeString svn;
  zrk::tools::LocateTools(cvs, svn);
  zrk::tools::Pipe output;
  zrk::tools::Pipe input;
  const zrk::svn::SVNContext context{{true, none, cvs, svn, output, input}, folder, attributeClass};
  zrk::svn::SVNTimes times;
  zrk::svn::RefreshSVNStatusTree(context, copy.Root(), times);
}

}  // namespace

Measurements MeasureSVNRefresh() {
  constexpr int kRounds = 5;
  constexpr int kFiles = 10'000;
  constexpr int kFewFiles = 100;
  const Session session;
  const EnvironmentVariable path("PATH", std::string(std::getenv("PATH")) + ":" + CLIENTS_FOLDER);
  const WorkingCopy large(kFiles);
  const WorkingCopy small(kFiles / 10);
  const WorkingCopy few(kFewFiles);

  const TemporaryFolder folder;
  const auto bare = [&](const std::string& target) {
    const std::filesystem::path script = folder / (target.substr(0, 1) == "|" ? "pipe.sh" : "nothing.sh");
    WriteFile(script, "cd '" + large.Path().string() + "'\nLC_ALL=C.UTF-8 svn" + large.CommandLine() +
                          " 2>&1 " + target + '\n');
    return std::vector<std::string>{"sh", script.string()};
  };
  const auto toPipe = bare("| cat >/dev/null");
  const auto toNothing = bare(">/dev/null");
  const SideBySide beside = Compare(
      kRounds, [&] { large.Refresh(); }, [&] { RunCommandOrThrow(toPipe); });
  const SideBySide alone = Compare(
      kRounds, [&] { large.Refresh(); }, [&] { RunCommandOrThrow(toNothing); });
  const SideBySide growth = Compare(
      kRounds, [&] { large.Refresh(); }, [&] { small.Refresh(); });
  const SideBySide byFile = Compare(
      1, [&] { RefreshFileByFile(few); }, [&] { large.Refresh(); });
  return {{"Refresh of 10,000 files in 200 folders with Subversion to its bare command, into a pipe",
           beside.Ratio(), "times", 1.5, beside.Detail("refresh", "command") + ", 1 run"},
          {"The same to the command without a reader",
           alone.Ratio(),
           "times",
           {},
           alone.Detail("refresh", "command")},
          {"The same, 1,000 to 10,000 files", growth.Ratio() / 10, "of linear", 1.1,
           growth.Detail("10,000", "1,000")},
          {"Two runs for each of 10,000 files, as text entries take them, to that refresh",
           byFile.Ratio() * kFiles / kFewFiles,
           "times",
           {},
           byFile.Detail("100 files", "refresh of 10,000")}};
}
