// The report of `cvs -n edit`.

#include "cvs/ReportTables.h"
#include "fuzz/Fuzzing.h"

namespace {

using namespace zrk::cvs;

const CATUnicodeString kSandboxRoot = "\\home\\anna\\";
const std::size_t kSandboxSize = static_cast<std::size_t>(kSandboxRoot.GetLengthInByte());
// What the lines of wrapped length may take in all.
constexpr std::size_t kWrappedLinesLimit = std::size_t{64} << 10;

ReportTable Read(std::string_view report) {
  ReportTable table;
  AddEditReport(report, kSandboxRoot, table);
  return table;
}

std::string Replaced(std::string text, char searched, char replacement) {
  std::replace(text.begin(), text.end(), searched, replacement);
  return text;
}

std::string Key(std::string_view line) {
  const std::string name(line.substr(0, line.find('\t')));
  return Replaced(kSandboxRoot.ConvertToChar() + name, '/', '\\');
}

void EachLineIsFiledOnce(std::string_view report) {
  ReportTable expected;
  std::size_t wrapped = 0;
  const std::vector<std::string_view> pieces = SplitAtLineFeeds(report);
  for (std::size_t i = 0; i + 1 < pieces.size(); ++i) {
    std::string_view line = pieces[i];
    if (line.empty()) {
      line = report.substr(static_cast<std::size_t>(line.data() - report.data()));
      wrapped += line.size();
      if (wrapped > report.size() + kWrappedLinesLimit) continue;
    } else {
      line.remove_suffix(1);
    }
    expected.try_emplace(Key(line), Replaced(std::string(line), '\t', '\n'));
  }
  Require(Read(report) == expected, "each line is filed by its name, the first of a name holds");
}

void SizeIsBounded(std::string_view report) {
  std::size_t total = 0;
  const ReportTable table = Read(report);
  for (const auto& [key, value] : table) {
    total += key.size() - kSandboxSize + value.size();
    Require(key.find('/') == std::string::npos, "keys have the host's separators");
    Require(value.find('\t') == std::string::npos, "values have line feeds for tabs");
  }
  Require(total <= 2 * (2 * report.size() + kWrappedLinesLimit),
          "the table grows with the report, not its square");
}

// Lines of nothing but their end, each of them the whole rest of the report.
void ManyEmptyLinesAreBounded(FuzzedDataProvider values) {
  std::string report(values.ConsumeIntegralInRange<std::size_t>(0, 30'000), '\n');
  report += values.ConsumeRandomLengthString(100);
  SizeIsBounded(report);
}

void ValuesComeBack(FuzzedDataProvider& values) {
  std::string report;
  std::vector<std::pair<std::string, std::string>> expected;
  for (const std::string& name : ConsumeNames(values, 8)) {
    const std::string editor = ConsumeWord(values, kNameCharacters, 12);
    const std::string time = ConsumeWord(values, "SatNov 0123456789:GMT", 30);
    const std::string folder = ConsumeWord(values, "ab/", 10);
    report += folder + "/" + name + "\t" + editor + "\t" + time + "\thost\t/home/" + editor + "\r\n";
    expected.emplace_back(Key(folder + "/" + name),
                          folder + "/" + name + "\n" + editor + "\n" + time + "\nhost\n/home/" + editor);
  }
  const ReportTable table = Read(report);
  Require(table.size() == expected.size(), "each line of a report is filed");
  for (const auto& [key, value] : expected) {
    const auto found = table.find(key);
    Require(found != table.end() && found->second == value, "a line comes back by the file's path");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view report = Text(data, size);
  EachLineIsFiledOnce(report);
  SizeIsBounded(report);
  FuzzedDataProvider values(data, size);
  ValuesComeBack(values);
  // Costs a thousand times what the others do.
  if (size > 0 && data[0] == '\n') ManyEmptyLinesAreBounded(FuzzedDataProvider(data, size));
  return 0;
}
