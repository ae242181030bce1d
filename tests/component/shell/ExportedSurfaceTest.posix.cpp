#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <set>
#include <string>

namespace {

struct CommandEnder {
  void operator()(std::FILE* command) const { pclose(command); }
};

// What the built library lets other modules link to, by its C++ names.
std::set<std::string> ExportedNames() {
  const std::unique_ptr<std::FILE, CommandEnder> command(
      popen("'" ZRK_NM "' --dynamic --defined-only --demangle '" ZRK_COMPONENT_LIBRARY "'", "r"));
  std::set<std::string> names;
  char line[1024];
  while (std::fgets(line, sizeof(line), command.get())) {
    // An address, a letter for the kind, the name.
    const std::string text(line);
    const std::size_t name = text.find(' ', text.find(' ') + 1) + 1;
    names.insert(text.substr(name, text.find_last_not_of('\n') + 1 - name));
  }
  return names;
}

}  // namespace

TEST(ExportedSurface, IsTheStatusRecordThePredicatesAndTheTieCreationFunctions) {
  const std::set<std::string> expected = {
      "CreateTIEZRKICVSManagerZRKECVSManager",
      "CreateTIEZRKICVSModifiableZRKECVSModifiable",
      "CreateTIEZRKICVSZRKECVS",
      "IsCVSModifiable",
      "IsCVSable",
      "ZRKCVSStatus::ZRKCVSStatus()",
      "ZRKCVSStatus::ZRKCVSStatus(ZRKCVSStatus const&)",
      "ZRKCVSStatus::operator=(ZRKCVSStatus const&)",
      "ZRKCVSStatus::~ZRKCVSStatus()",
  };
  EXPECT_EQ(ExportedNames(), expected);
}
