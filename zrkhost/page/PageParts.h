#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "page/Holdings.h"
#include "session/ProductRecords.h"

namespace zrkhost {

// The parts of the page that come from the products, each as markup that stands for itself.
class PageParts {
public:
  // Both stay alive as long as this. `products` holds at least the root.
  PageParts(const std::vector<ProductRecord>& products, const std::vector<std::string>& parameters);

  std::string Title() const;
  std::string Heading(std::chrono::system_clock::time_point made) const;
  // A button for all products and one for each status.
  std::string Counts() const;
  // A row for each product.
  std::string Tree() const;
  std::string Holders() const;
  // What the script searches: the names of the fields, the statuses in the order of their buttons, and for
  // each product its level from 1, its name and, when it carries attributes, their values.
  std::string Data() const;

private:
  struct StatusCount {
    std::string_view Status;
    std::size_t Products = 0;
  };
  std::vector<StatusCount> CountStatuses() const;
  std::string Columns() const;
  std::string Row(std::size_t position) const;

  const std::vector<ProductRecord>& products_;
  const std::vector<std::string>& parameters_;
  std::vector<Holder> holders_;
  // By product: its place among those beside it, from 1, and how many these are; whether it has some below
  // it; whether the list of holders leads to it.
  struct Position {
    std::size_t Place = 0;
    std::size_t Places = 0;
    bool HasChildren = false;
    bool IsHeld = false;
  };
  std::vector<Position> positions_;
};

}  // namespace zrkhost
