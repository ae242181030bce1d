#pragma once

#include <optional>
#include <string>

// Gives an environment variable a value, and back its own at the end. No value: it is not set.
class EnvironmentVariable {
public:
  EnvironmentVariable(std::string name, const std::optional<std::string>& value);
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;
  ~EnvironmentVariable();

private:
  std::string name_;
  std::optional<std::string> previous_;
};

std::optional<std::string> GetEnvironmentValue(const std::string& name);
void SetEnvironmentValue(const std::string& name, const std::optional<std::string>& value);
