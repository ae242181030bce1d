// The schema of session files, the manual page and the program say the same.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <set>

#include "session/SessionDescription.h"
#include "support/Files.h"
#include "support/Platform.h"

namespace {

using Json = nlohmann::json;

Json Schema() {
  return Json::parse(ReadFile(ExecutableFolder() / "session.schema.json"));
}

// The keys of all objects that a schema describes.
void CollectKeys(const Json& schema, std::set<std::string>& keys) {
  if (!schema.is_structured()) return;
  if (schema.is_object() && schema.contains("properties")) {
    for (const auto& [key, value] : schema["properties"].items()) keys.insert(key);
  }
  for (const auto& value : schema) CollectKeys(value, keys);
}

std::string Between(const std::string& text, const std::string& begin, const std::string& end) {
  const auto from = text.find(begin);
  return text.substr(from, text.find(end, from) - from);
}

TEST(SessionSchema, HasTheDefaultsOfTheProgram) {
  const auto schema = Schema();
  const zrkhost::SessionDescription session;
  const zrkhost::ProductDescription product;
  const auto& properties = schema["properties"];
  EXPECT_EQ(properties["window"]["default"], session.Window);
  EXPECT_EQ(properties["dictionary"]["default"], session.Dictionary);
  const auto& attributeClass = schema["definitions"]["attributeClass"]["properties"];
  EXPECT_EQ(attributeClass["parameters"]["default"], session.Class->Parameters);
  EXPECT_EQ(attributeClass["modifiable"]["default"], session.Class->Modifiable);
  EXPECT_EQ(schema["definitions"]["product"]["properties"]["linkable"]["default"], product.Linkable);
  EXPECT_EQ(schema["definitions"]["product"]["properties"]["extendable"]["default"], product.Extendable);
}

TEST(SessionSchema, HasEveryKeyInTheManualPage) {
  const auto page = ReadFile(ExecutableFolder() / "zrkhost.1");
  const auto section = Between(page, ".SH SESSION FILE\n", "\n.SH REPORT\n");
  std::set<std::string> keys;
  CollectKeys(Schema(), keys);
  EXPECT_THAT(keys, testing::IsSupersetOf({"root", "products", "children", "modifiable"}));
  for (const auto& key : keys) EXPECT_THAT(section, testing::HasSubstr("\n.TP\n.B " + key + "\n"));
}

}  // namespace
