#include <gtest/gtest.h>

#include "ZRKICVS.h"
#include "ZRKICVSManager.h"
#include "ZRKICVSModifiable.h"
#include "framework/FrameworkControl.h"
#include "support/Assembly.h"
#include "support/CVSFolder.h"
#include "support/Session.h"
#include "support/TemporaryFolder.h"

namespace {

template <class Interface>
class ExtensionAllocation : public testing::Test {
protected:
  ExtensionAllocation() { WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj"); }
  ~ExtensionAllocation() override { standin::FailObjectAllocation(-1); }

  // A new product's first request for the interface, in which that allocation fails.
  static CATHandle<Interface> FirstRequest(const CATBaseUnknown_var& product, int successes) {
    standin::FailObjectAllocation(successes);
    const CATHandle<Interface> tie(product);
    standin::FailObjectAllocation(-1);
    return tie;
  }

  Session session_;
  TemporaryFolder folder_;
};

using Interfaces = testing::Types<ZRKICVS, ZRKICVSManager, ZRKICVSModifiable>;
TYPED_TEST_SUITE(ExtensionAllocation, Interfaces);

}  // namespace

TYPED_TEST(ExtensionAllocation, WithoutMemoryForItThereIsNoInterfaceAndTheNextRequestTriesAgain) {
  Assembly assembly(this->folder_);
  assembly.Add("car", "proj/car.CATProduct");
  const CATBaseUnknown_var car = assembly.At("car");
  EXPECT_FALSE(this->FirstRequest(car, 0));
  EXPECT_TRUE(CATHandle<TypeParam>(car));
}

TYPED_TEST(ExtensionAllocation, WhicheverAllocationFailsTheProductStaysUsableAndNothingIsLeftOver) {
  // More than any of the extensions needs.
  constexpr int kAllocations = 30;
  const long objects = standin::LiveObjectCount();
  for (int successes = 0; successes < kAllocations; ++successes) {
    {
      Assembly assembly(this->folder_);
      assembly.Add("car", "proj/car.CATProduct").Add("axle", "axle.CATPart").Place("car", "axle.1", "axle");
      const CATBaseUnknown_var car = assembly.At("car");
      this->FirstRequest(car, successes);
      EXPECT_TRUE(CATHandle<TypeParam>(car)) << "after allocation " << successes;
    }
    EXPECT_EQ(standin::LiveObjectCount(), objects) << "after allocation " << successes;
  }
}
