#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "core/HostPath.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

inline std::filesystem::path AddFile(const TemporaryFolder& folder, const std::string& name,
                                     std::string_view bytes) {
  WriteFile(folder / name, bytes);
  return folder / name;
}

struct CloseStream {
  void operator()(std::FILE* stream) const { std::fclose(stream); }
};
using Stream = std::unique_ptr<std::FILE, CloseStream>;

// Null when it cannot be opened.
inline Stream Open(const std::string& hostPath, const char* mode) {
  return Stream(std::fopen(hostPath.c_str(), mode));
}
inline Stream Open(const std::filesystem::path& path, const char* mode) {
  return Open(standin::HostPath(path), mode);
}

// All that can still be read, of a short file.
inline std::string ReadRest(std::FILE* stream) {
  std::string text(1 << 20, '\0');
  text.resize(std::fread(text.data(), 1, text.size(), stream));
  return text;
}
