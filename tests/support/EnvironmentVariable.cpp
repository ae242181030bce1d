#include "support/EnvironmentVariable.h"

#include <cstdlib>
#include <utility>

EnvironmentVariable::EnvironmentVariable(std::string name, const std::optional<std::string>& value)
    : name_(std::move(name)), previous_(GetEnvironmentValue(name_)) {
  SetEnvironmentValue(name_, value);
}

EnvironmentVariable::~EnvironmentVariable() {
  SetEnvironmentValue(name_, previous_);
}

std::optional<std::string> GetEnvironmentValue(const std::string& name) {
  const char* value = std::getenv(name.c_str());
  if (!value) return std::nullopt;
  return value;
}
