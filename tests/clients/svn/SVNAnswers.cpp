#include "SVNAnswers.h"

#include <sstream>

namespace {

// Hands each line "KEY: VALUE" of a report of `svn info` to the reader with the path that it is about.
// The lines behind "Lock Comment" are its text.
template <class Reader>
void ReadInfo(const std::string& report, const Reader& read) {
  std::istringstream stream(report);
  std::string path;
  for (std::string line; std::getline(stream, line);) {
    if (line.starts_with("Lock Comment")) {
      std::string comment;
      for (std::string part; std::getline(stream, part) && !part.empty();) {
        comment += comment.empty() ? part : "\n" + part;
      }
      read(path, "Lock Comment", comment);
      continue;
    }
    const std::size_t colon = line.find(": ");
    if (colon == std::string::npos) continue;
    const std::string key = line.substr(0, colon);
    const std::string value = line.substr(colon + 2);
    if (key == "Path") path = value;
    read(path, key, value);
  }
}

}  // namespace

std::map<std::string, SVNAnswer> AskSVN(const SVNRepository& repository,
                                        const std::filesystem::path& workingCopy) {
  std::map<std::string, SVNAnswer> answers;
  const std::string prefix = workingCopy.string() + "/";
  ReadInfo(repository.Run({"info", "-R", workingCopy.string()}),
           [&](const std::string& path, const std::string& key, const std::string& value) {
             if (!path.starts_with(prefix)) return;
             SVNAnswer& answer = answers[path.substr(prefix.size())];
             if (key == "Last Changed Rev") answer.Revision = value;
             if (key == "Lock Token") answer.LockedHere = true;
           });
  ReadInfo(repository.Run({"info", "-R", repository.URL()}),
           [&](const std::string& path, const std::string& key, const std::string& value) {
             if (key == "Lock Owner") answers[path].LockOwner = value;
             if (key == "Lock Comment") answers[path].LockComment = value;
           });
  return answers;
}
