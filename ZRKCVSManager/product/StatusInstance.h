#pragma once

#include "CATICkeParm.h"
#include "ZRKIAttributes.h"
#include "product/ProductDocument.h"

// The attributes that show a product's version-control state: its instance of the class of package
// "ZRKCVS", found, added and taken off through ZRKIAttExtendable. Objects that cannot carry instances,
// and a null class, have none.
namespace zrk::product {

struct StatusValues {
  CATUnicodeString Revision;
  CATUnicodeString Status;
  CATUnicodeString Release;
  CATUnicodeString Comment;
};

// Null when the object carries no instance.
ZRKIAttInstance_var FindInstance(const CATBaseUnknown_var& object, const ZRKIAttClass_var& attributeClass);
// Null when there is none and none can be added.
ZRKIAttInstance_var FindOrAddInstance(const CATBaseUnknown_var& object,
                                      const ZRKIAttClass_var& attributeClass);
void RemoveInstance(const CATBaseUnknown_var& object, const ZRKIAttClass_var& attributeClass);

// Null when the instance is null or has no such parameter.
CATICkeParm_var GetParameter(const ZRKIAttInstance_var& instance, const char* name);
// Sets the parameter if the instance has it.
void SetParameter(const ZRKIAttInstance_var& instance, const char* name, const CATUnicodeString& value);

// Sets "Revision", "Status", "Release" and "Comment", in this order, on the object's instance, which is
// added when it is missing. Nothing is written when the object can carry none.
void WriteStatusValues(const CATBaseUnknown_var& object, const ZRKIAttClass_var& attributeClass,
                       const StatusValues& values);

// The object's document. An object that cannot have one loses its instance.
ProductDocument ReachDocumentOrClear(const CATBaseUnknown_var& object,
                                     const ZRKIAttClass_var& attributeClass);

}  // namespace zrk::product
