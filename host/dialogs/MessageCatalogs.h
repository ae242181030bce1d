#pragma once

#include <functional>
#include <string>

// Control of the stand-in: the message catalogs of the installation.
namespace standin {

// Puts a text into a catalog. /P1 to /P9 in it stand for the parameters of a message; one that the
// message does not have is empty.
void SetCatalogText(const std::string& catalog, const std::string& key, const std::string& text);
void ClearCatalogs();

// Is called for each message that is built, before it is.
using CatalogListener = std::function<void(const std::string& catalog, const std::string& key)>;
void SetCatalogListener(CatalogListener listener);

}  // namespace standin
