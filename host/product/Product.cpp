#include "product/Product.h"

#include <utility>

#include "framework/MetaClasses.h"
#include "product/ProductListeners.h"

namespace standin {
namespace {

class StoredDocument final : public CATDocument {
public:
  explicit StoredDocument(const std::string& storageName) : storageName_(storageName.c_str()) {}
  CATUnicodeString StorageName() override { return storageName_; }

private:
  const CATUnicodeString storageName_;
};

// The host knows its own interfaces by name whether or not somebody has used them yet.
CATMetaClass* FindProductInterface(const char* name) {
  [[maybe_unused]] static const bool known =
      CATIProduct::MetaObject() && CATISpecObject::MetaObject() && CATINavigateObject::MetaObject() &&
      CATIDescendants::MetaObject() && CATIRedrawEvent::MetaObject() && CATILinkableObject::MetaObject() &&
      ZRKIAttExtendable::MetaObject();
  return name ? FindInterface(name) : nullptr;
}

}  // namespace

Product::Product(std::shared_ptr<ProductStructure> structure, Place& place)
    : CATLateTypeObject("ASMPRODUCT"), structure_(std::move(structure)), place_(place) {
  place_.Object = this;
}

Product::~Product() {
  EndExtensions();
  place_.Object = nullptr;
}

CATBaseUnknown* Product::OwnInterface(const CATIID& interfaceId) {
  if (interfaceId == CATIProduct::ClassId()) return &product_;
  if (interfaceId == CATISpecObject::ClassId()) return &treeNode_;
  if (interfaceId == CATINavigateObject::ClassId()) return &navigate_;
  if (interfaceId == CATIDescendants::ClassId()) return &descendants_;
  if (interfaceId == CATIRedrawEvent::ClassId()) return &redraw_;
  if (interfaceId == CATILinkableObject::ClassId()) {
    return IsReference() && place_.Reference->Description.Linkable ? &linkable_ : nullptr;
  }
  if (interfaceId == ZRKIAttExtendable::ClassId()) {
    return !place_.Reference || place_.Reference->Description.Extendable ? &carrier_ : nullptr;
  }
  return nullptr;
}

HRESULT Product::ProductPart::TestReference() {
  return Self.IsReference() ? S_OK : E_FAIL;
}

CATIProduct_var Product::ProductPart::GetReferenceProduct() {
  ReferenceProduct* const reference = Self.place_.Reference;
  return reference ? Self.structure_->ObjectOf(Self.structure_->RootOf(*reference)) : nullptr;
}

CATUnicodeString Product::TreeNodePart::GetName() {
  const Place& place = Self.place_;
  return (place.Instance ? place.Instance->Name : place.Reference->Description.Name).c_str();
}

CATListValCATBaseUnknown_var* Product::NavigatePart::GetChildren() {
  const std::vector<Place*>& places = Self.structure_->ChildrenOf(Self.place_);
  if (places.empty()) return nullptr;
  auto children = std::make_unique<CATListValCATBaseUnknown_var>();
  for (Place* const place : places) children->Append(Self.structure_->ObjectOf(*place));
  return children.release();
}

void Product::DescendantsPart::GetChildren(const char* interfaceName,
                                           CATListValCATISpecObject_var& children) {
  const CATMetaClass* const wanted = FindProductInterface(interfaceName);
  if (!wanted) return;
  for (Place* const place : Self.structure_->ChildrenOf(Self.place_)) {
    const CATBaseUnknown_var child = Self.structure_->ObjectOf(*place);
    if (!child) continue;
    const auto asWanted = CATBaseUnknown_var::Adopt(child->QueryInterface(wanted->InterfaceId()));
    if (asWanted) children.Append(child);
  }
}

void Product::RedrawPart::Redraw() {
  TellRedraw(CATBaseUnknown_var(&Self));
}

CATDocument_var Product::LinkablePart::GetDocument() {
  ReferenceProduct& reference = *Self.place_.Reference;
  if (!reference.Document && reference.Description.Document) {
    reference.Document = CATDocument_var::Adopt(new StoredDocument(*reference.Description.Document));
  }
  return reference.Document;
}

Product* ProductBehind(const CATBaseUnknown_var& object) {
  return object ? dynamic_cast<Product*>(object->GetImpl()) : nullptr;
}

}  // namespace standin
