#include "console/ConsoleTest.h"
#include "support/Files.h"
#include "support/Platform.h"

namespace {

using testing::HasSubstr;

class Plugin : public ConsoleTest {
protected:
  ProgramResult With(const std::string& plugin) const {
    return Zrkhost({CarSession(), "-c", "tree", "--plugin", plugin});
  }

  void ExpectRefused(const std::string& plugin, const std::string& what) const {
    const auto result = With(plugin);
    EXPECT_EQ(result.Status, 2);
    EXPECT_EQ(result.Output, "");
    EXPECT_THAT(result.Error, HasSubstr(std::filesystem::path(plugin).filename().string()));
    EXPECT_THAT(result.Error, HasSubstr(what));
  }

  static std::string Built(const std::string& name) {
    return (ExecutableFolder() / "plugins" / name).string();
  }
};

TEST_F(Plugin, ThatIsMissingIsReported) {
  ExpectRefused(Path("gone.so"), "there is no such component library");
}

TEST_F(Plugin, ThatIsATextFileIsReported) {
  WriteFile(folder_ / "text.so", "not a library");
  ExpectRefused(Path("text.so"), "cannot be loaded");
}

TEST_F(Plugin, ThatIsEmptyIsReported) {
  WriteFile(folder_ / "empty.so", "");
  ExpectRefused(Path("empty.so"), "cannot be loaded");
}

TEST_F(Plugin, ThatIsAFolderIsReported) {
  ExpectRefused(folder_.Path().string(), "cannot be loaded");
}

TEST_F(Plugin, WithoutTheComponentsSymbolsIsReported) {
  ExpectRefused(Built("foreign_library.plugin"), "does not export IsCVSable");
}

TEST_F(Plugin, ThatFillsNoDictionaryIsReported) {
  ExpectRefused(Built("silent_library.plugin"), "brings no products with ZRKICVS");
}

}  // namespace
