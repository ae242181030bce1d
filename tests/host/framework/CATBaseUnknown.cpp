#include "CATBaseUnknown.h"

#include <gtest/gtest.h>

#include "framework/FrameworkControl.h"
#include "host/framework/TestObjects.h"

namespace {

class Plain final : public CATBaseUnknown {};

// Hands a reference to itself out and takes it back while it ends.
class Restless final : public CATBaseUnknown {
public:
  explicit Restless(int& ends) : ends_(ends) {}
  ~Restless() override {
    { const CATBaseUnknown_var self(this); }
    ++ends_;
  }

private:
  int& ends_;
};

TEST(CATBaseUnknown, StartsWithOneReference) {
  auto* const object = new Plain;
  EXPECT_EQ(object->AddRef(), 2u);
  EXPECT_EQ(object->Release(), 1u);
  EXPECT_EQ(object->Release(), 0u);
}

TEST(CATBaseUnknown, EndsWithItsLastReference) {
  const long before = standin::LiveObjectCount();
  auto* const object = new Plain;
  EXPECT_EQ(standin::LiveObjectCount(), before + 1);
  object->AddRef();
  object->Release();
  EXPECT_EQ(standin::LiveObjectCount(), before + 1);
  object->Release();
  EXPECT_EQ(standin::LiveObjectCount(), before);
}

TEST(CATBaseUnknown, EndsOnceThoughHandlesAreTakenOnItMeanwhile) {
  int ends = 0;
  (new Restless(ends))->Release();
  EXPECT_EQ(ends, 1);
}

TEST(CATBaseUnknown, IsItsOwnImplementationAndHasNoInterface) {
  const auto object = CATBaseUnknown_var::Adopt(new Plain);
  EXPECT_EQ(object->GetImpl(), object.Get());
  EXPECT_EQ(object->QueryInterface(ITestFirst::ClassId()), nullptr);
}

TEST(CATBaseUnknown, IsNullWhenMemoryIsExhausted) {
  const long before = standin::LiveObjectCount();
  standin::FailObjectAllocation(1);
  const auto first = CATBaseUnknown_var::Adopt(new Plain);
  const auto second = CATBaseUnknown_var::Adopt(new Plain);
  const auto third = CATBaseUnknown_var::Adopt(new Plain);
  EXPECT_TRUE(first);
  EXPECT_FALSE(second);
  EXPECT_TRUE(third);
  EXPECT_EQ(standin::LiveObjectCount(), before + 2);
}

TEST(CATBaseUnknown, AllocatesAgainWhenTheFailureIsCalledOff) {
  standin::FailObjectAllocation(0);
  standin::FailObjectAllocation(-1);
  EXPECT_TRUE(CATBaseUnknown_var::Adopt(new Plain));
}

TEST(CATHandle, HoldsOneReferenceOfItsOwn) {
  auto* const object = new Plain;
  {
    const CATBaseUnknown_var handle(object);
    EXPECT_EQ(object->AddRef(), 3u);
    object->Release();
  }
  EXPECT_EQ(object->Release(), 0u);
}

TEST(CATHandle, TakesOverTheReferenceItAdopts) {
  const long before = standin::LiveObjectCount();
  { const auto handle = CATBaseUnknown_var::Adopt(new Plain); }
  EXPECT_EQ(standin::LiveObjectCount(), before);
}

TEST(CATHandle, SharesWhenCopiedAndHandsOverWhenMoved) {
  auto handle = CATBaseUnknown_var::Adopt(new Plain);
  CATBaseUnknown_var copy(handle);
  EXPECT_EQ(copy.Get(), handle.Get());
  const CATBaseUnknown_var moved(std::move(copy));
  EXPECT_EQ(moved.Get(), handle.Get());
  EXPECT_EQ(handle->AddRef(), 3u);
  handle->Release();
}

TEST(CATHandle, SurvivesAssignmentToItself) {
  auto handle = CATBaseUnknown_var::Adopt(new Plain);
  const auto& same = handle;
  handle = same;
  EXPECT_EQ(handle->AddRef(), 2u);
  handle->Release();
}

TEST(CATHandle, IsNullWhenTheObjectLacksTheInterface) {
  const auto object = CATBaseUnknown_var::Adopt(new Plain);
  EXPECT_FALSE(ITestOwn_var(object));
  EXPECT_TRUE(ITestOwn_var(object) == nullptr);
  EXPECT_FALSE(ITestOwn_var(CATBaseUnknown_var()));
}

}  // namespace
