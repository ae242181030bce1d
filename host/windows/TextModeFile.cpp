#include "windows/TextModeFile.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <new>

namespace standin {
namespace {

constexpr char kCtrlZ = 26;
// Read at a time and looked through while it is still in the processor's cache.
constexpr std::size_t kLargestPiece = std::size_t{128} * 1024;

// Turns CR LF into LF in place and gives the new length. A CR at the very end stays.
std::size_t JoinLineEnds(char* text, std::size_t size) {
  const char* const end = text + size;
  const char* source = text;
  char* target = text;
  for (;;) {
    const auto left = static_cast<std::size_t>(end - source);
    const auto* const cr = static_cast<const char*>(std::memchr(source, '\r', left));
    const std::size_t length = cr ? static_cast<std::size_t>(cr - source) : left;
    if (target != source) std::memmove(target, source, length);
    target += length;
    if (cr == nullptr) return static_cast<std::size_t>(target - text);
    source = cr + 1;
    if (source == end || *source != '\n') *target++ = '\r';
  }
}

ssize_t ReadStream(void* file, char* buffer, std::size_t size) {
  return static_cast<TextModeFile*>(file)->Read(buffer, size);
}

int SeekStream(void* file, off64_t* offset, int origin) {
  *offset = static_cast<TextModeFile*>(file)->Seek(*offset, origin);
  return *offset < 0 ? -1 : 0;
}

int CloseStream(void* file) {
  delete static_cast<TextModeFile*>(file);
  return 0;
}

}  // namespace

long TextModeFile::Read(char* buffer, std::size_t size) {
  if (ended_ || size == 0) return 0;
  size = std::min(size, kLargestPiece);
  std::size_t count = 0;
  if (ahead_) {
    buffer[count++] = *ahead_;
    ahead_.reset();
  }
  if (count < size) {
    const long result = ReadRaw(buffer + count, size - count);
    if (result < 0 && count == 0) return result;
    if (result > 0) count += static_cast<std::size_t>(result);
  }
  if (const void* const end = std::memchr(buffer, kCtrlZ, count)) {
    ended_ = true;
    count = static_cast<std::size_t>(static_cast<const char*>(end) - buffer);
  }
  count = JoinLineEnds(buffer, count);

  // What follows a CR at the end decides about it now: there may be no next call.
  if (!ended_ && count > 0 && buffer[count - 1] == '\r') {
    char next = 0;
    if (ReadRaw(&next, 1) == 1) {
      if (next == '\n') {
        buffer[count - 1] = next;
      } else {
        ahead_ = next;
      }
    }
  }
  return static_cast<long>(count);
}

long TextModeFile::Seek(long offset, int origin) {
  if (origin == SEEK_CUR && ahead_) --offset;
  const off_t place = lseek(file_.Get(), offset, origin);
  if (place < 0) return place;
  ahead_.reset();
  ended_ = false;
  return place;
}

long TextModeFile::ReadRaw(char* buffer, std::size_t size) {
  ssize_t result = 0;
  do {
    result = read(file_.Get(), buffer, size);
  } while (result < 0 && errno == EINTR);
  return result;
}

std::FILE* OpenTextStream(FileDescriptor file) {
  std::unique_ptr<TextModeFile> text(new (std::nothrow) TextModeFile(std::move(file)));
  if (!text) return nullptr;
  std::FILE* const stream = fopencookie(text.get(), "r", {ReadStream, nullptr, SeekStream, CloseStream});
  if (!stream) return nullptr;
  setvbuf(stream, text->Buffer(), _IOFBF, TextModeFile::kBufferSize);
  static_cast<void>(text.release());  // closing the stream deletes it
  return stream;
}

}  // namespace standin
