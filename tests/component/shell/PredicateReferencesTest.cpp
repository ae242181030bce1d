// The predicates hold nothing of what they were asked about, whatever they answer.

#include <gtest/gtest.h>

#include "CATILinkableObject.h"
#include "ZRKCVSStatus.h"
#include "attributes/AttributeDictionary.h"
#include "framework/FrameworkControl.h"
#include "support/Assembly.h"
#include "support/Session.h"
#include "support/TemporaryFolder.h"

namespace {

using Description = standin::AttributeClassDescription;

class PredicateReferences : public testing::Test {
protected:
  PredicateReferences() {
    assembly_.Add("car", "car.CATProduct").Add("axle", "axle.CATPart").AddWithoutDocument("empty");
    assembly_.AddNotLinkable("plain").Place("car", "axle.1", "axle").Place("car", "lost.1", std::nullopt);
    assembly_.Place("car", "empty.1", "empty").Place("car", "plain.1", "plain");
    for (const char* const product :
         {"car", "axle", "empty", "plain", "car/axle.1", "car/lost.1", "car/empty.1", "car/plain.1"}) {
      objects_.push_back(assembly_.At(product));
    }
    objects_.emplace_back(CATILinkableObject_var(assembly_.At("axle"))->GetDocument());
  }

  static unsigned long ReferencesOf(const CATBaseUnknown_var& object) {
    object->AddRef();
    return object->Release();
  }
  std::vector<unsigned long> References() const {
    std::vector<unsigned long> references;
    for (const CATBaseUnknown_var& object : objects_) references.push_back(ReferencesOf(object));
    return references;
  }
  void ExpectKept(int (*predicate)(CATBaseUnknown*)) const {
    for (const CATBaseUnknown_var& object : objects_) predicate(object.Get());  // makes what the host keeps
    const auto before = References();
    for (const CATBaseUnknown_var& object : objects_) predicate(object.Get());
    EXPECT_EQ(References(), before);
  }

  Session session_;
  TemporaryFolder folder_;
  Assembly assembly_{folder_};
  std::vector<CATBaseUnknown_var> objects_;
};

}  // namespace

TEST_F(PredicateReferences, OfIsCVSableAreGivenBack) {
  ExpectKept(IsCVSable);
}

TEST_F(PredicateReferences, OfIsCVSModifiableAreGivenBack) {
  ExpectKept(IsCVSModifiable);
  standin::InstallAttributeDictionary({Description{"ZRKCVS", {}, 0}});
  ExpectKept(IsCVSModifiable);
  standin::InstallAttributeDictionary({});
  ExpectKept(IsCVSModifiable);
  standin::RemoveAttributeDictionary();
  ExpectKept(IsCVSModifiable);
}

TEST_F(PredicateReferences, DoNotKeepTheDictionaryOrItsClasses) {
  standin::RemoveAttributeDictionary();
  const long objects = standin::LiveObjectCount();
  for (const auto& known : {Description{"ZRKCVS", {}, 1}, Description{"ZRKCVS", {}, 0}}) {
    standin::InstallAttributeDictionary({known, Description{"OTHER", {}, 1}});
    for (const CATBaseUnknown_var& object : objects_) IsCVSModifiable(object.Get());
    standin::RemoveAttributeDictionary();
    EXPECT_EQ(standin::LiveObjectCount(), objects);
  }
  standin::InstallAttributeDictionary({Description{"OTHER", {}, 1}});
  IsCVSModifiable(objects_[0].Get());
  standin::RemoveAttributeDictionary();
  EXPECT_EQ(standin::LiveObjectCount(), objects);
}
