#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "CATTie.h"
#include "component/shell/TieParts.h"
#include "framework/FrameworkControl.h"
#include "shell/Binding.h"

// The meta-classes of the component's own ties are made once in a process, so that a test that runs late
// cannot see how. Ties made here in the same way are.

namespace {

class TestInterface : public CATBaseUnknown {
  CATDeclareInterface
};
CATImplementInterface(TestInterface,
                      {0x7d9e1c40, 0x11aa, 0x4c1b, {0x8e, 0x01, 0x5a, 0x33, 0x70, 0x42, 0x9b, 0x10}})

// Its meta-object is not made before it is asked for.
class RareInterface : public CATBaseUnknown {
  CATDeclareInterface
};
CATImplementInterface(RareInterface,
                      {0x7d9e1c41, 0x11aa, 0x4c1b, {0x8e, 0x01, 0x5a, 0x33, 0x70, 0x42, 0x9b, 0x10}})

class Product : public CATBaseUnknown {};

class TestExtension : public CATBaseUnknown {
public:
  explicit TestExtension(CATBaseUnknown& product) : CATBaseUnknown(product) {}
  ~TestExtension() override = default;

  static CATMetaClass* MetaObject() {
    return zrk::shell::ExtensionMetaObject<TestExtension>("TestExtension");
  }
};

// `Number` tells kinds of tie apart, each with a meta-class of its own.
template <int Number>
struct ExtensionKind {
  static CATMetaClass* MetaObject() { return TestExtension::MetaObject(); }
};

// Of this one there is no meta-object, for lack of memory.
struct ThrowingKind {
  static CATMetaClass* MetaObject() { throw std::bad_alloc(); }
};

template <class Interface>
class TestTie : public CATTie<Interface> {
public:
  using CATTie<Interface>::CATTie;
};

template <class Kind, class Interface>
CATHandle<Interface> MakeTieOfKind(CATBaseUnknown& extension) {
  return CATHandle<Interface>::Adopt(
      static_cast<Interface*>(zrk::shell::CreateTie<TestTie<Interface>, Interface, Kind>(&extension)));
}

template <int Number, class Interface = TestInterface>
CATHandle<Interface> MakeTie(CATBaseUnknown& extension) {
  return MakeTieOfKind<ExtensionKind<Number>, Interface>(extension);
}

class TieMetaClass : public testing::Test {
protected:
  TieMetaClass() {
    TestInterface::MetaObject();
    TestExtension::MetaObject();
  }
  ~TieMetaClass() override {
    standin::FailMetaClassAllocation(-1);
    standin::FailObjectAllocation(-1);
  }

  // With 0 when there is a tie and it has no meta-class. At once, as this copy of the process lacks the
  // threads that memory of theirs could be found by.
  void ExitWithRareTie() {
    standin::FailMetaClassAllocation(0);
    const auto tie = MakeTie<4, RareInterface>(extension_);
    std::_Exit(tie && !MetaClassOf(tie) ? 0 : 1);
  }

  const CATBaseUnknown_var product_ = CATBaseUnknown_var::Adopt(new Product);
  TestExtension extension_{*product_};
};

}  // namespace

TEST_F(TieMetaClass, WithoutMemoryForItTheTieIsMadeWithoutAndTheNextOneTriesAgain) {
  standin::FailMetaClassAllocation(0);
  const auto without = MakeTie<1>(extension_);
  ASSERT_TRUE(without);
  EXPECT_EQ(MetaClassOf(without), nullptr);
  EXPECT_EQ(ExtensionBehind(without), &extension_);

  const auto with = MakeTie<1>(extension_);
  ASSERT_TRUE(with);
  EXPECT_NE(MetaClassOf(with), nullptr);
  EXPECT_EQ(MetaClassOf(without), nullptr);
}

TEST_F(TieMetaClass, WithoutMemoryForTheInterfacesMetaObjectTheTieIsMadeWithoutToo) {
  EXPECT_EXIT(ExitWithRareTie(), testing::ExitedWithCode(0), "");
}

TEST_F(TieMetaClass, ThatThrowsWhileItIsMadeIsDoneWithout) {
  const auto tie = MakeTieOfKind<ThrowingKind, TestInterface>(extension_);
  ASSERT_TRUE(tie);
  EXPECT_EQ(MetaClassOf(tie), nullptr);
}

TEST_F(TieMetaClass, IsMadeWithTheFirstTieAndKept) {
  const auto first = MakeTie<2>(extension_);
  ASSERT_TRUE(first);
  standin::FailMetaClassAllocation(0);
  const auto second = MakeTie<2>(extension_);
  ASSERT_TRUE(second);
  EXPECT_NE(MetaClassOf(second), nullptr);
  EXPECT_EQ(MetaClassOf(second), MetaClassOf(first));
}

TEST_F(TieMetaClass, WithoutMemoryForTheTieThereIsNoneAndTheNextRequestTriesAgain) {
  const long objects = standin::LiveObjectCount();
  standin::FailObjectAllocation(0);
  EXPECT_FALSE(MakeTie<3>(extension_));
  EXPECT_EQ(standin::LiveObjectCount(), objects);
  EXPECT_TRUE(MakeTie<3>(extension_));
}
