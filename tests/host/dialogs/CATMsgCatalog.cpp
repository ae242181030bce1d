#include "CATMsgCatalog.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dialogs/MessageCatalogs.h"

namespace {

class CATMsgCatalogTest : public testing::Test {
protected:
  ~CATMsgCatalogTest() override { standin::ClearCatalogs(); }

  static std::string Build(const char* key, const std::vector<CATUnicodeString>& parameters = {},
                           const char* defaultText = "default") {
    return CATMsgCatalog::BuildMessage("Cmd", key, parameters.data(), static_cast<int>(parameters.size()),
                                       defaultText)
        .ConvertToChar();
  }
};

TEST_F(CATMsgCatalogTest, GivesTheTextOfAKey) {
  standin::SetCatalogText("Cmd", "warning", "Take care");
  EXPECT_EQ(Build("warning"), "Take care");
  standin::SetCatalogText("Cmd", "warning", "Take more care");
  EXPECT_EQ(Build("warning"), "Take more care");
}

TEST_F(CATMsgCatalogTest, GivesTheDefaultAsItStandsWithoutCatalogOrKey) {
  standin::SetCatalogText("Other", "warning", "Take care");
  standin::SetCatalogText("Cmd", "Warning", "Take care");
  EXPECT_EQ(Build("warning", {"x"}, "see /P1"), "see /P1");
}

TEST_F(CATMsgCatalogTest, GivesAnEmptyTextThatIsInTheCatalog) {
  standin::SetCatalogText("Cmd", "silent", "");
  EXPECT_EQ(Build("silent"), "");
}

TEST_F(CATMsgCatalogTest, PutsTheParametersIn) {
  standin::SetCatalogText("Cmd", "key", "/P2 and /P1 and /P2/P1");
  EXPECT_EQ(Build("key", {"a", "b"}), "b and a and ba");
}

TEST_F(CATMsgCatalogTest, LeavesParametersThatAreMissingEmpty) {
  standin::SetCatalogText("Cmd", "key", "</P1></P2></P9>");
  EXPECT_EQ(Build("key", {"a"}), "<a><><>");
  EXPECT_STREQ(CATMsgCatalog::BuildMessage("Cmd", "key", nullptr, 3, "").ConvertToChar(), "<><><>");
}

TEST_F(CATMsgCatalogTest, DoesNotLookForPlacesInParameters) {
  standin::SetCatalogText("Cmd", "key", "/P1/P2");
  EXPECT_EQ(Build("key", {"/P2", "b"}), "/P2b");
}

TEST_F(CATMsgCatalogTest, LeavesWhatIsNoPlaceAsItIs) {
  standin::SetCatalogText("Cmd", "key", "/P0 /p1 /Px P1 /P");
  EXPECT_EQ(Build("key", {"a"}), "/P0 /p1 /Px P1 /P");
  standin::SetCatalogText("Cmd", "key", "/P10");
  EXPECT_EQ(Build("key", {"a"}), "a0");
}

}  // namespace
