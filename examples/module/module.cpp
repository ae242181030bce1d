#include <cstdio>

#include "ZRKCVSStatus.h"
#include "ZRKICVS.h"
#include "ZRKICVSManager.h"
#include "ZRKICVSModifiable.h"

// Brings the tree below a product up to date. 0 when that was done, 1 when the product's document cannot be
// under version control, 2 when there is no version control in this session.
extern "C" int RefreshProduct(CATBaseUnknown* product) {
  const ZRKICVS_var file(product);
  const ZRKICVSManager_var manager(product);
  const ZRKICVSModifiable_var modifiable(product);
  if (!file || !manager || !modifiable) return 2;
  // That this module calls the library has the library loaded with it, and so the interfaces known.
  if (!IsCVSable(product)) return 1;

  CATUnicodeString path;
  file->GetStorageName(path);
  std::printf("refreshing %s\n", path.ConvertToChar());
  manager->RefreshStatus(CATBaseUnknown_var(product));
  return 0;
}
