// Names and owners beyond ASCII. The client's report is in UTF-8 by its own declaration; the host's texts are
// in its 8-bit encoding, which is UTF-8 or the active code page.

#include <gtest/gtest.h>

#include "DatabaseStage.h"
#include "ZRKICVSManager.h"
#include "manager/ZRKECVSManager.h"
#include "support/Launches.h"
#include "text/NativeText.h"

namespace {

using namespace reports;
using standin::NativeFromWide;

struct Word {
  std::wstring Wide;
  std::u8string UTF8;

  std::string Native() const { return NativeFromWide(Wide); }
  // As the client writes it.
  std::string Reported() const { return {UTF8.begin(), UTF8.end()}; }
};

// Two letters which end in the byte of "\\" in code page 932, or else a word for the code pages of the West.
Word WordOfTheCodePage() {
  const Word japanese{L"\u8868\u30BD", u8"\u8868\u30BD"};
  if (standin::WideFromNative(japanese.Native()) == japanese.Wide) return japanese;
  return {L"J\u00FCrgen", u8"J\u00FCrgen"};
}

class DatabaseCodePage : public DatabaseStage {
protected:
  DatabaseCodePage() {
    Products.Add("car", std::filesystem::path(u8"wc/") / Name.UTF8 / (Name.UTF8 + u8".CATPart"));
    Products.Add("top", "wc/top").Place("top", "car.1", "car");
  }

  // A lock by an owner of that name, with the name as its comment.
  Lock NamedLock() const { return {"t", Name.Reported(), Name.Reported()}; }

  const Word Name = WordOfTheCodePage();
  const std::string Path = Folder.Host("wc") + "\\" + Name.Native() + "\\" + Name.Native() + ".CATPart";
  const std::string ReportedPath = Name.Reported() + "/" + Name.Reported() + ".CATPart";
};

TEST_F(DatabaseCodePage, ShowsNamesAndOwnersOfATree) {
  Report({{.Path = "top"}, LockedElsewhere(ReportedPath, NamedLock())});
  ZRKICVSManager_var(Products.At("top"))->RefreshStatus(nullptr);
  EXPECT_EQ(Shown("top/car.1"),
            (StatusAttributes{"9", "Locked", "",
                              "Locked by: \n" + Name.Native() + "\n-------------\n" + Name.Native()}));
}

TEST_F(DatabaseCodePage, RunsInAFolderOfSuchAName) {
  Report({{.Path = Name.Reported() + ".CATPart"}});
  ZRKICVSManager_var(Products.At("car"))->RefreshStatus(nullptr);
  EXPECT_EQ(RunFolders(), Texts{Folder.Host("wc") + "\\" + Name.Native()});
  EXPECT_EQ(Shown("car"), (StatusAttributes{"9", "ReadOnly", "", ""}));
}

TEST_F(DatabaseCodePage, ShowsNamesAndOwnersOfOneDocument) {
  const Launches launches;
  Report({LockedElsewhere("C:/wc/" + ReportedPath, NamedLock())});
  EXPECT_EQ(ZRKICVSManager_var(Products.At("car"))->Unedit(), S_OK);
  EXPECT_EQ(Shown("car"), (StatusAttributes{"9", "Locked", "", Name.Native() + "\n" + Name.Native()}));
  EXPECT_EQ(launches.All().at(0).CommandLine,
            L" unlock --non-interactive \"" + standin::WideFromNative(Path) + L"\"");
}

TEST_F(DatabaseCodePage, FillsARecordWithThem) {
  Report({LockedElsewhere("C:/wc/" + ReportedPath, NamedLock())});
  ZRKECVSManager manager(*Products.At("car").Get());
  ZRKCVSStatus record;
  EXPECT_EQ(manager.GetFileStatus(CATIProduct_var(Products.At("car")), record), S_OK);
  EXPECT_EQ(std::string(record.File.ConvertToChar()), Name.Native() + ".CATPart");
  EXPECT_EQ(std::string(record.LockOwner.ConvertToChar()), Name.Native());
}

}  // namespace
