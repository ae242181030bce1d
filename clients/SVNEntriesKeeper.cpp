#include "SVNEntriesKeeper.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <system_error>

#include "SVNEntriesText.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* kRootFirstLine = "12\n";
constexpr const char* kFirstLine = "text\n";

// Without a closing slash.
fs::path Absolute(const std::string& path) {
  std::error_code none;
  const fs::path absolute = fs::absolute(path, none).lexically_normal();
  return absolute.has_filename() ? absolute : absolute.parent_path();
}

fs::path EntriesFile(const fs::path& folder) {
  return folder / ".svn" / "entries";
}

// The database of the working copy that the folder lies in; empty when it lies in none.
fs::path DatabaseOf(fs::path folder) {
  for (;; folder = folder.parent_path()) {
    const fs::path database = folder / ".svn" / "wc.db";
    std::error_code none;
    if (fs::exists(database, none)) return database;
    if (folder == folder.parent_path()) return {};
  }
}

bool IsUpToDate(const fs::path& folder, const fs::path& database) {
  std::error_code failed;
  const auto kept = fs::last_write_time(EntriesFile(folder), failed);
  if (failed) return false;
  const auto changed = fs::last_write_time(database, failed);
  return failed || changed < kept;
}

// Whole or not at all: the component may read at any time, and another adapter write.
void Write(const fs::path& folder, const std::string& text) {
  const fs::path file = EntriesFile(folder);
  const fs::path fresh = file.string() + "." + std::to_string(getpid());
  std::error_code failed;
  fs::create_directory(file.parent_path(), failed);
  std::ofstream stream(fresh, std::ios::binary);
  stream << text;
  stream.close();
  if (stream.good()) fs::rename(fresh, file, failed);
  // Only there still when it did not become the text.
  fs::remove(fresh, failed);
}

void Keep(const fs::path& folder, bool below, const SVNCapture& runSVN) {
  const fs::path database = DatabaseOf(folder);
  if (database.empty()) return;
  if (!below && IsUpToDate(folder, database)) return;
  const fs::path root = database.parent_path().parent_path();
  // A closing "@": the client would take what follows another one for a revision.
  const std::string report = runSVN({"--non-interactive", "info", "--xml", "--depth",
                                     below ? "infinity" : "immediates", folder.string() + "@"});
  std::vector<SVNEntry> entries = ParseSVNInfo(report);
  // The client shortens what lies in the folder that it runs in.
  for (SVNEntry& entry : entries) entry.Path = Absolute(entry.Path).string();
  for (const auto& [path, text] : BuildSVNEntriesTexts(entries)) {
    if (below || path == folder) Write(path, (path == root ? kRootFirstLine : kFirstLine) + text);
  }
}

}  // namespace

void KeepSVNEntries(const std::vector<std::string>& paths, const SVNCapture& runSVN) {
  for (const std::string& given : paths) {
    const fs::path path = Absolute(given);
    std::error_code none;
    const bool isFolder = fs::is_directory(path, none);
    if (isFolder || fs::is_directory(path.parent_path(), none)) {
      Keep(isFolder ? path : path.parent_path(), isFolder, runSVN);
    }
  }
}
