#pragma once

#include <string>
#include <vector>

// Text-form `.svn\entries` files as the client writes them, built entry by entry.
namespace entries {

using Lines = std::vector<std::string>;

inline constexpr const char* kToken = "opaquelocktoken:5f4dd5d0-4a9b-11ee-8b1c-0800200c9a66";

// Each line with its end.
inline std::string Text(const Lines& lines, const std::string& lineEnd = "\n") {
  std::string text;
  for (const std::string& line : lines) text += line + lineEnd;
  return text;
}

// An entry of the lines given, the first of them its name: empty lines at its end are left out, and a
// line with one form feed closes it.
inline std::string EntryOf(Lines lines) {
  while (lines.size() > 1 && lines.back().empty()) lines.pop_back();
  return Text(lines) + "\f\n";
}

// A line and then `count` further ones, "line 1", "line 2", ... but for those in `known`.
struct Known {
  std::size_t Distance;
  std::string Line;
};
inline Lines NameAndLines(const std::string& name, std::size_t count, const std::vector<Known>& known = {}) {
  Lines lines{name};
  for (std::size_t distance = 1; distance <= count; ++distance) {
    lines.push_back("line " + std::to_string(distance));
  }
  for (const Known& line : known) {
    if (line.Distance <= count) lines[line.Distance] = line.Line;
  }
  return lines;
}

struct LockLines {
  std::string Token;
  std::string Owner;
  std::string Comment;
  std::string Date;
};

// A committed file of formats 9 and 10 (33 lines) or of format 8, which has no working size behind the
// lock and so ends early when nothing else is to be said.
inline Lines FileLines(int format, const std::string& name, const std::string& revision,
                       const std::string& author, const LockLines& lock = {}) {
  Lines lines(33);
  lines[0] = name;
  lines[1] = "file";
  lines[6] = "2026-11-20T10:15:02.000000Z";
  lines[7] = "0cc175b9c0f1b6a831c399e269772661";
  lines[8] = "2026-11-19T16:40:11.123456Z";
  lines[9] = revision;
  lines[10] = author;
  lines[26] = lock.Token;
  lines[27] = lock.Owner;
  lines[28] = lock.Comment;
  lines[29] = lock.Date;
  if (format >= 9) lines[32] = "48213";
  return lines;
}

inline std::string File(int format, const std::string& name, const std::string& revision,
                        const std::string& author, const LockLines& lock = {}) {
  return EntryOf(FileLines(format, name, revision, author, lock));
}

// A file held in conflict: its three rejected texts and the rejected properties are named, up to line 18.
inline std::string ConflictedFile(const std::string& name, const std::string& revision) {
  Lines lines = FileLines(8, name, revision, "anna");
  lines[15] = name + ".r1";
  lines[16] = name + ".r2";
  lines[17] = name + ".mine";
  lines[18] = name + ".prej";
  return EntryOf(lines);
}

// A file that was copied and not committed yet: source and its revision, up to line 21.
inline std::string CopiedFile(const std::string& name, const std::string& revision) {
  Lines lines = FileLines(8, name, revision, "anna");
  lines[5] = "add";
  lines[19] = "copied";
  lines[20] = "file:///srv/svn/car/old.CATPart";
  lines[21] = "3";
  return EntryOf(lines);
}

// A file that was added and not committed yet: up to line 5.
inline std::string AddedFile(const std::string& name) {
  return EntryOf({name, "file", "0", "", "", "add"});
}

inline std::string Subfolder(const std::string& name) {
  return EntryOf({name, "dir"});
}

// The folder itself, whose name is empty: the first entry, up to line 25.
inline std::string Folder(const std::string& revision) {
  Lines lines(26);
  lines[1] = "dir";
  lines[2] = revision;
  lines[3] = "file:///srv/svn/car";
  lines[4] = "file:///srv/svn";
  lines[8] = "2026-11-19T16:40:11.123456Z";
  lines[9] = revision;
  lines[10] = "anna";
  lines[14] = "svn:special svn:externals svn:needs-lock";
  lines[25] = "13f79535-47bb-0310-9956-ffa450edef68";
  return EntryOf(lines);
}

inline std::string Format(int format) {
  return std::to_string(format) + "\n";
}

}  // namespace entries
