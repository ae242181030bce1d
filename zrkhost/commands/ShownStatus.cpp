#include "commands/ShownStatus.h"

#include <algorithm>

#include "terminal/DisplayText.h"

namespace zrkhost {

namespace {

const std::string* ValueOf(const AttributeValues& attributes, const char* name) {
  const auto found = std::find_if(attributes.begin(), attributes.end(),
                                  [name](const auto& attribute) { return attribute.first == name; });
  return found == attributes.end() ? nullptr : &found->second;
}

// With `before` and `behind` around it, when there is anything.
std::string Shown(const AttributeValues& attributes, const char* name, const char* before,
                  const char* behind) {
  const auto* value = ValueOf(attributes, name);
  const auto line = value ? OneLine(*value) : "";
  return line.empty() ? "" : before + line + behind;
}

}  // namespace

std::string ShownStatus(const std::optional<AttributeValues>& attributes) {
  const auto* status = attributes ? ValueOf(*attributes, "Status") : nullptr;
  if (!status) return "";
  return ", now \"" + DisplayText(*status) + "\"" + Shown(*attributes, "Comment", " (", ")") +
         Shown(*attributes, "Revision", ", revision ", "");
}

}  // namespace zrkhost
