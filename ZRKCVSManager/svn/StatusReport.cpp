#include "svn/StatusReport.h"

#include <string_view>

#include "ZRKAttModelerServices.h"
#include "ZRKAttPackageBaseServices.h"
#include "text/Text.h"

namespace zrk::svn {

bool ShowsForeignLock(const CATUnicodeString& report) {
  return text::View(report).find(" O ") != std::string_view::npos;
}

std::optional<CATUnicodeString> FirstLockOwner(const CATUnicodeString& xmlReport) {
  CATIDOMDocument_var document;
  ZRKAttModelerServices::CreateXMLDOMFromString(xmlReport, document);
  if (!document) return std::nullopt;
  const CATIDOMElement_var root = document->GetDocumentElement();
  if (!root) return std::nullopt;
  const CATIDOMNodeList_var owners = root->GetElementsByTagName("owner");
  if (!owners || owners->GetLength() == 0) return std::nullopt;
  const CATIDOMNode_var first = owners->Item(0);
  if (!first) return std::nullopt;
  CATUnicodeString owner;
  ZRKAttPackageBaseServices::GetNodeText(first, owner);
  return owner;
}

}  // namespace zrk::svn
