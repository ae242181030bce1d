#include "framework/MetaClasses.h"

#include <gtest/gtest.h>

#include "framework/FrameworkControl.h"
#include "host/framework/TestObjects.h"

namespace {

TEST(CATMetaClass, DescribesTheClassItWasRetrievedFor) {
  const CATMetaClass* const meta =
      fct_RetrieveMetaObject("MetaDescribed", CATMetaClassKind::DataExtension, CATBaseUnknown::MetaObject(),
                             "METATYPE", "External", &MakeTestExtension);
  ASSERT_NE(meta, nullptr);
  EXPECT_STREQ(meta->Name(), "MetaDescribed");
  EXPECT_EQ(meta->Kind(), CATMetaClassKind::DataExtension);
  EXPECT_EQ(meta->Parent(), CATBaseUnknown::MetaObject());
  EXPECT_EQ(meta->LateType(), "METATYPE");
  EXPECT_EQ(meta->Access(), "External");
  EXPECT_EQ(meta->Factory(), &MakeTestExtension);
  EXPECT_EQ(meta->Extension(), nullptr);
}

TEST(CATMetaClass, IsTheSameOnEveryCallWhateverTheOtherArguments) {
  CATMetaClass* const first =
      fct_RetrieveMetaObject("MetaSame", CATMetaClassKind::DataExtension, nullptr, "A", "External", nullptr);
  CATMetaClass* const second =
      fct_RetrieveMetaObject("MetaSame", CATMetaClassKind::Implementation, nullptr, "B", "", nullptr);
  EXPECT_EQ(first, second);
  EXPECT_EQ(second->LateType(), "A");
  EXPECT_EQ(second->Kind(), CATMetaClassKind::DataExtension);
}

TEST(CATMetaClass, IsTriedAgainAfterMemoryWasExhausted) {
  standin::FailMetaClassAllocation(0);
  EXPECT_EQ(fct_RetrieveMetaObject("MetaAgain", CATMetaClassKind::Implementation, nullptr, "", "", nullptr),
            nullptr);
  EXPECT_NE(fct_RetrieveMetaObject("MetaAgain", CATMetaClassKind::Implementation, nullptr, "", "", nullptr),
            nullptr);
}

TEST(CATMetaClass, NeedsANameButNothingElse) {
  EXPECT_EQ(fct_RetrieveMetaObject(nullptr, CATMetaClassKind::Implementation, nullptr, "", "", nullptr),
            nullptr);
  EXPECT_NE(fct_RetrieveMetaObject("MetaBare", CATMetaClassKind::Implementation, nullptr, nullptr, nullptr,
                                   nullptr),
            nullptr);
}

TEST(CATMetaClass, OfATieKnowsItsInterfaceAndItsExtension) {
  const TestExtensions extensions;
  const CATMetaClass tie(ITestFirst::ClassId(), "ITestFirst", ITestFirst::MetaObject(), extensions.Meta());
  EXPECT_EQ(tie.Kind(), CATMetaClassKind::Tie);
  EXPECT_STREQ(tie.Name(), "ITestFirst");
  EXPECT_EQ(tie.InterfaceId(), ITestFirst::ClassId());
  EXPECT_EQ(tie.Parent(), ITestFirst::MetaObject());
  EXPECT_EQ(tie.Extension(), extensions.Meta());
}

TEST(CATMetaClass, OfAnInterfaceIsFoundByItsName) {
  CATMetaClass* const meta = ITestSecond::MetaObject();
  ASSERT_NE(meta, nullptr);
  EXPECT_EQ(meta->Kind(), CATMetaClassKind::Interface);
  EXPECT_EQ(meta->InterfaceId(), ITestSecond::ClassId());
  EXPECT_EQ(standin::FindInterface("ITestSecond"), meta);
  EXPECT_EQ(standin::FindInterface("NoInterface"), nullptr);
}

}  // namespace
