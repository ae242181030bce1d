#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "product/ProductModel.h"
#include "support/TemporaryFolder.h"

// A product structure whose documents are files in a temporary folder.
//
//   Assembly assembly(folder);
//   assembly.Add("car", "proj/car.CATProduct").Add("axle", "proj/sub/axle.CATPart");
//   assembly.Place("car", "axle.1", "axle");
//   assembly.At("car/axle.1")
//
// All throw when the structure does not allow what is asked for.
class Assembly {
public:
  explicit Assembly(const TemporaryFolder& folder) : folder_(folder) {}

  // A reference product with a document, which is written, with a line of text, unless it is there.
  Assembly& Add(const std::string& name, const std::filesystem::path& document);
  Assembly& Add(const standin::ReferenceDescription& description);
  // A reference product that is linkable but has no document, or one that is not linkable.
  Assembly& AddWithoutDocument(const std::string& name) { return Add({.Name = name, .Document = {}}); }
  Assembly& AddNotLinkable(const std::string& name) {
    return Add({.Name = name, .Document = {}, .Linkable = false});
  }

  // A child instance of `parent`; nullopt: of a reference that is not loaded.
  Assembly& Place(const std::string& parent, const std::string& name,
                  const std::optional<std::string>& reference);

  // The product at a path such as "car" or "car/axle.1".
  CATBaseUnknown_var At(const std::string& path) const;

private:
  const TemporaryFolder& folder_;
  standin::ProductModel model_;
};
