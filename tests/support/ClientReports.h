#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Reports of the clients as they write them, one function for each kind.

// The reports of `cvs status -v`.
namespace zrk::sample {

inline constexpr const char* kCVSRoot = ":pserver:anna@host:/cvs/root";

// What `cvs status -v` says about one file, from "File:" to its last line end. `repositoryFile` is the
// path below the repository's root folder, separated by "/"; each tag is a line.
inline std::string StatusBlock(const std::string& repositoryFile, const std::string& revision,
                               const std::string& status = "Up-to-date",
                               const std::vector<std::string>& tags = {
                                   "release-2                \t(revision: 1.4)",
                                   "release-1                \t(revision: 1.2)"}) {
  const std::string name = repositoryFile.substr(repositoryFile.rfind('/') + 1);
  std::string tagLines;
  for (const std::string& tag : tags) tagLines += "\t" + tag + "\r\n";
  if (!tags.empty()) tagLines = "   Existing Tags:\r\n" + tagLines + "\r\n";
  return "File: " + name + " \tStatus: " + status + "\r\n\r\n" +  //
         "   Working revision:\t" + revision + "\r\n" +           //
         "   Repository revision:\t" + revision + "\t/cvs/root/" + repositoryFile + ",v\r\n" +
         "   Commit Identifier:\tkOGeDSplZWuXm2gG\r\n" +  //
         "   Sticky Tag:\t\t(none)\r\n" +                 //
         "   Sticky Date:\t\t(none)\r\n" +                //
         "   Sticky Options:\t-kb\r\n\r\n" +              //
         tagLines;
}

// What `cvs unedit` asks of a file that was changed, without a line end.
inline constexpr const char* kRevertQuestion = "car.CATPart has been modified; revert changes? ";

// What stands before each block.
inline constexpr const char* kSeparatorLine =
    "===================================================================\r\n";

// A block of one tag as it stands in a report.
inline std::string ReportBlock(const std::string& repositoryFile, const std::string& revision) {
  return kSeparatorLine +
         StatusBlock(repositoryFile, revision, "Up-to-date", {"release-2 \t(revision: 1.4)"});
}

}  // namespace zrk::sample

// The reports of `svn status -v -u`, as XML and as text.
namespace reports {

struct Lock {
  std::string Token;
  std::string Owner;
  std::string Comment{};
};

// One entry, by its path below the folder in which the client runs.
struct Entry {
  std::string Path{};
  std::string Item = "normal";
  // The last revision that was committed; without one the file never was.
  std::string Revision = "9";
  // The lock of the working copy and that of the repository.
  std::optional<Lock> Own{};
  std::optional<Lock> InRepository{};
};

inline Entry LockedHere(const std::string& path, const Lock& lock) {
  return {.Path = path, .Own = lock, .InRepository = lock};
}
inline Entry LockedElsewhere(const std::string& path, const Lock& lock) {
  return {.Path = path, .InRepository = lock};
}
// What the working copy does not hold: it has neither a revision nor a lock.
inline Entry NotHeld(const std::string& path, const std::string& item) {
  return {.Path = path, .Item = item, .Revision = ""};
}

inline std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char character : text) {
    if (character == '&') {
      escaped += "&amp;";
    } else if (character == '<') {
      escaped += "&lt;";
    } else if (character == '>') {
      escaped += "&gt;";
    } else if (character == '"') {
      escaped += "&quot;";
    } else {
      escaped += character;
    }
  }
  return escaped;
}

inline std::string Text(const Lock& lock) {
  const std::string comment =
      lock.Comment.empty() ? "" : "<comment>" + Escaped(lock.Comment) + "</comment>\r\n";
  return "<lock>\r\n<token>" + lock.Token + "</token>\r\n<owner>" + Escaped(lock.Owner) + "</owner>\r\n" +
         comment + "<created>2026-11-21T07:40:02.000000Z</created>\r\n</lock>\r\n";
}

inline std::string Text(const Entry& entry) {
  const std::string commit = entry.Revision.empty()
                                 ? ""
                                 : "<commit\r\n   revision=\"" + entry.Revision +
                                       "\">\r\n<author>bert</author>\r\n"
                                       "<date>2026-11-20T10:16:00.000000Z</date>\r\n</commit>\r\n";
  const std::string repository = entry.InRepository
                                     ? "<repos-status\r\n   item=\"none\"\r\n   props=\"none\">\r\n" +
                                           Text(*entry.InRepository) + "</repos-status>\r\n"
                                     : "";
  return "<entry\r\n   path=\"" + Escaped(entry.Path) + "\">\r\n<wc-status\r\n   item=\"" + entry.Item +
         "\"\r\n   revision=\"12\"\r\n   props=\"none\">\r\n" + commit + (entry.Own ? Text(*entry.Own) : "") +
         "</wc-status>\r\n" + repository + "</entry>\r\n";
}

inline std::string Text(const std::vector<Entry>& entries) {
  std::string text;
  for (const Entry& entry : entries) text += Text(entry);
  return text;
}

inline const std::string kHead =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<status>\r\n<target\r\n   path=\".\">\r\n";
inline const std::string kTail = "<against\r\n   revision=\"12\"/>\r\n</target>\r\n</status>\r\n";

// Of entries that stand in no changelist.
inline std::string Report(const std::vector<Entry>& entries) {
  return kHead + Text(entries) + kTail;
}

// What the client leaves when it cannot reach the repository.
inline const std::string kUnreachable =
    kHead + "svn: E170013: Unable to connect to a repository at URL 'svn://host/car'\r\n";

// The line of `svn status -v -u` on one file. " O " stands where the client shows a lock held elsewhere.
inline std::string ForeignLockReport(const std::string& path) {
  return "     O           12        9 anna         " + path + "\r\nStatus against revision:     12\r\n";
}
inline std::string UnlockedReport(const std::string& path) {
  return "                 12        9 anna         " + path + "\r\nStatus against revision:     12\r\n";
}

// The report of `svn status -v -u --xml` on one file that this owner has locked elsewhere.
inline std::string XMLReport(const std::string& owner) {
  return Report({LockedElsewhere("x", {"opaquelocktoken:1", owner})});
}

}  // namespace reports
