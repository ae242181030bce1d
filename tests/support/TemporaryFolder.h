#pragma once

#include <filesystem>
#include <string>

// A folder of its own below the system's temporary one, removed with all it holds. Its name is "zt-" and
// digits, so that no repository path a test makes up occurs in it by chance.
class TemporaryFolder {
public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  const std::filesystem::path& Path() const { return path_; }
  std::filesystem::path operator/(const std::filesystem::path& name) const { return path_ / name; }

  // The folder, or a file below it, as the host writes its path.
  std::string Host() const;
  std::string Host(const std::filesystem::path& name) const;

private:
  std::filesystem::path path_;
};
