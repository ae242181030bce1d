#include "SVNEntriesText.h"

#include <expat.h>

#include <array>
#include <limits>
#include <memory>
#include <utility>

namespace {

// Where the values of an entry stand, in lines from its name.
enum Line {
  kName = 0,
  kKind = 1,
  kRevision = 2,
  kURL = 3,
  kRepositoryRoot = 4,
  kSchedule = 5,
  kChecksum = 7,
  kCommitDate = 8,
  kCommitRevision = 9,
  kCommitAuthor = 10,
  kRepositoryUUID = 25,
  kLockToken = 26,
  kLockOwner = 27,
  kLockComment = 28,
  kLockDate = 29,
  kWorkingSize = 32,
  kLineCount = 33
};

struct Reader {
  XML_Parser Parser;
  std::vector<SVNEntry> Entries;
  // Names of the open elements, joined by "/", and the text of the innermost.
  std::string Place;
  std::string Text;
};

// Runs a step of the reading. The parser, which is C, lets nothing through that is thrown: it is stopped.
template <class Step>
void Guarded(void* data, Step step) noexcept {
  Reader& reader = *static_cast<Reader*>(data);
  try {
    step(reader);
  } catch (...) {
    XML_StopParser(reader.Parser, XML_FALSE);
  }
}

std::string Attribute(const char** attributes, std::string_view name) {
  for (; *attributes; attributes += 2) {
    if (name == attributes[0]) return attributes[1];
  }
  return {};
}

void StartElement(void* data, const char* name, const char** attributes) {
  Guarded(data, [=](Reader& reader) {
    reader.Place += std::string("/") + name;
    reader.Text.clear();
    if (reader.Place == "/info/entry") {
      SVNEntry& entry = reader.Entries.emplace_back();
      entry.Path = Attribute(attributes, "path");
      entry.Kind = Attribute(attributes, "kind");
      entry.Revision = Attribute(attributes, "revision");
    } else if (reader.Place == "/info/entry/commit") {
      reader.Entries.back().CommitRevision = Attribute(attributes, "revision");
    }
  });
}

constexpr struct {
  std::string_view Place;
  std::string SVNEntry::*Field;
} kTexts[] = {
    {"/info/entry/url", &SVNEntry::URL},
    {"/info/entry/repository/root", &SVNEntry::RepositoryRoot},
    {"/info/entry/repository/uuid", &SVNEntry::RepositoryUUID},
    {"/info/entry/wc-info/schedule", &SVNEntry::Schedule},
    {"/info/entry/wc-info/checksum", &SVNEntry::Checksum},
    {"/info/entry/commit/date", &SVNEntry::CommitDate},
    {"/info/entry/commit/author", &SVNEntry::CommitAuthor},
    {"/info/entry/lock/token", &SVNEntry::LockToken},
    {"/info/entry/lock/owner", &SVNEntry::LockOwner},
    {"/info/entry/lock/comment", &SVNEntry::LockComment},
    {"/info/entry/lock/created", &SVNEntry::LockDate},
};

void EndElement(void* data, const char* name) {
  Guarded(data, [=](Reader& reader) {
    for (const auto& text : kTexts) {
      if (reader.Place == text.Place) reader.Entries.back().*text.Field = reader.Text;
    }
    reader.Place.resize(reader.Place.size() - std::string_view(name).size() - 1);
  });
}

void AppendText(void* data, const char* text, int length) {
  Guarded(data, [=](Reader& reader) { reader.Text.append(text, static_cast<std::size_t>(length)); });
}

// A value takes one line.
std::string Escaped(std::string_view value) {
  std::string escaped;
  for (const char character : value) {
    if (character == '\n') {
      escaped += "\\x0a";
    } else if (character == '\\') {
      escaped += "\\x5c";
    } else {
      escaped += character;
    }
  }
  return escaped;
}

using Lines = std::array<std::string, kLineCount>;

// Empty lines at the end are left out; a form feed ends the entry.
void AppendEntry(const Lines& lines, std::string& file) {
  std::size_t count = lines.size();
  while (count > 1 && lines[count - 1].empty()) --count;
  for (std::size_t line = 0; line < count; ++line) file += Escaped(lines[line]) + '\n';
  file += "\f\n";
}

Lines CommitLines(const SVNEntry& entry) {
  Lines lines;
  lines[kKind] = entry.Kind;
  lines[kRevision] = entry.Revision;
  if (entry.Schedule != "normal") lines[kSchedule] = entry.Schedule;
  lines[kCommitDate] = entry.CommitDate;
  lines[kCommitRevision] = entry.CommitRevision;
  lines[kCommitAuthor] = entry.CommitAuthor;
  return lines;
}

Lines FolderLines(const SVNEntry& entry) {
  Lines lines = CommitLines(entry);
  lines[kURL] = entry.URL;
  lines[kRepositoryRoot] = entry.RepositoryRoot;
  lines[kRepositoryUUID] = entry.RepositoryUUID;
  return lines;
}

Lines FileLines(const SVNEntry& entry, const std::string& name) {
  Lines lines = CommitLines(entry);
  lines[kName] = name;
  lines[kChecksum] = entry.Checksum;
  lines[kLockToken] = entry.LockToken;
  lines[kLockOwner] = entry.LockOwner;
  lines[kLockComment] = entry.LockComment;
  lines[kLockDate] = entry.LockDate;
  // A committed file's entry goes down to its size, so that what is looked for at a distance from the
  // name is never a line of the next entry. -1 stands for a size that is not known.
  if (!entry.CommitRevision.empty()) lines[kWorkingSize] = "-1";
  return lines;
}

Lines SubfolderLines(const std::string& name) {
  Lines lines;
  lines[kName] = name;
  lines[kKind] = "dir";
  return lines;
}

}  // namespace

std::vector<SVNEntry> ParseSVNInfo(std::string_view report) {
  const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate(nullptr),
                                                                            &XML_ParserFree);
  // The parser takes no more at once.
  constexpr std::size_t kLargest = std::numeric_limits<int>::max();
  if (!parser || report.size() > kLargest) return {};
  Reader reader{.Parser = parser.get(), .Entries = {}, .Place = {}, .Text = {}};
  XML_SetUserData(parser.get(), &reader);
  XML_SetElementHandler(parser.get(), StartElement, EndElement);
  XML_SetCharacterDataHandler(parser.get(), AppendText);
  if (XML_Parse(parser.get(), report.data(), static_cast<int>(report.size()), XML_TRUE) != XML_STATUS_OK) {
    return {};
  }
  return std::move(reader.Entries);
}

std::map<std::string, std::string> BuildSVNEntriesTexts(const std::vector<SVNEntry>& entries) {
  // The client names a folder before what is in it.
  std::map<std::string, std::string> texts;
  for (const SVNEntry& entry : entries) {
    const std::size_t slash = entry.Path.rfind('/');
    const std::string parent = slash == std::string::npos ? std::string() : entry.Path.substr(0, slash);
    const std::string name = slash == std::string::npos ? entry.Path : entry.Path.substr(slash + 1);
    const auto parentText = texts.find(parent);
    if (parentText != texts.end()) {
      AppendEntry(entry.Kind == "dir" ? SubfolderLines(name) : FileLines(entry, name), parentText->second);
    }
    if (entry.Kind == "dir") AppendEntry(FolderLines(entry), texts[entry.Path]);
  }
  return texts;
}
