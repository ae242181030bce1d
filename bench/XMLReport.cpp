// Reading the XML status report.

#include <stdexcept>
#include <string>

#include "Measurement.h"
#include "svn/StatusReport.h"

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

}  // namespace

Measurements MeasureXMLReport() {
  constexpr std::size_t kBytes = 10'000'000;
  const CATUnicodeString large = MakeReport(kBytes).c_str();
  const CATUnicodeString small = MakeReport(kBytes / 2).c_str();
  return {Growth(
      "XML report doubled from 5 MB to 10 MB", 5, 2, [&] { ReadOwner(small); }, [&] { ReadOwner(large); },
      1.1)};
}
