#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>

#include "component/manager/CVSStage.h"
#include "support/CapturedOutput.h"
#include "support/DebugMessages.h"

TEST(ARefreshsTimes, AreThreeMessagesInTheOrderOfTheWork) {
  CVSStage stage;
  stage.Products.Add("car", "proj/car");
  ZRKECVSManager manager(stage.Product("car"));
  const CapturedOutput quiet;
  const DebugMessages messages;
  manager.RefreshStatus(stage.Root("car"));
  ASSERT_EQ(messages.All().size(), 3u);
  const wchar_t* const labels[] = {L"CVS status check time: ", L"CVS edit check time: ",
                                   LR"(Refreshing status time \(attributing\): )"};
  for (std::size_t i = 0; i < 3; ++i) {
    const std::wregex expected(L"\n" + std::wstring(labels[i]) + LR"([0-9]+(\.[0-9]{1,3})? sec)" + L"\n");
    EXPECT_TRUE(std::regex_match(messages.All()[i], expected)) << i;
  }
}

TEST(ARefreshsTimes, AreToldAlsoWhenNoFileIsTheClients) {
  CVSStage stage;
  stage.Products.Add("car", "proj/car").Add("other", "elsewhere/other");
  ZRKECVSManager manager(stage.Product("car"));
  const CapturedOutput quiet;
  const DebugMessages messages;
  manager.RefreshStatus(stage.Root("other"));
  EXPECT_EQ(messages.All().size(), 3u);
}

TEST(ARefreshsTimes, AreNotToldOfAQuery) {
  CVSStage stage;
  stage.Products.Add("car", "proj/car");
  ZRKECVSManager manager(stage.Product("car"));
  const DebugMessages messages;
  ZRKCVSStatus record;
  manager.GetFileStatus(stage.Products.At("car"), record);
  EXPECT_TRUE(messages.All().empty());
}
