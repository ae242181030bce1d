#include "product/ProductModel.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "CATIDescendants.h"
#include "CATILinkableObject.h"
#include "CATINavigateObject.h"
#include "CATIProduct.h"
#include "CATIRedrawEvent.h"
#include "CATISpecObject.h"
#include "CATPrsWorkModeServices.h"
#include "ZRKIAttributes.h"
#include "framework/FrameworkControl.h"
#include "host/framework/TestObjects.h"

namespace {

using standin::AddResult;
using standin::ProductModel;
using standin::ProductPath;

// car: axle.1, axle.2 (of axle, which has wheel.1), spare (not loaded)
ProductModel Car() {
  ProductModel model;
  model.AddReference({.Name = "car", .Document = "\\w\\car.CATProduct"});
  model.AddReference({.Name = "axle", .Document = "\\w\\axle.CATProduct"});
  model.AddReference({.Name = "wheel", .Document = std::nullopt});
  model.AddChild("car", "axle.1", "axle");
  model.AddChild("car", "axle.2", "axle");
  model.AddChild("car", "spare", std::nullopt);
  model.AddChild("axle", "wheel.1", "wheel");
  return model;
}

std::vector<CATBaseUnknown_var> Children(const CATBaseUnknown_var& product) {
  std::vector<CATBaseUnknown_var> children;
  const std::unique_ptr<CATListValCATBaseUnknown_var> list(CATINavigateObject_var(product)->GetChildren());
  for (int position = 1; list && position <= list->Size(); ++position) children.push_back((*list)[position]);
  return children;
}

std::string Name(const CATBaseUnknown_var& product) {
  return CATISpecObject_var(product)->GetName().ConvertToChar();
}

std::string Numbered(std::string name, int number) {
  return name += std::to_string(number);
}

TEST(ProductModel, KnowsItsReferencesByName) {
  const ProductModel model = Car();
  EXPECT_EQ(ProductPath(model.Reference("axle")), "axle");
  EXPECT_FALSE(model.Reference("Axle"));
}

TEST(ProductModel, RefusesTakenAndUnknownNames) {
  ProductModel model = Car();
  EXPECT_EQ(model.AddReference({.Name = "car", .Document = std::nullopt}), AddResult::NameTaken);
  EXPECT_EQ(model.AddChild("car", "axle.1", "wheel"), AddResult::NameTaken);
  EXPECT_EQ(model.AddChild("car", "spare", std::nullopt), AddResult::NameTaken);
  EXPECT_EQ(model.AddChild("none", "x", "wheel"), AddResult::UnknownParent);
  EXPECT_EQ(model.AddChild("car", "x", "none"), AddResult::UnknownReference);
  EXPECT_EQ(model.AddChild("car", "x", "wheel"), AddResult::Added);
}

TEST(ProductModel, RefusesProductsThatContainThemselves) {
  ProductModel model = Car();
  EXPECT_EQ(model.AddChild("car", "x", "car"), AddResult::ContainsItself);
  EXPECT_EQ(model.AddChild("axle", "x", "car"), AddResult::ContainsItself);
  EXPECT_EQ(model.AddChild("wheel", "x", "car"), AddResult::ContainsItself);
  EXPECT_EQ(model.AddChild("wheel", "x", "axle"), AddResult::ContainsItself);
  EXPECT_EQ(model.AddChild("car", "x", "wheel"), AddResult::Added);
  EXPECT_EQ(Children(model.Reference("wheel")).size(), 0u);
}

TEST(Product, TellsReferencesFromInstances) {
  const ProductModel model = Car();
  const CATBaseUnknown_var car = model.Reference("car");
  EXPECT_EQ(CATIProduct_var(car)->TestReference(), 0);
  for (const auto& child : Children(car)) EXPECT_LT(CATIProduct_var(child)->TestReference(), 0);
}

TEST(Product, LeadsFromAnInstanceToItsReference) {
  const ProductModel model = Car();
  const CATBaseUnknown_var car = model.Reference("car");
  EXPECT_EQ(CATIProduct_var(car)->GetReferenceProduct()->GetImpl(), car.Get());
  const auto children = Children(car);
  const CATBaseUnknown_var axle = model.Reference("axle");
  EXPECT_EQ(CATIProduct_var(children[0])->GetReferenceProduct()->GetImpl(), axle.Get());
  EXPECT_EQ(CATIProduct_var(children[1])->GetReferenceProduct()->GetImpl(), axle.Get());
  EXPECT_FALSE(CATIProduct_var(children[2])->GetReferenceProduct());
}

TEST(Product, NamesItselfAsTheTreeShowsIt) {
  const ProductModel model = Car();
  EXPECT_EQ(Name(model.Reference("car")), "car");
  EXPECT_EQ(Name(Children(model.Reference("car"))[1]), "axle.2");
  EXPECT_EQ(standin::ReferenceName(Children(model.Reference("car"))[1]), "axle");
  EXPECT_EQ(standin::ReferenceName(Children(model.Reference("car"))[2]), "");
}

TEST(Product, HasOneObjectForEachPlace) {
  const ProductModel model = Car();
  const CATBaseUnknown_var car = model.Reference("car");
  const auto axles = Children(car);
  EXPECT_EQ(Children(car)[0].Get(), axles[0].Get());
  EXPECT_NE(axles[0].Get(), axles[1].Get());
  EXPECT_NE(Children(axles[0])[0].Get(), Children(axles[1])[0].Get());
  EXPECT_NE(Children(axles[0])[0].Get(), Children(model.Reference("axle"))[0].Get());
  EXPECT_EQ(ProductPath(Children(axles[1])[0]), "car/axle.2/wheel.1");
  EXPECT_EQ(ProductPath(Children(model.Reference("axle"))[0]), "axle/wheel.1");
}

TEST(Product, HasNoListOfChildrenWithoutChildren) {
  const ProductModel model = Car();
  EXPECT_EQ(CATINavigateObject_var(model.Reference("wheel"))->GetChildren(), nullptr);
  EXPECT_EQ(CATINavigateObject_var(Children(model.Reference("car"))[2])->GetChildren(), nullptr);
}

TEST(Product, ShowsChildrenThatAreAddedWhileItIsInUse) {
  ProductModel model = Car();
  const CATBaseUnknown_var axle = Children(model.Reference("car"))[0];
  const CATBaseUnknown_var first = Children(axle)[0];
  model.AddChild("axle", "wheel.2", "wheel");
  const auto wheels = Children(axle);
  ASSERT_EQ(wheels.size(), 2u);
  EXPECT_EQ(wheels[0].Get(), first.Get());
  EXPECT_EQ(ProductPath(wheels[1]), "car/axle.1/wheel.2");
}

TEST(Product, AppendsItsChildrenOfATypeInOrder) {
  const ProductModel model = Car();
  const CATIDescendants_var car(model.Reference("car"));
  CATListValCATISpecObject_var children;
  children.Append(CATISpecObject_var(model.Reference("wheel")));
  car->GetChildren("CATIProduct", children);
  ASSERT_EQ(children.Size(), 4);
  EXPECT_EQ(ProductPath(children[1]), "wheel");
  EXPECT_EQ(ProductPath(children[2]), "car/axle.1");
  EXPECT_EQ(ProductPath(children[3]), "car/axle.2");
  EXPECT_EQ(ProductPath(children[4]), "car/spare");
}

TEST(Product, AppendsNoChildrenOfTypesTheyAreNot) {
  const ProductModel model = Car();
  const CATIDescendants_var car(model.Reference("car"));
  CATListValCATISpecObject_var children;
  car->GetChildren("CATILinkableObject", children);
  car->GetChildren("CATIDOMNode", children);
  car->GetChildren("no interface", children);
  car->GetChildren(nullptr, children);
  EXPECT_EQ(children.Size(), 0);
}

TEST(Product, IsLinkableOnlyAsAReference) {
  const ProductModel model = Car();
  EXPECT_TRUE(CATILinkableObject_var(model.Reference("car")));
  EXPECT_TRUE(CATILinkableObject_var(model.Reference("wheel")));
  for (const auto& child : Children(model.Reference("car"))) EXPECT_FALSE(CATILinkableObject_var(child));
}

TEST(Product, IsNotLinkableWhenItsReferenceIsNot) {
  ProductModel model;
  model.AddReference({.Name = "plain", .Document = std::nullopt, .Linkable = false});
  EXPECT_FALSE(CATILinkableObject_var(model.Reference("plain")));
}

TEST(Product, HasTheDocumentItIsStoredIn) {
  const ProductModel model = Car();
  const CATDocument_var document = CATILinkableObject_var(model.Reference("car"))->GetDocument();
  ASSERT_TRUE(document);
  EXPECT_STREQ(document->StorageName().ConvertToChar(), "\\w\\car.CATProduct");
  EXPECT_EQ(CATILinkableObject_var(model.Reference("car"))->GetDocument().Get(), document.Get());
  EXPECT_FALSE(CATILinkableObject_var(model.Reference("wheel"))->GetDocument());
}

TEST(Product, MayHaveADocumentThatWasNeverStored) {
  ProductModel model;
  model.AddReference({.Name = "new", .Document = ""});
  const CATDocument_var document = CATILinkableObject_var(model.Reference("new"))->GetDocument();
  ASSERT_TRUE(document);
  EXPECT_EQ(document->StorageName().GetLengthInByte(), 0);
}

TEST(Product, CarriesAttributesUnlessItsReferenceMayNot) {
  ProductModel model;
  model.AddReference({.Name = "root", .Document = std::nullopt});
  model.AddReference({.Name = "bare", .Document = std::nullopt, .Extendable = false});
  model.AddChild("root", "bare.1", "bare");
  model.AddChild("root", "unloaded", std::nullopt);
  EXPECT_TRUE(ZRKIAttExtendable_var(model.Reference("root")));
  EXPECT_FALSE(ZRKIAttExtendable_var(model.Reference("bare")));
  EXPECT_FALSE(ZRKIAttExtendable_var(Children(model.Reference("root"))[0]));
  EXPECT_TRUE(ZRKIAttExtendable_var(Children(model.Reference("root"))[1]));
}

TEST(Product, CastsBetweenItsInterfacesWithoutAllocating) {
  const ProductModel model = Car();
  const CATBaseUnknown_var car = model.Reference("car");
  const long before = standin::LiveObjectCount();
  const CATIProduct_var product(car);
  const CATISpecObject_var treeNode(product);
  const CATIRedrawEvent_var redraw(treeNode);
  const CATINavigateObject_var navigate(redraw);
  const CATIDescendants_var descendants(navigate);
  const CATILinkableObject_var linkable(descendants);
  const ZRKIAttExtendable_var extendable(linkable);
  const CATIProduct_var again(extendable);
  EXPECT_EQ(again.Get(), product.Get());
  EXPECT_EQ(extendable->GetImpl(), car.Get());
  EXPECT_EQ(standin::LiveObjectCount(), before);
  EXPECT_FALSE(ITestOwn_var(car));
}

TEST(Product, IsOfALateTypeThatLibrariesExtend) {
  const TestExtensions log;
  CATMetaClass* const meta =
      fct_RetrieveMetaObject("ProductTestExtension", CATMetaClassKind::DataExtension,
                             CATBaseUnknown::MetaObject(), "ASMPRODUCT", "External", &MakeTestExtension);
  CATFillDictionary(meta, ITestFirst::MetaObject(), &MakeFirstTie, nullptr, 1);
  {
    const ProductModel model = Car();
    const auto children = Children(model.Reference("car"));
    EXPECT_EQ(ITestFirst_var(children[0])->Number(), 1);
    EXPECT_EQ(ITestFirst_var(children[1])->Number(), 2);
    EXPECT_EQ(ITestFirst_var(CATIProduct_var(children[0]))->Number(), 1);
    EXPECT_EQ(ProductPath(ITestFirst_var(children[0])), "car/axle.1");
    CATListValCATISpecObject_var ofThatType;
    CATIDescendants_var(model.Reference("axle"))->GetChildren("ITestFirst", ofThatType);
    EXPECT_EQ(ofThatType.Size(), 1);
  }
  EXPECT_EQ(ExtensionLog().Ended, ExtensionLog().Made);
}

TEST(Product, TellsWhoListensThatItRedraws) {
  const ProductModel model = Car();
  std::vector<std::string> redrawn;
  standin::SetRedrawListener(
      [&](const CATBaseUnknown_var& product) { redrawn.push_back(ProductPath(product)); });
  CATIRedrawEvent_var(model.Reference("car"))->Redraw();
  CATIRedrawEvent_var(Children(model.Reference("car"))[1])->Redraw();
  standin::SetRedrawListener({});
  CATIRedrawEvent_var(model.Reference("car"))->Redraw();
  EXPECT_EQ(redrawn, (std::vector<std::string>{"car", "car/axle.2"}));
}

TEST(Product, TellsWhoListensItsWorkMode) {
  const ProductModel model = Car();
  std::vector<std::string> heard;
  standin::SetWorkModeListener([&](const CATBaseUnknown_var& product, int mode) {
    heard.push_back(ProductPath(product) + " " + std::to_string(mode));
  });
  CATPrsWorkModeServices::SetWorkMode(CATIProduct_var(model.Reference("axle")), 1);
  standin::SetWorkModeListener({});
  CATPrsWorkModeServices::SetWorkMode(CATIProduct_var(model.Reference("axle")), 1);
  EXPECT_EQ(heard, std::vector<std::string>{"axle 1"});
}

TEST(ProductModelDeathTest, MustNotBeAskedForTheWorkModeOfNoProduct) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(CATPrsWorkModeServices::SetWorkMode(CATIProduct_var(), 1), "no product");
}

