#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "session/ProductRecords.h"

// Who holds which file, from what the component wrote onto the products. Texts are UTF-8.
namespace zrkhost {

// Who holds the product's file; empty when that is not known; absent when nobody does, which is so for every
// status but "Edit" and "Locked". The comment names the owner in one of three ways:
//
//   the lines of the CVS editors' report: the file, which ends the document's path, and behind it the owner
//   "Locked by: \n" OWNER "\n-------------\n" COMMENT    Subversion, after a refresh of the tree
//   OWNER "\n" COMMENT                                   Subversion, after an operation on the one file
std::optional<std::string> HolderOf(const ProductRecord& product);

// The value of the product's attribute; empty when it has none of that name.
std::string_view AttributeOf(const ProductRecord& product, std::string_view name);

struct HeldFile {
  // Positions of the products whose document it is, or of the one product without a document.
  std::vector<std::size_t> Products;
};

struct Holder {
  // Empty: the comment does not say.
  std::string Owner;
  // Only of those without a name: this working copy holds the files, its "Edit" says so.
  bool IsHere = false;
  // In the order of the tree.
  std::vector<HeldFile> Files;
};

// This working copy first, then the owners by name, then what nobody is named for.
std::vector<Holder> HoldersOf(const std::vector<ProductRecord>& products);

}  // namespace zrkhost
