#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "component/manager/CVSStage.h"
#include "component/product/ProductEvents.h"
#include "support/CapturedOutput.h"

using testing::ElementsAre;

namespace {

class RefreshRuns : public testing::Test, protected CVSStage {
protected:
  // The arguments of all runs that refreshing the tree takes.
  std::vector<std::vector<std::string>> Runs(const std::string& root) {
    ZRKECVSManager manager(Product(root));
    manager.RefreshStatus(Root(root));
    std::vector<std::vector<std::string>> runs;
    for (const ClientRun& run : Client.Runs()) {
      EXPECT_EQ(run.Program, "cvs.exe");
      EXPECT_EQ(run.Folder, Folder.Host());
      EXPECT_EQ(run.Input, "");
      runs.push_back(run.Arguments);
    }
    return runs;
  }

  const CapturedOutput quiet_;
};

}  // namespace

TEST_F(RefreshRuns, OfOneFileAsksForItsStatusAndThenForItsEditors) {
  Products.Add("car", "proj/car model");
  EXPECT_THAT(Runs("car"), ElementsAre(Arguments({"status", "-v", "proj\\car model"}),
                                       Arguments({"-n", "edit", "proj\\car model"})));
}

TEST_F(RefreshRuns, AsksForAllFilesOfTheTreeAtOnce) {
  Products.Add("car", "proj/car").Add("axle", "proj/axle").Add("other", "elsewhere/x");
  WriteCVSFolder(Folder / "proj/sub", zrk::sample::kCVSRoot, "proj/sub");
  Products.Add("wheel", "proj/sub/wheel").Place("other", "w", "wheel");
  Products.Place("car", "a", "axle").Place("car", "o", "other").Place("car", "w", "wheel");
  const std::vector<std::string> files{"proj\\car", "proj\\axle", "proj\\sub\\wheel", "proj\\sub\\wheel"};
  std::vector<std::string> status{"status", "-v"};
  std::vector<std::string> edit{"-n", "edit"};
  status.insert(status.end(), files.begin(), files.end());
  edit.insert(edit.end(), files.begin(), files.end());
  EXPECT_THAT(Runs("car"), ElementsAre(Arguments(status), Arguments(edit)));
}

TEST_F(RefreshRuns, WithoutAnyFileOfTheClientAsksForAllBelowTheWorkingFolder) {
  Products.Add("car", "elsewhere/car").Add("axle", "proj/axle").Place("car", "a", "axle");
  Products.Add("other", "elsewhere/other");
  ZRKECVSManager manager(Product("car"));
  manager.RefreshStatus(Root("other"));
  const std::vector<ClientRun> runs = Client.Runs();
  ASSERT_EQ(runs.size(), 2u);
  EXPECT_EQ(runs[0].Arguments, Arguments({"status", "-v"}));
  EXPECT_EQ(runs[1].Arguments, Arguments({"-n", "edit"}));
  EXPECT_EQ(runs[0].Folder, Folder.Host());
  EXPECT_EQ(runs[1].Folder, Folder.Host());
}

TEST_F(RefreshRuns, RunsTheStatusPassOverAllBatchesBeforeTheEditPass) {
  // Each of the long names needs a batch of its own.
  const std::string first(20'000, 'a');
  const std::string second(20'000, 'b');
  Products.Add("car", "proj/car");
  Products.Add({.Name = "one", .Document = Folder.Host("proj") + "\\" + first});
  Products.Add({.Name = "two", .Document = Folder.Host("proj") + "\\" + second});
  Products.Place("car", "1", "one").Place("car", "2", "two");
  EXPECT_THAT(Runs("car"), ElementsAre(Arguments({"status", "-v", "proj\\car", "proj\\" + first}),
                                       Arguments({"status", "-v", "proj\\" + second}),
                                       Arguments({"-n", "edit", "proj\\car", "proj\\" + first}),
                                       Arguments({"-n", "edit", "proj\\" + second})));
}

TEST_F(RefreshRuns, BeforeAFirstPathOf31997CharactersRunsWithoutAFile) {
  const std::string name(31'997 - 5, 'a');
  Products.Add({.Name = "car", .Document = Folder.Host("proj") + "\\" + name});
  EXPECT_THAT(Runs("car"),
              ElementsAre(Arguments({"status", "-v"}), Arguments({"status", "-v", "proj\\" + name}),
                          Arguments({"-n", "edit"}), Arguments({"-n", "edit", "proj\\" + name})));
}

TEST_F(RefreshRuns, WithAFirstPathOf31996CharactersRunsWithItAlone) {
  const std::string name(31'996 - 5, 'a');
  Products.Add({.Name = "car", .Document = Folder.Host("proj") + "\\" + name});
  EXPECT_THAT(Runs("car"), ElementsAre(Arguments({"status", "-v", "proj\\" + name}),
                                       Arguments({"-n", "edit", "proj\\" + name})));
}

TEST_F(RefreshRuns, AsksAgainEveryTime) {
  Products.Add("car", "proj/car");
  ZRKECVSManager manager(Product("car"));
  manager.RefreshStatus(Root("car"));
  manager.RefreshStatus(Root("car"));
  EXPECT_EQ(Client.Runs().size(), 4u);
}

TEST_F(RefreshRuns, OfASubtreeAsksForThatAlone) {
  Products.Add("car", "proj/car").Add("axle", "proj/axle").Place("car", "a", "axle");
  ZRKECVSManager manager(Product("car"));
  const RedrawnProducts redrawn;
  manager.RefreshStatus(Root("car/a"));
  EXPECT_EQ(Client.Runs().at(0).Arguments, Arguments({"status", "-v", "proj\\axle"}));
  EXPECT_THAT(redrawn.Paths(), ElementsAre("car/a"));
}
