#include "component/faults/MemoryFaults.h"

#include <cstddef>
#include <cstdlib>
#include <new>
#include <utility>

namespace {

constexpr int kNone = -1;

thread_local int successesLeft = kNone;
thread_local std::size_t awaitedBytes = 0;
thread_local void (*awaitingCall)() = nullptr;

void* Allocate(std::size_t size) noexcept {
  if (awaitingCall && size == awaitedBytes) std::exchange(awaitingCall, nullptr)();
  const bool fails = successesLeft == 0;
  if (successesLeft != kNone) --successesLeft;
  return fails ? nullptr : std::malloc(size > 0 ? size : 1);
}

}  // namespace

void* operator new(std::size_t size) {
  if (void* const memory = Allocate(size)) return memory;
  throw std::bad_alloc();
}
void* operator new[](std::size_t size) {
  return operator new(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return Allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return Allocate(size);
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete[](void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}

namespace faults {

void OnAllocation(std::size_t bytes, void (*call)()) {
  awaitedBytes = bytes;
  awaitingCall = call;
}

void FailMemory(int successes) {
  successesLeft = successes < 0 ? kNone : successes;
}

bool MemoryHasFailed() {
  const bool failed = successesLeft == kNone;
  successesLeft = kNone;
  return failed;
}

}  // namespace faults
