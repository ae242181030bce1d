#include "CATIDescendants.h"
#include "CATIProduct.h"
#include "CATIRedrawEvent.h"
#include "CATISpecObject.h"
#include "CheckedHost.h"
#include "OtherProduct.h"

namespace {

using ProductCheck = CheckedHost;

// Answers the reference test and the request for the reference as the test wants it.
class Tested final : public OtherPart<CATIProduct> {
public:
  Tested(OtherProduct& product, HRESULT test, CATIProduct_var reference)
      : OtherPart(product), test_(test), reference_(std::move(reference)) {}
  HRESULT TestReference() override { return test_; }
  CATIProduct_var GetReferenceProduct() override { return reference_; }

private:
  HRESULT test_;
  CATIProduct_var reference_;
};

TEST_F(ProductCheck, FindsChildrenThatWorkModeDoesNotMakeReady) {
  OtherProduct product(Car());
  OtherProduct child(assembly_.At("car/axle.1"));
  child.Give(CATINavigateObject::ClassId(), nullptr);
  const OtherChildren children(product, [&] { return ListOf(child.Object()); });
  Check(product.Object())
      .ExpectFails("CATPrsWorkModeServices: what is below in work mode 1",
                   "is no CATIProduct, CATINavigateObject");
}

TEST_F(ProductCheck, SetsWorkModeOneBeforeItLooksBelow) {
  static int mode;
  mode = 0;
  Host.SetWorkMode = [](const CATIProduct_var&, int wanted) { mode = wanted; };
  OtherProduct product(Car());
  const OtherChildren children(product, [] { return mode == 1 ? nullptr : ListOf(CATBaseUnknown_var()); });
  EXPECT_EQ(Check(product.Object())["CATINavigateObject: GetChildren"].Result, ZRKHostCheckHolds);
}

TEST_F(ProductCheck, FindsAnEmptyListOfChildren) {
  OtherProduct product(Car());
  const OtherChildren children(product, [] { return ListOf(); });
  Check(product.Object()).ExpectFails("CATINavigateObject: GetChildren", "there are no children, but a list");
}

TEST_F(ProductCheck, FindsChildrenInAnotherOrder) {
  OtherProduct product(Car());
  bool turned = false;
  const OtherChildren children(product, [&] {
    turned = !turned;
    return turned ? ListOf(assembly_.At("car/axle.1"), assembly_.At("car/axle.2"))
                  : ListOf(assembly_.At("car/axle.2"), assembly_.At("car/axle.1"));
  });
  Check(product.Object()).ExpectFails("CATINavigateObject: GetChildren", "in another order");
}

TEST_F(ProductCheck, FindsAChildThatIsNull) {
  OtherProduct product(Car());
  const OtherChildren children(product, [] { return ListOf(CATBaseUnknown_var()); });
  Check(product.Object()).ExpectFails("CATINavigateObject: GetChildren", "a child is null");
}

TEST_F(ProductCheck, FindsOtherChildrenByTheOtherWay) {
  OtherProduct product(Car());
  const OtherChildren children(product, [&] { return ListOf(assembly_.At("car/axle.2")); });
  Check(product.Object())
      .ExpectFails("CATIDescendants: GetChildren, the same", "others, or in another order");
}

TEST_F(ProductCheck, FindsAListThatIsEmptiedBeforeChildrenAreAppended) {
  class Emptying final : public OtherPart<CATIDescendants> {
  public:
    using OtherPart::OtherPart;
    void GetChildren(const char*, CATListValCATISpecObject_var& children) override { children = {}; }
  };
  OtherProduct product(Car());
  const Emptying emptying(product);
  Check(product.Object()).ExpectFails("CATIDescendants: GetChildren, the same", "what stood in the list");
}

TEST_F(ProductCheck, FindsAnInstanceThatPassesTheReferenceTest) {
  OtherProduct product(Car());
  OtherProduct child(assembly_.At("car/axle.1"));
  const Tested tested(child, S_OK, CATIProduct_var(assembly_.At("axle")));
  const OtherChildren children(product, [&] { return ListOf(child.Object()); });
  Check(product.Object()).ExpectFails("CATIProduct: TestReference", "a child gives 0");
}

TEST_F(ProductCheck, FindsAReferenceThatPassesItWithAnotherCode) {
  OtherProduct product(Car());
  OtherProduct reference(assembly_.At("axle"));
  const Tested positive(reference, 1, nullptr);
  OtherProduct child(assembly_.At("car/axle.1"));
  const Tested tested(child, E_FAIL, CATIProduct_var(reference.Object()));
  const OtherChildren children(product, [&] { return ListOf(child.Object()); });
  const CheckRows rows = Check(product.Object());
  rows.ExpectFails("CATIProduct: TestReference", "a reference gives 1");
  rows.ExpectFails("CATIProduct: GetReferenceProduct", "a reference is not its own reference");
}

TEST_F(ProductCheck, FindsAPathThatIsNoneOfTheHosts) {
  for (const std::string path :
       {"/wc/engine.CATPart", "engine.CATPart", "C:engine.CATPart", "\\wc/engine.CATPart"}) {
    Assembly assembly(folder_);
    assembly.Add({.Name = "engine", .Document = path});
    Check(assembly.At("engine")).ExpectFails("CATDocument: StorageName", path);
  }
}

TEST_F(ProductCheck, FindsAProductThatCannotBeRedrawn) {
  OtherProduct product(Car());
  product.Give(CATIRedrawEvent::ClassId(), nullptr);
  Check(product.Object()).ExpectFails("CATIRedrawEvent: Redraw", "the product has none");
}

}  // namespace
