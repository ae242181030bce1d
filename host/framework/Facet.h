#pragma once

#include "CATBaseUnknown.h"

namespace standin {

// One interface of an object that has several: a member of the object, which it counts on and answers
// for, so that a cast costs no allocation.
template <class Interface>
class Facet : public Interface {
public:
  explicit Facet(CATBaseUnknown& object) : object_(object) {}

  unsigned long AddRef() final { return object_.AddRef(); }
  unsigned long Release() final { return object_.Release(); }
  CATBaseUnknown* QueryInterface(const CATIID& interfaceId) final {
    return object_.QueryInterface(interfaceId);
  }
  CATBaseUnknown* GetImpl() final { return object_.GetImpl(); }

private:
  CATBaseUnknown& object_;
};

// An object that has one interface, and is it.
template <class Interface>
class OneInterface : public Interface {
public:
  CATBaseUnknown* QueryInterface(const CATIID& interfaceId) final {
    if (interfaceId != Interface::ClassId()) return nullptr;
    this->AddRef();
    return this;
  }
};

}  // namespace standin
