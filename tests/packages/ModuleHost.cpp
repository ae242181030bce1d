// Plays the host for the example's module: one product with the document named, refreshed by the module.
// Prints the product's attributes and ends with what the module gave.

#include <cstdio>

#include "CATICkeParm.h"
#include "ZRKAttPackageBaseServices.h"
#include "attributes/AttributeDictionary.h"
#include "product/ProductModel.h"

extern "C" int RefreshProduct(CATBaseUnknown* product);

int main(int argc, char** argv) {
  if (argc != 2) return 3;
  standin::InstallAttributeDictionary({{"ZRKCVS", {"Revision", "Status", "Release", "Comment"}}});
  standin::ProductModel model;
  model.AddReference({.Name = "car", .Document = argv[1]});
  const CATBaseUnknown_var car = model.Reference("car");
  const int result = RefreshProduct(car.Get());

  const ZRKIAttClass_var attributes(ZRKAttPackageBaseServices::GetDicoLookUp()->LookUpClass("ZRKCVS"));
  const ZRKIAttInstance_var instance(ZRKIAttExtendable_var(car)->FindInstance(attributes));
  for (const char* name : {"Revision", "Status"}) {
    const CATICkeParm_var value(instance ? instance->GetParameter(name) : nullptr);
    std::printf("%s: %s\n", name, value ? value->AsText().ConvertToChar() : "none");
  }
  return result;
}
