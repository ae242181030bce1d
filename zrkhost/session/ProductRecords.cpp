#include "session/ProductRecords.h"

#include "base/Encoding.h"
#include "session/ProductFacts.h"

namespace zrkhost {

std::vector<ProductRecord> RecordsOf(const HostSession& session) {
  std::vector<ProductRecord> records;
  records.reserve(session.Places().size());
  for (const Place& place : session.Places()) {
    ProductRecord& record = records.emplace_back();
    record.Depth = place.Depth;
    record.Name = Utf8FromNative(place.Name);
    record.Path = Utf8FromNative(standin::ProductPath(place.Product));
    const auto reference = standin::ReferenceName(place.Product);
    if (!reference.empty()) record.Reference = Utf8FromNative(reference);
    const auto document = DocumentOf(place.Product);
    if (document) record.Document = Utf8FromNative(*document);
    record.Attributes = AttributesOf(place.Product);
  }
  return records;
}

}  // namespace zrkhost
