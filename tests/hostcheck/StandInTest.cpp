#include "CATIProduct.h"
#include "CheckedHost.h"

namespace {

class StandIn : public CheckedHost {
protected:
  static int NotHolding(const CATBaseUnknown_var& product) {
    CheckRows rows;
    const int notHolding = ZRKCheckHost(product.Get(), &CheckRows::Report, &rows);
    for (const auto& row : rows.All()) {
      if (row.Result == ZRKHostCheckFails) ADD_FAILURE() << row.Check << ": " << row.Found;
    }
    return notHolding;
  }
};

TEST_F(StandIn, PassesEveryCheck) {
  const CheckRows rows = Check();
  EXPECT_EQ(rows.All().size(), 33u);
  for (const auto& row : rows.All()) {
    EXPECT_EQ(row.Result, ZRKHostCheckHolds) << row.Check << ": " << row.Found;
    EXPECT_EQ(row.Found, "");
  }
  EXPECT_EQ(NotHolding(Car()), 0);
}

TEST_F(StandIn, PassesOnAnInstanceToo) {
  EXPECT_EQ(NotHolding(assembly_.At("car/axle.1")), 0);
}

TEST_F(StandIn, PassesByWhateverInterfaceTheProductIsGiven) {
  EXPECT_EQ(NotHolding(CATBaseUnknown_var(CATIProduct_var(Car()))), 0);
}

TEST_F(StandIn, PassesWithAChildWhoseReferenceIsNotLoaded) {
  assembly_.Place("car", "lost.1", std::nullopt);
  EXPECT_EQ(NotHolding(Car()), 0);
}

TEST_F(StandIn, KeepsTheAttributesOfTheProduct) {
  const StatusAttributes attributes{"1.4", "Locked", "R\n1", "Locked by: \nben"};
  WriteStatusAttributes(Car(), attributes);
  EXPECT_EQ(NotHolding(Car()), 0);
  EXPECT_EQ(ReadStatusAttributes(Car()), attributes);
}

TEST_F(StandIn, KeepsAProductWithoutAttributesWithout) {
  EXPECT_EQ(NotHolding(Car()), 0);
  EXPECT_EQ(ReadStatusAttributes(Car()), std::nullopt);
}

TEST_F(StandIn, IsNotCheckedWithoutAProductOrAReport) {
  CheckRows rows;
  EXPECT_EQ(ZRKCheckHost(nullptr, &CheckRows::Report, &rows), -1);
  EXPECT_EQ(ZRKCheckHost(Car().Get(), nullptr, &rows), -1);
  EXPECT_TRUE(rows.All().empty());
}

TEST_F(StandIn, ShowsOnlyWhatTheAssemblyHolds) {
  assembly_.AddWithoutDocument("empty");
  const CheckRows rows = Check(assembly_.At("empty"));
  rows.ExpectNotSeen("CATIDescendants: GetChildren, the same", "a product with children");
  rows.ExpectNotSeen("CATIProduct: TestReference", "a product with children");
  rows.ExpectNotSeen("CATIProduct: GetReferenceProduct", "a child whose reference is loaded");
  rows.ExpectNotSeen("CATDocument: StorageName", "a reference whose document is stored");
  EXPECT_EQ(NotHolding(assembly_.At("empty")), 4);
}

}  // namespace
