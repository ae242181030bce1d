#pragma once

#include <string>
#include <vector>

#include "dialogs/MessageCatalogs.h"

// Records the keys of the messages that are built while it lives, each as "catalog/key".
class CatalogLookUps {
public:
  CatalogLookUps() {
    standin::SetCatalogListener([this](const std::string& catalog, const std::string& key) {
      keys_.push_back(std::string(catalog).append("/").append(key));
    });
  }
  CatalogLookUps(const CatalogLookUps&) = delete;
  CatalogLookUps& operator=(const CatalogLookUps&) = delete;
  ~CatalogLookUps() { standin::SetCatalogListener({}); }

  const std::vector<std::string>& Keys() const { return keys_; }

private:
  std::vector<std::string> keys_;
};
