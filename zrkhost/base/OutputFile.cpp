#include "base/OutputFile.h"

#include "base/CallError.h"
#include "base/Encoding.h"

namespace zrkhost {

OutputFile::OutputFile(const std::filesystem::path& file, const std::string& what)
    : stream_(file, std::ios::binary) {
  if (!stream_) throw CallError(Utf8FromPath(file) + ": the " + what + " cannot be written");
}

bool OutputFile::Write(std::string_view text) {
  stream_ << text;
  stream_.close();
  return stream_.good();
}

}  // namespace zrkhost
