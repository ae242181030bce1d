#include "dom/XmlTree.h"

#include <expat.h>

#include <limits>
#include <memory>
#include <type_traits>
#include <utility>

#include "text/NativeText.h"

namespace standin {

class XmlTreeBuilder {
public:
  explicit XmlTreeBuilder(XML_Parser parser) : parser_(parser) {
    XML_SetUserData(parser, this);
    XML_SetElementHandler(parser, &StartElement, &EndElement);
    XML_SetCharacterDataHandler(parser, &Text);
  }

  XmlTree Tree;

private:
  // Nothing that is thrown may go through the parser, which is C: it is stopped instead.
  template <class Step>
  static void Guarded(void* user, Step step) noexcept {
    auto& builder = *static_cast<XmlTreeBuilder*>(user);
    try {
      step(builder);
    } catch (...) {
      XML_StopParser(builder.parser_, XML_FALSE);
    }
  }

  static void StartElement(void* user, const XML_Char* name, const XML_Char** attributes) {
    Guarded(user, [name, attributes](XmlTreeBuilder& builder) {
      auto& tree = builder.Tree;
      const std::size_t attributesBegin = tree.attributes_.size();
      for (const XML_Char** pair = attributes; *pair; pair += 2) {
        tree.attributes_.push_back({NativeFromUtf8(pair[0]), pair[1]});
      }
      builder.open_.push_back(tree.elements_.size());
      tree.elements_.push_back({.Name = NativeFromUtf8(name),
                                .TextBegin = tree.text_.size(),
                                .AttributesBegin = attributesBegin,
                                .AttributesEnd = tree.attributes_.size()});
    });
  }

  static void EndElement(void* user, const XML_Char* /*name*/) {
    auto& builder = *static_cast<XmlTreeBuilder*>(user);
    auto& tree = builder.Tree;
    XmlTree::Element& element = tree.elements_[builder.open_.back()];
    builder.open_.pop_back();
    element.End = tree.elements_.size();
    element.TextEnd = tree.text_.size();
  }

  static void Text(void* user, const XML_Char* text, int length) {
    Guarded(user, [=](XmlTreeBuilder& builder) {
      builder.Tree.text_.append(text, static_cast<std::size_t>(length));
    });
  }

  XML_Parser parser_;
  // The elements that have begun and not ended, the innermost last.
  std::vector<std::size_t> open_;
};

std::optional<XmlTree> XmlTree::Parse(std::string_view text) {
  if (text.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) return std::nullopt;
  const std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)> parser(
      XML_ParserCreate(nullptr), &XML_ParserFree);
  if (!parser) return std::nullopt;
  XmlTreeBuilder builder(parser.get());
  // In one piece: given piece by piece, a long token would be looked at anew with each of them.
  if (XML_Parse(parser.get(), text.data(), static_cast<int>(text.size()), XML_TRUE) != XML_STATUS_OK) {
    return std::nullopt;
  }
  return std::move(builder.Tree);
}

std::string XmlTree::TextBelow(std::size_t element) const {
  const Element& below = elements_[element];
  return NativeFromUtf8(std::string_view(text_).substr(below.TextBegin, below.TextEnd - below.TextBegin));
}

std::string XmlTree::AttributeOf(std::size_t element, std::string_view name) const {
  const Element& owner = elements_[element];
  for (std::size_t index = owner.AttributesBegin; index < owner.AttributesEnd; ++index) {
    if (attributes_[index].Name == name) return NativeFromUtf8(attributes_[index].Value);
  }
  return {};
}

}  // namespace standin
