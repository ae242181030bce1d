#pragma once

#include <string>
#include <utility>
#include <vector>

#include "product/ProductModel.h"

// Records the products that ask to be redrawn while it lives, by their paths and in order.
class RedrawnProducts {
public:
  RedrawnProducts() {
    standin::SetRedrawListener(
        [this](const CATBaseUnknown_var& product) { paths_.push_back(standin::ProductPath(product)); });
  }
  RedrawnProducts(const RedrawnProducts&) = delete;
  RedrawnProducts& operator=(const RedrawnProducts&) = delete;
  ~RedrawnProducts() { standin::SetRedrawListener({}); }

  const std::vector<std::string>& Paths() const { return paths_; }

private:
  std::vector<std::string> paths_;
};

// Records the work modes that are set while it lives: product path and mode.
class WorkModes {
public:
  WorkModes() {
    standin::SetWorkModeListener([this](const CATBaseUnknown_var& product, int mode) {
      modes_.emplace_back(standin::ProductPath(product), mode);
    });
  }
  WorkModes(const WorkModes&) = delete;
  WorkModes& operator=(const WorkModes&) = delete;
  ~WorkModes() { standin::SetWorkModeListener({}); }

  const std::vector<std::pair<std::string, int>>& All() const { return modes_; }

private:
  std::vector<std::pair<std::string, int>> modes_;
};
