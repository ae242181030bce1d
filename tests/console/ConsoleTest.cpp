#include "console/ConsoleTest.h"

#include "console/SessionSchema.h"
#include "support/Files.h"
#include "support/Platform.h"

std::filesystem::path ConsoleTest::Program() {
  return ExecutableFolder() / (std::string("zrkhost") + EXECUTABLE_SUFFIX);
}

std::string ConsoleTest::Session(std::string_view json, const std::string& name) const {
  ExpectSchemaTakesWhatZrkhostTakes(std::string(json));
  WriteFile(folder_ / name, json);
  return Path(name);
}

std::string ConsoleTest::AxlesSession() const {
  return Session(R"({
    "root": "car",
    "products": {
      "car": {"document": "car.CATProduct",
              "children": [{"name": "axle.1", "reference": "axle"},
                           {"name": "axle.2", "reference": "axle", "attributes": {"Status": "Edit"}}]},
      "axle": {"document": "sub/axle.CATPart", "children": [{"name": "wheel.1", "reference": "wheel"}]},
      "wheel": {}
    }
  })");
}

Json ConsoleTest::Report(std::vector<std::string> arguments, int status) const {
  arguments.insert(arguments.end(), {"--report", Path("report.json")});
  const auto result = Zrkhost(arguments);
  EXPECT_EQ(result.Status, status) << result.Error;
  return Json::parse(ReadFile(folder_ / "report.json"));
}

std::vector<std::string> EventKinds(const Json& command) {
  std::vector<std::string> kinds;
  for (const auto& event : command.at("events")) kinds.push_back(event.at("event"));
  return kinds;
}
