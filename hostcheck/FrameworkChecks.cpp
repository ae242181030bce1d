// Casts, identity, reference counts, and what binds an extension to its product.

#include <string_view>

#include "CATIDOM.h"
#include "CATISpecObject.h"
#include "CATTie.h"
#include "Checks.h"

namespace zrk::hostcheck {
namespace {

// What the check itself enters into the dictionary: an interface, an extension and the tie between them.
class ZRKIHostCheck : public CATBaseUnknown {
  CATDeclareInterface

  // The object that the extension extends.
  virtual CATBaseUnknown* Extended() = 0;
  // The extension, as something to compare.
  virtual const void* Extension() = 0;
};
using ZRKIHostCheck_var = CATHandle<ZRKIHostCheck>;

CATImplementInterface(ZRKIHostCheck,
                      {0x6f0e4d31, 0x7a3c, 0x4b58, {0x91, 0x5e, 0x2c, 0x80, 0xd4, 0x16, 0x3f, 0xa7}})

class ZRKEHostCheck final : public CATBaseUnknown {
public:
  explicit ZRKEHostCheck(CATBaseUnknown& product) : CATBaseUnknown(product) {}
};

class TIEZRKIHostCheckZRKEHostCheck final : public CATTie<ZRKIHostCheck> {
public:
  using CATTie::CATTie;
  CATBaseUnknown* Extended() override { return TieContext()->GetImpl(); }
  const void* Extension() override { return TieContext(); }
};

CATBaseUnknown* CreateExtension(CATBaseUnknown& product) {
  return new ZRKEHostCheck(product);
}

CATMetaClass* RetrieveExtension(const HostFunctions& host) {
  return host.RetrieveMetaObject("ZRKEHostCheck", CATMetaClassKind::DataExtension,
                                 CATBaseUnknown::MetaObject(), "ASMPRODUCT", "External", &CreateExtension);
}

CATMetaClass* TieMetaClass() {
  static auto* const meta = new CATMetaClass(ZRKIHostCheck::ClassId(), "ZRKIHostCheck",
                                             ZRKIHostCheck::MetaObject(), RetrieveExtension({}));
  return meta;
}

CATBaseUnknown* CreateTie(CATBaseUnknown* extension) {
  return extension ? new TIEZRKIHostCheckZRKEHostCheck(extension, TieMetaClass()) : nullptr;
}

// How many references the object has, and whether it counts those that are taken and given back through `by`.
unsigned long ExpectCounted(Expectations& expect, CATBaseUnknown& object, CATBaseUnknown& by) {
  object.AddRef();
  const unsigned long before = object.Release();
  const unsigned long added = by.AddRef();
  const unsigned long released = by.Release();
  expect(added == before + 1 && released == before, "AddRef on ", before, " gives ", added, ", Release then ",
         released);
  return before;
}

}  // namespace

void CheckFramework(Table& table, const CATBaseUnknown_var& object, const HostFunctions& host) {
  const CATIProduct_var product(object);
  const CATISpecObject_var node(product);
  table.Row("CATHandle: a cast asks the object", [&](Expectations& expect) {
    expect(product, "the object is no CATIProduct");
    expect(node && CATISpecObject_var(object), "it is no CATISpecObject");
    expect(!CATIDOMNodeList_var(object), "it is a list of an XML document's nodes");
    expect(!CATIProduct_var(CATISpecObject_var()), "a cast of nothing gives something");
  });
  table.Row("CATBaseUnknown: GetImpl", [&](Expectations& expect) {
    expect(product && product->GetImpl() == object.Get(), "its CATIProduct is of another object");
    expect(node && node->GetImpl() == object.Get(), "a CATISpecObject of that is of another object");
  });
  table.Row("CATBaseUnknown: AddRef, Release", [&](Expectations& expect) {
    const unsigned long before = ExpectCounted(expect, *object.Get(), *object.Get());
    for (int i = 0; i < 100; ++i) {
      const CATISpecObject_var again{CATIProduct_var(object)};
      const CATIDOMNodeList_var none{CATBaseUnknown_var(again)};
    }
    const unsigned long after = ExpectCounted(expect, *object.Get(), *object.Get());
    expect(after == before, "100 rounds of casts turned ", before, " references into ", after);
  });
  table.Row("CATBaseUnknown: an extension", [&](Expectations& expect) {
    ZRKEHostCheck extension(*object.Get());
    expect(extension.GetImpl() == object.Get(), "it is of another object than it extends");
    const CATIProduct_var extended(&extension);
    expect(extended && extended->GetImpl() == object.Get(), "a cast to CATIProduct leads elsewhere");
    ExpectCounted(expect, *object.Get(), extension);
  });
  table.Row("CATMetaClass: meta-objects", [&](Expectations& expect) {
    const auto named = [&](const char* of, CATMetaClass* meta, std::string_view name) {
      expect(meta && meta->Name() == name, of, " is ", meta ? meta->Name() : "null");
    };
    named("CATBaseUnknown's", CATBaseUnknown::MetaObject(), "CATBaseUnknown");
    named("an extension's", RetrieveExtension(host), "ZRKEHostCheck");
    named("an interface's", ZRKIHostCheck::MetaObject(), "ZRKIHostCheck");
    named("a tie's", TieMetaClass(), "ZRKIHostCheck");
    // NOLINTNEXTLINE(misc-redundant-expression): each call may give another
    expect(RetrieveExtension(host) == RetrieveExtension(host), "an extension has two");
  });
  table.Row("CATFillDictionary, CATTie", [&](Expectations& expect) {
    // One entry is enough for as long as the library is loaded.
    if (!ZRKIHostCheck_var(object)) {
      host.FillDictionary(RetrieveExtension(host), ZRKIHostCheck::MetaObject(), &CreateTie, nullptr, 1);
    }
    const ZRKIHostCheck_var first(object);
    const ZRKIHostCheck_var second(product);
    if (!expect(first && second, "the product does not have an interface that was entered")) return;
    expect(first->Extended() == object.Get(), "the tie leads to an extension of another object");
    expect(first->Extension() == second->Extension(), "a second request leads to another extension");
    expect(CATIProduct_var(first), "the tie is no CATIProduct");
  });
}

}  // namespace zrk::hostcheck
