// Files and folders whose names end in a letter of two bytes, the second of which is that of "\".

#include <gtest/gtest.h>

#include "CATIProduct.h"
#include "ZRKCVSStatus.h"
#include "ZRKICVSManager.h"
#include "component/svn/SampleEntries.h"
#include "core/HostPath.h"
#include "support/Assembly.h"
#include "support/CVSFolder.h"
#include "support/ClientReports.h"
#include "support/DialogRecorder.h"
#include "support/Files.h"
#include "support/JapaneseCodePage.h"
#include "support/ScriptedClient.h"
#include "support/Session.h"

namespace {

// U+30BD and U+8868 in code page 932.
constexpr char kFolder[] = "\x83\\";
constexpr char kDoubleByteName[] = "part \x95\\";

class DoubleByteNames : public testing::Test {
protected:
  void SetUp() override {
    if (!JapaneseCodePage::IsActive()) GTEST_SKIP() << "the system's code page is not 932";
    Products.Add("part", standin::FilePath(std::string("w\\") + kFolder + "\\" + kDoubleByteName));
  }

  ZRKICVSManager_var Manager() const { return Products.At("part"); }
  std::filesystem::path DocumentFolder() const {
    return Folder / standin::FilePath(std::string("w\\") + kFolder);
  }
  std::string Document() const { return HostFolder() + "\\" + kDoubleByteName; }
  std::string HostFolder() const { return Folder.Host("w") + "\\" + kFolder; }

  std::string Revision() const {
    const auto attributes = ReadStatusAttributes(Products.At("part"));
    return attributes ? attributes->Revision : "no instance";
  }

  std::vector<std::string> Runs() const {
    std::vector<std::string> runs;
    for (const ClientRun& run : Client.Runs()) {
      EXPECT_EQ(run.Folder, runFolder_);
      runs.push_back(run.Joined());
    }
    return runs;
  }

  JapaneseCodePage Page;
  Session Host;
  ScriptedClient Client;
  TemporaryFolder Folder;
  Assembly Products{Folder};
  std::string runFolder_;
};

class DoubleByteNamesInCVS : public DoubleByteNames {
protected:
  void SetUp() override {
    DoubleByteNames::SetUp();
    if (IsSkipped()) return;
    WriteCVSFolder(DocumentFolder(), "/cvs/root", kFolder);
    runFolder_ = Folder.Host("w");
    Client.When("status -v")
        .Out(
            "File: part\tStatus: Up-to-date\r\n   Working revision:\t1.4\r\n"
            "   Repository revision:\t1.4\t/cvs/root/" +
            std::string(kFolder) + "/" + kDoubleByteName + ",v\r\n");
  }

  static std::string Command(const std::string& command) {
    return "-d /cvs/root " + command + " " + kFolder + "\\" + kDoubleByteName;
  }
};

class DoubleByteNamesInSubversion : public DoubleByteNames {
protected:
  void SetUp() override {
    DoubleByteNames::SetUp();
    if (IsSkipped()) return;
    WriteFile(DocumentFolder() / ".svn" / "entries",
              entries::Format(10) + entries::Folder("12") + entries::File(10, kDoubleByteName, "9", "bert"));
    runFolder_ = HostFolder();
  }
};

// The working copy's database is in the folder above.
class DoubleByteNamesInADatabase : public DoubleByteNames {
protected:
  void SetUp() override {
    DoubleByteNames::SetUp();
    if (IsSkipped()) return;
    WriteFile(Folder / "w" / ".svn" / "wc.db", "SQLite format 3");
    runFolder_ = HostFolder();
    // In XML both letters are UTF-8.
    Client.When("--xml --non-interactive --ignore-externals " + Document())
        .Out(reports::Report({{.Path = Folder.Host("w") + "\\\xE3\x82\xBD\\part \xE8\xA1\xA8"}}));
    Client.When("--xml").Out(reports::Report({{.Path = "part \xE8\xA1\xA8"}}));
  }

  static std::string Command(const std::string& command) { return command + " --non-interactive"; }
  std::string StatusOfFile() const { return StatusOfFolder + " " + Document(); }

  const std::string StatusOfFolder = "status -v -u --xml --non-interactive --ignore-externals";
};

using Texts = std::vector<std::string>;

}  // namespace

// The second byte of U+30D1 is that of "p".
TEST_F(DoubleByteNames, HoldTheRepositorysPathAsLettersOnly) {
  const std::string folder = "w\\\x83proj\\proj";
  WriteCVSFolder(Folder / standin::FilePath(folder), "/cvs/root", "proj");
  Products.Add("other", standin::FilePath(folder + "\\other"));
  runFolder_ = Folder.Host("w") + "\\\x83proj";
  ZRKICVSManager_var(Products.At("other"))->RefreshStatus(Products.At("other"));
  EXPECT_EQ(Runs(), (Texts{"-d /cvs/root status -v proj\\other", "-d /cvs/root -n edit proj\\other"}));
}

