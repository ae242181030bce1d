#pragma once

#include <cstddef>

// The framework's allocation of one kind of object: counts what is alive, and can be made to run short
// of memory.
namespace standin {

class ObjectMemory {
public:
  // Null when memory is exhausted.
  void* Allocate(std::size_t size) noexcept;
  void Free(void* memory) noexcept;

  // Lets `successes` further allocations succeed, and the one after them fail, once. Negative: none fails.
  void FailAfter(int successes) { successesLeft_ = successes; }
  long LiveCount() const { return liveCount_; }

private:
  long liveCount_ = 0;
  int successesLeft_ = -1;
};

// Of everything derived from CATBaseUnknown.
ObjectMemory& UnknownMemory();
// Of meta-objects.
ObjectMemory& MetaClassMemory();

}  // namespace standin
