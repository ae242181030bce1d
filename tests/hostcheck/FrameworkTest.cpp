#include "CATIDOM.h"
#include "CATIProduct.h"
#include "CATISpecObject.h"
#include "CheckedHost.h"
#include "OtherProduct.h"

namespace {

using FrameworkCheck = CheckedHost;

TEST_F(FrameworkCheck, FindsAProductThatIsNoNode) {
  OtherProduct product(Car());
  product.Give(CATISpecObject::ClassId(), nullptr);
  Check(product.Object()).ExpectFails("CATHandle: a cast asks the object", "it is no CATISpecObject");
}

TEST_F(FrameworkCheck, FindsAnObjectThatIsNoProductAndAsksNothingOfIt) {
  struct Bare final : CATBaseUnknown {};
  Bare object;
  const CheckRows rows = Check(CATBaseUnknown_var(&object));
  rows.ExpectFails("CATHandle: a cast asks the object", "the object is no CATIProduct");
  rows.ExpectFails("CATPrsWorkModeServices: what is below in work mode 1", "the object is no CATIProduct");
  rows.ExpectFails("ZRKIAttStatus: IsModifiable", "the product is no CATISpecObject");
}

TEST_F(FrameworkCheck, FindsAProductWithInterfacesThatItCannotHave) {
  class Nodes final : public OtherPart<CATIDOMNodeList> {
  public:
    using OtherPart::OtherPart;
    int GetLength() override { return 0; }
    CATIDOMNode_var Item(int) override { return nullptr; }
  };
  OtherProduct product(Car());
  const Nodes nodes(product);
  Check(product.Object()).ExpectFails("CATHandle: a cast asks the object", "an XML document's nodes");
}

TEST_F(FrameworkCheck, FindsAnInterfaceOfAnotherObject) {
  // Its interfaces lead to the product behind it.
  OtherProduct product(Car());
  Check(product.Object()).ExpectFails("CATBaseUnknown: GetImpl", "CATIProduct is of another object");
}

TEST_F(FrameworkCheck, FindsACastThatKeepsAReference) {
  class Keeping final : public OtherProduct {
  public:
    using OtherProduct::OtherProduct;
    CATBaseUnknown* QueryInterface(const CATIID& interfaceId) override {
      AddRef();
      return OtherProduct::QueryInterface(interfaceId);
    }
  };
  Keeping product(Car());
  Check(product.Object()).ExpectFails("CATBaseUnknown: AddRef, Release", "100 rounds of casts turned");
}

TEST_F(FrameworkCheck, FindsAReferenceThatIsNotCounted) {
  class Uncounted final : public OtherProduct {
  public:
    using OtherProduct::OtherProduct;
    unsigned long AddRef() override { return 1; }
    unsigned long Release() override { return 1; }
  };
  Uncounted product(Car());
  const CheckRows rows = Check(product.Object());
  rows.ExpectFails("CATBaseUnknown: AddRef, Release", "AddRef on 1 gives 1, Release then 1");
  rows.ExpectFails("CATBaseUnknown: an extension", "AddRef on 1 gives 1, Release then 1");
}

TEST_F(FrameworkCheck, FindsAnExtensionOfAnotherObject) {
  OtherProduct product(Car());
  Check(product.Object())
      .ExpectFails("CATBaseUnknown: an extension", "a cast to CATIProduct leads elsewhere");
}

TEST_F(FrameworkCheck, FindsMissingAndForeignMetaObjects) {
  Host.RetrieveMetaObject = [](auto...) -> CATMetaClass* { return nullptr; };
  Check().ExpectFails("CATMetaClass: meta-objects", "an extension's is null");
  Host.RetrieveMetaObject = [](auto...) { return CATBaseUnknown::MetaObject(); };
  Check().ExpectFails("CATMetaClass: meta-objects", "an extension's is CATBaseUnknown");
}

TEST_F(FrameworkCheck, FindsAnEntryThatProductsDoNotHeed) {
  class Closed final : public OtherProduct {
  public:
    using OtherProduct::OtherProduct;
    CATBaseUnknown* QueryInterface(const CATIID& interfaceId) override {
      return interfaceId == CATIProduct::ClassId() ? OtherProduct::QueryInterface(interfaceId) : nullptr;
    }
  };
  Closed product(Car());
  Check(product.Object())
      .ExpectFails("CATFillDictionary, CATTie", "does not have an interface that was entered");
}

TEST_F(FrameworkCheck, FindsAnExtensionThatIsMadeAnewWithEachRequest) {
  // Its interfaces are by turns those of two products.
  class Wavering final : public OtherProduct {
  public:
    Wavering(const CATBaseUnknown_var& first, const CATBaseUnknown_var& second)
        : OtherProduct(first), second_(second) {}
    CATBaseUnknown* QueryInterface(const CATIID& interfaceId) override {
      isSecond_ = !isSecond_;
      return isSecond_ ? second_->QueryInterface(interfaceId) : OtherProduct::QueryInterface(interfaceId);
    }

  private:
    CATBaseUnknown_var second_;
    bool isSecond_ = false;
  };
  Wavering product(Car(), assembly_.At("axle"));
  const CheckRows rows = Check(product.Object());
  rows.ExpectFails("CATFillDictionary, CATTie", "a second request leads to another extension");
  rows.ExpectFails("CATFillDictionary, CATTie", "the tie leads to an extension of another object");
}

}  // namespace
