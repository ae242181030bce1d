#pragma once

#include <cstddef>
#include <cstdio>
#include <memory>
#include <new>
#include <optional>

#include "windows/FileDescriptor.h"

namespace standin {

// Reads a file as the Windows C runtime reads text: CR LF is LF, a CR elsewhere stays, Ctrl-Z ends the
// text. Every other byte is itself, whatever the locale.
class TextModeFile {
public:
  explicit TextModeFile(FileDescriptor file) : file_(std::move(file)) {}

  // The number of bytes put into the buffer: 0 at the end, negative on an error.
  long Read(char* buffer, std::size_t size);
  // As lseek, in the bytes of the file. Of a text, only its start and its end are places to go to.
  long Seek(long offset, int origin);

  // Room for the buffer of the stream over it. The C library's own is small, and every filling of it costs
  // a call of the system.
  static constexpr std::size_t kBufferSize = std::size_t{96} * 1024;
  // Null when there is no memory: the stream then has the library's own.
  char* Buffer() { return buffer_.get(); }

private:
  long ReadRaw(char* buffer, std::size_t size);

  FileDescriptor file_;
  std::unique_ptr<char[]> buffer_{new (std::nothrow) char[kBufferSize]};
  std::optional<char> ahead_;  // was read to see whether a CR has its LF
  bool ended_ = false;
};

// A stream of the C library over a TextModeFile; null when there is no memory.
std::FILE* OpenTextStream(FileDescriptor file);

}  // namespace standin
