#include "framework/ObjectMemory.h"

#include <new>

#include "CATBaseUnknown.h"
#include "CATMetaClass.h"
#include "framework/FrameworkControl.h"

namespace standin {

void* ObjectMemory::Allocate(std::size_t size) noexcept {
  const bool fails = successesLeft_ == 0;
  if (successesLeft_ >= 0) --successesLeft_;
  if (fails) return nullptr;
  void* const memory = ::operator new(size, std::nothrow);
  if (memory) ++liveCount_;
  return memory;
}

void ObjectMemory::Free(void* memory) noexcept {
  if (!memory) return;
  --liveCount_;
  ::operator delete(memory);
}

// Both are trivially destroyed, so objects that live longer than main may still be freed.
ObjectMemory& UnknownMemory() {
  static constinit ObjectMemory memory;
  return memory;
}

ObjectMemory& MetaClassMemory() {
  static constinit ObjectMemory memory;
  return memory;
}

long LiveObjectCount() {
  return UnknownMemory().LiveCount();
}
void FailObjectAllocation(int successes) {
  UnknownMemory().FailAfter(successes);
}
void FailMetaClassAllocation(int successes) {
  MetaClassMemory().FailAfter(successes);
}

}  // namespace standin

void* CATBaseUnknown::operator new(std::size_t size) noexcept {
  return standin::UnknownMemory().Allocate(size);
}
void CATBaseUnknown::operator delete(void* memory) noexcept {
  standin::UnknownMemory().Free(memory);
}

void* CATMetaClass::operator new(std::size_t size) noexcept {
  return standin::MetaClassMemory().Allocate(size);
}
void CATMetaClass::operator delete(void* memory) noexcept {
  standin::MetaClassMemory().Free(memory);
}
