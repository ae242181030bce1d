#include "windows/HandleTable.h"

#include <algorithm>

namespace standin {
namespace {

// Handles are multiples of four, as on Windows; the standard ones come first.
constexpr std::uintptr_t kStep = 4;
constexpr std::uintptr_t kFirstStandard = 0x10;
constexpr std::uintptr_t kFirst = 0x100;

std::uintptr_t Value(HANDLE handle) {
  return reinterpret_cast<std::uintptr_t>(handle);
}
HANDLE Handle(std::uintptr_t value) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): it never points to anything
  return reinterpret_cast<HANDLE>(value);
}

}  // namespace

HandleTable& HandleTable::Instance() {
  static HandleTable& table = *new HandleTable;
  return table;
}

HandleTable::HandleTable() : next_(kFirst) {
  for (int number = 0; number < 3; ++number) {
    auto object = std::make_shared<KernelObject>();
    object->Descriptor = FileDescriptor(number);
    object->Inheritable = true;
    standard_[number] = std::move(object);
  }
}

HANDLE HandleTable::StandardHandle(std::uintptr_t descriptor) {
  return Handle(kFirstStandard + descriptor * kStep);
}

HANDLE HandleTable::Add(FileDescriptor descriptor, bool inheritable) {
  auto object = std::make_shared<KernelObject>();
  object->Descriptor = std::move(descriptor);
  object->Inheritable = inheritable;

  const std::lock_guard lock(mutex_);
  const std::uintptr_t value = next_;
  objects_.emplace(value, std::move(object));
  next_ += kStep;
  return Handle(value);
}

std::shared_ptr<KernelObject> HandleTable::Find(HANDLE handle) const {
  for (std::uintptr_t number = 0; number < standard_.size(); ++number) {
    if (handle == StandardHandle(number)) return standard_[number];
  }
  const std::lock_guard lock(mutex_);
  const auto found = objects_.find(Value(handle));
  return found == objects_.end() ? nullptr : found->second;
}

bool HandleTable::Remove(HANDLE handle) {
  std::shared_ptr<KernelObject> removed;  // closed after the lock is given back
  const std::lock_guard lock(mutex_);
  const auto found = objects_.find(Value(handle));
  if (found == objects_.end()) return false;
  removed = std::move(found->second);
  objects_.erase(found);
  return true;
}

int HandleTable::Count() const {
  const std::lock_guard lock(mutex_);
  return static_cast<int>(objects_.size());
}

int HandleTable::InheritableCount() const {
  const std::lock_guard lock(mutex_);
  return static_cast<int>(std::count_if(objects_.begin(), objects_.end(),
                                        [](const auto& entry) { return entry.second->Inheritable.load(); }));
}

}  // namespace standin