TEST_F(DoubleByteNamesInCVS, AreRefreshed) {
  Manager()->RefreshStatus(Products.At("part"));
  EXPECT_EQ(Runs(), (Texts{Command("status -v"), Command("-n edit")}));
  EXPECT_EQ(Revision(), "1.4");
}

TEST_F(DoubleByteNamesInCVS, AreQueried) {
  ZRKCVSStatus record;
  Manager()->GetFileStatus(CATIProduct_var(Products.At("part")), record);
  EXPECT_EQ(Runs(), Texts{Command("status -v")});
  EXPECT_EQ(record.WorkingRevision, "1.4");
}

TEST_F(DoubleByteNamesInCVS, AreTakenForEditing) {
  EXPECT_EQ(Manager()->Edit(), 0);
  EXPECT_EQ(Runs(), (Texts{Command("-n -q update"), Command("-q -x edit -z -c"), Command("status -v")}));
}

TEST_F(DoubleByteNamesInCVS, AreGivenBack) {
  SetWritable(standin::FilePath(Document()));
  const DialogRecorder user({standin::DialogAnswer::Yes});
  Client.When("-n edit").Out(std::string(kFolder) + "/" + kDoubleByteName + "\tanna\tnow\there\r\n");
  Client.When("unedit").Out(std::string(kDoubleByteName) + " has been modified; revert changes? ").Read();
  EXPECT_EQ(Manager()->Unedit(), 0);
  const Texts check{Command("status -v"), Command("-n edit")};
  EXPECT_EQ(Runs(), (Texts{check[0], check[1], Command("-q -x unedit"), check[0], check[1]}));
  ASSERT_EQ(user.Requests().size(), 1u);
}

TEST_F(DoubleByteNamesInCVS, AreRemoved) {
  runFolder_ = HostFolder();
  EXPECT_EQ(Manager()->CVSRemove(Document().c_str()), 0);
  EXPECT_EQ(Runs(), Texts{std::string("-d /cvs/root -d /cvs/root remove -f ") + kDoubleByteName});
}

TEST_F(DoubleByteNamesInSubversion, AreRefreshed) {
  Manager()->RefreshStatus(Products.At("part"));
  EXPECT_EQ(Runs(), (Texts{"status -v -u " + Document(), "status -v -u --xml " + Document()}));
  EXPECT_EQ(Revision(), "9");
}

TEST_F(DoubleByteNamesInSubversion, AreLocked) {
  EXPECT_EQ(Manager()->Edit(), 0);
  EXPECT_EQ(Runs(), (Texts{"update " + Document(), "lock " + Document(), "status -v -u " + Document()}));
  EXPECT_EQ(Revision(), "9");
}

TEST_F(DoubleByteNamesInSubversion, AreUnlocked) {
  EXPECT_EQ(Manager()->Unedit(), 0);
  EXPECT_EQ(Runs(), (Texts{"unlock " + Document(), "status -v -u " + Document()}));
  EXPECT_EQ(Revision(), "9");
}

TEST_F(DoubleByteNamesInSubversion, AreDeleted) {
  EXPECT_EQ(Manager()->SVNDelete(Document().c_str()), 0);
  EXPECT_EQ(Runs(), Texts{"delete -mzq --force " + Document()});
}

TEST_F(DoubleByteNamesInADatabase, AreRefreshed) {
  Manager()->RefreshStatus(Products.At("part"));
  EXPECT_EQ(Runs(), Texts{StatusOfFolder});
  EXPECT_EQ(Revision(), "9");
}

TEST_F(DoubleByteNamesInADatabase, AreQueried) {
  ZRKCVSStatus record;
  Manager()->GetFileStatus(CATIProduct_var(Products.At("part")), record);
  EXPECT_EQ(Runs(), Texts{StatusOfFile()});
  EXPECT_EQ(record.WorkingRevision, "9");
  EXPECT_EQ(record.File, kDoubleByteName);
}

TEST_F(DoubleByteNamesInADatabase, AreLocked) {
  EXPECT_EQ(Manager()->Edit(), 0);
  EXPECT_EQ(Runs(), (Texts{Command("update") + " " + Document(), Command("lock") + " " + Document(),
                           StatusOfFile()}));
  EXPECT_EQ(Revision(), "9");
}

TEST_F(DoubleByteNamesInADatabase, AreUnlocked) {
  EXPECT_EQ(Manager()->Unedit(), 0);
  EXPECT_EQ(Runs(), (Texts{Command("unlock") + " " + Document(), StatusOfFile()}));
  EXPECT_EQ(Revision(), "9");
}

TEST_F(DoubleByteNamesInADatabase, AreDeleted) {
  EXPECT_EQ(Manager()->SVNDelete(Document().c_str()), 0);
  EXPECT_EQ(Runs(), Texts{Command("delete --force") + " " + Document()});
}
