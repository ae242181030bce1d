#include "svn/StatusReport.h"

#include <gtest/gtest.h>

#include <string>

#include "framework/FrameworkControl.h"
#include "text/NativeText.h"

namespace {

using zrk::svn::FirstLockOwner;
using zrk::svn::ShowsForeignLock;

std::optional<std::string> Owner(const std::string& report) {
  const auto owner = FirstLockOwner(report.c_str());
  if (!owner) return std::nullopt;
  return owner->ConvertToChar();
}

TEST(StatusReportAsText, ACapitalOBetweenBlanksIsALockHeldElsewhere) {
  EXPECT_TRUE(ShowsForeignLock("     O           12        9 anna         C:\\w\\car\\wheel.CATPart\r\n"));
}

TEST(StatusReportAsText, TheMarkCountsAnywhere) {
  EXPECT_TRUE(ShowsForeignLock(" O "));
  EXPECT_TRUE(ShowsForeignLock("                 12        9 anna         C:\\w\\my O ring.CATPart\r\n"));
  EXPECT_TRUE(
      ShowsForeignLock("                 12        9 anna         C:\\w\\a.CATPart\r\n"
                       "     O           12        9 anna         C:\\w\\b.CATPart\r\n"));
  EXPECT_TRUE(ShowsForeignLock("Status against revision:     12 O "));
}

TEST(StatusReportAsText, WithoutTheMarkNobodyElseHoldsALock) {
  for (const char* report : {"", "O", " O", "O ", " O\r\n", "\tO\t", " OO ", " o ", " 0 ",
                             "     K           12        9 anna         C:\\w\\a.CATPart\r\n",
                             "     T           12        9 anna         C:\\w\\a.CATPart\r\n",
                             "                 12        9 anna         C:\\w\\Oring.CATPart\r\n"}) {
    EXPECT_FALSE(ShowsForeignLock(report)) << report;
  }
}

TEST(StatusReportAsXML, NamesTheLockOwner) {
  EXPECT_EQ(
      Owner("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<status>\r\n<target\r\n   path=\"a.CATPart\">"
            "<entry path=\"a.CATPart\"><wc-status item=\"normal\" props=\"none\" revision=\"12\">"
            "<commit revision=\"9\"><author>bert</author><date>2026-11-19T16:40:11Z</date></commit>"
            "</wc-status><repos-status item=\"none\" props=\"none\"><lock>"
            "<token>opaquelocktoken:5f4dd5d0</token><owner>anna</owner><comment>mine</comment>"
            "<created>2026-11-20T10:16:00Z</created></lock></repos-status></entry>"
            "<against revision=\"12\"/></target></status>\r\n"),
      "anna");
}

TEST(StatusReportAsXML, FileWithoutLockHasNoOwner) {
  EXPECT_EQ(Owner("<status><target path=\"a\"><entry path=\"a\"><wc-status item=\"normal\"/></entry>"
                  "</target></status>"),
            std::nullopt);
  EXPECT_EQ(Owner("<status/>"), std::nullopt);
}

TEST(StatusReportAsXML, OnlyTheFirstOwnerCounts) {
  EXPECT_EQ(Owner("<status><wc-status><lock><owner>anna</owner></lock></wc-status><repos-status><lock>"
                  "<owner>bert</owner></lock></repos-status><owner>carl</owner></status>"),
            "anna");
}

TEST(StatusReportAsXML, TheFirstOwnerCountsAlsoWhenItIsEmpty) {
  EXPECT_EQ(Owner("<status><owner/><owner>bert</owner></status>"), "");
  EXPECT_EQ(Owner("<status><owner></owner></status>"), "");
}

TEST(StatusReportAsXML, WithoutMemoryForItsObjectsThereIsNoOwner) {
  const char* const report = "<status><owner>anna</owner></status>";
  constexpr int kMostObjects = 20;
  int objects = 0;
  std::optional<std::string> owner;
  for (; !owner && objects < kMostObjects; ++objects) {
    standin::FailObjectAllocation(objects);
    owner = Owner(report);
    standin::FailObjectAllocation(-1);
  }
  EXPECT_EQ(owner, "anna");
  EXPECT_GT(objects, 1) << "no object was refused";
}

TEST(StatusReportAsXML, TheOwnerMayStandAtAnyDepth) {
  EXPECT_EQ(Owner("<status><owner>anna</owner></status>"), "anna");
  EXPECT_EQ(Owner("<status><changelist name=\"x\"><a><b><c><d><owner>anna</owner></d></c></b></a>"
                  "</changelist></status>"),
            "anna");
}

TEST(StatusReportAsXML, OfOwnersInsideEachOtherTheOuterOneIsFirstAndHasAllTheText) {
  EXPECT_EQ(Owner("<status><owner>an<owner>n</owner>a</owner></status>"), "anna");
}

TEST(StatusReportAsXML, TheOwnersTextIsAllTheTextBelow) {
  EXPECT_EQ(Owner("<s><owner>a<b>n<c>n</c></b>a</owner></s>"), "anna");
  EXPECT_EQ(Owner("<s><owner>a<![CDATA[n<n]]>&amp;&#97;<!-- not this --></owner></s>"), "an<n&a");
}

TEST(StatusReportAsXML, TheOwnerKeepsItsBlanks) {
  EXPECT_EQ(Owner("<s><owner> anna b. c. </owner></s>"), " anna b. c. ");
}

TEST(StatusReportAsXML, ElementsOfOtherNamesAreNoOwners) {
  EXPECT_EQ(Owner("<s owner=\"anna\"><Owner>anna</Owner><owners>anna</owners><lock-owner>anna</lock-owner>"
                  "<!-- <owner>anna</owner> --></s>"),
            std::nullopt);
}

TEST(StatusReportAsXML, TheRootIsNotAmongTheElementsBelowIt) {
  EXPECT_EQ(Owner("<owner>anna</owner>"), std::nullopt);
}

TEST(StatusReportAsXML, AnOwnerOfAnyAlphabetIsInTheHostsEncoding) {
  const std::string name = "J\xC3\xBCrgen \xC3\x84rger";
  const std::string report = "<?xml version=\"1.0\" encoding=\"UTF-8\"?><s><owner>" + name + "</owner></s>";
  EXPECT_EQ(Owner(report), standin::NativeFromUtf8(name));
}

}  // namespace
