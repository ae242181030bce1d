// The session files of zrkhost.

#include <nlohmann/json.hpp>
#include <set>

#include "base/CallError.h"
#include "fuzz/Fuzzing.h"
#include "session/SessionFile.h"

namespace {

using Json = nlohmann::json;

const std::filesystem::path kFolder = "/home/anna";

void WhatIsTakenFitsTogether(const zrkhost::SessionDescription& session) {
  std::set<std::string> names;
  for (const auto& product : session.Products) {
    Require(names.insert(product.Name).second, "products have names of their own");
    if (!product.Document || product.Document->empty()) continue;
    Require(product.Document->is_absolute(), "documents have absolute paths");
    Require(*product.Document == product.Document->lexically_normal(), "documents have normal paths");
  }
  Require(names.contains(session.Root), "the root is one of the products");
  for (const auto& product : session.Products) {
    std::set<std::string> children;
    for (const auto& child : product.Children) {
      Require(children.insert(child.Name).second, "the children of a product have different names");
      Require(!child.Reference || names.contains(*child.Reference), "references are products");
      Require(child.Reference != product.Name, "no product contains itself");
    }
  }
}

void AnyTextIsTakenOrRefusedWithItsPlace(const std::string& text) {
  try {
    WhatIsTakenFitsTogether(zrkhost::ParseSession(text, "car.json", kFolder));
  } catch (const zrkhost::CallError& error) {
    Require(std::string_view(error.what()).starts_with("car.json: "), "what is wrong is told with the file");
  }
}

void ValuesComeBack(FuzzedDataProvider& values) {
  const std::vector<std::string> names = ConsumeNames(values, 8, kPlainCharacters);
  if (names.empty()) return;
  Json products;
  for (std::size_t i = 0; i < names.size(); ++i) {
    Json& product = products[names[i]] = Json::object();
    product["document"] = "d" + std::to_string(i) + ConsumeWord(values, "abc0123456789 .-", 10);
    product["linkable"] = values.ConsumeBool();
    // Only products behind it, so that none contains itself.
    if (i + 1 < names.size() && values.ConsumeBool()) {
      product["children"] = {{{"name", "child"}, {"reference", names[i + 1]}}};
    }
  }
  const Json session = {{"root", names[0]}, {"products", products}, {"window", values.ConsumeBool()}};

  const auto read = zrkhost::ParseSession(session.dump(), "car.json", kFolder);
  Require(read.Root == names[0] && read.Window == session["window"], "the session's values come back");
  Require(read.Products.size() == names.size(), "each product comes back");
  for (const auto& product : read.Products) {
    const Json& written = products[product.Name];
    Require(product.Document == kFolder / written["document"], "the document");
    Require(product.Linkable == written["linkable"], "whether it is linkable");
    Require(product.Children.size() == (written.contains("children") ? 1 : 0), "the children");
    for (const auto& child : product.Children) {
      Require(child.Reference == written["children"][0]["reference"], "the child's reference");
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  AnyTextIsTakenOrRefusedWithItsPlace(std::string(Text(data, size)));
  FuzzedDataProvider values(data, size);
  ValuesComeBack(values);
  return 0;
}
