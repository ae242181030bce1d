#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "CATMetaClass.h"

namespace standin {
class LateType;
}

// Ends extensions, which their users cannot: they count on the object they extend.
struct CATExtensionDeleter {
  void operator()(CATBaseUnknown* extension) const { delete extension; }
};

// An object of a late type: it has the interfaces of its class and, through data extensions, those that
// the dictionary knows for the type.
//
// An extension is made on the first request of one of its interfaces, kept by the object, and ends with
// it. While it is being made, and once the object is ending, the object does not have the extension's
// interfaces. A tie is made for each request; without an extension or a tie the object does not have the
// interface, and the next request tries again.
class CATLateTypeObject : public CATBaseUnknown {
public:
  CATBaseUnknown* QueryInterface(const CATIID& interfaceId) final;

protected:
  explicit CATLateTypeObject(std::string_view lateType);
  ~CATLateTypeObject() override;

  // The class's own implementation of the interface, without a reference added; null when it has none.
  virtual CATBaseUnknown* OwnInterface(const CATIID& interfaceId) = 0;

  // Ends the extensions, the latest first. To be called first in the destructor of the final class: an
  // extension may use the object it extends until it is gone.
  void EndExtensions();

private:
  struct Slot {
    CATMetaClass* Meta;
    // Null while it is being made.
    std::unique_ptr<CATBaseUnknown, CATExtensionDeleter> Extension;
  };

  CATBaseUnknown* ExtensionOf(CATMetaClass& meta);

  const standin::LateType& type_;
  std::vector<Slot> slots_;
  bool ending_ = false;
};
