#include "ZRKHostCheck.h"

#include "Checks.h"
#include "TextChecks.h"

namespace zrk::hostcheck {

void CheckAll(Table& table, CATBaseUnknown& product, const HostFunctions& host) {
  const CATBaseUnknown_var object(product.GetImpl());
  CheckFramework(table, object, host);
  CheckAttributes(table, CheckProducts(table, object, host), host);
  CheckDom(table, host);
  CheckServices(table, host);
  CheckText<CATUnicodeString>(table);
  CheckList<CATListValCATUnicodeString>(table);
}

}  // namespace zrk::hostcheck

int ZRKCheckHost(CATBaseUnknown* product, ZRKHostCheckReport report, void* context) {
  if (!product || !report) return -1;
  zrk::hostcheck::Table table(report, context);
  try {
    zrk::hostcheck::CheckAll(table, *product, {});
  } catch (...) {
    table.RowUnless("an exception ended the checks", "all that follows", [](auto&) {});
  }
  return table.NotHolding();
}
