#pragma once

#include <optional>
#include <string>
#include <vector>

#include "session/HostSession.h"
#include "session/SessionDescription.h"

namespace zrkhost {

// What a product of the tree shows and where it stands, as it is given to others. Texts are UTF-8.
struct ProductRecord {
  // 0 at the root.
  std::size_t Depth = 0;
  std::string Name;
  std::string Path;
  // Absent when the reference is not loaded.
  std::optional<std::string> Reference;
  // In the host's form, with "\"; absent when there is none.
  std::optional<std::string> Document;
  // Every parameter with its value; absent when the product carries no attribute instance.
  std::optional<AttributeValues> Attributes;
};

// Every product as it is now, depth first.
std::vector<ProductRecord> RecordsOf(const HostSession& session);

}  // namespace zrkhost
