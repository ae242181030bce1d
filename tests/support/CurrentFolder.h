#pragma once

#include <filesystem>

// The process's own folder while it lives.
class CurrentFolder {
public:
  explicit CurrentFolder(const std::filesystem::path& folder) { std::filesystem::current_path(folder); }
  CurrentFolder(const CurrentFolder&) = delete;
  CurrentFolder& operator=(const CurrentFolder&) = delete;
  ~CurrentFolder() { std::filesystem::current_path(before_); }

private:
  std::filesystem::path before_ = std::filesystem::current_path();
};
