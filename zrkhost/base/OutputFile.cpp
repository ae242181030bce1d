#include "base/OutputFile.h"

#include "base/CallError.h"
#include "base/Encoding.h"

namespace zrkhost {

OutputFile::OutputFile(const std::filesystem::path& file, const std::string& what)
    : file_(file), stream_(file, std::ios::binary | std::ios::app) {
  if (!stream_) throw CallError(Utf8FromPath(file) + ": the " + what + " cannot be written");
}

bool OutputFile::Write(std::string_view text) {
  std::error_code error;
  // A pipe or a device holds nothing that could be in the way.
  if (std::filesystem::is_regular_file(file_, error)) std::filesystem::resize_file(file_, 0, error);
  if (error) return false;
  stream_ << text;
  stream_.close();
  return stream_.good();
}

}  // namespace zrkhost
