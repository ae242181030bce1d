#pragma once

#include <nlohmann/json.hpp>
#include <string>

class ZRKCVSStatus;

namespace zrkhost {

// Every field of the record under its own name, in the order of the record: texts as UTF-8, flags as 0 or 1.
nlohmann::ordered_json RecordFields(const ZRKCVSStatus& record);

// Those fields that hold something, a line each.
std::string ShowRecord(const nlohmann::ordered_json& fields);

}  // namespace zrkhost
