// Where the time of a refresh went: the three messages on the debugger channel, and what counts into each.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <ostream>

#include "component/manager/SlowStep.h"
#include "component/svn/DatabaseStage.h"
#include "manager/ZRKECVSManager.h"
#include "support/CapturedOutput.h"
#include "support/DebugMessages.h"

namespace {

// A tree of each route, and the labels of its messages.
struct Route {
  std::string Name;
  std::array<std::wstring, 3> Labels;
};
const std::wstring kAttributing = L"\nRefreshing status time (attributing): ";
const Route kRoutes[] = {
    {"CVS", {L"\nCVS status check time: ", L"\nCVS edit check time: ", kAttributing}},
    {"TextEntries", {L"\nSVN status check time: ", L"\nXML Parsing time: ", kAttributing}},
    {"Database", {L"\nSVN status check time: ", L"\nXML Parsing time: ", kAttributing}}};

// Steps of the refresh of a tree, and the message that alone gives their time.
struct Steps {
  std::string Name;
  std::string Tree;
  // In the command lines of the launches; empty for the redraws.
  std::wstring Command;
  int Count;
  std::size_t Message;
};
const Steps kSteps[] = {
    {"StatusPass", "CVS", L"status -v", 1, 0},
    {"EditPass", "CVS", L"-n edit", 1, 1},
    {"RedrawsOfCVS", "CVS", L"", 2, 2},
    {"TextReports", "TextEntries", L"status -v -u \"", 2, 0},
    {"XMLReports", "TextEntries", L"status -v -u --xml \"", 2, 1},
    {"RedrawsOfTextEntries", "TextEntries", L"", 2, 2},
    // Of two working copies, both asked once more without the repository.
    {"DatabaseReports", "Database", L"status", 4, 0},
    {"RedrawsOfADatabase", "Database", L"", 3, 2},
    {"TextReportBelowADatabase", "TextEntriesBelowADatabase", L"status -v -u \"", 1, 0},
    {"XMLReportBelowADatabase", "TextEntriesBelowADatabase", L"status -v -u --xml \"", 1, 1}};

std::ostream& operator<<(std::ostream& stream, const Route& route) {
  return stream << route.Name;
}
std::ostream& operator<<(std::ostream& stream, const Steps& steps) {
  return stream << steps.Name;
}

class RefreshTimes : public DatabaseStage {
protected:
  RefreshTimes() {
    WriteCVS("cvs");
    WriteEntries("old", entries::File(10, "wheel", "9", "bert"));
    WriteDatabase("other");
    AddTree("CVS", {"cvs/car", "cvs/wheel"});
    AddTree("TextEntries", {"old/car", "old/wheel"});
    AddTree("Database", {"wc/car", "wc/sub/wheel", "other/bolt"});
    AddTree("TextEntriesBelowADatabase", {"wc/top", "old/part"});
  }
  ~RefreshTimes() override {
    standin::SetLaunchListener({});
    standin::SetRedrawListener({});
  }

  // The first is the top of the tree, and the others stand below it.
  void AddTree(const std::string& tree, const std::vector<std::string>& documents) {
    Products.Add(tree, documents.front());
    for (std::size_t i = 1; i < documents.size(); ++i) {
      const std::string name = tree + std::to_string(i);
      Products.Add(name, documents[i]).Place(tree, name + ".1", name);
    }
  }

  ZRKECVSManager& ManagerOf(const std::string& tree) { return manager_.emplace(*Products.At(tree).Get()); }

  void Refresh(const std::string& tree) {
    const CapturedOutput quiet;
    manager_->RefreshStatus(Products.At(tree));
  }

  // The ticks that a message gives in seconds.
  std::clock_t Ticks(std::size_t message) const {
    const std::wstring& text = Messages.All().at(message);
    return std::lround(std::stod(text.substr(text.find(L": ") + 2)) * 1000.0);
  }

  const DebugMessages Messages;

private:
  std::optional<ZRKECVSManager> manager_;
};

class RefreshTimesOf : public RefreshTimes, public testing::WithParamInterface<Route> {};
class RefreshTimesCount : public RefreshTimes, public testing::WithParamInterface<Steps> {};

TEST_P(RefreshTimesOf, AreThreeMessagesInTheOrderOfTheWork) {
  const Route& route = GetParam();
  ZRKECVSManager& manager = ManagerOf(route.Name);
  // So that no two of a Subversion route's three are the same.
  standin::SetLaunchListener([](const standin::Launch& launch) {
    LetTimePass();
    if (launch.CommandLine.find(L" --xml \"") != std::wstring::npos) LetTimePass();
  });
  standin::SetRedrawListener([](const CATBaseUnknown_var&) {
    for (int i = 0; i < 3; ++i) LetTimePass();
  });
  Refresh(route.Name);
  ASSERT_EQ(Messages.All().size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    const CATUnicodeString seconds =
        CATUnicodeString::BuildFromNum(static_cast<double>(Ticks(i)) / 1000.0, "%g");
    EXPECT_EQ(Messages.All()[i], route.Labels[i] + seconds.ConvertToWideChar() + L" sec\n");
  }
  if (!manager.IsSVN) return;
  EXPECT_EQ(static_cast<std::clock_t>(manager.SVNTimings.StatusCheck), Ticks(0));
  EXPECT_EQ(static_cast<std::clock_t>(manager.SVNTimings.XMLParsing), Ticks(1));
  EXPECT_EQ(static_cast<std::clock_t>(manager.SVNTimings.Attributing), Ticks(2));
}

TEST_P(RefreshTimesCount, TheseStepsIntoOneMessageAlone) {
  // An earlier refresh counts into none of them.
  ManagerOf(GetParam().Tree).SVNTimings = {1e9, 1e9, 1e9};
  const auto refresh = [this] { Refresh(GetParam().Tree); };
  const SlowTimes times =
      GetParam().Command.empty() ? WithSlowRedraws(refresh) : WithSlowLaunches(GetParam().Command, refresh);
  ASSERT_EQ(times.Steps, GetParam().Count);
  for (std::size_t message = 0; message < 3; ++message) {
    const std::clock_t within = message == GetParam().Message ? times.Within : 0;
    EXPECT_GE(Ticks(message), within) << message;
    EXPECT_LE(Ticks(message), within + times.Outside) << message;
  }
}

const auto kRowName = [](const auto& row) { return row.param.Name; };
INSTANTIATE_TEST_SUITE_P(Route, RefreshTimesOf, testing::ValuesIn(kRoutes), kRowName);
INSTANTIATE_TEST_SUITE_P(Steps, RefreshTimesCount, testing::ValuesIn(kSteps), kRowName);

TEST_F(RefreshTimes, OfAManagerThatHasRefreshedNothingAreZero) {
  const ZRKECVSManager& manager = ManagerOf("TextEntries");
  EXPECT_EQ(manager.SVNTimings.StatusCheck, 0.0);
  EXPECT_EQ(manager.SVNTimings.XMLParsing, 0.0);
  EXPECT_EQ(manager.SVNTimings.Attributing, 0.0);
}

TEST_F(RefreshTimes, AreReportedAlsoWhenNoFileIsTheClients) {
  Products.Add("bolt", "elsewhere/bolt");
  ManagerOf("CVS");
  Refresh("bolt");
  EXPECT_EQ(Messages.All().size(), 3U);
}

TEST_F(RefreshTimes, AreNotReportedOfAQuery) {
  ZRKCVSStatus record;
  ManagerOf("CVS").GetFileStatus(CATIProduct_var(Products.At("CVS")), record);
  EXPECT_TRUE(Messages.All().empty());
}

}  // namespace
