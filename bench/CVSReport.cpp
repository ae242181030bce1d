// Filing and parsing a `cvs status -v` report.

#include "cvs/StatusBlock.h"

#include <cstring>
#include <stdexcept>
#include <string>

#include "Measurement.h"
#include "cvs/ReportTables.h"

namespace {

std::string MakeReport(int files) {
  std::string report;
  for (int file = 0; file < files; ++file) {
    const std::string name = "part" + std::to_string(file) + ".CATPart";
    report += "===================================================================\r\nFile: " + name +
              "\tStatus: Up-to-date\r\n\r\n   Working revision:\t1.5\r\n   Repository revision:\t1.5\t"
              "/cvs/root/car/sub folder/" +
              name +
              ",v\r\n   Commit Identifier:\tkOGeDSplZWuXm2gG\r\n   Sticky Tag:\t\t(none)\r\n"
              "   Sticky Date:\t\t(none)\r\n   Sticky Options:\t-kb\r\n\r\n   Existing Tags:\r\n"
              "\trelease-2                \t(revision: 1.4)\r\n"
              "\trelease-1                \t(revision: 1.2)\r\n\r\n";
  }
  return report;
}

void FileAndParse(const std::string& report, int files) {
  zrk::cvs::ReportTable table;
  zrk::cvs::AddStatusReport(report, "C:\\w\\", ":ext:server:/cvs/root", table);
  int parsed = 0;
  for (const auto& [path, block] : table) {
    ZRKCVSStatus record;
    zrk::cvs::ParseCVSStatusBlock(block, record);
    parsed += record.WorkingRevision == "1.5";
  }
  if (parsed != files) throw std::runtime_error("the report was not read whole");
}

void WalkLines(const std::string& report) {
  std::size_t lines = 0;
  const char* const end = report.data() + report.size();
  for (const char* position = report.data(); position < end; ++lines) {
    const void* const lineEnd = std::memchr(position, '\n', static_cast<std::size_t>(end - position));
    if (!lineEnd) break;
    position = static_cast<const char*>(lineEnd) + 1;
  }
  if (lines == 0) throw std::runtime_error("an empty report");
}

}  // namespace

Measurements MeasureStatusReport() {
  constexpr int kFiles = 100'000;
  constexpr int kRounds = 5;
  const std::string large = MakeReport(kFiles);
  const std::string small = MakeReport(kFiles / 10);
  const SideBySide result = Compare(
      kRounds, [&] { FileAndParse(large, kFiles); }, [&] { WalkLines(large); });
  const double megabytes = static_cast<double>(large.size()) / 1e6;
  return {{"Status report of 100,000 files: filing and parsing",
           megabytes / result.First,
           "MB/s",
           {},
           result.Detail("filed and parsed", "memchr over its lines")},
          {"The same to a memchr walk over its lines", result.Ratio(), "times", {}, ""},
          Growth(
              "Status report, 10,000 to 100,000 files", kRounds, 10,
              [&] { FileAndParse(small, kFiles / 10); }, [&] { FileAndParse(large, kFiles); }, 1.1)};
}
