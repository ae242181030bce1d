#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

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
  const std::wstring labels[] = {L"\nCVS status check time: ", L"\nCVS edit check time: ",
                                 L"\nRefreshing status time (attributing): "};
  const std::wstring unit = L" sec\n";
  for (std::size_t i = 0; i < 3; ++i) {
    const std::wstring& message = messages.All()[i];
    ASSERT_TRUE(message.starts_with(labels[i]) && message.ends_with(unit)) << i;
    const std::wstring seconds =
        message.substr(labels[i].size(), message.size() - labels[i].size() - unit.size());
    EXPECT_FALSE(seconds.empty()) << i;
    EXPECT_EQ(seconds.find_first_not_of(L"0123456789."), std::wstring::npos) << i;
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
