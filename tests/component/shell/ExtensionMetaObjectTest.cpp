#include <gtest/gtest.h>

#include "framework/FrameworkControl.h"
#include "shell/Binding.h"

using zrk::shell::ExtensionMetaObject;

namespace {

// `Number` tells extensions apart, each with a meta-object of its own.
template <int Number>
class NumberedExtension : public CATBaseUnknown {
public:
  explicit NumberedExtension(CATBaseUnknown& product) : CATBaseUnknown(product) {}
};

}  // namespace

TEST(ExtensionMetaObject, IsRetrievedOnceAndKept) {
  CATMetaClass* const first = ExtensionMetaObject<NumberedExtension<1>>("KeptExtension");
  ASSERT_NE(first, nullptr);
  // The host has nothing of that name yet, and would make it.
  EXPECT_EQ(ExtensionMetaObject<NumberedExtension<1>>("OtherExtension"), first);
}

TEST(ExtensionMetaObject, ThatCouldNotBeMadeIsTriedAgainWithTheNextCall) {
  CATBaseUnknown::MetaObject();
  standin::FailMetaClassAllocation(0);
  EXPECT_EQ(ExtensionMetaObject<NumberedExtension<2>>("LateExtension"), nullptr);
  standin::FailMetaClassAllocation(-1);
  CATMetaClass* const second = ExtensionMetaObject<NumberedExtension<2>>("LateExtension");
  ASSERT_NE(second, nullptr);
  EXPECT_STREQ(second->Name(), "LateExtension");
}
