#pragma once

#include <algorithm>
#include <string>

// A path of the host's as this system writes it.
inline std::string WithSlashes(std::string path) {
  std::replace(path.begin(), path.end(), '\\', '/');
  return path;
}
