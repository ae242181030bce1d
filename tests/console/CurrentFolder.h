#pragma once

#include <filesystem>

// Makes a folder the current one, which the programs that are started have too, and goes back at the end.
class CurrentFolder {
public:
  explicit CurrentFolder(const std::filesystem::path& folder) : before_(std::filesystem::current_path()) {
    std::filesystem::current_path(folder);
  }
  ~CurrentFolder() {
    std::error_code error;
    std::filesystem::current_path(before_, error);
  }
  CurrentFolder(const CurrentFolder&) = delete;
  CurrentFolder& operator=(const CurrentFolder&) = delete;

private:
  std::filesystem::path before_;
};
