#include "CATIDOM.h"

#include <memory>
#include <utility>
#include <vector>

#include "ZRKAttModelerServices.h"
#include "ZRKAttPackageBaseServices.h"
#include "dom/XmlTree.h"
#include "framework/Facet.h"

namespace {

using standin::Facet;
using standin::OneInterface;
using standin::XmlTree;

// What is handed out keeps the tree it is of.
using SharedTree = std::shared_ptr<const XmlTree>;

// An element, as node and as element. Made for each request: two of the same element are two objects.
class Element final : public CATBaseUnknown {
public:
  Element(SharedTree tree, std::size_t index) : tree_(std::move(tree)), index_(index) {}

  CATBaseUnknown* QueryInterface(const CATIID& interfaceId) override {
    CATBaseUnknown* part = nullptr;
    if (interfaceId == CATIDOMNode::ClassId()) part = &node_;
    if (interfaceId == CATIDOMElement::ClassId()) part = &element_;
    if (part) part->AddRef();
    return part;
  }

  std::string TextBelow() const { return tree_->TextBelow(index_); }

private:
  struct NodePart final : Facet<CATIDOMNode> {
    using Facet::Facet;
  };
  struct ElementPart final : Facet<CATIDOMElement> {
    explicit ElementPart(Element& self) : Facet(self), Self(self) {}
    CATUnicodeString GetAttribute(const CATUnicodeString& name) override;
    CATIDOMNodeList_var GetElementsByTagName(const CATUnicodeString& name) override;
    Element& Self;
  };

  const SharedTree tree_;
  const std::size_t index_;
  NodePart node_{*this};
  ElementPart element_{*this};
};

class NodeList final : public OneInterface<CATIDOMNodeList> {
public:
  NodeList(SharedTree tree, std::vector<std::size_t> indexes)
      : tree_(std::move(tree)), indexes_(std::move(indexes)) {}

  int GetLength() override { return static_cast<int>(indexes_.size()); }

  CATIDOMNode_var Item(int position) override {
    if (position < 0 || position >= GetLength()) return nullptr;
    return CATBaseUnknown_var::Adopt(new Element(tree_, indexes_[static_cast<std::size_t>(position)]));
  }

private:
  const SharedTree tree_;
  const std::vector<std::size_t> indexes_;
};

class Document final : public OneInterface<CATIDOMDocument> {
public:
  explicit Document(SharedTree tree) : tree_(std::move(tree)) {}

  CATIDOMElement_var GetDocumentElement() override {
    return CATBaseUnknown_var::Adopt(new Element(tree_, 0));
  }

private:
  const SharedTree tree_;
};

CATUnicodeString Element::ElementPart::GetAttribute(const CATUnicodeString& name) {
  return Self.tree_->AttributeOf(Self.index_, name.ConvertToChar()).c_str();
}

CATIDOMNodeList_var Element::ElementPart::GetElementsByTagName(const CATUnicodeString& name) {
  const auto& elements = Self.tree_->Elements();
  std::vector<std::size_t> found;
  for (std::size_t index = Self.index_ + 1; index < elements[Self.index_].End; ++index) {
    if (elements[index].Name == name.ConvertToChar()) found.push_back(index);
  }
  return CATIDOMNodeList_var::Adopt(new NodeList(Self.tree_, std::move(found)));
}

}  // namespace

HRESULT ZRKAttModelerServices::CreateXMLDOMFromString(const CATUnicodeString& text,
                                                      CATIDOMDocument_var& document) {
  document = nullptr;
  auto tree = XmlTree::Parse({text.ConvertToChar(), static_cast<std::size_t>(text.GetLengthInByte())});
  if (!tree) return E_FAIL;
  document = CATIDOMDocument_var::Adopt(new Document(std::make_shared<const XmlTree>(std::move(*tree))));
  return document ? S_OK : E_FAIL;
}

void ZRKAttPackageBaseServices::GetNodeText(const CATIDOMNode_var& node, CATUnicodeString& text) {
  const auto* const element = node ? dynamic_cast<Element*>(node->GetImpl()) : nullptr;
  text = element ? element->TextBelow().c_str() : "";
}
