// XML reports that are none: what the client leaves when it is cut off, warns, or is not Subversion's.

#include <gtest/gtest.h>

#include <string>

#include "support/Files.h"
#include "support/TemporaryFolder.h"
#include "svn/StatusReport.h"

namespace {

using zrk::svn::FirstLockOwner;

bool NamesNoOwner(const std::string& report) {
  return !FirstLockOwner(report.c_str());
}

const std::string kReport =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<status>\r\n<target path=\"a\"><entry path=\"a\">"
    "<repos-status><lock><owner>anna</owner></lock></repos-status></entry></target>\r\n</status>\r\n";

TEST(MalformedXMLReport, IsToldFromAWellFormedOne) {
  EXPECT_FALSE(NamesNoOwner(kReport));
}

TEST(MalformedXMLReport, AReportThatIsCutOffAnywhereNamesNoOwner) {
  const std::size_t complete = kReport.rfind('>') + 1;
  for (std::size_t length = 0; length < complete; ++length) {
    EXPECT_TRUE(NamesNoOwner(kReport.substr(0, length))) << length;
  }
}

TEST(MalformedXMLReport, AnEmptyReportNamesNoOwner) {
  EXPECT_TRUE(NamesNoOwner(""));
  EXPECT_TRUE(NamesNoOwner(" \r\n"));
}

TEST(MalformedXMLReport, WrongNestingNamesNoOwner) {
  EXPECT_TRUE(NamesNoOwner("<status><lock><owner>anna</lock></owner></status>"));
  EXPECT_TRUE(NamesNoOwner("<status><owner>anna</owner></Status>"));
  EXPECT_TRUE(NamesNoOwner("<status><owner>anna</owner></status></status>"));
}

TEST(MalformedXMLReport, TwoRootsNameNoOwner) {
  EXPECT_TRUE(NamesNoOwner("<status><owner>anna</owner></status><status/>"));
}

TEST(MalformedXMLReport, AWarningBeforeTheReportSpoilsIt) {
  EXPECT_TRUE(NamesNoOwner("svn: warning: W155007: '/w' is not a working copy\r\n" + kReport));
}

TEST(MalformedXMLReport, AWarningBehindTheReportSpoilsIt) {
  EXPECT_TRUE(NamesNoOwner(kReport + "svn: E170013: Unable to connect to a repository\r\n"));
}

TEST(MalformedXMLReport, AWebServersErrorPageNamesNoOwner) {
  EXPECT_TRUE(
      NamesNoOwner("<!DOCTYPE HTML PUBLIC \"-//IETF//DTD HTML 2.0//EN\">\r\n<html><head>\r\n"
                   "<title>502 Proxy Error</title>\r\n</head><body><p>The proxy server received an "
                   "invalid response.<br>\r\n<hr>\r\n<owner>anna</owner></body></html>\r\n"));
}

TEST(MalformedXMLReport, BareAmpersandsAndAnglesSpoilIt) {
  EXPECT_TRUE(NamesNoOwner("<status><owner>anna & bert</owner></status>"));
  EXPECT_TRUE(NamesNoOwner("<status><owner>anna < bert</owner></status>"));
  EXPECT_TRUE(NamesNoOwner("<status><owner>anna</owner><x>&unknown;</x></status>"));
  EXPECT_TRUE(NamesNoOwner("<status a=1><owner>anna</owner></status>"));
}

TEST(MalformedXMLReport, BytesThatAreNoCharactersSpoilIt) {
  EXPECT_TRUE(NamesNoOwner("<status><owner>J\xFCrgen</owner></status>"));
  EXPECT_TRUE(NamesNoOwner("<status><owner>\x01</owner></status>"));
}

TEST(MalformedXMLReport, ABombOfEntitiesIsNotBlownUp) {
  std::string report = "<!DOCTYPE s [<!ENTITY e0 \"0123456789\">";
  for (int level = 1; level <= 20; ++level) {
    const std::string inner = "&e" + std::to_string(level - 1) + ";";
    report += "<!ENTITY e" + std::to_string(level) + " \"";
    for (int i = 0; i < 10; ++i) report += inner;
    report += "\">";
  }
  EXPECT_TRUE(NamesNoOwner(report + "]><s><owner>&e20;</owner></s>"));
}

TEST(MalformedXMLReport, OtherFilesAreNotReadIntoIt) {
  const TemporaryFolder folder;
  WriteFile(folder / "secret.txt", "secret");
  const std::string file = (folder / "secret.txt").generic_string();
  for (const std::string& url : {"file://" + file, file, std::string("secret.txt")}) {
    const std::string report = "<!DOCTYPE s [<!ENTITY x SYSTEM \"" + url + "\">]><s><owner>a&x;b</owner></s>";
    const CATUnicodeString owner = FirstLockOwner(report.c_str()).value_or("");
    EXPECT_EQ(std::string(owner.ConvertToChar()).find("secret"), std::string::npos) << url;
  }
}

TEST(LargeXMLReport, OfTenMegabytesIsReadToItsEnd) {
  std::string report = "<status>";
  const std::string entry =
      "<entry path=\"a\"><wc-status item=\"normal\"><commit revision=\"9\"/></wc-status></entry>";
  while (report.size() < 10'000'000) report += entry;
  report += "<owner>anna</owner></status>";
  EXPECT_EQ(FirstLockOwner(report.c_str()), CATUnicodeString("anna"));
  report.resize(report.size() - 2);
  EXPECT_TRUE(NamesNoOwner(report));
}

TEST(LargeXMLReport, OfAHundredThousandLevelsIsReadToItsEnd) {
  std::string opening;
  std::string closing;
  for (int level = 0; level < 100'000; ++level) {
    opening += "<a>";
    closing += "</a>";
  }
  EXPECT_EQ(FirstLockOwner((opening + "<owner>anna</owner>" + closing).c_str()), CATUnicodeString("anna"));
}

}  // namespace
