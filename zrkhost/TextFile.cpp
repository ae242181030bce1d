#include "TextFile.h"

#include <fstream>
#include <sstream>

#include "CallError.h"
#include "Encoding.h"

namespace zrkhost {

std::string ReadTextFile(const std::filesystem::path& file) {
  std::error_code error;
  const auto status = std::filesystem::status(file, error);
  if (!std::filesystem::exists(status)) throw CallError(Utf8FromPath(file) + ": there is no such file");
  if (std::filesystem::is_directory(status))
    throw CallError(Utf8FromPath(file) + ": is a folder, not a file");
  std::ifstream stream(file, std::ios::binary);
  std::ostringstream text;
  text << stream.rdbuf();
  if (!stream) throw CallError(Utf8FromPath(file) + ": cannot be read");
  return text.str();
}

}  // namespace zrkhost
