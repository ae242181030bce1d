#include "windows/PipeReader.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <new>

namespace standin {
namespace {

constexpr std::size_t kCapacity = std::size_t{64} * 1024;  // of a pipe

long ReadRaw(int descriptor, void* buffer, std::size_t size) {
  ssize_t count;
  do {
    count = read(descriptor, buffer, size);
  } while (count < 0 && errno == EINTR);
  return count;
}

}  // namespace

long PipeReader::Read(int descriptor, void* buffer, std::size_t size, bool shared) {
  const std::lock_guard lock(mutex_);
  if (begin_ == end_) {
    if (shared) return ReadRaw(descriptor, buffer, size);
    if (!ahead_) ahead_.reset(new (std::nothrow) char[kCapacity]);
    if (!ahead_) return -1;
    const long count = ReadRaw(descriptor, ahead_.get(), kCapacity);
    if (count <= 0) return count;
    begin_ = 0;
    end_ = static_cast<std::size_t>(count);
  }
  const std::size_t given = std::min(size, end_ - begin_);
  std::memcpy(buffer, ahead_.get() + begin_, given);
  begin_ += given;
  return static_cast<long>(given);
}

}  // namespace standin
