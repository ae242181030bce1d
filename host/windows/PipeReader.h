#pragma once

#include <cstddef>
#include <memory>
#include <mutex>

namespace standin {

// Reads a pipe in large pieces and gives them out in the small ones that are asked for. On Linux every
// read of a full pipe wakes the writer that waits for room: at 4096 bytes each, the two processes would
// spend their time taking turns.
class PipeReader {
public:
  // The number of bytes put into the buffer; 0 at the end of the pipe, negative when it cannot be read.
  // Waits only when there is nothing at all to give. Of a pipe that is `shared` with a child no more is
  // taken than is asked for.
  long Read(int descriptor, void* buffer, std::size_t size, bool shared);

private:
  std::mutex mutex_;
  std::unique_ptr<char[]> ahead_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
};

}  // namespace standin
