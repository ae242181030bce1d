#include "FolderContents.h"

#include "support/Files.h"

namespace fs = std::filesystem;

std::map<std::string, std::string> ContentsOf(const fs::path& workingCopy) {
  std::map<std::string, std::string> contents;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(workingCopy)) {
    const std::string path = entry.path().lexically_relative(workingCopy).string();
    if (path.find(".svn/wc.db") != std::string::npos) continue;
    const fs::file_status status = entry.symlink_status();
    std::string& content = contents[path];
    content = std::to_string(static_cast<int>(status.type())) + " " +
              std::to_string(static_cast<unsigned>(status.permissions())) + " ";
    if (fs::is_symlink(status)) content += fs::read_symlink(entry.path()).string();
    if (fs::is_regular_file(status)) content += ReadFile(entry.path());
  }
  return contents;
}
