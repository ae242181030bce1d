#include "CATICkeParm.h"
#include "CheckedHost.h"
#include "OtherProduct.h"
#include "attributes/AttributeDictionary.h"
#include "component/product/RecordingCarrier.h"

namespace {

using AttributeCheck = CheckedHost;

TEST_F(AttributeCheck, FindsASessionWithoutDictionary) {
  standin::RemoveAttributeDictionary();
  const CheckRows rows = Check();
  rows.ExpectFails("ZRKAttPackageBaseServices: GetDicoLookUp", "there is no attribute dictionary");
  rows.ExpectNotSeen("ZRKIAttDictionary: LookUpClass", "the attribute dictionary");
}

TEST_F(AttributeCheck, FindsADictionaryWithoutThePackage) {
  standin::InstallAttributeDictionary({{"Other", {"Status"}}});
  const CheckRows rows = Check();
  rows.ExpectFails("ZRKIAttDictionary: LookUpClass", "the package ZRKCVS is not known");
  rows.ExpectNotSeen("ZRKIAttExtendable: an instance", "the package ZRKCVS");
}

TEST_F(AttributeCheck, FindsADictionaryThatKnowsEveryPackage) {
  static ZRKIAttClass_var known;
  known = StatusClass();
  Host.GetDicoLookUp = [] {
    class Dictionary final : public standin::OneInterface<ZRKIAttDictionary> {
      CATBaseUnknown_var LookUpClass(const CATUnicodeString&) override { return known; }
    };
    return ZRKIAttDictionary_var::Adopt(new Dictionary);
  };
  Check().ExpectFails("ZRKIAttDictionary: LookUpClass", "a package that does not exist is known");
  known = nullptr;
}

// Knows the package by a class of the test.
template <class Class>
ZRKIAttDictionary_var DictionaryOf() {
  class Dictionary final : public standin::OneInterface<ZRKIAttDictionary> {
    CATBaseUnknown_var LookUpClass(const CATUnicodeString& package) override {
      return package == "ZRKCVS" ? CATBaseUnknown_var::Adopt(new Class) : CATBaseUnknown_var();
    }
  };
  return ZRKIAttDictionary_var::Adopt(new Dictionary);
}

TEST_F(AttributeCheck, FindsAClassThatHasNoSayInModifying) {
  class Silent final : public standin::OneInterface<ZRKIAttClass> {
    CATUnicodeString GetPackageName() override { return "ZRKCVS"; }
  };
  Host.GetDicoLookUp = &DictionaryOf<Silent>;
  Check().ExpectFails("ZRKIAttStatus: IsModifiable", "the class has none");
}

TEST_F(AttributeCheck, FindsAClassThatChangesItsMindOnModifying) {
  class Wavering final : public CATBaseUnknown {
  public:
    CATBaseUnknown* QueryInterface(const CATIID& interfaceId) override {
      CATBaseUnknown* part = nullptr;
      if (interfaceId == ZRKIAttClass::ClassId()) part = &class_;
      if (interfaceId == ZRKIAttStatus::ClassId()) part = &status_;
      if (part) part->AddRef();
      return part;
    }

  private:
    struct ClassPart final : standin::Facet<ZRKIAttClass> {
      using Facet::Facet;
      CATUnicodeString GetPackageName() override { return "ZRKCVS"; }
    };
    struct StatusPart final : standin::Facet<ZRKIAttStatus> {
      using Facet::Facet;
      unsigned char IsModifiable(const CATISpecObject_var&) override { return ++asked_ % 2; }
      unsigned char asked_ = 0;
    };
    ClassPart class_{*this};
    StatusPart status_{*this};
  };
  Host.GetDicoLookUp = &DictionaryOf<Wavering>;
  Check().ExpectFails("ZRKIAttStatus: IsModifiable", "a second request gives another answer");
}

TEST_F(AttributeCheck, FindsAProductThatTakesNoInstance) {
  standin::RefuseNewInstances(true);
  const CheckRows rows = Check();
  rows.ExpectFails("ZRKIAttExtendable: an instance",
                   "AddInstance gives -2147467259, and the instance is not found");
  rows.ExpectNotSeen("CATICkeParm: values", "an instance that was added");
}

TEST_F(AttributeCheck, NeedsAProductThatCanCarryAttributes) {
  assembly_.Add({.Name = "bare", .Document = {}, .Extendable = false});
  Check(assembly_.At("bare"))
      .ExpectNotSeen("ZRKIAttExtendable: an instance", "a product that is ZRKIAttExtendable");
}

TEST_F(AttributeCheck, FindsAClassWithoutOneOfTheParameters) {
  standin::InstallAttributeDictionary({{"ZRKCVS", {"Revision", "Release", "Comment"}}});
  Check().ExpectFails("ZRKIAttInstance: GetParameter", "Status is missing");
}

TEST_F(AttributeCheck, FindsAParameterThatKeepsNoValue) {
  OtherProduct product(Car());
  RecordingCarrier carrier;
  const CATBaseUnknown_var extendable = carrier.Object();
  product.Give(ZRKIAttExtendable::ClassId(), extendable.Get());
  const CheckRows rows = Check(product.Object());
  rows.ExpectFails("CATICkeParm: values", "\" two  blanks\t\" comes back as \"\"");

  rows.ExpectFails("ZRKIAttInstance: GetParameter", "a parameter that the class does not have");
}

// Takes instances on and off as the product behind it does, as often as the test allows.
class Wearing final : public OtherPart<ZRKIAttExtendable> {
public:
  Wearing(OtherProduct& product, const CATBaseUnknown_var& behind, int additions, int removals)
      : OtherPart(product), behind_(behind), additions_(additions), removals_(removals) {}
  CATBaseUnknown_var FindInstance(const ZRKIAttClass_var& attributeClass) override {
    return behind_->FindInstance(attributeClass);
  }
  HRESULT AddInstance(const ZRKIAttClass_var& attributeClass, const ZRKIAttInstance_var& model) override {
    return additions_-- > 0 ? behind_->AddInstance(attributeClass, model) : E_FAIL;
  }
  void RemoveInstance(const ZRKIAttClass_var& attributeClass) override {
    if (removals_-- > 0) behind_->RemoveInstance(attributeClass);
  }

private:
  ZRKIAttExtendable_var behind_;
  int additions_;
  int removals_;
};

TEST_F(AttributeCheck, FindsAnInstanceThatCannotBeRemoved) {
  WriteStatusAttributes(Car(), {"1.1", "Edit", "", ""});
  OtherProduct product(Car());
  const Wearing wearing(product, Car(), 2, 0);
  Check(product.Object()).ExpectFails("ZRKIAttExtendable: an instance", "still found after its removal");
}

TEST_F(AttributeCheck, FindsAnInstanceThatCannotBePutBack) {
  WriteStatusAttributes(Car(), {"1.1", "Edit", "", ""});
  OtherProduct product(Car());
  const Wearing wearing(product, Car(), 1, 3);
  Check(product.Object()).ExpectFails("the product as it was", "its attributes differ");
}

TEST_F(AttributeCheck, FindsAnInstanceOfItsOwnThatStays) {
  OtherProduct product(Car());
  const Wearing wearing(product, Car(), 1, 2);
  Check(product.Object()).ExpectFails("the product as it was", "its attributes differ");
}

}  // namespace
