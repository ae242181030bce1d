#include "terminal/OutputCapture.h"

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <exception>
#include <iostream>
#include <system_error>

namespace zrkhost {

namespace {

constexpr int kStandardOutput = 1;

struct FileDescriptor {
  FileDescriptor() = default;
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;
  ~FileDescriptor() {
    if (Number >= 0) _close(Number);
  }

  int Number = -1;
};

// Gone from the disk when it is closed.
int OpenTemporaryFile() {
  std::array<wchar_t, MAX_PATH + 1> folder{};
  std::array<wchar_t, MAX_PATH + 1> name{};
  if (!GetTempPathW(static_cast<DWORD>(folder.size()), folder.data()) ||
      !GetTempFileNameW(folder.data(), L"zrk", 0, name.data())) {
    return -1;
  }
  return _wopen(name.data(), _O_RDWR | _O_TEMPORARY | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
}

}  // namespace

struct OutputCapture::Descriptors {
  FileDescriptor Real;
  FileDescriptor File;
};

OutputCapture::OutputCapture() : descriptors_(std::make_unique<Descriptors>()) {
  std::cout.flush();
  descriptors_->Real.Number = _dup(kStandardOutput);
  descriptors_->File.Number = OpenTemporaryFile();
  if (descriptors_->File.Number < 0 || _dup2(descriptors_->File.Number, kStandardOutput) < 0) {
    throw std::system_error(errno, std::generic_category(), "standard output cannot be captured");
  }
  // As standard output always is; ReadNew undoes what it does to line ends.
  _setmode(kStandardOutput, _O_TEXT);
}

OutputCapture::~OutputCapture() {
  try {
    Forward();
  } catch (const std::exception&) {
    // Without memory the rest is lost, but standard output is given back.
  }
  if (descriptors_->Real.Number >= 0) _dup2(descriptors_->Real.Number, kStandardOutput);
}

int OutputCapture::RealOutput() const {
  return descriptors_->Real.Number;
}

std::string OutputCapture::ReadNew() {
  // Both descriptors share one position, so nothing is left in the file between two calls.
  std::string text;
  std::array<char, 65536> buffer;
  _lseek(descriptors_->File.Number, 0, SEEK_SET);
  for (;;) {
    const int count =
        _read(descriptors_->File.Number, buffer.data(), static_cast<unsigned int>(buffer.size()));
    if (count <= 0) break;
    text.append(buffer.data(), static_cast<std::size_t>(count));
  }
  _lseek(descriptors_->File.Number, 0, SEEK_SET);
  _chsize(descriptors_->File.Number, 0);
  std::string::size_type at = 0;
  while ((at = text.find("\r\n", at)) != std::string::npos) text.erase(at++, 1);
  return text;
}

void OutputCapture::WriteReal(std::string_view text) {
  while (!text.empty()) {
    // A single write to a console is limited.
    const auto size = static_cast<unsigned int>(std::min<std::size_t>(text.size(), 16384));
    const int count = _write(descriptors_->Real.Number, text.data(), size);
    if (count <= 0) {
      good_ = false;
      return;
    }
    text.remove_prefix(static_cast<std::size_t>(count));
  }
}

}  // namespace zrkhost
