#pragma once

#include <string>
#include <vector>

namespace zrkhost {

struct TreeRow {
  std::size_t Depth = 0;
  std::string Product;
  // One for each column behind the first; empty when the product carries no attributes.
  std::vector<std::string> Values;
};

struct TreeStyle {
  // Columns of the terminal; 0: lines are as long as they are.
  int Width = 0;
  bool Colours = false;
};

// The product tree as a table: products indented by their depth, then the columns named, aligned. Control
// characters of the values are escaped, so that every product is one line.
std::string PrintTree(const std::vector<TreeRow>& rows, const std::vector<std::string>& columns,
                      const TreeStyle& style);

}  // namespace zrkhost
