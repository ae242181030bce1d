#include "page/Holdings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::Optional;
using zrkhost::HolderOf;
using zrkhost::HoldersOf;
using zrkhost::ProductRecord;

ProductRecord Product(const std::string& status, const std::string& comment,
                      const std::string& document = "\\w\\proj\\Tür links.CATPart") {
  ProductRecord product;
  product.Document = document;
  product.Attributes = {{"Revision", "1.4"}, {"Status", status}, {"Comment", comment}};
  return product;
}

TEST(HolderOf, IsBehindTheFileInALineOfTheEditorsReport) {
  EXPECT_THAT(HolderOf(Product("Locked",
                               "proj/Tür links.CATPart\nben\nSat Nov 21 10:12:00 2026 GMT\nhost\n/home/ben")),
              Optional(std::string("ben")));
  EXPECT_THAT(HolderOf(Product("Locked", "proj/Tür links.CATPart\nben hur")),
              Optional(std::string("ben hur")));
  EXPECT_THAT(HolderOf(Product("Locked", "proj/Tür links.CATPart")), Optional(std::string()));
}

TEST(HolderOf, IsBetweenTheWordsAndTheRuleOfALock) {
  EXPECT_THAT(HolderOf(Product("Locked", "Locked by: \nben hur\n-------------\nit is\nmine")),
              Optional(std::string("ben hur")));
  EXPECT_THAT(HolderOf(Product("Edit", "Locked by: \nanna\n-------------\n")), Optional(std::string("anna")));
}

TEST(HolderOf, IsTheFirstLineOfALockOfOneFile) {
  EXPECT_THAT(HolderOf(Product("Edit", "anna\n")), Optional(std::string("anna")));
  EXPECT_THAT(HolderOf(Product("Locked", "ben\nit is\nmine\nfor\never")), Optional(std::string("ben")));
}

TEST(HolderOf, IsNotKnown) {
  EXPECT_THAT(HolderOf(Product("Edit", "")), Optional(std::string()));
  EXPECT_THAT(HolderOf(Product("Locked", "\n")), Optional(std::string()));
}

TEST(HolderOf, IsNobodyInAnyOtherStatus) {
  EXPECT_EQ(HolderOf(Product("ReadOnly", "anna\n")), std::nullopt);
  EXPECT_EQ(HolderOf(Product("", "anna")), std::nullopt);
  EXPECT_EQ(HolderOf(ProductRecord{}), std::nullopt);
}

TEST(HoldersOf, StandsThisWorkingCopyFirstAndTheUnknownLast) {
  const auto holders = HoldersOf({Product("Locked", "\n", "\\a"), Product("Locked", "ben\n", "\\b"),
                                  Product("Edit", "anna\n", "\\c"), Product("Edit", "", "\\d"),
                                  Product("ReadOnly", "", "\\e")});
  std::vector<std::string> names;
  for (const auto& holder : holders) names.push_back(holder.IsHere ? "(here)" : holder.Owner);
  EXPECT_THAT(names, ElementsAre("(here)", "anna", "ben", ""));
}

TEST(HoldersOf, TakesAFileInSeveralPlacesForOne) {
  ProductRecord without = Product("Locked", "ben\n");
  without.Document.reset();
  const auto holders =
      HoldersOf({Product("Locked", "ben\n", "\\a"), without, Product("Locked", "ben\n", "\\b"), without,
                 Product("Locked", "ben\n", "\\a")});
  ASSERT_EQ(holders.size(), 1U);
  std::vector<std::vector<std::size_t>> files;
  for (const auto& file : holders[0].Files) files.push_back(file.Products);
  EXPECT_THAT(files, ElementsAre(ElementsAre(0U, 4U), ElementsAre(1U), ElementsAre(2U), ElementsAre(3U)));
}

}  // namespace
