// The text form of `.svn\entries`. The first line of an input is the name that is looked for.

#include "fuzz/Fuzzing.h"
#include "svn/EntriesText.h"

namespace {

constexpr std::string_view kToken = "opaquelocktoken";

struct Entry {
  bool IsListed = false;
  bool IsLocked = false;
  std::string Revision;
  std::string Owner;

  bool operator==(const Entry&) const = default;
};

Entry Read(std::string_view entries, std::string_view name) {
  ZRKCVSStatus record;
  zrk::svn::ReadEntry(entries, name, record);
  Require(record.IsInEntries == record.IsVersioned, "what is listed is versioned");
  Require(record.RevisionNumber == std::atoi(record.WorkingRevision.ConvertToChar()),
          "the number is the text's");
  return {record.IsInEntries != 0, record.IsLockedHere != 0, record.WorkingRevision.ConvertToChar(),
          record.LockOwner.ConvertToChar()};
}

// A text of the host ends at a 0.
std::string HostText(std::string_view line) {
  return std::string(line.substr(0, line.find('\0')));
}

// The same by counting lines.
Entry Count(std::string_view entries, std::string_view name) {
  std::vector<std::string_view> lines = SplitAtLineFeeds(entries);
  lines.pop_back();
  Entry entry;
  const auto found = std::find(lines.begin(), lines.end(), name);
  if (found == lines.end()) return entry;
  entry.IsListed = true;
  const auto left = lines.end() - found;
  if (left > 9) entry.Revision = HostText(found[9]);
  if (left > 26 && found[26].find(kToken) != std::string_view::npos) {
    entry.IsLocked = true;
    if (left > 27) entry.Owner = HostText(found[27]);
  }
  return entry;
}

void ValuesComeBack(FuzzedDataProvider& values) {
  std::string entries = "10\n\ndir\n2\n\f\n";
  std::vector<std::pair<std::string, Entry>> expected;
  for (const std::string& name : ConsumeNames(values, 6)) {
    Entry entry{true, values.ConsumeBool(), ConsumeWord(values, "0123456789", 9), ""};
    std::vector<std::string> lines(34);
    lines[0] = name;
    lines[1] = "file";
    lines[9] = entry.Revision;
    if (entry.IsLocked) {
      entry.Owner = ConsumeWord(values, kNameCharacters, 20);
      lines[26] = std::string(kToken) + ":1";
      // An owner's line that is the name of a file would be taken for that file's entry.
      lines[27] = entry.Owner.insert(0, "o");
    }
    for (const std::string& line : lines) entries += line + "\n";
    entries += "\f\n";
    expected.emplace_back(name, entry);
  }
  for (const auto& [name, entry] : expected)
    Require(Read(entries, name) == entry, "an entry comes back by its name");
  Require(!Read(entries, "n9").IsListed, "a name that is not there is not listed");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = Text(data, size);
  const std::size_t lineEnd = std::min(input.find('\n'), input.size());
  const std::string_view name = input.substr(0, lineEnd);
  const std::string_view entries = input.substr(std::min(lineEnd + 1, input.size()));
  Require(Read(entries, name) == Count(entries, name), "the values stand at their distances behind the name");
  FuzzedDataProvider values(data, size);
  ValuesComeBack(values);
  return 0;
}
