#include "commands/StatusRecordText.h"

#include "ZRKCVSStatus.h"
#include "base/Encoding.h"
#include "terminal/DisplayText.h"

namespace zrkhost {

using Json = nlohmann::ordered_json;

Json RecordFields(const ZRKCVSStatus& record) {
  const auto text = [](const CATUnicodeString& value) { return Utf8FromNative(value.ConvertToChar()); };
  Json fields = Json::object();
  fields["File"] = text(record.File);
  fields["Status"] = text(record.Status);
  fields["WorkingRevision"] = text(record.WorkingRevision);
  fields["RepositoryRevision"] = text(record.RepositoryRevision);
  fields["ExpansionOption"] = text(record.ExpansionOption);
  fields["CommitIdentifier"] = text(record.CommitIdentifier);
  fields["StickyTag"] = text(record.StickyTag);
  fields["StickyDate"] = text(record.StickyDate);
  fields["StickyOptions"] = text(record.StickyOptions);
  fields["MergeFrom"] = text(record.MergeFrom);
  fields["ExistingTags"] = text(record.ExistingTags);
  fields["AuxText"] = text(record.AuxText);
  fields["LockOwner"] = text(record.LockOwner);
  fields["IsVersioned"] = record.IsVersioned;
  fields["Flag2"] = record.Flag2;
  fields["IsInEntries"] = record.IsInEntries;
  fields["IsLockedHere"] = record.IsLockedHere;
  fields["IsLockedByOther"] = record.IsLockedByOther;
  fields["Text1"] = Utf8FromNative(record.Text1);
  fields["Text2"] = Utf8FromNative(record.Text2);
  fields["Text3"] = Utf8FromNative(record.Text3);
  fields["RevisionNumber"] = record.RevisionNumber;
  return fields;
}

std::string ShowRecord(const Json& fields) {
  std::string shown;
  for (const auto& [name, value] : fields.items()) {
    if (value.is_string() ? value.get_ref<const std::string&>().empty() : value == 0) continue;
    shown += name + ": " + DisplayText(value.is_string() ? value.get<std::string>() : value.dump()) + "\n";
  }
  return shown.empty() ? "nothing is known\n" : shown;
}

}  // namespace zrkhost
