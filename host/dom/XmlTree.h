#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace standin {

// The elements of an XML document with their text, in the platform's encoding.
//
// Elements lie in one list in document order, their attributes in another, and all text in one string: what
// is below an element is a range of each. So every search is a scan, and a document of any depth ends without
// recursion.
class XmlTree {
public:
  struct Element {
    std::string Name;
    // Behind the last element below this one.
    std::size_t End = 0;
    // Where the text below it lies.
    std::size_t TextBegin = 0;
    std::size_t TextEnd = 0;
    // Where its attributes lie.
    std::size_t AttributesBegin = 0;
    std::size_t AttributesEnd = 0;
  };

  // Nothing unless the text is one well-formed document. External entities are not followed.
  static std::optional<XmlTree> Parse(std::string_view text);

  // The document element is the first.
  const std::vector<Element>& Elements() const { return elements_; }
  // All text below an element, in order, joined.
  std::string TextBelow(std::size_t element) const;
  // Value of an element's attribute; empty when it has none of that name.
  std::string AttributeOf(std::size_t element, std::string_view name) const;

private:
  friend class XmlTreeBuilder;

  struct Attribute {
    std::string Name;
    // In UTF-8.
    std::string Value;
  };

  std::vector<Element> elements_;
  std::vector<Attribute> attributes_;
  // In UTF-8, as the parser gives it: it comes in pieces that may end within a character.
  std::string text_;
};

}  // namespace standin
