#include <gtest/gtest.h>

#include "CATILinkableObject.h"
#include "ZRKCVSStatus.h"
#include "ZRKICVSModifiable.h"
#include "attributes/AttributeDictionary.h"
#include "framework/FrameworkControl.h"
#include "support/Assembly.h"
#include "support/Session.h"
#include "support/TemporaryFolder.h"

namespace {

class CVSModifiable : public testing::Test {
protected:
  CVSModifiable() { assembly_.Add("car", "car.CATProduct"); }

  int OfCar() { return IsCVSModifiable(assembly_.At("car").Get()); }

  Session session_;
  TemporaryFolder folder_;
  Assembly assembly_{folder_};
};

}  // namespace

TEST_F(CVSModifiable, ThePackageAllowsIt) {
  standin::InstallAttributeDictionary({{.Package = "ZRKCVS", .Parameters = {"Status"}, .Modifiable = true}});
  EXPECT_EQ(OfCar(), 1);
}

TEST_F(CVSModifiable, IsOneWhateverThePackageAnswersButZero) {
  standin::InstallAttributeDictionary({{.Package = "ZRKCVS", .Parameters = {"Status"}, .Modifiable = 2}});
  EXPECT_EQ(OfCar(), 1);
  standin::InstallAttributeDictionary({{.Package = "ZRKCVS", .Parameters = {"Status"}, .Modifiable = 255}});
  EXPECT_EQ(OfCar(), 1);
}

TEST_F(CVSModifiable, ThePackageForbidsIt) {
  standin::InstallAttributeDictionary({{.Package = "ZRKCVS", .Parameters = {"Status"}, .Modifiable = false}});
  EXPECT_EQ(OfCar(), 0);
}

TEST_F(CVSModifiable, OtherPackagesHaveNoSay) {
  standin::InstallAttributeDictionary({{.Package = "OTHER", .Parameters = {}, .Modifiable = true},
                                       {.Package = "ZRKCVS", .Parameters = {}, .Modifiable = false}});
  EXPECT_EQ(OfCar(), 0);
}

TEST_F(CVSModifiable, NothingIsWithoutThePackage) {
  standin::InstallAttributeDictionary({{.Package = "OTHER", .Parameters = {}, .Modifiable = true}});
  EXPECT_EQ(OfCar(), 0);
}

TEST_F(CVSModifiable, NothingIsWithoutADictionary) {
  standin::RemoveAttributeDictionary();
  EXPECT_EQ(OfCar(), 0);
}

TEST_F(CVSModifiable, NoObjectIsNot) {
  EXPECT_EQ(IsCVSModifiable(nullptr), 0);
}

TEST_F(CVSModifiable, AnObjectOutsideTheFeatureTreeIsNot) {
  const CATDocument_var document = CATILinkableObject_var(assembly_.At("car"))->GetDocument();
  EXPECT_EQ(IsCVSModifiable(document.Get()), 0);
}

TEST_F(CVSModifiable, AProductNeedsNoDocumentForIt) {
  assembly_.AddWithoutDocument("empty");
  EXPECT_EQ(IsCVSModifiable(assembly_.At("empty").Get()), 1);
}

TEST_F(CVSModifiable, TheMarkerInterfaceIsThereWhateverThePackageAnswers) {
  standin::InstallAttributeDictionary({{.Package = "ZRKCVS", .Parameters = {}, .Modifiable = false}});
  EXPECT_TRUE(ZRKICVSModifiable_var(assembly_.At("car")));
}

TEST_F(CVSModifiable, TheAnswerKeepsNoObjectAlive) {
  ASSERT_EQ(OfCar(), 1);
  const long objects = standin::LiveObjectCount();
  for (int i = 0; i < 10; ++i) OfCar();
  EXPECT_EQ(standin::LiveObjectCount(), objects);
}
