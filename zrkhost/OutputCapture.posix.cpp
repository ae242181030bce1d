#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <iostream>
#include <system_error>

#include "OutputCapture.h"

namespace zrkhost {

struct OutputCapture::Descriptors {
  int Real = -1;
  int File = -1;
  // How far the file was read.
  off_t Read = 0;
};

OutputCapture::OutputCapture() : descriptors_(std::make_unique<Descriptors>()) {
  std::cout.flush();
  descriptors_->Real = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3);
  descriptors_->File = memfd_create("zrkhost-output", MFD_CLOEXEC);
  if (descriptors_->File < 0 || dup2(descriptors_->File, STDOUT_FILENO) < 0) {
    throw std::system_error(errno, std::generic_category(), "standard output cannot be captured");
  }
}

OutputCapture::~OutputCapture() {
  Forward();
  if (descriptors_->Real >= 0) {
    dup2(descriptors_->Real, STDOUT_FILENO);
    close(descriptors_->Real);
  }
  if (descriptors_->File != STDOUT_FILENO) close(descriptors_->File);
}

int OutputCapture::RealOutput() const {
  return descriptors_->Real;
}

std::string OutputCapture::ReadNew() {
  std::string text;
  std::array<char, 65536> buffer;
  // The file's own position is where the component writes next, and stays untouched.
  for (;;) {
    const ssize_t count = pread(descriptors_->File, buffer.data(), buffer.size(), descriptors_->Read);
    if (count <= 0) return text;
    descriptors_->Read += count;
    text.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

void OutputCapture::WriteReal(std::string_view text) {
  while (!text.empty()) {
    const ssize_t count = write(descriptors_->Real, text.data(), text.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) {
      good_ = false;
      return;
    }
    text.remove_prefix(static_cast<std::size_t>(count));
  }
}

}  // namespace zrkhost
