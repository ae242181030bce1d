#include "framework/CATLateTypeObject.h"

#include <gtest/gtest.h>

#include "framework/FrameworkControl.h"
#include "host/framework/TestObjects.h"

namespace {

TEST(CATLateTypeObject, HasTheInterfacesOfItsClass) {
  const TestExtensions extensions;
  const CATBaseUnknown_var object = extensions.NewObject();
  const ITestOwn_var own(object);
  ASSERT_TRUE(own);
  EXPECT_EQ(own->OwnNumber(), 7);
  EXPECT_EQ(own->GetImpl(), object.Get());
}

TEST(CATLateTypeObject, CastsToItsOwnInterfacesWithoutAllocating) {
  const TestExtensions extensions;
  const CATBaseUnknown_var object = extensions.NewObject();
  const long before = standin::LiveObjectCount();
  const ITestOwn_var own(object);
  EXPECT_EQ(standin::LiveObjectCount(), before);
}

TEST(CATLateTypeObject, MakesAnExtensionOnTheFirstRequestAndOnce) {
  const TestExtensions extensions;
  extensions.FillDictionary();
  const CATBaseUnknown_var object = extensions.NewObject();
  EXPECT_EQ(ExtensionLog().Made, 0);
  EXPECT_EQ(ITestFirst_var(object)->Number(), 1);
  EXPECT_EQ(ITestFirst_var(object)->Number(), 1);
  EXPECT_EQ(ExtensionLog().Made, 1);
}

TEST(CATLateTypeObject, SharesAnExtensionBetweenItsInterfaces) {
  const TestExtensions extensions;
  extensions.FillDictionary();
  const CATBaseUnknown_var object = extensions.NewObject();
  EXPECT_EQ(ITestFirst_var(object)->Number(), 1);
  EXPECT_EQ(ITestSecond_var(object)->Number(), 1);
}

TEST(CATLateTypeObject, HasAnExtensionOfItsOwn) {
  const TestExtensions extensions;
  extensions.FillDictionary();
  const CATBaseUnknown_var one = extensions.NewObject();
  const CATBaseUnknown_var other = extensions.NewObject();
  EXPECT_EQ(ITestFirst_var(one)->Number(), 1);
  EXPECT_EQ(ITestFirst_var(other)->Number(), 2);
}

TEST(CATLateTypeObject, HandsOutATieOnEachRequest) {
  const TestExtensions extensions;
  extensions.FillDictionary();
  const CATBaseUnknown_var object = extensions.NewObject();
  const ITestFirst_var one(object);
  const ITestFirst_var other(object);
  EXPECT_NE(one.Get(), other.Get());
  EXPECT_EQ(one->GetImpl(), object.Get());
  EXPECT_EQ(other->GetImpl(), object.Get());
}

TEST(CATLateTypeObject, CastsFromATieToAnyOtherInterface) {
  const TestExtensions extensions;
  extensions.FillDictionary();
  const ITestFirst_var first(extensions.NewObject());
  EXPECT_TRUE(ITestOwn_var(first));
  EXPECT_TRUE(ITestSecond_var(first));
  EXPECT_TRUE(ITestFirst_var(ITestOwn_var(first)));
}

TEST(CATLateTypeObject, LivesAsLongAsATieLeadsToIt) {
  const long before = standin::LiveObjectCount();
  const TestExtensions extensions;
  extensions.FillDictionary();
  ITestFirst_var tie(extensions.NewObject());
  EXPECT_EQ(tie->Number(), 1);
  EXPECT_EQ(ExtensionLog().Ended, 0);
  tie = nullptr;
  EXPECT_EQ(ExtensionLog().Ended, 1);
  EXPECT_EQ(standin::LiveObjectCount(), before);
}

TEST(CATLateTypeObject, KeepsAnExtensionThatNoTieLeadsTo) {
  const TestExtensions extensions;
  extensions.FillDictionary();
  const CATBaseUnknown_var object = extensions.NewObject();
  ITestFirst_var(object)->Number();
  EXPECT_EQ(ExtensionLog().Ended, 0);
}

TEST(CATLateTypeObject, LacksInterfacesOfOtherLateTypes) {
  const TestExtensions bound;
  bound.FillDictionary();
  const TestExtensions unbound;
  EXPECT_FALSE(ITestFirst_var(unbound.NewObject()));
}

TEST(CATLateTypeObject, GainsInterfacesOfLibrariesThatAreLoadedAfterItWasMade) {
  const TestExtensions extensions;
  const CATBaseUnknown_var object = extensions.NewObject();
  EXPECT_FALSE(ITestFirst_var(object));
  extensions.FillDictionary();
  EXPECT_TRUE(ITestFirst_var(object));
}

TEST(CATLateTypeObject, TriesAgainWhenTheExtensionCouldNotBeMade) {
  const TestExtensions extensions;
  extensions.FillDictionary();
  const CATBaseUnknown_var object = extensions.NewObject();
  ExtensionLog().FactoryFailures = 1;
  EXPECT_FALSE(ITestFirst_var(object));
  EXPECT_TRUE(ITestFirst_var(object));
  EXPECT_EQ(ExtensionLog().Made, 1);
}

TEST(CATLateTypeObject, KeepsTheExtensionWhenTheTieCouldNotBeMade) {
  const TestExtensions extensions;
  extensions.FillDictionary();
  const CATBaseUnknown_var object = extensions.NewObject();
  ExtensionLog().TieFailures = 1;
  EXPECT_FALSE(ITestFirst_var(object));
  EXPECT_TRUE(ITestFirst_var(object));
  EXPECT_EQ(ExtensionLog().Made, 1);
}

TEST(CATLateTypeObject, LacksAnInterfaceWithoutTieCreatorOrFactory) {
  const TestExtensions extensions;
  CATFillDictionary(extensions.Meta(), ITestFirst::MetaObject(), nullptr, nullptr, 1);
  EXPECT_FALSE(ITestFirst_var(extensions.NewObject()));
  EXPECT_EQ(ExtensionLog().Made, 0);

  CATMetaClass* const withoutFactory =
      fct_RetrieveMetaObject("TestExtensionWithoutFactory", CATMetaClassKind::DataExtension, nullptr,
                             extensions.LateType().c_str(), "External", nullptr);
  CATFillDictionary(withoutFactory, ITestSecond::MetaObject(), &MakeSecondTie, nullptr, 1);
  EXPECT_FALSE(ITestSecond_var(extensions.NewObject()));
}

TEST(CATLateTypeObject, LetsAnExtensionUseItsObjectWhileItIsMade) {
  const TestExtensions extensions;
  extensions.FillDictionary();
  int seen = 0;
  ExtensionLog().WhileMade = [&](TestExtension& extension) {
    const ITestOwn_var own(&extension);
    if (own) seen = own->OwnNumber();
  };
  EXPECT_TRUE(ITestFirst_var(extensions.NewObject()));
  EXPECT_EQ(seen, 7);
}

TEST(CATLateTypeObject, DoesNotMakeAnExtensionTwiceThoughItAsksForItselfWhileItIsMade) {
  const TestExtensions extensions;
  extensions.FillDictionary();
  bool hadItself = true;
  ExtensionLog().WhileMade = [&](TestExtension& extension) {
    hadItself =
        static_cast<bool>(ITestFirst_var(&extension)) || static_cast<bool>(ITestSecond_var(&extension));
  };
  const CATBaseUnknown_var object = extensions.NewObject();
  EXPECT_TRUE(ITestFirst_var(object));
  EXPECT_FALSE(hadItself);
  EXPECT_EQ(ExtensionLog().Made, 1);
  EXPECT_TRUE(ITestSecond_var(object));
  EXPECT_EQ(ExtensionLog().Made, 1);
}

TEST(CATLateTypeObject, MakesOneExtensionWhileItMakesAnother) {
  const TestExtensions extensions;
  CATFillDictionary(extensions.Meta(), ITestFirst::MetaObject(), &MakeFirstTie, nullptr, 1);
  CATMetaClass* const other = fct_RetrieveMetaObject(
      (extensions.LateType() + "Other").c_str(), CATMetaClassKind::DataExtension,
      CATBaseUnknown::MetaObject(), extensions.LateType().c_str(), "External", &MakeTestExtension);
  CATFillDictionary(other, ITestSecond::MetaObject(), &MakeSecondTie, nullptr, 1);
  ExtensionLog().WhileMade = [](TestExtension& extension) { const ITestSecond_var second(&extension); };
  {
    const CATBaseUnknown_var object = extensions.NewObject();
    EXPECT_EQ(ITestFirst_var(object)->Number(), 1);
    EXPECT_EQ(ITestSecond_var(object)->Number(), 2);
  }
  EXPECT_EQ(ExtensionLog().Made, 2);
  EXPECT_EQ(ExtensionLog().Ended, 2);
}

TEST(CATLateTypeObject, LetsAnExtensionUseItsObjectWhileItEnds) {
  const TestExtensions extensions;
  extensions.FillDictionary();
  int seen = 0;
  bool hadItself = true;
  ExtensionLog().WhileEnding = [&](TestExtension& extension) {
    const ITestOwn_var own(&extension);
    if (own) seen = own->OwnNumber();
    hadItself = static_cast<bool>(ITestFirst_var(&extension));
  };
  ITestFirst_var(extensions.NewObject())->Number();
  EXPECT_EQ(seen, 7);
  EXPECT_FALSE(hadItself);
  EXPECT_EQ(ExtensionLog().Made, 1);
  EXPECT_EQ(ExtensionLog().Ended, 1);
}

TEST(CATLateTypeObject, CountsTheReferencesOnItsExtensions) {
  const TestExtensions extensions;
  extensions.FillDictionary();
  CATBaseUnknown* extension = nullptr;
  ExtensionLog().WhileMade = [&](TestExtension& made) { extension = &made; };
  CATBaseUnknown_var object = extensions.NewObject();
  { const ITestFirst_var first(object); }
  ASSERT_NE(extension, nullptr);
  EXPECT_EQ(extension->GetImpl(), object.Get());
  const CATBaseUnknown_var held(extension);
  object = nullptr;
  EXPECT_EQ(ExtensionLog().Ended, 0);
}

TEST(CATLateTypeObject, GivesNoTieWhenMemoryIsExhausted) {
  const TestExtensions extensions;
  extensions.FillDictionary();
  const CATBaseUnknown_var object = extensions.NewObject();
  standin::FailObjectAllocation(0);
  EXPECT_FALSE(ITestFirst_var(object));
  standin::FailObjectAllocation(1);
  EXPECT_FALSE(ITestFirst_var(object));
  EXPECT_EQ(ExtensionLog().Made, 1);
  EXPECT_EQ(ITestFirst_var(object)->Number(), 1);
}

}  // namespace
