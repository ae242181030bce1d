#include <gtest/gtest.h>

#include "ZRKICVS.h"
#include "support/Assembly.h"
#include "support/TemporaryFolder.h"

namespace {

class StorageName : public testing::Test {
protected:
  // What the argument holds after the call when it was "before".
  std::string Of(const std::string& product) {
    const ZRKICVS_var facts(assembly_.At(product));
    if (!facts) return "no interface";
    CATUnicodeString path = "before";
    facts->GetStorageName(path);
    return path.ConvertToChar();
  }

  TemporaryFolder folder_;
  Assembly assembly_{folder_};
};

}  // namespace

TEST_F(StorageName, IsThePathOfTheDocument) {
  assembly_.Add("car", "proj/car.CATProduct");
  EXPECT_EQ(Of("car"), folder_.Host("proj/car.CATProduct"));
}

TEST_F(StorageName, OfAnInstanceIsThatOfItsReference) {
  assembly_.Add("car", "car.CATProduct").Add("axle", "sub/axle.CATPart").Place("car", "axle.1", "axle");
  EXPECT_EQ(Of("car/axle.1"), folder_.Host("sub/axle.CATPart"));
}

TEST_F(StorageName, WithoutADocumentTheArgumentStaysAsItWas) {
  assembly_.AddWithoutDocument("empty");
  EXPECT_EQ(Of("empty"), "before");
}

TEST_F(StorageName, OfAProductThatIsNotLinkableTheArgumentStaysAsItWas) {
  assembly_.AddNotLinkable("plain");
  EXPECT_EQ(Of("plain"), "before");
}

TEST_F(StorageName, OfAnInstanceWhoseReferenceIsNotLoadedTheArgumentStaysAsItWas) {
  assembly_.Add("car", "car.CATProduct").Place("car", "lost.1", std::nullopt);
  EXPECT_EQ(Of("car/lost.1"), "before");
}

TEST_F(StorageName, OfADocumentThatWasNeverStoredIsEmpty) {
  assembly_.Add({.Name = "new", .Document = ""});
  EXPECT_EQ(Of("new"), "");
}
