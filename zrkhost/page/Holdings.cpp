#include "page/Holdings.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

namespace zrkhost {

namespace {

constexpr std::string_view kLockedBy = "Locked by: \n";
constexpr std::string_view kRule = "\n-------------\n";

std::string_view FirstLine(std::string_view text) {
  return text.substr(0, text.find('\n'));
}

// The client writes paths with "/", the host with "\".
bool NamesDocument(std::string_view file, const std::optional<std::string>& document) {
  std::string path(file);
  std::replace(path.begin(), path.end(), '/', '\\');
  return document && !path.empty() && document->ends_with("\\" + path);
}

}  // namespace

std::string_view AttributeOf(const ProductRecord& product, std::string_view name) {
  if (!product.Attributes) return {};
  for (const auto& [attribute, value] : *product.Attributes) {
    if (attribute == name) return value;
  }
  return {};
}

std::optional<std::string> HolderOf(const ProductRecord& product) {
  const std::string_view status = AttributeOf(product, "Status");
  if (status != "Edit" && status != "Locked") return std::nullopt;
  std::string_view comment = AttributeOf(product, "Comment");
  if (comment.starts_with(kLockedBy)) {
    comment.remove_prefix(kLockedBy.size());
    return std::string(comment.substr(0, comment.find(kRule)));
  }
  const std::string_view first = FirstLine(comment);
  if (!NamesDocument(first, product.Document)) return std::string(first);
  return std::string(first == comment ? "" : FirstLine(comment.substr(first.size() + 1)));
}

std::vector<Holder> HoldersOf(const std::vector<ProductRecord>& products) {
  // Sorts as the holders shall stand: here, by name, unknown.
  using Key = std::tuple<int, std::string>;
  std::map<Key, Holder> holders;
  std::map<std::pair<Key, std::string>, std::size_t> files;
  for (std::size_t i = 0; i < products.size(); ++i) {
    const auto owner = HolderOf(products[i]);
    if (!owner) continue;
    const bool here = owner->empty() && AttributeOf(products[i], "Status") == "Edit";
    const Key key = {here ? 0 : owner->empty() ? 2 : 1, *owner};
    Holder& holder = holders[key];
    holder.Owner = *owner;
    holder.IsHere = here;
    std::size_t file = holder.Files.size();
    if (products[i].Document) file = files.try_emplace({key, *products[i].Document}, file).first->second;
    if (file == holder.Files.size()) holder.Files.emplace_back();
    holder.Files[file].Products.push_back(i);
  }
  std::vector<Holder> sorted;
  sorted.reserve(holders.size());
  for (auto& [key, holder] : holders) sorted.push_back(std::move(holder));
  return sorted;
}

}  // namespace zrkhost
