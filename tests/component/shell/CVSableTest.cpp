#include <gtest/gtest.h>

#include "CATILinkableObject.h"
#include "CATIProduct.h"
#include "ZRKCVSStatus.h"
#include "framework/FrameworkControl.h"
#include "support/Assembly.h"
#include "support/TemporaryFolder.h"

namespace {

class CVSable : public testing::Test {
protected:
  int Of(const std::string& product) { return IsCVSable(assembly_.At(product).Get()); }

  TemporaryFolder folder_;
  Assembly assembly_{folder_};
};

}  // namespace

TEST_F(CVSable, NothingIsNot) {
  EXPECT_EQ(IsCVSable(nullptr), 0);
}

TEST_F(CVSable, AReferenceWithADocumentIs) {
  assembly_.Add("car", "car.CATProduct");
  EXPECT_EQ(Of("car"), 1);
}

TEST_F(CVSable, AnInstanceIsWhenItsReferenceHasADocument) {
  assembly_.Add("car", "car.CATProduct").Add("axle", "axle.CATPart").Place("car", "axle.1", "axle");
  EXPECT_EQ(Of("car/axle.1"), 1);
}

TEST_F(CVSable, AnyInterfaceOfTheProductWillDo) {
  assembly_.Add("car", "car.CATProduct");
  EXPECT_EQ(IsCVSable(CATIProduct_var(assembly_.At("car")).Get()), 1);
}

TEST_F(CVSable, AProductWithoutADocumentIsNot) {
  assembly_.AddWithoutDocument("empty");
  EXPECT_EQ(Of("empty"), 0);
}

TEST_F(CVSable, AProductWhoseDocumentWasNeverStoredIs) {
  assembly_.Add({.Name = "new", .Document = ""});
  EXPECT_EQ(Of("new"), 1);
}

TEST_F(CVSable, AnInstanceOfAProductWithoutADocumentIsNot) {
  assembly_.Add("car", "car.CATProduct").AddWithoutDocument("empty").Place("car", "empty.1", "empty");
  EXPECT_EQ(Of("car/empty.1"), 0);
}

TEST_F(CVSable, AProductThatIsNotLinkableIsNot) {
  assembly_.AddNotLinkable("plain");
  EXPECT_EQ(Of("plain"), 0);
}

TEST_F(CVSable, AnInstanceWhoseReferenceIsNotLoadedIsNot) {
  assembly_.Add("car", "car.CATProduct").Place("car", "lost.1", std::nullopt);
  EXPECT_EQ(Of("car/lost.1"), 0);
}

TEST_F(CVSable, AnObjectThatIsNoProductIsNot) {
  assembly_.Add("car", "car.CATProduct");
  const CATDocument_var document = CATILinkableObject_var(assembly_.At("car"))->GetDocument();
  EXPECT_EQ(IsCVSable(document.Get()), 0);
}

TEST_F(CVSable, TheAnswerKeepsNoObjectAlive) {
  assembly_.Add("car", "car.CATProduct").Add("axle", "axle.CATPart").Place("car", "axle.1", "axle");
  ASSERT_EQ(Of("car/axle.1"), 1);
  const long objects = standin::LiveObjectCount();
  for (int i = 0; i < 10; ++i) Of("car/axle.1");
  EXPECT_EQ(standin::LiveObjectCount(), objects);
}
