#include "cvs/ReportTables.h"

#include <iterator>

#include "cvs/StatusBlock.h"
#include "text/Text.h"

namespace zrk::cvs {

using text::Piece;
using text::Replaced;
using text::View;
namespace {

// A report of many empty lines would be filed once for each of them, at the square of its length. Beyond
// the length of the report, this bounds what such lines may take in all.
constexpr std::size_t kWrappedLinesLimit = std::size_t{64} << 10;

void AddEditLine(std::string_view line, const CATUnicodeString& sandboxRoot, ReportTable& table) {
  const std::string_view name = line.substr(0, line.find('\t'));
  std::string key = sandboxRoot.ConvertToChar();
  key += name;
  table.try_emplace(Replaced(key, '/', '\\'), Replaced(line, '\t', '\n'));
}

}  // namespace

void AddStatusReport(std::string_view report, const CATUnicodeString& sandboxRoot,
                     const CATUnicodeString& cvsRoot, ReportTable& table) {
  constexpr std::string_view kBlockStart = "File:";
  constexpr std::string_view kSeparator = "=====";
  // Clients report folder by folder in the order of names: the next file's place is mostly behind this one's.
  auto place = table.end();
  std::size_t start = report.find(kBlockStart);
  while (start != std::string_view::npos) {
    const std::size_t end = report.find(kSeparator, start + kBlockStart.size());
    const std::string_view block = report.substr(start, end - start);
    std::string key = sandboxRoot.ConvertToChar();
    key += GetRepositoryPath(block, View(cvsRoot));
    place = std::next(table.try_emplace(place, std::move(key), block));
    start = end == std::string_view::npos ? end : report.find(kBlockStart, end);
  }
}

void AddEditReport(std::string_view report, const CATUnicodeString& sandboxRoot, ReportTable& table) {
  std::size_t wrapped = 0;
  std::size_t start = 0;
  for (std::size_t end = report.find('\n'); end != std::string_view::npos; end = report.find('\n', start)) {
    const auto length = static_cast<std::ptrdiff_t>(end - start) - 1;
    const std::string_view line = Piece(report, start, length);
    start = end + 1;
    if (length < 0) {
      wrapped += line.size();
      if (wrapped > report.size() + kWrappedLinesLimit) continue;
    }
    AddEditLine(line, sandboxRoot, table);
  }
}

}  // namespace zrk::cvs
