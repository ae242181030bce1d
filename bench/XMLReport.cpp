// Reading the XML status reports of both forms of Subversion working copies.

#include <stdexcept>
#include <string>

#include "Measurement.h"
#include "svn/StatusReport.h"
#include "svn/WorkingCopyReport.h"

namespace {

std::string MakeReport(std::size_t bytes) {
  std::string report =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<status>\r\n<target path=\"C:\\w\">\r\n";
  while (report.size() < bytes) {
    report +=
        "<entry path=\"C:\\w\\wheel left.CATPart\">\r\n<wc-status props=\"none\" item=\"normal\" "
        "revision=\"12\">\r\n<commit revision=\"9\">\r\n<author>anna</author>\r\n"
        "<date>2026-11-21T08:15:14.000000Z</date>\r\n</commit>\r\n</wc-status>\r\n</entry>\r\n";
  }
  return report +
         "<entry path=\"C:\\w\\a\"><repos-status><lock><owner>ben</owner></lock></repos-status></entry>"
         "</target>\r\n</status>\r\n";
}

void ReadOwner(const CATUnicodeString& report) {
  if (zrk::svn::FirstLockOwner(report) != CATUnicodeString("ben"))
    throw std::runtime_error("no owner was read");
}

// As a client with a database writes it, each tenth file locked by somebody else.
std::string MakeWorkingCopyReport(int files) {
  std::string report =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<status>\r\n<target\r\n   path=\".\">\r\n";
  for (int file = 0; file < files; ++file) {
    report += "<entry\r\n   path=\"folder " + std::to_string(file / 50) + "/part" + std::to_string(file) +
              ".CATPart\">\r\n<wc-status\r\n   item=\"normal\"\r\n   revision=\"12\"\r\n   "
              "props=\"none\">\r\n<commit\r\n   revision=\"9\">\r\n<author>anna</author>\r\n"
              "<date>2026-11-21T08:15:14.000000Z</date>\r\n</commit>\r\n</wc-status>\r\n";
    if (file % 10 == 0) {
      report +=
          "<repos-status\r\n   props=\"none\"\r\n   item=\"none\">\r\n<lock>\r\n<token>opaquelocktoken:1"
          "</token>\r\n<owner>ben</owner>\r\n<created>2026-11-20T10:16:00.000000Z</created>\r\n</lock>\r\n"
          "</repos-status>\r\n";
    }
    report += "</entry>\r\n";
  }
  return report + "</target>\r\n</status>\r\n";
}

// Entries within entries, which no client writes.
std::string MakeNestedReport(int levels) {
  std::string opening = "<?xml version=\"1.0\"?><status>";
  std::string closing;
  for (int level = 0; level < levels; ++level) {
    opening += "<entry path=\"e\"><wc-status item=\"normal\"><lock>";
    closing += "</lock></wc-status></entry>";
  }
  return opening + closing + "</status>";
}

void ReadWorkingCopy(const CATUnicodeString& report, std::size_t files) {
  zrk::svn::ReportedFiles read;
  if (!ReadWorkingCopyReport(report, zrk::svn::Repository::Asked, "C:\\w\\", read) || read.size() != files) {
    throw std::runtime_error("the report was not read");
  }
}

Measurement MeasureWorkingCopyReport() {
  constexpr int kFiles = 100'000;
  const CATUnicodeString large = MakeWorkingCopyReport(kFiles).c_str();
  const CATUnicodeString small = MakeWorkingCopyReport(kFiles / 2).c_str();
  return Growth(
      "Report of a working copy with a database, 50,000 to 100,000 files", 5, 2,
      [&] { ReadWorkingCopy(small, kFiles / 2); }, [&] { ReadWorkingCopy(large, kFiles); }, 1.1);
}

Measurement MeasureNestedReport() {
  constexpr int kLevels = 100'000;
  const CATUnicodeString large = MakeNestedReport(kLevels).c_str();
  const CATUnicodeString small = MakeNestedReport(kLevels / 2).c_str();
  return Growth(
      "The same of entries that stand in one another, 50,000 to 100,000 levels", 5, 2,
      [&] { ReadWorkingCopy(small, 0); }, [&] { ReadWorkingCopy(large, 0); }, 1.1);
}

}  // namespace

Measurements MeasureXMLReport() {
  constexpr std::size_t kBytes = 10'000'000;
  const CATUnicodeString large = MakeReport(kBytes).c_str();
  const CATUnicodeString small = MakeReport(kBytes / 2).c_str();
  return {Growth(
              "XML report doubled from 5 MB to 10 MB", 5, 2, [&] { ReadOwner(small); },
              [&] { ReadOwner(large); }, 1.1),
          MeasureWorkingCopyReport(), MeasureNestedReport()};
}
