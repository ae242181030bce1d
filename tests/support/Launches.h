#pragma once

#include <vector>

#include "windows/LaunchLog.h"

// Records the calls of CreateProcessW while it lives.
class Launches {
public:
  Launches();
  Launches(const Launches&) = delete;
  Launches& operator=(const Launches&) = delete;
  ~Launches();

  const std::vector<standin::Launch>& All() const { return launches_; }
  void Clear() { launches_.clear(); }

private:
  std::vector<standin::Launch> launches_;
};
