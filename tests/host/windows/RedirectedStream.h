#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>
#include <string>

// Sends what is written to descriptor 1 or 2 of this process into memory for as long as it lives.
class RedirectedStream {
public:
  explicit RedirectedStream(int descriptor)
      : descriptor_(descriptor), memory_(memfd_create("stream", MFD_CLOEXEC)) {
    std::fflush(nullptr);
    before_ = dup(descriptor_);
    dup2(memory_, descriptor_);
  }
  RedirectedStream(const RedirectedStream&) = delete;
  RedirectedStream& operator=(const RedirectedStream&) = delete;
  ~RedirectedStream() {
    std::fflush(nullptr);
    dup2(before_, descriptor_);
    close(before_);
    close(memory_);
  }

  std::string Text() const {
    std::fflush(nullptr);
    std::string text(static_cast<std::size_t>(lseek(memory_, 0, SEEK_END)), '\0');
    const ssize_t count = pread(memory_, text.data(), text.size(), 0);
    text.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
    return text;
  }

private:
  int descriptor_;
  int memory_;
  int before_;
};
