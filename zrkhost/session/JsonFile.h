#pragma once

#include <initializer_list>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

// Reading JSON strictly, so that every mistake is reported with its place.
namespace zrkhost {

// Parses a whole text. Throws CallError, with the file name and a line and column or a JSON pointer, when it
// is not JSON, when a key stands twice in one object, and when it is nested deeper than any sensible file.
nlohmann::json ParseJson(const std::string& text, const std::string& fileName);

// A reference token of a JSON pointer, "/" in front.
std::string PointerStep(std::string_view key);
std::string PointerStep(std::size_t index);

// A value and where it stands. What it is asked for must be there and of the right type, else the question
// throws CallError.
class JsonNode {
public:
  JsonNode(const nlohmann::json& value, std::string fileName);

  [[noreturn]] void Fail(const std::string& what) const;

  bool IsNull() const { return value_->is_null(); }

  // May not hold the character 0, which ends a text of the host.
  std::string Text() const;
  // A text that is not empty.
  std::string Name() const;
  bool Flag() const;
  std::vector<JsonNode> Items() const;

  struct Member;
  std::vector<Member> Members() const;
  // Fails when it is no object or holds any other key.
  void AllowOnly(std::initializer_list<std::string_view> keys) const;
  bool Has(const std::string& key) const;
  JsonNode operator[](const std::string& key) const;

private:
  JsonNode(const nlohmann::json& value, std::string fileName, std::string pointer);
  void Expect(bool right, const char* type) const;
  // The place of a key that may be missing.
  JsonNode At(const std::string& key) const;

  const nlohmann::json* value_;
  std::string fileName_;
  std::string pointer_;
};

struct JsonNode::Member {
  std::string Key;
  JsonNode Value;
};

}  // namespace zrkhost
