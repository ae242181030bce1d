#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstring>

#include "ZRKICVS.h"
#include "ZRKICVSManager.h"
#include "ZRKICVSModifiable.h"

// The order of an interface's slots is a promise to modules that were built against it. Compilers of the
// Itanium ABI keep a virtual operation's place, in bytes and plus one, in the pointer to it.

namespace {

template <class Operation>
std::ptrdiff_t Slot(Operation operation) {
  std::array<std::ptrdiff_t, 2> parts{};
  static_assert(sizeof(parts) == sizeof(operation));
  std::memcpy(parts.data(), &operation, sizeof(operation));
  return (parts[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

std::ptrdiff_t LastBaseSlot() {
  // Its own operations and the two slots of the destructor.
  return Slot(&CATBaseUnknown::GetImpl) + 2;
}

// One interface more, to see where the slots of one that adds nothing end.
struct BehindModifiable : ZRKICVSModifiable {
  virtual void First() = 0;
};

}  // namespace

TEST(InterfaceSlots, TheStorageNameIsTheFirstBehindTheBase) {
  EXPECT_EQ(Slot(&ZRKICVS::GetStorageName), LastBaseSlot() + 1);
}

TEST(InterfaceSlots, TheManagersOperationsStandInTheirOrder) {
  EXPECT_EQ(Slot(&ZRKICVSManager::RefreshStatus), LastBaseSlot() + 1);
  EXPECT_EQ(Slot(&ZRKICVSManager::PrintCommTime), LastBaseSlot() + 2);
  EXPECT_EQ(Slot(&ZRKICVSManager::Edit), LastBaseSlot() + 3);
  EXPECT_EQ(Slot(&ZRKICVSManager::Unedit), LastBaseSlot() + 4);
  EXPECT_EQ(Slot(&ZRKICVSManager::GetFileStatus), LastBaseSlot() + 5);
  EXPECT_EQ(Slot(&ZRKICVSManager::CVSRemove), LastBaseSlot() + 6);
  EXPECT_EQ(Slot(&ZRKICVSManager::SVNDelete), LastBaseSlot() + 7);
}

TEST(InterfaceSlots, TheMarkerInterfaceHasNoOperations) {
  EXPECT_EQ(Slot(&BehindModifiable::First), LastBaseSlot() + 1);
}
