// The lock owner in the report of `svn status -v -u --xml`.

#include "fuzz/Fuzzing.h"
#include "support/ClientReports.h"
#include "svn/StatusReport.h"

namespace {

void OwnersAreNotLongerThanTheyCanBe(std::string_view report) {
  const std::string text(report.substr(0, report.find('\0')));
  const std::optional<CATUnicodeString> owner = zrk::svn::FirstLockOwner(text.c_str());
  if (!owner) return;
  Require(
      text.find("owner") != std::string::npos || text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF"),
      "an owner is not made up");
  // Without entities of its own a report cannot say more than it holds; one byte of an old 8-bit encoding
  // may be three of UTF-8.
  if (text.find("<!ENTITY") == std::string::npos) {
    Require(static_cast<std::size_t>(owner->GetLengthInByte()) <= 3 * text.size(),
            "an owner is part of the report");
  }
}

void TheFirstOwnerComesBack(FuzzedDataProvider& values) {
  const std::string owner = ConsumeWord(values, kOwnerCharacters, 60);
  const std::optional<CATUnicodeString> read = zrk::svn::FirstLockOwner(reports::XMLReport(owner).c_str());
  Require(read.has_value(), "a report with a lock has an owner");
  Require(owner == read->ConvertToChar(), "the owner is the one that was written");
}

void ForeignLocksShowInTheirColumn(FuzzedDataProvider& values) {
  const bool locked = values.ConsumeBool();
  const std::string path = ConsumeWord(values, "abcxyz0123456789.-_\\", 60);
  const std::string report =
      std::string(locked ? "     O  " : "        ") + "    12        9 anna    " + path + "\r\n";
  Require(zrk::svn::ShowsForeignLock(report.c_str()) == locked, "a foreign lock shows");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  OwnersAreNotLongerThanTheyCanBe(Text(data, size));
  FuzzedDataProvider values(data, size);
  TheFirstOwnerComesBack(values);
  ForeignLocksShowInTheirColumn(values);
  return 0;
}
