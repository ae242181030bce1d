#include "report/Report.h"

#include "base/Encoding.h"
#include "session/ProductRecords.h"

namespace zrkhost {

using Json = nlohmann::ordered_json;

namespace {

template <class Value>
Json OrNull(const std::optional<Value>& value) {
  return value ? Json(*value) : Json(nullptr);
}

Json ProductJson(const ProductRecord& record) {
  Json product;
  product["path"] = record.Path;
  product["reference"] = OrNull(record.Reference);
  product["document"] = OrNull(record.Document);
  product["attributes"] = nullptr;
  if (record.Attributes) {
    product["attributes"] = Json::object();
    for (const auto& [name, value] : *record.Attributes) product["attributes"][name] = value;
  }
  return product;
}

}  // namespace

Report::Report(const std::filesystem::path& file) : file_(file, "report") {}

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
  for (const ProductRecord& record : RecordsOf(session)) report["products"].push_back(ProductJson(record));
  // Every text was made well-formed when it was taken over; should one not be, the report is still written.
  return file_.Write(report.dump(2, ' ', false, Json::error_handler_t::replace) + '\n');
}

}  // namespace zrkhost
