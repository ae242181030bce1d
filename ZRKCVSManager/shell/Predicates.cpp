// IsCVSable and IsCVSModifiable.

#include "ZRKAttPackageBaseServices.h"
#include "ZRKCVSStatus.h"
#include "product/ProductDocument.h"
#include "shell/Containment.h"

using zrk::shell::ContainedOr;

int IsCVSable(CATBaseUnknown* object) {
  return ContainedOr(0, [&] { return zrk::product::ReachDocument(object).Exists() ? 1 : 0; });
}

int IsCVSModifiable(CATBaseUnknown* object) {
  return ContainedOr(0, [&] {
    if (!object) return 0;
    const ZRKIAttDictionary_var dictionary = ZRKAttPackageBaseServices::GetDicoLookUp();
    if (!dictionary) return 0;
    const ZRKIAttStatus_var status = dictionary->LookUpClass("ZRKCVS");
    if (!status) return 0;
    const CATISpecObject_var feature(object);
    return feature && status->IsModifiable(feature) != 0 ? 1 : 0;
  });
}
