// A whole refresh with a client that answers at once: what the library itself costs.

#include <malloc.h>

#include <algorithm>
#include <fstream>
#include <stdexcept>
#include <string>

#include "Measurement.h"
#include "ZRKICVSManager.h"
#include "support/Assembly.h"
#include "support/Files.h"
#include "support/ScriptedClient.h"
#include "support/Session.h"

namespace {

// A value of /proc/self/status, in bytes.
long MemoryNow(const std::string& name) {
  std::ifstream status("/proc/self/status");
  std::string line;
  while (std::getline(status, line)) {
    if (line.starts_with(name + ":")) return std::stol(line.substr(name.size() + 1)) * 1024;
  }
  throw std::runtime_error("no " + name + " in /proc/self/status");
}

void ForgetPeakMemory() {
  constexpr const char* kResetPeak = "5";
  std::ofstream("/proc/self/clear_refs") << kResetPeak;
}

// A tree of that many products in folders of a hundred, with a client that reports on all of them.
class Stage {
public:
  explicit Stage(int products) : assembly_(folder_) {
    std::string status;
    std::string editors;
    WriteAdministration("car");
    assembly_.Add("car", "car/car.CATProduct");
    AppendReports("car/car.CATProduct", status, editors);
    for (int product = 1; product < products; ++product) {
      const std::string folder = "car/folder " + std::to_string(product / 100);
      if (product == 1 || product % 100 == 0) WriteAdministration(folder);
      const std::string name = "part" + std::to_string(product);
      const std::string document = folder + "/" + name + ".CATPart";
      assembly_.Add(name, document).Place("car", name + ".1", name);
      AppendReports(document, status, editors);
    }
    WriteFile(folder_ / "status.txt", status);
    WriteFile(folder_ / "editors.txt", editors);
    ReportBytes = status.size() + editors.size();
  }

  // The client answers the first command line with the whole report: how the files are spread over command
  // lines does not matter to the library.
  void Teach(ScriptedClient& client) const {
    client.ClearRules();
    client.When("status -v car\\car.CATProduct").File(folder_ / "status.txt");
    client.When("-n edit car\\car.CATProduct").File(folder_ / "editors.txt");
  }

  void Refresh() {
    const CATBaseUnknown_var root = assembly_.At("car");
    const ZRKICVSManager_var manager(root);
    manager->RefreshStatus(root);
  }

  void Check() {
    const auto attributes = ReadStatusAttributes(assembly_.At("car/part1.1"));
    if (!attributes || attributes->Revision != "1.5") throw std::runtime_error("the refresh wrote nothing");
  }

  std::size_t ReportBytes = 0;

private:
  void WriteAdministration(const std::string& folder) {
    WriteFile(folder_ / (folder + "/CVS/Root"), "/cvs/root\n");
    WriteFile(folder_ / (folder + "/CVS/Repository"), folder + "\n");
  }

  static void AppendReports(const std::string& document, std::string& status, std::string& editors) {
    const std::string name = document.substr(document.rfind('/') + 1);
    status +=
        "===================================================================\r\nFile: " + name +
        "\tStatus: Up-to-date\r\n\r\n   Working revision:\t1.5\r\n   Repository revision:\t1.5\t"
        "/cvs/root/" +
        document +
        ",v\r\n   Sticky Tag:\t\t(none)\r\n   Sticky Date:\t\t(none)\r\n   Sticky Options:\t(none)\r\n\r\n"
        "   Existing Tags:\r\n\trelease-1                \t(revision: 1.4)\r\n\r\n";
    editors += document + "\tben\tSat Nov 21 07:40:02 2026 GMT\thost\t/home/ben/car\r\n";
  }

  TemporaryFolder folder_;
  Assembly assembly_;
};

}  // namespace

Measurements MeasureScriptedRefresh() {
  constexpr int kProducts = 10'000;
  constexpr int kRounds = 5;
  const Session session;
  ScriptedClient client;
  Stage large(kProducts);
  Stage small(kProducts / 10);

  large.Teach(client);
  malloc_trim(0);  // what the stage freed is not there to be taken for the refresh
  const long before = MemoryNow("VmRSS");
  ForgetPeakMemory();
  large.Refresh();
  const long peak = MemoryNow("VmHWM") - before;
  const long kept = MemoryNow("VmRSS") - before;
  large.Check();

  SideBySide result{1e9, 1e9};
  for (int round = 0; round < kRounds; ++round) {
    large.Teach(client);
    result.First = std::min(result.First, Seconds([&] { large.Refresh(); }));
    small.Teach(client);
    result.Second = std::min(result.Second, Seconds([&] { small.Refresh(); }));
  }
  small.Check();
  return {
      {"Refresh of 10,000 products, scripted client", result.First * 1e6 / kProducts, "us/product", 10.0, ""},
      {"Refresh, 1,000 to 10,000 products", result.Ratio() / 10, "of linear", 1.1,
       result.Detail("10,000", "1,000")},
      {"Memory kept after it", static_cast<double>(kept) / kProducts, "bytes/product", 3000.0, ""},
      {"Peak memory of it to the size of the reports",
       static_cast<double>(peak) / static_cast<double>(large.ReportBytes),
       "times",
       {},
       "reports " + std::to_string(large.ReportBytes) + " bytes"}};
}
