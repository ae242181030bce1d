#include "support/CVSFolder.h"

#include "support/Files.h"

std::string CVSEntryLine(std::string_view name, std::string_view revision) {
  std::string line = "/";
  return line.append(name).append("/").append(revision).append("/Mon Mar  2 10:00:00 2020/-kb/");
}

void WriteCVSFolder(const std::filesystem::path& folder, std::string_view root, std::string_view repository,
                    const std::vector<std::string>& entryLines) {
  const std::filesystem::path files = folder / "CVS";
  WriteFile(files / "Root", std::string(root) + "\n");
  WriteFile(files / "Repository", std::string(repository) + "\n");
  std::string entries;
  for (const std::string& line : entryLines) entries += line + "\n";
  WriteFile(files / "Entries", entries);
}