TEST(Product, LivesAsLongAsItsModel) {
  const long before = standin::LiveObjectCount();
  {
    const ProductModel model = Car();
    CATBaseUnknown* const axle = Children(model.Reference("car"))[0].Get();
    EXPECT_EQ(Children(model.Reference("car"))[0].Get(), axle);
    EXPECT_GT(standin::LiveObjectCount(), before);
  }
  EXPECT_EQ(standin::LiveObjectCount(), before);
}

TEST(Product, OutlivesItsModelWhileItIsHeld) {
  const long before = standin::LiveObjectCount();
  {
    CATBaseUnknown_var wheel;
    {
      const ProductModel model = Car();
      wheel = Children(Children(model.Reference("car"))[1])[0];
    }
    EXPECT_EQ(standin::LiveObjectCount(), before + 1);
    EXPECT_EQ(ProductPath(wheel), "car/axle.2/wheel.1");
    EXPECT_EQ(Name(wheel), "wheel.1");
    const CATIProduct_var reference = CATIProduct_var(wheel)->GetReferenceProduct();
    EXPECT_EQ(ProductPath(reference), "wheel");
  }
  EXPECT_EQ(standin::LiveObjectCount(), before);
}

TEST(Product, KeepsItsChildrenApartFromThoseOfAModelThatTookThePlaceOfIts) {
  ProductModel model = Car();
  const CATBaseUnknown_var car = model.Reference("car");
  model = ProductModel();
  EXPECT_FALSE(model.Reference("car"));
  EXPECT_EQ(Children(car).size(), 3u);
}

