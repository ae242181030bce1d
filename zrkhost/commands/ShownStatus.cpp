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

// For a terminal, on one line, with `before` and `behind` around it; empty when there is nothing.
std::string Shown(const AttributeValues& attributes, const char* name, const char* before,
                  const char* behind) {
  const auto* value = ValueOf(attributes, name);
  const auto line = value ? OneLine(*value) : "";
  return line.empty() ? "" : before + line + behind;
}

}  // namespace

std::string ShownStatus(const std::optional<AttributeValues>& attributes) {
  const auto shown = attributes.value_or(AttributeValues());
  const auto* status = ValueOf(shown, "Status");
  return (status && !status->empty() ? ", now \"" + DisplayText(*status) + "\"" : ", now no status") +
         Shown(shown, "Comment", " (", ")") + Shown(shown, "Revision", ", revision ", "");
}

}  // namespace zrkhost
