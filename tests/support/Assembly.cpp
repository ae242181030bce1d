#include "support/Assembly.h"

#include <memory>
#include <stdexcept>

#include "CATINavigateObject.h"
#include "support/Files.h"

Assembly& Assembly::Add(const std::string& name, const std::filesystem::path& document) {
  if (!std::filesystem::exists(folder_ / document)) WriteFile(folder_ / document, name + "\n");
  return Add({.Name = name, .Document = folder_.Host(document)});
}

Assembly& Assembly::Add(const standin::ReferenceDescription& description) {
  if (model_.AddReference(description) != standin::AddResult::Added) {
    throw std::runtime_error("Cannot add the reference product " + description.Name);
  }
  return *this;
}

Assembly& Assembly::Place(const std::string& parent, const std::string& name,
                          const std::optional<std::string>& reference) {
  if (model_.AddChild(parent, name, reference) != standin::AddResult::Added) {
    throw std::runtime_error("Cannot add " + name + " to " + parent);
  }
  return *this;
}

CATBaseUnknown_var Assembly::At(const std::string& path) const {
  std::size_t slash = path.find('/');
  CATBaseUnknown_var product = model_.Reference(path.substr(0, slash));
  while (product && slash != std::string::npos) {
    slash = path.find('/', slash + 1);
    const std::string childPath = path.substr(0, slash);
    const CATINavigateObject_var parent = product;
    const std::unique_ptr<CATListValCATBaseUnknown_var> children(parent->GetChildren());
    product = nullptr;
    for (int position = 1; children && position <= children->Size(); ++position) {
      if (standin::ProductPath((*children)[position]) == childPath) product = (*children)[position];
    }
  }
  if (!product) throw std::runtime_error("There is no product " + path);
  return product;
}