TEST(ProductPath, IsEmptyForOtherObjects) {
  const TestExtensions extensions;
  EXPECT_EQ(ProductPath(CATBaseUnknown_var()), "");
  EXPECT_EQ(ProductPath(extensions.NewObject()), "");
  EXPECT_EQ(standin::ReferenceName(CATBaseUnknown_var()), "");
}

TEST(Product, IsLeftOutWhenMemoryIsExhaustedAndThereTheNextTime) {
  const ProductModel model = Car();
  const CATBaseUnknown_var car = model.Reference("car");
  standin::FailObjectAllocation(0);
  EXPECT_FALSE(model.Reference("axle"));
  EXPECT_TRUE(model.Reference("axle"));
  standin::FailObjectAllocation(0);
  CATListValCATISpecObject_var children;
  CATIDescendants_var(car)->GetChildren("CATIProduct", children);
  EXPECT_EQ(children.Size(), 2);
  EXPECT_EQ(Children(car).size(), 3u);
  standin::FailObjectAllocation(0);
  EXPECT_FALSE(CATILinkableObject_var(car)->GetDocument());
  EXPECT_TRUE(CATILinkableObject_var(car)->GetDocument());
}

// Recursion over the depth would overflow the stack, in the building, the walk or the end.
TEST(ProductModel, HoldsADeepTree) {
  constexpr int kDepth = 100000;
  ProductModel model;
  const auto name = [](int level) { return Numbered("p", level); };
  for (int level = 0; level < kDepth; ++level)
    model.AddReference({.Name = name(level), .Document = std::nullopt});
  for (int level = 0; level + 1 < kDepth; ++level) {
    ASSERT_EQ(model.AddChild(name(level), "c", name(level + 1)), AddResult::Added);
  }
  EXPECT_EQ(model.AddChild(name(kDepth - 1), "c", name(0)), AddResult::ContainsItself);
  CATBaseUnknown_var product = model.Reference(name(0));
  for (int level = 0; level + 1 < kDepth; ++level) product = Children(product)[0];
  EXPECT_EQ(standin::ReferenceName(product), name(kDepth - 1));
  EXPECT_EQ(ProductPath(product).size(), name(0).size() + std::size_t{2} * (kDepth - 1));
  model = ProductModel();
  EXPECT_EQ(standin::ReferenceName(product), name(kDepth - 1));
}

TEST(ProductModel, HoldsAWideTreeOfOneReference) {
  constexpr int kWidth = 100000;
  ProductModel model = Car();
  for (int number = 0; number < kWidth; ++number) {
    ASSERT_EQ(model.AddChild("axle", Numbered("w", number), "wheel"), AddResult::Added);
  }
  const auto axles = Children(model.Reference("car"));
  EXPECT_EQ(Children(axles[0]).size(), kWidth + 1u);
  EXPECT_EQ(ProductPath(Children(axles[1])[kWidth]), Numbered("car/axle.2/w", kWidth - 1));
}

}  // namespace
