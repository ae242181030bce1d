#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// What a host session is built from, as plain values. Texts are UTF-8.
namespace zrkhost {

// Parameter and value.
using AttributeValues = std::vector<std::pair<std::string, std::string>>;

struct ChildDescription {
  std::string Name;
  // Absent: an instance whose reference is not loaded.
  std::optional<std::string> Reference;
  // What its attribute instance starts with; absent: it starts without one.
  std::optional<AttributeValues> Attributes;
};

struct ProductDescription {
  std::string Name;
  // Absolute and lexically normal; empty: a document that was never stored; absent: no document.
  std::optional<std::filesystem::path> Document;
  bool Linkable = true;
  bool Extendable = true;
  // Of the reference product itself, not of its instances.
  std::optional<AttributeValues> Attributes;
  std::vector<ChildDescription> Children;
};

struct AttributeClass {
  std::vector<std::string> Parameters = {"Revision", "Status", "Release", "Comment"};
  bool Modifiable = true;
};

struct SessionDescription {
  bool Window = true;
  bool Dictionary = true;
  // Absent: the dictionary does not know the package.
  std::optional<AttributeClass> Class = AttributeClass{};
  std::map<std::string, std::map<std::string, std::string>> Catalogs;
  std::string Root;
  std::vector<ProductDescription> Products;
};

}  // namespace zrkhost
