#include "console/SessionSchema.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <valijson/adapters/nlohmann_json_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validator.hpp>

#include "base/CallError.h"
#include "session/SessionFile.h"
#include "support/Files.h"
#include "support/Platform.h"

using Json = nlohmann::json;

std::string SchemaComplaint(const std::string& json) {
  using Adapter = valijson::adapters::NlohmannJsonAdapter;
  static const auto schema = [] {
    auto parsed = std::make_unique<valijson::Schema>();
    const Json text = Json::parse(ReadFile(ExecutableFolder() / "session.schema.json"));
    valijson::SchemaParser(valijson::SchemaParser::kDraft7).populateSchema(Adapter(text), *parsed);
    return parsed;
  }();

  const Json value = Json::parse(json);
  valijson::ValidationResults results;
  if (valijson::Validator().validate(*schema, Adapter(value), &results)) return "";
  std::string complaint = "refused:";
  for (valijson::ValidationResults::Error error; results.popError(error);) {
    for (const auto& step : error.context) complaint += " " + step;
    complaint += " " + error.description + "\n";
  }
  return complaint;
}

void ExpectSchemaTakesWhatZrkhostTakes(const std::string& json) {
  try {
    zrkhost::ParseSession(json, "session.json", ExecutableFolder());
  } catch (const zrkhost::CallError&) {
    return;
  }
  EXPECT_EQ(SchemaComplaint(json), "") << json;
}
