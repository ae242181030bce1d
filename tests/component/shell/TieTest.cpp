#include <gtest/gtest.h>

#include <string>

#include "CATIProduct.h"
#include "ZRKICVS.h"
#include "ZRKICVSManager.h"
#include "ZRKICVSModifiable.h"
#include "component/shell/TieParts.h"
#include "framework/FrameworkControl.h"
#include "shell/Ties.h"
#include "support/Assembly.h"
#include "support/Session.h"
#include "support/TemporaryFolder.h"

namespace {

template <class Interface>
void ExpectMetaClass(const CATBaseUnknown_var& product, const std::string& name,
                     const std::string& extension) {
  const CATHandle<Interface> tie(product);
  ASSERT_TRUE(tie);
  CATMetaClass* const meta = MetaClassOf(tie);
  ASSERT_NE(meta, nullptr);
  EXPECT_EQ(meta->Name(), name);
  EXPECT_EQ(meta->Kind(), CATMetaClassKind::Tie);
  EXPECT_EQ(meta->InterfaceId(), Interface::ClassId());
  EXPECT_EQ(meta->Parent(), Interface::MetaObject());
  ASSERT_NE(meta->Extension(), nullptr);
  EXPECT_EQ(meta->Extension()->Name(), extension);
  EXPECT_EQ(MetaClassOf(CATHandle<Interface>(product)), meta) << "made anew for another tie";
}

class Tie : public testing::Test {
protected:
  Tie() { assembly_.Add("car", "car.CATProduct").Add("bus", "bus.CATProduct"); }

  CATBaseUnknown_var Car() const { return assembly_.At("car"); }

  Session session_;
  TemporaryFolder folder_;
  Assembly assembly_{folder_};
};

}  // namespace

TEST_F(Tie, AProductHasTheThreeInterfaces) {
  EXPECT_TRUE(ZRKICVS_var(Car()));
  EXPECT_TRUE(ZRKICVSManager_var(Car()));
  EXPECT_TRUE(ZRKICVSModifiable_var(Car()));
}

TEST_F(Tie, AnInstanceHasTheThreeInterfaces) {
  assembly_.Place("car", "bus.1", "bus");
  const CATBaseUnknown_var instance = assembly_.At("car/bus.1");
  EXPECT_TRUE(ZRKICVS_var(instance));
  EXPECT_TRUE(ZRKICVSManager_var(instance));
  EXPECT_TRUE(ZRKICVSModifiable_var(instance));
}

TEST_F(Tie, LeadsBackToItsProduct) {
  const CATBaseUnknown_var car = Car();
  EXPECT_EQ(ZRKICVS_var(car)->GetImpl(), car->GetImpl());
  EXPECT_EQ(ZRKICVSManager_var(car)->GetImpl(), car->GetImpl());
  EXPECT_EQ(ZRKICVSModifiable_var(car)->GetImpl(), car->GetImpl());
}

TEST_F(Tie, AnswersForTheOtherInterfacesOfItsProduct) {
  const ZRKICVS_var facts(Car());
  EXPECT_TRUE(CATIProduct_var(facts));
  const ZRKICVSManager_var manager(facts);
  ASSERT_TRUE(manager);
  EXPECT_EQ(manager->GetImpl(), Car()->GetImpl());
}

TEST_F(Tie, KeepsItsProductAlive) {
  ZRKICVS_var facts;
  {
    Assembly other(folder_);
    other.Add("van", "van.CATProduct");
    facts = ZRKICVS_var(other.At("van"));
  }
  CATUnicodeString path;
  facts->GetStorageName(path);
  EXPECT_EQ(std::string(path.ConvertToChar()), folder_.Host("van.CATProduct"));
}

TEST_F(Tie, AllTiesOfAProductLeadToItsOneExtension) {
  const ZRKICVSManager_var first(Car());
  const ZRKICVSManager_var second{ZRKICVS_var(Car())};
  EXPECT_NE(first.Get(), second.Get());
  EXPECT_EQ(ExtensionBehind(first), ExtensionBehind(second));
}

TEST_F(Tie, TheExtensionStaysWhenItsTiesHaveGone) {
  CATBaseUnknown* const extension = ExtensionBehind(ZRKICVSManager_var(Car()));
  const long objects = standin::LiveObjectCount();
  EXPECT_EQ(ExtensionBehind(ZRKICVSManager_var(Car())), extension);
  EXPECT_EQ(standin::LiveObjectCount(), objects);
}

TEST_F(Tie, EveryProductHasAnExtensionOfItsOwn) {
  assembly_.Place("car", "bus.1", "bus").Place("car", "bus.2", "bus");
  const ZRKICVSManager_var car(Car());
  const ZRKICVSManager_var bus(assembly_.At("bus"));
  const ZRKICVSManager_var busOne(assembly_.At("car/bus.1"));
  const ZRKICVSManager_var busTwo(assembly_.At("car/bus.2"));
  EXPECT_NE(ExtensionBehind(car), ExtensionBehind(bus));
  EXPECT_NE(ExtensionBehind(bus), ExtensionBehind(busOne));
  EXPECT_NE(ExtensionBehind(busOne), ExtensionBehind(busTwo));
}

TEST_F(Tie, TheExtensionEndsWithItsProduct) {
  const long objects = standin::LiveObjectCount();
  {
    Assembly other(folder_);
    other.Add("van", "van.CATProduct");
    ASSERT_TRUE(ZRKICVS_var(other.At("van")));
    ASSERT_TRUE(ZRKICVSManager_var(other.At("van")));
    ASSERT_TRUE(ZRKICVSModifiable_var(other.At("van")));
    EXPECT_GT(standin::LiveObjectCount(), objects);
  }
  EXPECT_EQ(standin::LiveObjectCount(), objects);
}

TEST_F(Tie, CarriesTheMetaClassOfItsInterfaceAndExtension) {
  ExpectMetaClass<ZRKICVS>(Car(), "ZRKICVS", "ZRKECVS");
  ExpectMetaClass<ZRKICVSManager>(Car(), "ZRKICVSManager", "ZRKECVSManager");
  ExpectMetaClass<ZRKICVSModifiable>(Car(), "ZRKICVSModifiable", "ZRKECVSModifiable");
}

TEST(TieCreation, WithoutAnExtensionThereIsNoTie) {
  EXPECT_EQ(CreateTIEZRKICVSZRKECVS(nullptr), nullptr);
  EXPECT_EQ(CreateTIEZRKICVSManagerZRKECVSManager(nullptr), nullptr);
  EXPECT_EQ(CreateTIEZRKICVSModifiableZRKECVSModifiable(nullptr), nullptr);
}
