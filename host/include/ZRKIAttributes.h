#pragma once

#include <windows.h>

#include "CATISpecObject.h"
#include "CATMetaClass.h"
#include "CATUnicodeString.h"

// The attribute packages: classes of named parameters that can be put onto objects of other types.

// A class of attributes, known to the dictionary by the name of its package.
class ZRKIAttClass : public CATBaseUnknown {
  CATDeclareInterface

  virtual CATUnicodeString GetPackageName() = 0;
};
using ZRKIAttClass_var = CATHandle<ZRKIAttClass>;

// A class's say in whether an object may be modified.
class ZRKIAttStatus : public CATBaseUnknown {
  CATDeclareInterface

  // Non-zero when the object, which is not null, may be modified.
  virtual unsigned char IsModifiable(const CATISpecObject_var& object) = 0;
};
using ZRKIAttStatus_var = CATHandle<ZRKIAttStatus>;

// The attribute dictionary of the session.
class ZRKIAttDictionary : public CATBaseUnknown {
  CATDeclareInterface

  // The class of the package named; null when the dictionary does not know it.
  virtual CATBaseUnknown_var LookUpClass(const CATUnicodeString& package) = 0;
};
using ZRKIAttDictionary_var = CATHandle<ZRKIAttDictionary>;

// An instance of a class, on one object.
class ZRKIAttInstance : public CATBaseUnknown {
  CATDeclareInterface

  // The parameter of that name; null when the class has none. Values are set through CATICkeParm.
  virtual CATBaseUnknown_var GetParameter(const CATUnicodeString& name) = 0;
};
using ZRKIAttInstance_var = CATHandle<ZRKIAttInstance>;

// An object that can carry instances, at most one of each class. No class is null: the host fails on that.
class ZRKIAttExtendable : public CATBaseUnknown {
  CATDeclareInterface

  // The object's instance of the class; null when it carries none.
  virtual CATBaseUnknown_var FindInstance(const ZRKIAttClass_var& attributeClass) = 0;
  // Puts an instance onto the object, with values copied from `model` unless that is null. Negative
  // when the object cannot take it.
  virtual HRESULT AddInstance(const ZRKIAttClass_var& attributeClass, const ZRKIAttInstance_var& model) = 0;
  // Takes the instance off the object; nothing happens when it carries none.
  virtual void RemoveInstance(const ZRKIAttClass_var& attributeClass) = 0;
};
using ZRKIAttExtendable_var = CATHandle<ZRKIAttExtendable>;
