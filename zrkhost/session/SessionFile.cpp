#include "session/SessionFile.h"

#include <algorithm>
#include <set>

#include "base/Encoding.h"
#include "base/TextFile.h"
#include "session/JsonFile.h"
#include "session/SessionStructure.h"

namespace zrkhost {

namespace {

namespace fs = std::filesystem;

// Paths in session files are written with either separator.
fs::path WrittenPath(std::string text) {
  std::replace(text.begin(), text.end(), '\\', '/');
  return PathFromUtf8(text);
}

AttributeClass ReadAttributeClass(const JsonNode& node) {
  AttributeClass result;
  node.AllowOnly({"parameters", "modifiable"});
  if (node.Has("parameters")) {
    result.Parameters.clear();
    for (const JsonNode& item : node["parameters"].Items()) {
      const auto name = item.Name();
      if (std::find(result.Parameters.begin(), result.Parameters.end(), name) != result.Parameters.end()) {
        item.Fail("names the parameter \"" + name + "\" a second time");
      }
      result.Parameters.push_back(name);
    }
  }
  if (node.Has("modifiable")) result.Modifiable = node["modifiable"].Flag();
  return result;
}

// Reads the parts of a session in which what is right depends on the attribute class and the document folder.
class ProductReader {
public:
  ProductReader(const std::optional<AttributeClass>& attributeClass, fs::path documents)
      : class_(attributeClass), documents_(std::move(documents)) {}

  ProductDescription Product(const std::string& name, const JsonNode& node) const {
    node.AllowOnly({"document", "linkable", "extendable", "attributes", "children"});
    if (name.empty()) node.Fail("a product needs a name");
    ProductDescription product;
    product.Name = name;
    if (node.Has("document")) product.Document = Document(node["document"]);
    if (node.Has("linkable")) product.Linkable = node["linkable"].Flag();
    if (node.Has("extendable")) product.Extendable = node["extendable"].Flag();
    if (node.Has("attributes")) product.Attributes = Attributes(node["attributes"]);
    if (node.Has("children")) product.Children = Children(node["children"]);
    return product;
  }

private:
  fs::path Document(const JsonNode& node) const {
    const auto text = node.Text();
    return text.empty() ? fs::path() : (documents_ / WrittenPath(text)).lexically_normal();
  }

  AttributeValues Attributes(const JsonNode& node) const {
    AttributeValues values;
    for (const auto& [parameter, value] : node.Members()) {
      values.emplace_back(parameter, value.Text());
      if (class_ && std::find(class_->Parameters.begin(), class_->Parameters.end(), parameter) ==
                        class_->Parameters.end()) {
        value.Fail("the attribute class has no parameter \"" + parameter + "\"");
      }
    }
    return values;
  }

  std::vector<ChildDescription> Children(const JsonNode& node) const {
    std::vector<ChildDescription> children;
    std::set<std::string> names;
    for (const JsonNode& item : node.Items()) {
      item.AllowOnly({"name", "reference", "attributes"});
      ChildDescription child;
      child.Name = item["name"].Name();
      if (!names.insert(child.Name).second) {
        item["name"].Fail("another child of the same product is named \"" + child.Name + "\" too");
      }
      const JsonNode reference = item["reference"];
      if (!reference.IsNull()) child.Reference = reference.Text();
      if (item.Has("attributes")) child.Attributes = Attributes(item["attributes"]);
      children.push_back(std::move(child));
    }
    return children;
  }

  const std::optional<AttributeClass>& class_;
  fs::path documents_;
};

}  // namespace

SessionDescription ParseSession(const std::string& text, const std::string& fileName,
                                const fs::path& folder) {
  const auto json = ParseJson(text, fileName);
  const JsonNode top(json, fileName);
  top.AllowOnly({"documents", "window", "attributeClass", "dictionary", "catalogs", "root", "products"});

  SessionDescription session;
  fs::path documents = folder;
  if (top.Has("documents")) documents /= WrittenPath(top["documents"].Text());
  if (top.Has("window")) session.Window = top["window"].Flag();
  if (top.Has("dictionary")) session.Dictionary = top["dictionary"].Flag();
  if (top.Has("attributeClass")) {
    const JsonNode node = top["attributeClass"];
    session.Class.reset();
    if (!node.IsNull()) session.Class = ReadAttributeClass(node);
  }
  if (top.Has("catalogs")) {
    for (const auto& [catalog, node] : top["catalogs"].Members()) {
      auto& texts = session.Catalogs[catalog];
      for (const auto& [key, value] : node.Members()) texts[key] = value.Text();
    }
  }
  const ProductReader reader(session.Class, documents);
  for (const auto& [name, node] : top["products"].Members()) {
    session.Products.push_back(reader.Product(name, node));
  }
  session.Root = top["root"].Text();
  CheckStructure(session, fileName);
  return session;
}

SessionDescription ReadSessionFile(const fs::path& file) {
  return ParseSession(ReadTextFile(file), Utf8FromPath(file), fs::absolute(file).parent_path());
}

}  // namespace zrkhost
