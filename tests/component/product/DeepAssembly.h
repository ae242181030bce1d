#pragma once

#include <memory>
#include <string>

#include "CATINavigateObject.h"
#include "support/Assembly.h"

// Adds reference products "p0", "p1" ... to the assembly, each the only child of the one before. They have
// the documents `documentFolder`\p0, \p1 ..., of which none is written.
inline void AddChain(Assembly& assembly, const std::string& documentFolder, int levels) {
  std::string parent;
  for (int level = 0; level < levels; ++level) {
    std::string name("p");
    name += std::to_string(level);
    assembly.Add({.Name = name, .Document = documentFolder + "\\" + name});
    if (level > 0) assembly.Place(parent, "c", name);
    parent = name;
  }
}

// The product that many levels below, always by the first child.
inline CATBaseUnknown_var FirstDescendant(CATBaseUnknown_var product, int levels) {
  for (; levels > 0; --levels) {
    const CATINavigateObject_var navigation(product);
    const std::unique_ptr<CATListValCATBaseUnknown_var> children(navigation->GetChildren());
    product = (*children)[1];
  }
  return product;
}
