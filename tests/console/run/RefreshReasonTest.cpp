// Why a refresh had nothing to show, on standard error.

#include <algorithm>

#include "console/ConsoleTest.h"
#include "support/CVSFolder.h"
#include "support/Files.h"
#include "support/ScriptedClient.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class RefreshReason : public ConsoleTest {
protected:
  // What standard error says after a refresh, which has neither a result nor an exit status for it.
  std::string ReasonOf(const std::string& session, const std::string& command = "refresh") const {
    const auto result = Zrkhost({session, "--clients", "none", "--answer", "no", "-c", command});
    EXPECT_EQ(result.Status, 0);
    EXPECT_THAT(result.Output, HasSubstr("Product"));
    return result.Error;
  }

  std::string CarInCVS() const {
    WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj");
    return Session(R"({"window": false, "root": "car", "products": {"car": {"document": "proj/car"}}})");
  }
  std::string CarInSubversion(const std::string& entries = "wc/.svn/entries") const {
    WriteFile(folder_ / entries, "10\n\f\n");
    return Session(R"({"window": false, "root": "car", "products": {"car": {"document": "wc/car"}}})");
  }
};

TEST_F(RefreshReason, IsThatThereIsNoWorkingCopyBesideAnyDocument) {
  const ScriptedClient clients;
  const auto session = Session(R"({"root": "car", "products": {
      "car": {"document": "first/car", "children": [{"name": "axle.1", "reference": "axle"}]},
      "axle": {"document": "second/axle"}}})");
  EXPECT_EQ(ReasonOf(session),
            "zrkhost: refresh: no working copy beside any document; the first folder looked at is " +
                Host("first") + "\n");
  EXPECT_THAT(ReasonOf(session, "refresh car/axle.1"), HasSubstr(Host("second") + "\n"));
}

TEST_F(RefreshReason, SaysAlsoThatThereIsNoClientAtAll) {
  const ScriptedClient none(InstalledClients::None);
  const auto session =
      Session(R"({"window": false, "root": "car", "products": {"car": {"document": "car"}}})");
  EXPECT_THAT(ReasonOf(session), HasSubstr("; no client on PATH either (looked for: cvs.exe, svn.exe)\n"));
}

TEST_F(RefreshReason, IsThatTheProductHasNoDocument) {
  const ScriptedClient clients;
  EXPECT_EQ(ReasonOf(Session(R"({"root": "car", "products": {"car": {}}})")),
            "zrkhost: refresh: the product has no document, so no folder was looked at\n");
}

TEST_F(RefreshReason, IsThatTheClientIsNotOnPath) {
  {
    const ScriptedClient clients(InstalledClients::SVNOnly);
    EXPECT_EQ(ReasonOf(CarInCVS()), "zrkhost: refresh: no cvs.exe on PATH, the client of the working copy " +
                                        Host("proj") + " (looked for: cvs.exe, svn.exe)\n");
  }
  const ScriptedClient clients(InstalledClients::CVSOnly);
  EXPECT_EQ(ReasonOf(CarInSubversion()),
            "zrkhost: refresh: no svn.exe on PATH, the client of the working copy " + Host("wc") +
                " (looked for: cvs.exe, svn.exe)\n");
}

TEST_F(RefreshReason, KnowsWorkingCopiesWithADatabaseAbove) {
  const ScriptedClient clients(InstalledClients::CVSOnly);
  WriteFile(folder_ / "wc/.svn/wc.db", "");
  const auto session =
      Session(R"({"window": false, "root": "car", "products": {"car": {"document": "wc/a/b/car"}}})");
  EXPECT_THAT(ReasonOf(session),
              HasSubstr(": no svn.exe on PATH, the client of the working copy " + Host("wc/a/b")));
}

TEST_F(RefreshReason, IsThatThereIsNoAttributeClass) {
  const ScriptedClient clients;
  CarInCVS();
  EXPECT_EQ(ReasonOf(Session(R"({"attributeClass": null, "root": "car",
                                 "products": {"car": {"document": "proj/car"}}})")),
            "zrkhost: refresh: the session has no attribute class ZRKCVS to write to\n");
}

TEST_F(RefreshReason, IsOneLineWhateverTheNames) {
  const ScriptedClient clients;
  const auto session = Session(R"({"root": "a\nb", "products": {"a\nb": {}}})");
  EXPECT_EQ(ReasonOf(session, "refresh \"a\nb\""),
            "zrkhost: refresh \"a\\nb\": the product has no document, so no folder was looked at\n");
}

