// The product structure: references and instances, documents, children, work mode, redraw.

#include <algorithm>
#include <memory>
#include <string>

#include "CATIDescendants.h"
#include "CATILinkableObject.h"
#include "CATINavigateObject.h"
#include "CATIRedrawEvent.h"
#include "CATISpecObject.h"
#include "Checks.h"

namespace zrk::hostcheck {
namespace {

constexpr std::size_t kMostProducts = 1000;

using OwnedList = std::unique_ptr<CATListValCATBaseUnknown_var>;

OwnedList ListOfChildren(const CATBaseUnknown_var& product) {
  const CATINavigateObject_var node(product);
  return OwnedList(node ? node->GetChildren() : nullptr);
}

// The objects of a list from that position on.
template <class List>
Products Objects(const List& list, int from = 1) {
  Products objects;
  for (int i = from; i <= list.Size(); ++i) objects.emplace_back(list[i] ? list[i]->GetImpl() : nullptr);
  return objects;
}

Products ChildrenOf(const CATBaseUnknown_var& product) {
  const OwnedList list = ListOfChildren(product);
  return list ? Objects(*list) : Products();
}

bool Same(const Products& a, const Products& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const auto& left, const auto& right) { return left.Get() == right.Get(); });
}

// The product and those below it, level by level.
Products Below(const CATBaseUnknown_var& product) {
  Products products{product};
  for (std::size_t i = 0; i < products.size(); ++i) {
    for (const CATBaseUnknown_var& child : ChildrenOf(products[i])) {
      if (child && products.size() < kMostProducts) products.push_back(child);
    }
  }
  return products;
}

// Of each product the reference; those that are not loaded are left out.
Products ReferencesOf(const Products& products) {
  Products references;
  for (const CATIProduct_var product : products) {
    const CATBaseUnknown_var reference(product ? product->GetReferenceProduct() : nullptr);
    if (reference) references.emplace_back(reference->GetImpl());
  }
  return references;
}

CATDocument_var DocumentOf(const CATILinkableObject_var& linkable) {
  return linkable ? linkable->GetDocument() : nullptr;
}

// The references whose document is stored.
Products StoredOf(const Products& references) {
  Products stored;
  for (const CATBaseUnknown_var& reference : references) {
    const CATDocument_var document = DocumentOf(reference);
    if (document && document->StorageName().GetLengthInByte() > 0) stored.push_back(reference);
  }
  return stored;
}

}  // namespace

Products CheckProducts(Table& table, const CATBaseUnknown_var& product, const HostFunctions& host) {
  Products products{product};
  table.Row("CATPrsWorkModeServices: what is below in work mode 1", [&](Expectations& expect) {
    const CATIProduct_var top(product);
    if (!expect(top, "the object is no CATIProduct")) return;
    host.SetWorkMode(top, 1);
    products = Below(product);
    for (const CATBaseUnknown_var& each : products) {
      expect(CATIProduct_var(each) && CATINavigateObject_var(each) && CATISpecObject_var(each),
             "a product is no CATIProduct, CATINavigateObject or CATISpecObject");
    }
  });
  table.Row("CATINavigateObject: GetChildren", [&](Expectations& expect) {
    for (const CATBaseUnknown_var& each : products) {
      const OwnedList first = ListOfChildren(each);
      const OwnedList second = ListOfChildren(each);
      expect(!first || first->Size() > 0, "there are no children, but a list");
      expect(Same(first ? Objects(*first) : Products(), second ? Objects(*second) : Products()),
             "a second request gives others, or in another order");
      for (const auto& child : ChildrenOf(each)) expect(child, "a child is null");
    }
  });
  const Products instances(products.begin() + 1, products.end());
  const char* const noChild = instances.empty() ? "a product with children" : nullptr;
  table.RowUnless(noChild, "CATIDescendants: GetChildren, the same", [&](Expectations& expect) {
    for (const CATBaseUnknown_var& each : products) {
      const CATIDescendants_var descendants(each);
      if (!expect(descendants, "a product is no CATIDescendants")) return;
      CATListValCATISpecObject_var list;
      list.Append(CATISpecObject_var());
      descendants->GetChildren("CATIProduct", list);
      if (!expect(list.Size() > 0 && !list[1], "what stood in the list is not its first")) return;
      expect(Same(Objects(list, 2), ChildrenOf(each)), "others, or in another order");
    }
  });
  const Products references = ReferencesOf(products);
  table.RowUnless(noChild, "CATIProduct: TestReference", [&](Expectations& expect) {
    for (const CATIProduct_var instance : instances) {
      const HRESULT result = instance ? instance->TestReference() : 0;
      expect(result < 0, "a child gives ", result);
    }
    for (const CATIProduct_var reference : references) {
      const HRESULT result = reference ? reference->TestReference() : -1;
      expect(result == 0, "a reference gives ", result);
    }
  });
  const char* const notLoaded =
      ReferencesOf(instances).empty() ? "a child whose reference is loaded" : nullptr;
  table.RowUnless(notLoaded, "CATIProduct: GetReferenceProduct", [&](Expectations& expect) {
    expect(Same(references, ReferencesOf(products)), "a second request gives another object");
    expect(Same(references, ReferencesOf(references)), "a reference is not its own reference");
  });
  const Products stored = StoredOf(references);
  const char* const notStored = stored.empty() ? "a reference whose document is stored" : nullptr;
  table.RowUnless(notStored, "CATDocument: StorageName", [&](Expectations& expect) {
    for (const CATBaseUnknown_var& reference : stored) {
      const std::string path = DocumentOf(reference)->StorageName().ConvertToChar();
      const bool hasRoot = path.starts_with("\\") || path.substr(1, 2) == ":\\";
      expect(hasRoot && path.find('/') == std::string::npos, "no full path separated by \\: ", path);
    }
  });
  table.Row("CATIRedrawEvent: Redraw", [&](Expectations& expect) {
    const CATIRedrawEvent_var event(product);
    if (expect(event, "the product has none")) event->Redraw();
  });
  return products;
}

}  // namespace zrk::hostcheck
