// The attribute dictionary, and an instance with its parameters on a product, which is left as it was.

#include <array>
#include <optional>

#include "CATICkeParm.h"
#include "CATISpecObject.h"
#include "Checks.h"

namespace zrk::hostcheck {
namespace {

constexpr std::array kParameters{"Revision", "Status", "Release", "Comment"};

using Values = std::array<std::optional<CATUnicodeString>, kParameters.size()>;

// A product and the class of package "ZRKCVS".
struct Carrier {
  ZRKIAttExtendable_var Product;
  ZRKIAttClass_var Class;

  ZRKIAttInstance_var Instance() const { return Product->FindInstance(Class); }
  CATICkeParm_var Parameter(const char* name) const {
    const ZRKIAttInstance_var instance = Instance();
    return instance ? CATICkeParm_var(instance->GetParameter(name)) : nullptr;
  }
  Values AllValues() const {
    Values values;
    for (std::size_t i = 0; i < values.size(); ++i) {
      const CATICkeParm_var parameter = Parameter(kParameters[i]);
      if (parameter && parameter->HasValue()) values[i] = parameter->AsText();
    }
    return values;
  }
  void PutBack(const ZRKIAttInstance_var& instance, const Values& values) const {
    Product->RemoveInstance(Class);
    if (instance) Product->AddInstance(Class, instance);
    for (std::size_t i = 0; i < values.size(); ++i) {
      const CATICkeParm_var parameter = Parameter(kParameters[i]);
      if (parameter && values[i]) parameter->Valuate(*values[i]);
    }
  }
};

}  // namespace

void CheckAttributes(Table& table, const Products& products, const HostFunctions& host) {
  ZRKIAttDictionary_var dictionary;
  table.Row("ZRKAttPackageBaseServices: GetDicoLookUp", [&](Expectations& expect) {
    dictionary = host.GetDicoLookUp();
    expect(dictionary, "there is no attribute dictionary");
  });
  Carrier carrier;
  const char* missing = dictionary ? nullptr : "the attribute dictionary";
  table.RowUnless(missing, "ZRKIAttDictionary: LookUpClass", [&](Expectations& expect) {
    carrier.Class = dictionary->LookUpClass("ZRKCVS");
    expect(carrier.Class, "the package ZRKCVS is not known, or no ZRKIAttClass");
    expect(!dictionary->LookUpClass("ZRKHostCheck"), "a package that does not exist is known");
  });
  if (!carrier.Class) missing = "the package ZRKCVS";
  table.RowUnless(missing, "ZRKIAttStatus: IsModifiable", [&](Expectations& expect) {
    const ZRKIAttStatus_var status(carrier.Class);
    const CATISpecObject_var node(products.front());
    if (!expect(status, "the class has none") || !expect(node, "the product is no CATISpecObject")) return;
    const bool modifiable = status->IsModifiable(node) != 0;
    expect(modifiable == (status->IsModifiable(node) != 0), "a second request gives another answer");
  });

  for (const CATBaseUnknown_var& product : products) {
    if (!carrier.Product) carrier.Product = product;
  }
  if (!missing && !carrier.Product) missing = "a product that is ZRKIAttExtendable";
  ZRKIAttInstance_var before;
  Values values;
  const bool added = table.RowUnless(missing, "ZRKIAttExtendable: an instance", [&](Expectations& expect) {
    before = carrier.Instance();
    values = carrier.AllValues();
    carrier.Product->RemoveInstance(carrier.Class);
    expect(!carrier.Instance(), "an instance is still found after its removal");
    carrier.Product->RemoveInstance(carrier.Class);
    const HRESULT result = carrier.Product->AddInstance(carrier.Class, nullptr);
    expect(result >= 0 && carrier.Instance(), "AddInstance gives ", result, ", and the instance is ",
           carrier.Instance() ? "found" : "not found");
  });
  const char* const notAdded = added ? nullptr : "an instance that was added";
  table.RowUnless(notAdded, "ZRKIAttInstance: GetParameter", [&](Expectations& expect) {
    for (const char* name : kParameters)
      expect(carrier.Parameter(name), name, " is missing or no CATICkeParm");
    expect(!carrier.Parameter("ZRKHostCheck"), "there is a parameter that the class does not have");
  });
  table.RowUnless(notAdded, "CATICkeParm: values", [&](Expectations& expect) {
    for (const wchar_t* text : {L"T\u00fcr", L"a\r\nb\n", L" two  blanks\t", L""}) {
      const CATUnicodeString written(text);
      if (const CATICkeParm_var parameter = carrier.Parameter("Comment")) parameter->Valuate(written);
      // Read as the next refresh would: through the product.
      const CATICkeParm_var again = carrier.Parameter("Comment");
      const CATUnicodeString read(again ? again->AsText() : "no parameter");
      expect(read == written && again && again->HasValue(), written, " comes back as ", read);
    }
  });
  table.RowUnless(missing, "the product as it was", [&](Expectations& expect) {
    carrier.PutBack(before, values);
    expect(!carrier.Instance() == !before && carrier.AllValues() == values, "its attributes differ");
  });
}

}  // namespace zrk::hostcheck
