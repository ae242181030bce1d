#include "framework/Dictionary.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "framework/FrameworkControl.h"
#include "host/framework/TestObjects.h"

namespace {

std::vector<standin::DictionaryEntry> EntriesOf(const TestExtensions& extensions) {
  std::vector<standin::DictionaryEntry> entries = standin::DictionaryEntries();
  std::erase_if(entries, [&](const standin::DictionaryEntry& entry) {
    return entry.LateType != extensions.LateType();
  });
  return entries;
}

TEST(Dictionary, ListsItsEntriesInTheOrderOfFilling) {
  const TestExtensions extensions;
  CATFillDictionary(extensions.Meta(), ITestSecond::MetaObject(), &MakeSecondTie, nullptr, 1);
  CATFillDictionary(extensions.Meta(), ITestFirst::MetaObject(), &MakeFirstTie, "Other", 0);
  const auto entries = EntriesOf(extensions);
  ASSERT_EQ(entries.size(), 2u);
  EXPECT_EQ(entries[0].Extension, extensions.Meta()->Name());
  EXPECT_EQ(entries[0].Interface, "ITestSecond");
  EXPECT_EQ(entries[0].Library, "");
  EXPECT_EQ(entries[0].Flag, 1);
  EXPECT_EQ(entries[1].Interface, "ITestFirst");
  EXPECT_EQ(entries[1].Library, "Other");
  EXPECT_EQ(entries[1].Flag, 0);
}

TEST(Dictionary, KeepsTheFirstOfTwoEntriesForTheSameTypeAndInterface) {
  const TestExtensions extensions;
  CATFillDictionary(extensions.Meta(), ITestFirst::MetaObject(), &MakeFirstTie, nullptr, 1);
  CATFillDictionary(extensions.Meta(), ITestFirst::MetaObject(), nullptr, nullptr, 5);
  const auto entries = EntriesOf(extensions);
  ASSERT_EQ(entries.size(), 1u);
  EXPECT_EQ(entries[0].Flag, 1);
  EXPECT_TRUE(ITestFirst_var(extensions.NewObject()));
}

TEST(Dictionary, TakesOnlyExtensionsAndInterfaces) {
  const TestExtensions extensions;
  CATFillDictionary(nullptr, ITestFirst::MetaObject(), &MakeFirstTie, nullptr, 1);
  CATFillDictionary(extensions.Meta(), nullptr, &MakeFirstTie, nullptr, 1);
  CATFillDictionary(CATBaseUnknown::MetaObject(), ITestFirst::MetaObject(), &MakeFirstTie, nullptr, 1);
  CATFillDictionary(extensions.Meta(), CATBaseUnknown::MetaObject(), &MakeFirstTie, nullptr, 1);
  EXPECT_TRUE(EntriesOf(extensions).empty());
}

}  // namespace
