#pragma once

#include <memory>

#include "CATIDescendants.h"
#include "CATILinkableObject.h"
#include "CATINavigateObject.h"
#include "CATIProduct.h"
#include "CATIRedrawEvent.h"
#include "CATISpecObject.h"
#include "attributes/AttributeCarrier.h"
#include "framework/CATLateTypeObject.h"
#include "framework/Facet.h"
#include "product/ProductStructure.h"

namespace standin {

// A node of the product structure, an object of the late type "ASMPRODUCT". Always a product, a node of the
// feature tree, a node to navigate from and one that redraws; linkable when it is a linkable reference
// product; a carrier of attributes when its reference may carry them.
class Product final : public CATLateTypeObject {
public:
  Product(std::shared_ptr<ProductStructure> structure, Place& place);
  ~Product() override;

  const Place& GetPlace() const { return place_; }

protected:
  CATBaseUnknown* OwnInterface(const CATIID& interfaceId) override;

private:
  template <class Interface>
  struct Part : Facet<Interface> {
    explicit Part(Product& product) : Facet<Interface>(product), Self(product) {}
    Product& Self;
  };
  struct ProductPart final : Part<CATIProduct> {
    using Part::Part;
    HRESULT TestReference() override;
    CATIProduct_var GetReferenceProduct() override;
  };
  struct TreeNodePart final : Part<CATISpecObject> {
    using Part::Part;
    CATUnicodeString GetName() override;
  };
  struct NavigatePart final : Part<CATINavigateObject> {
    using Part::Part;
    CATListValCATBaseUnknown_var* GetChildren() override;
  };
  struct DescendantsPart final : Part<CATIDescendants> {
    using Part::Part;
    void GetChildren(const char* interfaceName, CATListValCATISpecObject_var& children) override;
  };
  struct RedrawPart final : Part<CATIRedrawEvent> {
    using Part::Part;
    void Redraw() override;
  };
  struct LinkablePart final : Part<CATILinkableObject> {
    using Part::Part;
    CATDocument_var GetDocument() override;
  };

  bool IsReference() const { return !place_.Instance; }

  const std::shared_ptr<ProductStructure> structure_;
  Place& place_;
  ProductPart product_{*this};
  TreeNodePart treeNode_{*this};
  NavigatePart navigate_{*this};
  DescendantsPart descendants_{*this};
  RedrawPart redraw_{*this};
  LinkablePart linkable_{*this};
  AttributeCarrier carrier_{*this};
};

// The product behind any of its interfaces; null for other objects.
Product* ProductBehind(const CATBaseUnknown_var& object);

}  // namespace standin
