#include "shell/ZRKECVS.h"

#include "product/ProductDocument.h"

void ZRKECVS::GetStorageName(CATUnicodeString& path) {
  const zrk::product::ProductDocument document = zrk::product::ReachDocument(this);
  if (document.Exists()) path = document.Path;
}
