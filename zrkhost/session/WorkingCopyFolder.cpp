#include "session/WorkingCopyFolder.h"

#include <fstream>
#include <string>

namespace zrkhost {

namespace fs = std::filesystem;

namespace {

bool Exists(const fs::path& file) {
  std::error_code error;
  return fs::exists(file, error);
}

bool IsOfCVS(const fs::path& folder) {
  return Exists(folder / "CVS" / "Repository");
}

// Clients that keep a database leave one line in the file of the entries.
bool ListsEntries(const fs::path& folder) {
  std::ifstream entries(folder / ".svn" / "entries", std::ios::binary);
  std::string line;
  return std::getline(entries, line) && entries.peek() != std::ifstream::traits_type::eof();
}

}  // namespace

WorkingCopyKind WorkingCopyKindOf(const fs::path& folder) {
  if (IsOfCVS(folder)) return WorkingCopyKind::CVS;
  if (Exists(folder / ".svn" / "entries")) return WorkingCopyKind::Subversion;
  for (fs::path current = folder;; current = current.parent_path()) {
    if (current != folder && (IsOfCVS(current) || ListsEntries(current))) return WorkingCopyKind::None;
    if (Exists(current / ".svn" / "wc.db")) return WorkingCopyKind::Subversion;
    if (current == current.parent_path()) return WorkingCopyKind::None;
  }
}

bool IsClientsFolder(const fs::path& folder) {
  return folder.filename() == "CVS" || folder.filename() == ".svn";
}

bool EndsSearch(const fs::path& folder) {
  const auto kind = WorkingCopyKindOf(folder);
  return kind == WorkingCopyKind::CVS || (kind == WorkingCopyKind::Subversion && !ListsEntries(folder));
}

}  // namespace zrkhost