TEST_F(RefreshReason, ChangesNeitherResultNorOutput) {
  const ScriptedClient clients;
  const auto report = Report({CarSession(), "-c", "refresh", "-c", "tree"});
  EXPECT_EQ(CommandOf(report, 0)["result"], nullptr);
  EXPECT_EQ(CommandOf(report, 0)["output"], "");
}

TEST_F(RefreshReason, IsNotGivenWhenSomethingIsShown) {
  ScriptedClient client;
  client.When("status -v")
      .Out("File: car \tStatus: Up-to-date\r\n\r\n   Repository revision:\t1.3\t/cvs/root/proj/car,v\r\n");
  EXPECT_EQ(ReasonOf(CarInCVS()), "");
}

// A refresh of car/axle.1 by the manager of the root, which looks beside the car's document and, where that
// does not lead to the client of CVS, beside the axle's.
class RefreshReasonByRoot : public RefreshReason {
protected:
  // Each is a document, or null.
  std::string ReasonOfAxle(const Json& car, const Json& axle) const {
    Json products = {{"car", {{"children", {{{"name", "axle.1"}, {"reference", "axle"}}}}}},
                     {"axle", Json::object()}};
    if (!car.is_null()) products["car"]["document"] = car;
    if (!axle.is_null()) products["axle"]["document"] = axle;
    const auto session = Session(Json{{"window", false}, {"root", "car"}, {"products", products}}.dump());
    const std::string begin = "zrkhost: refresh --by-root car/axle.1: ";
    const auto reason = ReasonOf(session, "refresh --by-root car/axle.1");
    EXPECT_THAT(reason, StartsWith(begin));
    return reason.substr(std::min(begin.size(), reason.size()));
  }

  void WriteCVS(const std::string& folder, const std::string& root = "/cvs/root") const {
    WriteCVSFolder(folder_ / folder, root, folder);
  }
};

TEST_F(RefreshReasonByRoot, NamesTheFolderOfTheRootFirst) {
  const ScriptedClient clients;
  EXPECT_THAT(ReasonOfAxle("first/car", "second/axle"), EndsWith(Host("first") + "\n"));
  EXPECT_THAT(ReasonOfAxle("first/car", nullptr), EndsWith(Host("first") + "\n"));
}

TEST_F(RefreshReasonByRoot, NamesTheFolderOfTheProductWhenTheRootHasNone) {
  const ScriptedClient clients;
  EXPECT_EQ(ReasonOfAxle(nullptr, "second/axle"),
            "no working copy beside any document; the first folder looked at is " + Host("second") + "\n");
  EXPECT_EQ(ReasonOfAxle(nullptr, nullptr), "the product has no document, so no folder was looked at\n");
}

TEST_F(RefreshReasonByRoot, IsOfTheProductsWorkingCopyWhenTheRootHasNone) {
  const ScriptedClient none(InstalledClients::None);
  WriteCVS("axles");
  EXPECT_THAT(ReasonOfAxle(nullptr, "axles/axle"),
              StartsWith("no cvs.exe on PATH, the client of the working copy " + Host("axles") + " "));
}

TEST_F(RefreshReasonByRoot, IsOfTheProductsWorkingCopyWhenTheRootsIsNotWhole) {
  const ScriptedClient none(InstalledClients::None);
  WriteCVS("cars");
  std::filesystem::remove(folder_ / "cars/CVS/Root");
  WriteCVS("axles");
  EXPECT_THAT(ReasonOfAxle("cars/car", "axles/axle"),
              StartsWith("no cvs.exe on PATH, the client of the working copy " + Host("axles") + " "));
}

TEST_F(RefreshReasonByRoot, IsThatTheRootsManagerFoundNoSubversion) {
  const ScriptedClient clients;
  WriteFile(folder_ / "axles/.svn/entries", "10\n\f\n");
  EXPECT_EQ(
      ReasonOfAxle(nullptr, "axles/axle"),
      "svn.exe was not started for the working copy " + Host("axles") +
          ": in Subversion the manager of the root refreshes the tree of the root, and found none there\n");
}

