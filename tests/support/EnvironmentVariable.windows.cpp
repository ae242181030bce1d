#include <stdlib.h>

#include "support/EnvironmentVariable.h"

void SetEnvironmentValue(const std::string& name, const std::optional<std::string>& value) {
  // Sets the runtime's copy and that of the process alike. An empty value takes the variable away.
  _putenv((name + "=" + value.value_or("")).c_str());
}
