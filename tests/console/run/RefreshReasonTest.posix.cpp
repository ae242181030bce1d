// Reasons that only launches show, which are known on this system alone.

#include "console/ConsoleTest.h"
#include "run/RefreshReason.h"
#include "support/CVSFolder.h"
#include "support/Files.h"
#include "support/JapaneseCodePage.h"
#include "support/ScriptedClient.h"

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::Optional;

class RefreshReasonOnPosix : public ConsoleTest {
protected:
  RefreshReasonOnPosix() { WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj"); }

  std::string ReasonOf(const std::string& session) const {
    const auto result = Zrkhost({session, "--clients", "none", "-c", "refresh"});
    EXPECT_EQ(result.Status, 0);
    return result.Error;
  }

  std::string Car() const {
    return Session(R"({"root": "car", "products": {"car": {"document": "proj/car"}}})");
  }
};

TEST_F(RefreshReasonOnPosix, IsThatAClientCouldNotBeStarted) {
  WriteFile(folder_ / "bin/cvs.exe", "no program");
  std::filesystem::permissions(folder_ / "bin/cvs.exe", std::filesystem::perms::owner_all);
  const EnvironmentVariable path("PATH", Path("bin"));
  EXPECT_EQ(ReasonOf(Car()),
            "zrkhost: refresh: " + Host("bin/cvs.exe") + " could not be started in " + Host("") + "\n");
}

TEST_F(RefreshReasonOnPosix, IsThatTheClientReportedNothing) {
  const ScriptedClient client;
  EXPECT_EQ(
      ReasonOf(Car()),
      "zrkhost: refresh: the client reported no document of the tree; --verbose shows how it was run\n");
}

TEST_F(RefreshReasonOnPosix, IsGivenWhenNoClientWasStartedThoughAttributesWereThere) {
  const ScriptedClient client;
  WriteFile(folder_ / "proj/CVS/Repository", "elsewhere\n");
  const auto session = Session(R"({"root": "car", "products": {
      "car": {"document": "proj/car", "attributes": {"Status": "Edit"}}}})");
  EXPECT_THAT(ReasonOf(session), HasSubstr("cvs.exe was not started for the working copy " + Host("proj")));
}

// In the code page 932 the second byte of this letter is that of "\".
TEST_F(RefreshReasonOnPosix, NamesTheFolderOfADocumentWhoseNameHoldsTheSeparatorsByte) {
  const JapaneseCodePage codePage;
  zrkhost::SessionDescription description;
  description.Root = "car";
  description.Products.resize(1);
  description.Products[0].Name = "car";
  description.Products[0].Document = folder_ / "wc" / "\x83\\.CATPart";
  const zrkhost::HostSession session(description);
  const zrkhost::Refresh refresh{&session.Root(), &session.Root()};
  EXPECT_THAT(zrkhost::WhyNothingIsShown(session, refresh, {}),
              Optional(AllOf(HasSubstr("the first folder looked at is " + Host("wc")),
                             Not(HasSubstr(Host("wc") + "\\")))));
}

}  // namespace
