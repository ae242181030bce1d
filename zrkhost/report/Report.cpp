#include "report/Report.h"

#include "base/CallError.h"
#include "base/Encoding.h"
#include "session/ProductFacts.h"

namespace zrkhost {

using Json = nlohmann::ordered_json;

namespace {

template <class Value>
Json OrNull(const std::optional<Value>& value) {
  return value ? Json(*value) : Json(nullptr);
}

Json ProductJson(const Place& place) {
  Json product;
  product["path"] = Utf8FromNative(standin::ProductPath(place.Product));
  const auto reference = standin::ReferenceName(place.Product);
  product["reference"] = reference.empty() ? Json(nullptr) : Json(Utf8FromNative(reference));
  const auto document = DocumentOf(place.Product);
  product["document"] = document ? Json(Utf8FromNative(*document)) : Json(nullptr);
  product["attributes"] = nullptr;
  if (const auto attributes = AttributesOf(place.Product)) {
    product["attributes"] = Json::object();
    for (const auto& [name, value] : *attributes) product["attributes"][name] = value;
  }
  return product;
}

}  // namespace

Report::Report(const std::filesystem::path& file) : stream_(file, std::ios::binary) {
  if (!stream_) throw CallError(Utf8FromPath(file) + ": the report cannot be written");
}

void Report::Add(const CommandRecord& record) {
  Json command;
  command["command"] = Utf8FromNative(record.Given.Line);
  command["result"] = OrNull(record.Result.Result);
  command["seconds"] = record.Seconds;
  if (record.Result.Text) command["text"] = *record.Result.Text;
  if (record.Result.Record) command["record"] = *record.Result.Record;
  command["output"] = Utf8FromNative(record.Output);
  command["events"] = record.Events;
  commands_.push_back(std::move(command));
}

bool Report::Write(const HostSession& session) {
  Json report;
  report["commands"] = std::move(commands_);
  report["products"] = Json::array();
  for (const Place& place : session.Places()) report["products"].push_back(ProductJson(place));
  // Every text was made well-formed when it was taken over; should one not be, the report is still written.
  stream_ << report.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
  stream_.close();
  return stream_.good();
}

}  // namespace zrkhost
