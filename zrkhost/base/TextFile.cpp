#include "base/TextFile.h"

#include <fstream>
#include <iterator>

#include "base/CallError.h"
#include "base/Encoding.h"

namespace zrkhost {

std::string ReadTextFile(const std::filesystem::path& file) {
  std::error_code error;
  const auto status = std::filesystem::status(file, error);
  if (!std::filesystem::exists(status)) throw CallError(Utf8FromPath(file) + ": there is no such file");
  if (std::filesystem::is_directory(status))
    throw CallError(Utf8FromPath(file) + ": is a folder, not a file");
  std::ifstream stream;
  // Read past the stream, which would take a failure in the middle for the end.
  stream.exceptions(std::ios::failbit);
  try {
    stream.open(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  } catch (const std::ios::failure&) {
    throw CallError(Utf8FromPath(file) + ": cannot be read");
  }
}

}  // namespace zrkhost
