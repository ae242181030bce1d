// The report of `svn status -v -u --xml` on a working copy with a database.

#include <map>
#include <tuple>

#include "dom/XmlTree.h"
#include "fuzz/Fuzzing.h"
#include "support/ClientReports.h"
#include "svn/WorkingCopyReport.h"

namespace {

using zrk::svn::ReportedFile;
using zrk::svn::ReportedFiles;
using zrk::svn::Repository;

constexpr std::string_view kEnd = "</status>";

// What is known of a file, to be compared.
using Facts = std::tuple<std::string, std::string, bool, bool, std::string, std::string>;

struct Reading {
  bool Complete = false;
  std::map<std::string, Facts> Files;

  bool operator==(const Reading&) const = default;
};

Reading Read(const std::string& report, Repository repository) {
  ReportedFiles files;
  Reading reading;
  reading.Complete = zrk::svn::ReadWorkingCopyReport(report.c_str(), repository, "", files);
  for (const auto& [path, file] : files) {
    reading.Files[path] = {file.Item,
                           file.Revision,
                           file.IsLockedHere,
                           file.IsLockedByOther,
                           file.LockOwner.ConvertToChar(),
                           file.LockComment.ConvertToChar()};
  }
  return reading;
}

// From "<?xml" to the last "</status>".
std::string WithoutTextAround(const std::string& report) {
  const std::size_t start = report.find("<?xml");
  const std::size_t end = report.rfind(kEnd);
  if (start == std::string::npos || end == std::string::npos || end < start) return "";
  return report.substr(start, end + kEnd.size() - start);
}

void OnlyWhatTheParserAcceptsIsRead(const std::string& report, const Reading& reading) {
  Require(reading.Complete == standin::XmlTree::Parse(WithoutTextAround(report)).has_value(),
          "a report is read if and only if it is well-formed");
  Require(reading.Complete || reading.Files.empty(), "nothing is read from a report that is not");
}

void TextAroundChangesNothing(const std::string& report, const Reading& reading, Repository repository,
                              FuzzedDataProvider& values) {
  const std::string before = ConsumeWord(values, "svn: warning>&'\r\n/", 30);
  const std::string behind = ConsumeWord(values, "svn: E170013<?xml>&'\r\n", 30);
  Require(Read(before + report + behind, repository) == reading, "text around a report changes nothing");
}

// Each character of the value stands in the report, in this order; markup may stand between them.
bool IsSpelledIn(const std::string& value, const std::string& report) {
  std::size_t position = 0;
  for (const char character : value) {
    position = report.find(character, position);
    if (position == std::string::npos) return false;
    ++position;
  }
  return true;
}

void NothingIsMadeUp(const std::string& report, const Reading& reading, Repository repository) {
  for (const auto& [path, facts] : reading.Files) {
    const auto& [item, revision, here, other, owner, comment] = facts;
    Require(!(here && other), "a lock is held here or elsewhere");
    Require(!path.empty(), "a file has a path");
    if (here || other) {
      Require(report.find("<lock") != std::string::npos, "a lock stands in the report");
    } else {
      Require(owner.empty() && comment.empty(), "without a lock there is no owner");
    }
    if (repository == Repository::NotAsked) Require(!other, "only the repository knows of others");
  }
  // Where characters stand for others they are not looked for.
  for (const char* replaced : {"&", "\r", "encoding", "<!"}) {
    if (report.find(replaced) != std::string::npos) return;
  }
  for (const auto& [path, facts] : reading.Files) {
    for (const std::string& value :
         {std::get<0>(facts), std::get<1>(facts), std::get<4>(facts), std::get<5>(facts)}) {
      // Tabs and line ends in an attribute become blanks.
      if (value.find(' ') == std::string::npos) Require(IsSpelledIn(value, report), "a value is made up");
    }
  }
}

std::optional<reports::Lock> ConsumeLock(FuzzedDataProvider& values) {
  if (values.ConsumeBool()) return std::nullopt;
  return reports::Lock{"t" + ConsumeWord(values, "12", 1), "o" + ConsumeWord(values, kOwnerCharacters, 20),
                       ConsumeWord(values, "abc <&>\"\n", 20)};
}

// The table of locks, as it is promised.
Facts Expected(const reports::Entry& entry, Repository repository) {
  Facts facts{entry.Item, entry.Revision, false, false, "", ""};
  const auto show = [&](const reports::Lock& lock, bool here) {
    facts = {entry.Item, entry.Revision, here, !here, lock.Owner, lock.Comment};
  };
  if (repository == Repository::NotAsked) {
    if (entry.Own) show(*entry.Own, true);
  } else if (entry.Own && entry.InRepository && entry.Own->Token == entry.InRepository->Token) {
    show(*entry.Own, true);
  } else if (entry.InRepository) {
    show(*entry.InRepository, false);
  }
  return facts;
}

void ValuesComeBack(FuzzedDataProvider& values) {
  const auto repository = values.ConsumeBool() ? Repository::Asked : Repository::NotAsked;
  std::string report = reports::kHead;
  Reading expected{true, {}};
  for (const std::string& name : ConsumeNames(values, 6, kOwnerCharacters)) {
    const reports::Entry entry{
        .Path = "sub/" + name,
        .Item = values.PickValueInArray({"normal", "added", "modified", "unversioned", "none"}),
        .Revision = ConsumeWord(values, "0123456789", 9),
        .Own = ConsumeLock(values),
        .InRepository = ConsumeLock(values)};
    expected.Files["sub\\" + name] = Expected(entry, repository);
    const bool inChangelist = values.ConsumeBool();
    report += (inChangelist ? "<changelist name=\"c\">" : "") + reports::Text(entry) +
              (inChangelist ? "</changelist>" : "");
  }
  report += reports::kTail;
  Require(Read(report, repository) == expected, "entries come back by their paths");

  const auto length = values.ConsumeIntegralInRange<std::size_t>(0, report.rfind('>'));
  Require(Read(report.substr(0, length), repository) == Reading{}, "a report that is cut off says nothing");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = Text(data, size);
  const std::string report(input.substr(0, input.find('\0')));
  FuzzedDataProvider values(data, size);
  for (const Repository repository : {Repository::Asked, Repository::NotAsked}) {
    const Reading reading = Read(report, repository);
    OnlyWhatTheParserAcceptsIsRead(report, reading);
    NothingIsMadeUp(report, reading, repository);
    TextAroundChangesNothing(report, reading, repository, values);
  }
  ValuesComeBack(values);
  return 0;
}
