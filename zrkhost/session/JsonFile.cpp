#include "session/JsonFile.h"

#include <algorithm>
#include <set>

#include "base/CallError.h"

namespace zrkhost {

namespace {

// No file that means anything here comes near; a bound keeps later work from exhausting the stack.
constexpr std::size_t kDeepest = 100;

[[noreturn]] void FailAt(const std::string& fileName, const std::string& pointer, const std::string& what) {
  throw CallError(fileName + ": " + (pointer.empty() ? "the whole document" : pointer) + ": " + what);
}

// Hears of everything in a text in order, and refuses what a parser would take without a word.
class StrictReader : public nlohmann::json_sax<nlohmann::json> {
public:
  explicit StrictReader(const std::string& fileName) : fileName_(fileName) {}

  bool null() override { return ValueEnded(); }
  bool boolean(bool) override { return ValueEnded(); }
  bool number_integer(number_integer_t) override { return ValueEnded(); }
  bool number_unsigned(number_unsigned_t) override { return ValueEnded(); }
  bool number_float(number_float_t, const string_t&) override { return ValueEnded(); }
  bool string(string_t&) override { return ValueEnded(); }
  bool binary(binary_t&) override { return ValueEnded(); }

  bool start_object(std::size_t) override { return Begin(false); }
  bool start_array(std::size_t) override { return Begin(true); }
  bool end_object() override { return End(); }
  bool end_array() override { return End(); }

  bool key(string_t& key) override {
    levels_.back().Key = key;
    if (!levels_.back().Keys.insert(key).second) FailAt(fileName_, Pointer(), "stands twice in its object");
    return true;
  }

  // The parser proper reports it, but for a number that is too large, of which it names no place.
  bool parse_error(std::size_t, const std::string& token, const nlohmann::detail::exception& error) override {
    if (dynamic_cast<const nlohmann::json::out_of_range*>(&error)) {
      FailAt(fileName_, Pointer(), "the number " + token + " is too large");
    }
    return false;
  }

private:
  struct Level {
    bool IsArray = false;
    std::size_t Index = 0;
    std::string Key = {};
    std::set<std::string> Keys = {};
  };

  bool Begin(bool isArray) {
    if (levels_.size() >= kDeepest) FailAt(fileName_, Pointer(), "is nested too deeply");
    levels_.push_back({.IsArray = isArray});
    return true;
  }

  bool End() {
    levels_.pop_back();
    return ValueEnded();
  }

  bool ValueEnded() {
    if (!levels_.empty() && levels_.back().IsArray) ++levels_.back().Index;
    return true;
  }

  std::string Pointer() const {
    std::string pointer;
    for (const Level& level : levels_) {
      pointer += level.IsArray ? PointerStep(level.Index) : PointerStep(level.Key);
    }
    return pointer;
  }

  std::string fileName_;
  std::vector<Level> levels_;
};

// The parser's messages begin with an identifier of the library in brackets.
std::string WithoutIdentifier(const std::string& message) {
  const auto end = message.find("] ");
  return message.starts_with('[') && end != std::string::npos ? message.substr(end + 2) : message;
}

}  // namespace

nlohmann::json ParseJson(const std::string& text, const std::string& fileName) {
  StrictReader reader(fileName);
  nlohmann::json::sax_parse(text, &reader);
  try {
    return nlohmann::json::parse(text);
  } catch (const nlohmann::json::exception& error) {
    throw CallError(fileName + ": not JSON: " + WithoutIdentifier(error.what()));
  }
}

std::string PointerStep(std::string_view key) {
  std::string step = "/";
  for (const char character : key) {
    if (character == '~') {
      step += "~0";
    } else if (character == '/') {
      step += "~1";
    } else {
      step += character;
    }
  }
  return step;
}

std::string PointerStep(std::size_t index) {
  return PointerStep(std::to_string(index));
}

JsonNode::JsonNode(const nlohmann::json& value, std::string fileName)
    : JsonNode(value, std::move(fileName), "") {}

JsonNode::JsonNode(const nlohmann::json& value, std::string fileName, std::string pointer)
    : value_(&value), fileName_(std::move(fileName)), pointer_(std::move(pointer)) {}

void JsonNode::Fail(const std::string& what) const {
  FailAt(fileName_, pointer_, what);
}

void JsonNode::Expect(bool right, const char* type) const {
  if (!right) Fail(std::string("must be ") + type + ", not " + value_->type_name());
}

std::string JsonNode::Text() const {
  Expect(value_->is_string(), "a string");
  auto text = value_->get<std::string>();
  if (text.find('\0') != std::string::npos) Fail("must not hold the character 0");
  return text;
}

std::string JsonNode::Name() const {
  auto name = Text();
  if (name.empty()) Fail("must not be empty");
  return name;
}

bool JsonNode::Flag() const {
  Expect(value_->is_boolean(), "true or false");
  return value_->get<bool>();
}

std::vector<JsonNode> JsonNode::Items() const {
  Expect(value_->is_array(), "an array");
  std::vector<JsonNode> items;
  items.reserve(value_->size());
  for (std::size_t i = 0; i < value_->size(); ++i) {
    items.push_back(JsonNode((*value_)[i], fileName_, pointer_ + PointerStep(i)));
  }
  return items;
}

std::vector<JsonNode::Member> JsonNode::Members() const {
  Expect(value_->is_object(), "an object");
  std::vector<Member> members;
  members.reserve(value_->size());
  for (auto member = value_->begin(); member != value_->end(); ++member) {
    JsonNode node(member.value(), fileName_, pointer_ + PointerStep(member.key()));
    if (member.key().find('\0') != std::string::npos) node.Fail("must not hold the character 0 in its key");
    members.push_back({member.key(), std::move(node)});
  }
  return members;
}

void JsonNode::AllowOnly(std::initializer_list<std::string_view> keys) const {
  for (const Member& member : Members()) {
    if (std::find(keys.begin(), keys.end(), member.Key) == keys.end())
      member.Value.Fail("is not a key known here");
  }
}

bool JsonNode::Has(const std::string& key) const {
  Expect(value_->is_object(), "an object");
  return value_->contains(key);
}

JsonNode JsonNode::operator[](const std::string& key) const {
  if (!Has(key)) At(key).Fail("is missing");
  return JsonNode(value_->at(key), fileName_, pointer_ + PointerStep(key));
}

JsonNode JsonNode::At(const std::string& key) const {
  return JsonNode(*value_, fileName_, pointer_ + PointerStep(key));
}

}  // namespace zrkhost
