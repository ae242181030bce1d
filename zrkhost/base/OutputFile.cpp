#include "base/OutputFile.h"

#include "base/CallError.h"
#include "base/Encoding.h"

namespace zrkhost {

namespace {

namespace fs = std::filesystem;

bool IsThere(const fs::path& file) {
  std::error_code error;
  return fs::exists(fs::symlink_status(file, error));
}

bool IsRegular(const fs::path& file) {
  std::error_code error;
  return fs::is_regular_file(file, error);
}

}  // namespace

OutputFile::OutputFile(const fs::path& file, const std::string& what)
    : file_(file),
      isNew_(!IsThere(file)),
      stream_(file, std::ios::binary | std::ios::app),
      isRegular_(IsRegular(file)) {
  if (!stream_) throw CallError(Utf8FromPath(file) + ": the " + what + " cannot be written");
}

OutputFile::~OutputFile() {
  if (!isNew_) return;
  stream_.close();
  std::error_code error;
  fs::remove(file_, error);
}

bool OutputFile::Write(std::string_view text) {
  isNew_ = false;
  std::error_code error;
  if (isRegular_) fs::resize_file(file_, 0, error);
  if (error) return false;
  stream_ << text;
  stream_.close();
  return stream_.good();
}

}  // namespace zrkhost
