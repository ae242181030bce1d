#pragma once

#include <cstddef>

#include "CATHandle.h"
#include "CATIID.h"

class CATMetaClass;

// Base of everything the component framework handles: interfaces, ties, data extensions, objects.
//
// An object lives as long as somebody holds a reference to it. Code holds references through
// CATHandle (the `_var` types) and calls AddRef and Release only where it builds such a holder.
class CATBaseUnknown {
public:
  CATBaseUnknown(const CATBaseUnknown&) = delete;
  CATBaseUnknown& operator=(const CATBaseUnknown&) = delete;

  // The framework's allocation. Gives null when memory is exhausted; a `new` expression is then null.
  static void* operator new(std::size_t size) noexcept;
  static void operator delete(void* memory) noexcept;

  // Both give the number of references afterwards. A data extension counts on the object it extends.
  virtual unsigned long AddRef();
  virtual unsigned long Release();

  // The object's implementation of an interface with one reference added for the caller, or null when
  // the object has none. Asked of a tie or an extension, it answers for the object behind it.
  virtual CATBaseUnknown* QueryInterface(const CATIID& interfaceId);

  // The object itself: for a data extension the object it extends, for a tie the object it leads to.
  // No reference is added.
  virtual CATBaseUnknown* GetImpl();

  // Root of all meta-objects.
  static CATMetaClass* MetaObject();

protected:
  CATBaseUnknown() = default;
  // A data extension of `extended`, which must outlive it.
  explicit CATBaseUnknown(CATBaseUnknown& extended);
  virtual ~CATBaseUnknown();

private:
  friend struct CATExtensionDeleter;

  unsigned long references_ = 1;
  CATBaseUnknown* extended_ = nullptr;
};

using CATBaseUnknown_var = CATHandle<CATBaseUnknown>;
