#pragma once

#include <functional>
#include <map>
#include <memory>
#include <utility>

#include "CATINavigateObject.h"
#include "framework/Facet.h"

// A product that behaves as the one behind it but where a test says otherwise. It lives in the test, and so
// do the parts that it is given.
class OtherProduct : public CATBaseUnknown {
public:
  explicit OtherProduct(CATBaseUnknown_var product) : product_(std::move(product)) {}

  CATBaseUnknown_var Object() { return CATBaseUnknown_var(this); }

  // Makes it have an interface through this part; with null it does not have it.
  void Give(const CATIID& interfaceId, CATBaseUnknown* part) { parts_[interfaceId] = part; }

  CATBaseUnknown* QueryInterface(const CATIID& interfaceId) override {
    const auto part = parts_.find(interfaceId);
    if (part == parts_.end()) return product_->QueryInterface(interfaceId);
    if (part->second) part->second->AddRef();
    return part->second;
  }

private:
  CATBaseUnknown_var product_;
  std::map<CATIID, CATBaseUnknown*> parts_;
};

// One interface of it.
template <class Interface>
class OtherPart : public standin::Facet<Interface> {
public:
  explicit OtherPart(OtherProduct& product) : standin::Facet<Interface>(product) {
    product.Give(Interface::ClassId(), this);
  }
};

class OtherChildren final : public OtherPart<CATINavigateObject> {
public:
  using Children = std::function<CATListValCATBaseUnknown_var*()>;
  OtherChildren(OtherProduct& product, Children children)
      : OtherPart(product), children_(std::move(children)) {}
  CATListValCATBaseUnknown_var* GetChildren() override { return children_(); }

private:
  Children children_;
};

// A list of these children, which is the caller's.
template <class... Child>
CATListValCATBaseUnknown_var* ListOf(const Child&... children) {
  auto list = std::make_unique<CATListValCATBaseUnknown_var>();
  (list->Append(children), ...);
  return list.release();
}
