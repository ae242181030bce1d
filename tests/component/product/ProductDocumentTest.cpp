#include "product/ProductDocument.h"

#include <gtest/gtest.h>

#include "CATIProduct.h"
#include "CATISpecObject.h"
#include "component/product/NoProduct.h"
#include "support/Assembly.h"

using zrk::product::DocumentState;
using zrk::product::ProductDocument;
using zrk::product::ReachDocument;

namespace {

class ProductDocumentOf : public testing::Test {
protected:
  void ExpectNone(const CATBaseUnknown_var& object, DocumentState state) {
    const ProductDocument document = ReachDocument(object);
    EXPECT_EQ(document.State, state);
    EXPECT_FALSE(document.Exists());
    EXPECT_STREQ(document.Path.ConvertToChar(), "");
  }

  void ExpectDocument(const CATBaseUnknown_var& object, const std::string& path) {
    const ProductDocument document = ReachDocument(object);
    EXPECT_EQ(document.State, DocumentState::HasDocument);
    EXPECT_TRUE(document.Exists());
    EXPECT_EQ(document.Path.ConvertToChar(), path);
  }

  TemporaryFolder folder_;
  Assembly assembly_{folder_};
};

}  // namespace

TEST_F(ProductDocumentOf, OfAReferenceIsItsOwn) {
  assembly_.Add("car", "car.CATProduct");
  ExpectDocument(assembly_.At("car"), folder_.Host("car.CATProduct"));
}

TEST_F(ProductDocumentOf, OfAnInstanceIsThatOfItsReference) {
  assembly_.Add("car", "car.CATProduct").Add("axle", "axle.CATPart").Place("car", "axle.1", "axle");
  ExpectDocument(assembly_.At("car/axle.1"), folder_.Host("axle.CATPart"));
}

TEST_F(ProductDocumentOf, IsReachedFromAnyInterfaceOfTheProduct) {
  assembly_.Add("car", "car.CATProduct");
  ExpectDocument(CATISpecObject_var(assembly_.At("car")), folder_.Host("car.CATProduct"));
}

TEST_F(ProductDocumentOf, ThatWasNeverStoredExistsWithoutAPath) {
  assembly_.Add({.Name = "car", .Document = ""});
  ExpectDocument(assembly_.At("car"), "");
}

TEST_F(ProductDocumentOf, IsMissingWhereTheReferenceIsNotLoaded) {
  assembly_.Add("car", "car.CATProduct").Place("car", "lost.1", std::nullopt);
  ExpectNone(assembly_.At("car/lost.1"), DocumentState::NoReference);
}

TEST_F(ProductDocumentOf, IsMissingOnAProductThatCannotBeLinked) {
  assembly_.AddNotLinkable("car").Add("top", "top.CATProduct").Place("top", "car.1", "car");
  ExpectNone(assembly_.At("car"), DocumentState::NotLinkable);
  ExpectNone(assembly_.At("top/car.1"), DocumentState::NotLinkable);
}

TEST_F(ProductDocumentOf, IsMissingOnAProductWithoutOne) {
  assembly_.AddWithoutDocument("car");
  ExpectNone(assembly_.At("car"), DocumentState::NoDocument);
}

TEST_F(ProductDocumentOf, IsMissingOnWhatIsNoProduct) {
  ExpectNone(nullptr, DocumentState::NotAProduct);
  ExpectNone(CATBaseUnknown_var::Adopt(new NoProduct), DocumentState::NotAProduct);
}
