#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "CATMetaClass.h"
#include "framework/FrameworkControl.h"
#include "manager/ZRKECVSManager.h"
#include "shell/ZRKECVS.h"
#include "shell/ZRKECVSModifiable.h"

namespace {

std::vector<standin::DictionaryEntry> OwnEntries() {
  std::vector<standin::DictionaryEntry> entries = standin::DictionaryEntries();
  std::erase_if(entries, [](const auto& entry) { return entry.Extension.rfind("ZRKECVS", 0) != 0; });
  return entries;
}

void ExpectExtension(CATMetaClass* meta, const std::string& name) {
  ASSERT_NE(meta, nullptr);
  EXPECT_EQ(meta->Name(), name);
  EXPECT_EQ(meta->Kind(), CATMetaClassKind::DataExtension);
  EXPECT_EQ(meta->Parent(), CATBaseUnknown::MetaObject());
  EXPECT_EQ(meta->LateType(), "ASMPRODUCT");
  EXPECT_EQ(meta->Access(), "External");
}

}  // namespace

TEST(Dictionary, HasThreeEntriesInTheOrderOfTheInterfaces) {
  const auto entries = OwnEntries();
  ASSERT_EQ(entries.size(), 3u);
  EXPECT_EQ(entries[0].Extension, "ZRKECVS");
  EXPECT_EQ(entries[0].Interface, "ZRKICVS");
  EXPECT_EQ(entries[1].Extension, "ZRKECVSManager");
  EXPECT_EQ(entries[1].Interface, "ZRKICVSManager");
  EXPECT_EQ(entries[2].Extension, "ZRKECVSModifiable");
  EXPECT_EQ(entries[2].Interface, "ZRKICVSModifiable");
}

TEST(Dictionary, EveryEntryIsForProductsAndMadeByTheLibraryItself) {
  const auto entries = OwnEntries();
  ASSERT_FALSE(entries.empty());
  for (const auto& entry : entries) {
    EXPECT_EQ(entry.LateType, "ASMPRODUCT") << entry.Extension;
    EXPECT_EQ(entry.Library, "") << entry.Extension;
    EXPECT_EQ(entry.Flag, 1) << entry.Extension;
  }
}

TEST(Dictionary, EveryExtensionIsAnExternalDataExtensionOfProducts) {
  ExpectExtension(ZRKECVS::MetaObject(), "ZRKECVS");
  ExpectExtension(ZRKECVSManager::MetaObject(), "ZRKECVSManager");
  ExpectExtension(ZRKECVSModifiable::MetaObject(), "ZRKECVSModifiable");
}
