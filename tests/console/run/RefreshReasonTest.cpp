// Why a refresh had nothing to show, on standard error.

#include "console/ConsoleTest.h"
#include "support/CVSFolder.h"
#include "support/Files.h"
#include "support/ScriptedClient.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;

class RefreshReason : public ConsoleTest {
protected:
  // What standard error says after a refresh, which has neither a result nor an exit status for it.
  std::string ReasonOf(const std::string& session, const std::string& command = "refresh") const {
    const auto result = Zrkhost({session, "--clients", "none", "--answer", "no", "-c", command});
    EXPECT_EQ(result.Status, 0);
    EXPECT_THAT(result.Output, StartsWith("Product"));
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

TEST_F(RefreshReason, TellsAlsoThatThereIsNoClientAtAll) {
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

TEST_F(RefreshReason, IsNotToldWhenSomethingIsShown) {
  ScriptedClient client;
  client.When("status -v")
      .Out("File: car \tStatus: Up-to-date\r\n\r\n   Repository revision:\t1.3\t/cvs/root/proj/car,v\r\n");
  EXPECT_EQ(ReasonOf(CarInCVS()), "");
}

TEST_F(RefreshReason, IsToldOfTheManagerThatWasAsked) {
  const ScriptedClient clients;
  const auto session = Session(R"({"root": "car", "products": {
      "car": {"document": "first/car", "children": [{"name": "axle.1", "reference": "axle"}]},
      "axle": {"document": "second/axle"}}})");
  EXPECT_THAT(ReasonOf(session, "refresh --by-root car/axle.1"), HasSubstr(Host("first") + "\n"));
}

}  // namespace
