#include "component/operations/OperationTest.h"
#include "support/Launches.h"

// The operations' command lines character by character, as the system is given them.

namespace {

class OperationCommandLines : public OperationTest {
protected:
  std::vector<std::wstring> Launched() const {
    std::vector<std::wstring> lines;
    for (const standin::Launch& launch : launches_.All()) lines.push_back(launch.CommandLine);
    return lines;
  }

  Launches launches_;
};

using WideLines = std::vector<std::wstring>;

}  // namespace

TEST_F(OperationCommandLines, OfEdit) {
  Manager().Edit();
  EXPECT_EQ(Launched(), (WideLines{L" -d /cvs/root -n -q update \"proj\\sub\\car body.CATProduct\"",
                                   L" -d /cvs/root -q -x edit -z -c \"proj\\sub\\car body.CATProduct\"",
                                   L" -d /cvs/root  status -v \"proj\\sub\\car body.CATProduct\""}));
}

TEST_F(OperationCommandLines, OfUnedit) {
  Client.When("status -v").Out(StatusReport());
  Manager().Unedit();
  EXPECT_EQ(Launched(), (WideLines{L" -d /cvs/root  status -v  \"proj\\sub\\car body.CATProduct\"",
                                   L" -d /cvs/root  -n edit  \"proj\\sub\\car body.CATProduct\"",
                                   L" -d /cvs/root -q -x unedit \"proj\\sub\\car body.CATProduct\"",
                                   L" -d /cvs/root  status -v  \"proj\\sub\\car body.CATProduct\"",
                                   L" -d /cvs/root  -n edit  \"proj\\sub\\car body.CATProduct\""}));
}

TEST_F(OperationCommandLines, OfCVSRemove) {
  Manager().CVSRoot = "R";
  Manager().CVSRemove(Folder.Host("a.txt").c_str());
  EXPECT_EQ(Launched(), WideLines{L" -d R  -d R remove -f \"a.txt\""});
  EXPECT_EQ(launches_.All()[0].Folder, CATUnicodeString(Folder.Host().c_str()).ConvertToWideChar());
}
