#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <exception>
#include <iostream>
#include <system_error>

#include "terminal/OutputCapture.h"

namespace zrkhost {

namespace {

struct FileDescriptor {
  FileDescriptor() = default;
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;
  ~FileDescriptor() {
    if (Number >= 0) close(Number);
  }

  int Number = -1;
};

}  // namespace

struct OutputCapture::Descriptors {
  FileDescriptor Real;
  FileDescriptor File;
  // How far the file was read.
  off_t Read = 0;
};

OutputCapture::OutputCapture() : descriptors_(std::make_unique<Descriptors>()) {
  std::cout.flush();
  descriptors_->Real.Number = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3);
  descriptors_->File.Number = memfd_create("zrkhost-output", MFD_CLOEXEC);
  if (descriptors_->File.Number < 0 || dup2(descriptors_->File.Number, STDOUT_FILENO) < 0) {
    throw std::system_error(errno, std::generic_category(), "standard output cannot be captured");
  }
}

OutputCapture::~OutputCapture() {
  try {
    Forward();
  } catch (const std::exception&) {
    // Without memory the rest is lost, but standard output is given back.
  }
  if (descriptors_->Real.Number >= 0) dup2(descriptors_->Real.Number, STDOUT_FILENO);
}

int OutputCapture::RealOutput() const {
  return descriptors_->Real.Number;
}

std::string OutputCapture::ReadNew() {
  std::string text;
  std::array<char, 65536> buffer{};
  // The file's own position is where the component writes next, and stays untouched.
  for (;;) {
    const ssize_t count = pread(descriptors_->File.Number, buffer.data(), buffer.size(), descriptors_->Read);
    if (count <= 0) return text;
    descriptors_->Read += count;
    text.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

void OutputCapture::WriteReal(std::string_view text) {
  while (!text.empty()) {
    const ssize_t count = write(descriptors_->Real.Number, text.data(), text.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) {
      good_ = false;
      return;
    }
    text.remove_prefix(static_cast<std::size_t>(count));
  }
}

}  // namespace zrkhost
