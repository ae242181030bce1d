#include "product/ProductTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CATISpecObject.h"
#include "component/product/AlteredProduct.h"
#include "component/product/DeepAssembly.h"
#include "framework/Facet.h"
#include "support/Assembly.h"

using testing::ElementsAre;
using zrk::product::WalkProductTree;

namespace {

class NoNode final : public CATBaseUnknown {};

// A node to navigate from, with one child. No product, and not in the feature tree.
class ParentOf final : public standin::OneInterface<CATINavigateObject> {
public:
  explicit ParentOf(const CATBaseUnknown_var& child) : child_(child) {}
  CATListValCATBaseUnknown_var* GetChildren() override {
    auto children = std::make_unique<CATListValCATBaseUnknown_var>();
    children->Append(child_);
    return children.release();
  }

private:
  CATBaseUnknown_var child_;
};

class ProductTreeWalk : public testing::Test {
protected:
  // Paths visited, in order; below `stopAt` the walk does not go.
  std::vector<std::string> Visited(const CATBaseUnknown_var& root, const std::string& stopAt = "-") {
    std::vector<std::string> paths;
    WalkProductTree(root, [&](const CATBaseUnknown_var& product) {
      paths.push_back(standin::ProductPath(product));
      return paths.back() != stopAt;
    });
    return paths;
  }

  TemporaryFolder folder_;
  Assembly assembly_{folder_};
};

}  // namespace

TEST_F(ProductTreeWalk, VisitsParentsBeforeChildrenAndChildrenInOrder) {
  assembly_.AddWithoutDocument("car").AddWithoutDocument("axle").AddWithoutDocument("wheel");
  assembly_.Place("axle", "w.2", "wheel").Place("axle", "w.1", "wheel");
  assembly_.Place("car", "b", "axle").Place("car", "a", "wheel").Place("car", "lost", std::nullopt);
  EXPECT_THAT(Visited(assembly_.At("car")),
              ElementsAre("car", "car/b", "car/b/w.2", "car/b/w.1", "car/a", "car/lost"));
}

TEST_F(ProductTreeWalk, StartsAtThePlaceItIsGiven) {
  assembly_.AddWithoutDocument("car").AddWithoutDocument("axle").AddWithoutDocument("wheel");
  assembly_.Place("axle", "w", "wheel").Place("car", "a", "axle").Place("car", "b", "axle");
  EXPECT_THAT(Visited(assembly_.At("car/b")), ElementsAre("car/b", "car/b/w"));
}

TEST_F(ProductTreeWalk, DoesNotGoBelowAProductThatStopsItButOnToTheNext) {
  assembly_.AddWithoutDocument("car").AddWithoutDocument("axle").AddWithoutDocument("wheel");
  assembly_.Place("axle", "w", "wheel").Place("car", "a", "axle").Place("car", "b", "axle");
  EXPECT_THAT(Visited(assembly_.At("car"), "car/a"), ElementsAre("car", "car/a", "car/b", "car/b/w"));
  EXPECT_THAT(Visited(assembly_.At("car"), "car"), ElementsAre("car"));
}

TEST_F(ProductTreeWalk, SeesAChildAsASpecificationObject) {
  assembly_.AddWithoutDocument("car");
  const CATBaseUnknown_var parent = CATBaseUnknown_var::Adopt(new ParentOf(assembly_.At("car")));
  EXPECT_THAT(Visited(parent), ElementsAre("", "car"));
}

TEST_F(ProductTreeWalk, SeesNothingInPlaceOfAChildThatIsNoSpecificationObject) {
  assembly_.AddWithoutDocument("car").AddWithoutDocument("axle").Place("car", "a", "axle");
  const auto hidden =
      CATBaseUnknown_var::Adopt(new AlteredProduct(assembly_.At("car"), CATISpecObject::ClassId()));
  const CATBaseUnknown_var parent = CATBaseUnknown_var::Adopt(new ParentOf(hidden));
  std::vector<bool> seen;
  WalkProductTree(parent, [&](const CATBaseUnknown_var& product) {
    seen.push_back(product != nullptr);
    return true;
  });
  EXPECT_THAT(seen, ElementsAre(true, false));
}

TEST_F(ProductTreeWalk, EndsWhereThereIsNoWayToChildren) {
  EXPECT_THAT(Visited(nullptr), ElementsAre(""));
  EXPECT_THAT(Visited(CATBaseUnknown_var::Adopt(new NoNode)), ElementsAre(""));
}

TEST_F(ProductTreeWalk, OfADeepTreeCostsNoStack) {
  constexpr int kLevels = 5000;
  AddChain(assembly_, folder_.Host(), kLevels);
  int visits = 0;
  WalkProductTree(assembly_.At("p0"), [&](const CATBaseUnknown_var&) { return ++visits > 0; });
  EXPECT_EQ(visits, kLevels);
}
