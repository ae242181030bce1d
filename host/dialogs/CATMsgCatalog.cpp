#include "CATMsgCatalog.h"

#include <map>
#include <string>
#include <utility>

#include "dialogs/MessageCatalogs.h"

namespace {

// Texts by catalog and key.
std::map<std::pair<std::string, std::string>, std::string>& Texts() {
  static auto* const texts = new std::map<std::pair<std::string, std::string>, std::string>;
  return *texts;
}

standin::CatalogListener& Listener() {
  static auto* const listener = new standin::CatalogListener;
  return *listener;
}

// One pass, so that a "/P1" in a parameter stays as it is.
std::string FillIn(const std::string& text, const CATUnicodeString* parameters, int parameterCount) {
  std::string filled;
  for (std::size_t position = 0; position < text.size();) {
    const bool isPlace = text.compare(position, 2, "/P") == 0 && position + 2 < text.size() &&
                         text[position + 2] >= '1' && text[position + 2] <= '9';
    if (!isPlace) {
      filled += text[position++];
      continue;
    }
    const int index = text[position + 2] - '1';
    if (parameters && index < parameterCount) filled += parameters[index].ConvertToChar();
    position += 3;
  }
  return filled;
}

}  // namespace

namespace standin {

void SetCatalogText(const std::string& catalog, const std::string& key, const std::string& text) {
  Texts()[{catalog, key}] = text;
}

void ClearCatalogs() {
  Texts().clear();
}

void SetCatalogListener(CatalogListener listener) {
  Listener() = std::move(listener);
}

}  // namespace standin

CATUnicodeString CATMsgCatalog::BuildMessage(const CATUnicodeString& catalog, const CATUnicodeString& key,
                                             const CATUnicodeString* parameters, int parameterCount,
                                             const CATUnicodeString& defaultText) {
  if (Listener()) Listener()(catalog.ConvertToChar(), key.ConvertToChar());
  const auto found = Texts().find({catalog.ConvertToChar(), key.ConvertToChar()});
  if (found == Texts().end()) return defaultText;
  return FillIn(found->second, parameters, parameterCount).c_str();
}
