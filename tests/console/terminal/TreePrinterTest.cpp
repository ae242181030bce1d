#include "terminal/TreePrinter.h"

#include <gtest/gtest.h>

namespace {

using zrkhost::PrintTree;
using zrkhost::TreeRow;

const std::vector<std::string> kColumns = {"Revision", "Status", "Release", "Comment"};

TEST(TreePrinter, AlignsItsColumns) {
  EXPECT_EQ(PrintTree({{0, "car", {"1.3", "Edit", "release-2", "mine"}},
                       {1, "axle.1", {"1.10", "Locked", "", "anna"}}},
                      kColumns, {}),
            "Product   Revision  Status  Release    Comment\n"
            "car       1.3       Edit    release-2  mine\n"
            "  axle.1  1.10      Locked             anna\n");
}

TEST(TreePrinter, ShowsNothingForAProductWithoutAttributes) {
  EXPECT_EQ(PrintTree({{0, "car", {}}, {1, "axle", {"", "", "", ""}}}, kColumns, {}),
            "Product  Revision  Status  Release  Comment\n"
            "car\n"
            "  axle\n");
}

TEST(TreePrinter, ShowsTheProductsAloneWithoutAClass) {
  EXPECT_EQ(PrintTree({{0, "car", {}}, {1, "axle", {}}}, {}, {}), "Product\ncar\n  axle\n");
}

TEST(TreePrinter, AlignsByColumnsOfTheScreen) {
  EXPECT_EQ(PrintTree({{0, "門", {"x"}}, {0, "Tür", {"y"}}, {0, "\U0001F697", {"z"}}}, {"Status"}, {}),
            "Product  Status\n"
            "門       x\n"
            "Tür      y\n"
            "\U0001F697       z\n");
}

TEST(TreePrinter, KeepsAProductOnOneLine) {
  EXPECT_EQ(PrintTree({{0, "a\nb", {"x\r\ny\x1b[2J"}}}, {"Status"}, {}),
            "Product  Status\n"
            "a\\nb     x\\r\\ny\\x1b[2J\n");
}

TEST(TreePrinter, CutsLinesToTheWidthOfTheTerminal) {
  EXPECT_EQ(PrintTree({{0, "car", {"a long comment"}}}, {"Comment"}, {.Width = 15}),
            "Product  Comme…\n"
            "car      a lon…\n");
  EXPECT_EQ(PrintTree({{0, "car", {"a long comment"}}}, {"Comment"}, {.Width = 5}), "Prod…\ncar\n");
}

TEST(TreePrinter, ColoursTheHeaderAndTheStatusOnly) {
  EXPECT_EQ(PrintTree({{0, "car", {"Edit", "Edit"}}}, {"Status", "Comment"}, {.Colours = true}),
            "\x1b[1mProduct\x1b[0m  \x1b[1mStatus\x1b[0m  \x1b[1mComment\x1b[0m\n"
            "car      \x1b[32mEdit\x1b[0m    Edit\n");
}

TEST(TreePrinter, ColoursEveryStatusInItsOwnWay) {
  const auto line = [](const char* status) {
    const auto text = PrintTree({{0, "car", {status}}}, {"Status"}, {.Colours = true});
    return text.substr(text.find('\n'));
  };
  EXPECT_EQ(line("Locked"), "\ncar      \x1b[31mLocked\x1b[0m\n");
  EXPECT_EQ(line("ReadOnly"), "\ncar      \x1b[2mReadOnly\x1b[0m\n");
  EXPECT_EQ(line("Unversioned"), "\ncar      \x1b[33mUnversioned\x1b[0m\n");
}

}  // namespace
