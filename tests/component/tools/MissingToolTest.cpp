#include <gtest/gtest.h>

#include "dialogs/MessageCatalogs.h"
#include "manager/ZRKECVSManager.h"
#include "support/Assembly.h"
#include "support/CatalogLookUps.h"
#include "support/DialogRecorder.h"
#include "support/ScriptedClient.h"
#include "support/Session.h"
#include "support/TemporaryFolder.h"
#include "tools/ToolLocation.h"

using zrk::tools::CheckCVSToolPath;

namespace {

class MissingTool : public testing::Test {
protected:
  Session session_;
  DialogRecorder dialogs_;
};

}  // namespace

TEST_F(MissingTool, AKnownPathIsFineAndShowsNothing) {
  EXPECT_EQ(CheckCVSToolPath("x"), 1);
  EXPECT_TRUE(dialogs_.Requests().empty());
}

TEST_F(MissingTool, AnUnknownPathIsShownInAWarning) {
  EXPECT_EQ(CheckCVSToolPath(""), 0);
  ASSERT_EQ(dialogs_.Requests().size(), 1u);
  EXPECT_EQ(dialogs_.Requests()[0].Identifier, "Warning");
  EXPECT_EQ(dialogs_.Requests()[0].Style, 0x4100200u);
  EXPECT_EQ(dialogs_.Requests()[0].Title, "Version Control");
  EXPECT_EQ(dialogs_.Requests()[0].Message, "Path of cvs.exe is not specified");
}

TEST_F(MissingTool, TheCatalogsTextIsShown) {
  standin::SetCatalogText("ZRKCVSEditCmd", "CVSExePathNotFound", "Install the client.");
  EXPECT_EQ(CheckCVSToolPath(""), 0);
  ASSERT_EQ(dialogs_.Requests().size(), 1u);
  EXPECT_EQ(dialogs_.Requests()[0].Message, "Install the client.");
  EXPECT_EQ(dialogs_.Requests()[0].Title, "Version Control");
}

TEST_F(MissingTool, OtherTextsOfTheInstallationAreNot) {
  standin::SetCatalogText("ZRKCVSEditCmd", "warning", "other key");
  standin::SetCatalogText("ZRKCVSUneditCmd", "CVSExePathNotFound", "other catalog");
  CheckCVSToolPath("");
  ASSERT_EQ(dialogs_.Requests().size(), 1u);
  EXPECT_EQ(dialogs_.Requests()[0].Message, "Path of cvs.exe is not specified");
}

TEST_F(MissingTool, EveryCallShowsItAgain) {
  for (int i = 0; i < 3; ++i) EXPECT_EQ(CheckCVSToolPath(""), 0);
  EXPECT_EQ(dialogs_.Requests().size(), 3u);
}

TEST_F(MissingTool, TheDialogIsGoneAfterwards) {
  CheckCVSToolPath("");
  ASSERT_EQ(dialogs_.Requests().size(), 1u);
  EXPECT_EQ(standin::LiveDialogCount(), 0);
}

TEST_F(MissingTool, WithoutAMainWindowNothingIsBuiltOrShown) {
  standin::SetApplicationFrame(true, false);
  const CatalogLookUps texts;
  EXPECT_EQ(CheckCVSToolPath(""), 0);
  EXPECT_TRUE(dialogs_.Requests().empty());
  EXPECT_TRUE(texts.Keys().empty());
}

TEST_F(MissingTool, WithoutAnApplicationFrameNothingIsShown) {
  standin::SetApplicationFrame(false, false);
  EXPECT_EQ(CheckCVSToolPath(""), 0);
  EXPECT_TRUE(dialogs_.Requests().empty());
}