TEST_F(RefreshReasonByRoot, IsThatTheProductHasNoDocument) {
  const ScriptedClient clients;
  WriteCVS("cars");
  EXPECT_EQ(ReasonOfAxle("cars/car", nullptr),
            "the product has no document that the client could be asked about\n");
}

TEST_F(RefreshReasonByRoot, IsThatTheProductIsInNoWorkingCopy) {
  const ScriptedClient clients;
  WriteCVS("cars");
  EXPECT_EQ(ReasonOfAxle("cars/car", "axles/axle"),
            "no working copy beside any document of the product; the first folder looked at is " +
                Host("axles") + "\n");
}

TEST_F(RefreshReasonByRoot, IsThatTheProductIsInAnotherWorkingCopy) {
  const ScriptedClient clients;
  WriteCVS("cars");
  const auto another = "the manager of the root asks about the working copy " + Host("cars") +
                       ", and the product is in another one, " + Host("axles") + "\n";
  WriteCVS("axles", "/cvs/parts");
  EXPECT_EQ(ReasonOfAxle("cars/car", "axles/axle"), another);
  std::filesystem::remove_all(folder_ / "axles");
  WriteFile(folder_ / "axles/.svn/entries", "10\n\f\n");
  EXPECT_EQ(ReasonOfAxle("cars/car", "axles/axle"), another);
}

TEST_F(RefreshReasonByRoot, KnowsThatTheLastWorkingCopyFoundHolds) {
  const ScriptedClient clients;
  WriteCVS("axles");
  WriteCVS("doors", "/cvs/doors");
  WriteCVS("seats", "/cvs/seats");
  const auto session = Session(R"({"root": "car", "products": {
      "car": {"document": "car", "children": [{"name": "axle.1", "reference": "axle"},
                                              {"name": "door.1", "reference": "door"}]},
      "axle": {"document": "axles/axle"},
      "door": {"document": "doors/door", "children": [{"name": "seat.1", "reference": "seat"}]},
      "seat": {"document": "seats/seat"}}})");
  EXPECT_THAT(ReasonOf(session, "refresh --by-root car/axle.1"),
              HasSubstr("asks about the working copy " + Host("doors") +
                        ", and the product is in another one, " + Host("axles") + "\n"));
}

TEST_F(RefreshReasonByRoot, IsThatTheClientReportedNothingOfAProductInTheSameWorkingCopy) {
  const ScriptedClient clients;
  WriteCVS("cars");
  WriteCVS("cars/sub");
  EXPECT_THAT(ReasonOfAxle("cars/car", "cars/sub/axle"), HasSubstr("no document of the tree"));
}

TEST_F(RefreshReasonByRoot, IsAboutTheTreeOfTheProductInCVS) {
  const ScriptedClient clients;
  WriteCVS("cars");
  const auto session = Session(R"({"root": "car", "products": {
      "car": {"document": "cars/car", "attributes": {"Status": "Edit"},
              "children": [{"name": "axle.1", "reference": "axle"}]},
      "axle": {}}})");
  EXPECT_THAT(ReasonOf(session, "refresh --by-root car/axle.1"), HasSubstr("the product has no document"));
}

TEST_F(RefreshReasonByRoot, IsAboutTheTreeOfTheRootInSubversion) {
  const ScriptedClient clients(InstalledClients::CVSOnly);
  WriteFile(folder_ / "cars/.svn/entries", "10\n\f\n");
  EXPECT_THAT(ReasonOfAxle("cars/car", nullptr),
              StartsWith("no svn.exe on PATH, the client of the working copy " + Host("cars")));
}

TEST_F(RefreshReasonByRoot, IsNotGivenWhenSubversionShowsSomethingElsewhereInTheTreeOfTheRoot) {
  ScriptedClient client;
  client.When("--xml").Out(
      "<?xml version=\"1.0\"?><status><target path=\".\"><entry path=\"car\"><wc-status item=\"normal\" "
      "revision=\"3\"><commit revision=\"3\"/></wc-status></entry></target></status>");
  WriteFile(folder_ / "cars/.svn/wc.db", "");
  const auto session = Session(R"({"root": "car", "products": {
      "car": {"document": "cars/car", "children": [{"name": "axle.1", "reference": "axle"}]}, "axle": {}}})");
  EXPECT_EQ(ReasonOf(session, "refresh --by-root car/axle.1"), "");
}

}  // namespace
