#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// All throw when the file system refuses.

// Makes the folders above the file that are not there yet.
void WriteFile(const std::filesystem::path& path, std::string_view bytes);
std::string ReadFile(const std::filesystem::path& path);

// Whether the file's owner may write it.
void SetReadOnly(const std::filesystem::path& path);
void SetWritable(const std::filesystem::path& path);
bool IsWritable(const std::filesystem::path& path);
