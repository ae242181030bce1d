// Whole reports, compared with stored ones that hold for both targets. In those "<folder>" stands for the
// test's folder and "<time>" for what a clock said; launches, which only Linux reports, are left out.

#include <regex>

#include "console/ConsoleTest.h"
#include "support/CVSFolder.h"
#include "support/ClientReports.h"
#include "support/Files.h"
#include "support/Platform.h"
#include "support/ScriptedClient.h"

namespace {

using OrderedJson = nlohmann::ordered_json;

class WholeReport : public ConsoleTest {
protected:
  void ExpectReport(const std::string& name, std::vector<std::string> arguments, int status) const {
    arguments.insert(arguments.end(), {"--report", Path("report.json")});
    const ProgramResult result = Zrkhost(arguments);
    EXPECT_EQ(result.Status, status) << result.Error;
    OrderedJson report = OrderedJson::parse(ReadFile(folder_ / "report.json"));
    Neutralise(report);
    EXPECT_EQ(report.dump(2) + "\n", ReadFile(ExecutableFolder() / "reports" / (name + ".json")));
  }

  ScriptedClient client_;

private:
  void Neutralise(OrderedJson& value) const {
    if (value.is_string()) value = Neutral(value.get<std::string>());
    if (value.is_array()) {
      std::erase_if(value.get_ref<OrderedJson::array_t&>(), [](const OrderedJson& element) {
        return element.is_object() && element.contains("event") && element["event"] == "launch";
      });
    }
    if (value.is_object() && value.contains("seconds")) value["seconds"] = "<time>";
    if (value.is_structured()) {
      for (OrderedJson& element : value) Neutralise(element);
    }
  }

  std::string Neutral(std::string text) const {
    const std::string folder = folder_.Host();
    for (std::size_t at = 0; (at = text.find(folder, at)) != std::string::npos;) {
      text.replace(at, folder.size(), "<folder>");
    }
    text = std::regex_replace(text, std::regex(": [0-9.e+-]+ sec"), ": <time> sec");
    return std::regex_replace(text, std::regex("Comm Time: [0-9.e+-]+"), "Comm Time: <time>");
  }
};

// A car that may be edited, an axle that may not, and a wheel that somebody else edits.
class WholeReportOfCVS : public WholeReport {
protected:
  WholeReportOfCVS() {
    for (const char* file : {"car.CATProduct", "axle.CATPart", "sub/front wheel.CATPart"}) {
      WriteFile(folder_ / "proj" / file, file);
    }
    SetReadOnly(folder_ / "proj/axle.CATPart");
    SetReadOnly(folder_ / "proj/sub/front wheel.CATPart");
    WriteCVSFolder(folder_ / "proj", "/cvs/root", "proj");
    WriteCVSFolder(folder_ / "proj/sub", "/cvs/root", "proj/sub");
  }

  void ReportStatus() {
    client_.When("status -v proj\\axle.CATPart").Out(zrk::sample::ReportBlock("proj/axle.CATPart", "1.7"));
    client_.When("status -v")
        .Out(zrk::sample::ReportBlock("proj/car.CATProduct", "1.3"))
        .Out(zrk::sample::ReportBlock("proj/axle.CATPart", "1.7"))
        .Out(zrk::sample::ReportBlock("proj/sub/front wheel.CATPart", "1.12"));
    client_.When("-n edit").Out("proj/sub/front wheel.CATPart\tanna\tMon Mar  2 10:00:00 2020 GMT\thost\r\n");
  }

  std::string Assembly() const {
    return Session(R"({
      "documents": "proj", "root": "car",
      "catalogs": {"ZRKCVSEditCmd": {"warning": "Attention", "updatewarning": "Please update first: /P1"}},
      "products": {
        "car": {"document": "car.CATProduct",
                "children": [{"name": "axle.1", "reference": "axle"},
                             {"name": "axle.2", "reference": "axle", "attributes": {"Status": "Edit"}},
                             {"name": "gone", "reference": null}, {"name": "plain", "reference": "plain"}]},
        "axle": {"document": "axle.CATPart"},
        "plain": {"linkable": false}
      }})");
  }
};

TEST_F(WholeReportOfCVS, OfAFolderIsTheSameOnBothTargets) {
  ReportStatus();
  client_.When("edit -z").MakeWritable("proj/axle.CATPart");
  client_.When("unedit")
      .Out("axle.CATPart has been modified; revert changes? ")
      .Read()
      .MakeReadOnly("proj/axle.CATPart");
  const std::string axle = "car.CATProduct/axle.CATPart";
  ExpectReport("cvs-folder", {"--folder", Path("proj"),
                              "--root",   "car.CATProduct",
                              "--answer", "yes",  //
                              "-c",       "refresh",
                              "-c",       "status " + axle,
                              "-c",       "edit " + axle,
                              "-c",       "unedit " + axle,  //
                              "-c",       "status \"car.CATProduct/sub/front wheel.CATPart\"",
                              "-c",       "storage " + axle,  //
                              "-c",       "cvsable",
                              "-c",       "modifiable",  //
                              "-c",       "remove \"" + Host("proj/old part.CATPart") + "\"",
                              "-c",       "commtime"},
               0);
}

TEST_F(WholeReportOfCVS, OfASessionFileIsTheSameOnBothTargets) {
  ReportStatus();
  client_.When("edit -z").MakeWritable("proj/axle.CATPart");
  client_.When("unedit").MakeReadOnly("proj/axle.CATPart");
  ExpectReport("cvs-session",
               {Assembly(), "-c", "refresh car/axle.1", "-c", "edit car/axle.1", "-c", "unedit car/axle.1",
                "-c", "refresh", "-c", "status car/gone", "-c", "cvsable car/plain", "-c", "tree"},
               0);
}

TEST_F(WholeReportOfCVS, OfFailuresIsTheSameOnBothTargets) {
  client_.When("status -v").Out("cvs status: cannot reach the server\r\n");
  client_.When("update car").Out("U car.CATProduct");
  client_.When("update proj\\car").Out("U proj/car.CATProduct\r\n");
  client_.When("edit -z").Out("cvs edit: ").Error("axle.CATPart is edited by anna\r\n").Exit(1);
  client_.When("unedit").Out("axle.CATPart has been modified; revert changes? ").Read();
  ExpectReport("cvs-failures",
               {Assembly(),
                "--answer",
                "no",
                "-c",
                "refresh",
                "-c",
                "edit",
                "-c",
                "edit car/axle.1",  //
                "-c",
                "unedit car/axle.2",
                "-c",
                "unedit",
                "-c",
                "edit car/gone",
                "-c",
                "unedit car/plain",
                "-c",
                "remove \"" + Host("missing/old part.CATPart") + "\"",  //
                "-c",
                "delete \"" + Host("proj/axle.CATPart") + "\""},
               1);
}

TEST_F(WholeReportOfCVS, WithoutAClientIsTheSameOnBothTargets) {
  const ScriptedClient none(InstalledClients::None);
  ExpectReport("no-client",
               {Assembly(), "--clients", "none", "-c", "refresh", "-c", "status", "-c", "edit", "-c",
                "unedit car/axle.2", "-c", "remove \"" + Host("proj/axle.CATPart") + "\""},
               1);
}

// A committed file as the client of format 10 keeps it; the owner of a lock may be empty.
std::string Entry(const std::string& name, const std::string& revision, const std::string& owner) {
  std::string entry = name +
                      "\nfile\n\n\n\n\n2026-11-20T10:15:02.000000Z\n0cc175b9c0f1b6a831c399e269772661\n" +
                      "2026-11-19T16:40:11.123456Z\n" + revision + "\nbert\n" + std::string(15, '\n');
  if (!owner.empty()) {
    entry += "opaquelocktoken:5f4dd5d0\n" + owner + "\nweek 12\n2026-11-20T10:16:00.000000Z\n\n\n48213\n";
  } else {
    entry += std::string(6, '\n') + "48213\n";
  }
  return entry + "\f\n";
}

std::string XMLReport(const std::string& owner) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<status>\r\n<target\r\n   path=\"x\">\r\n<entry\r\n"
         "   path=\"x\">\r\n<wc-status\r\n   item=\"normal\"\r\n   revision=\"12\">\r\n</wc-status>\r\n"
         "<repos-status\r\n   item=\"none\">\r\n<lock>\r\n<token>opaquelocktoken:1</token>\r\n<owner>" +
         owner +
         "</owner>\r\n<comment>do not touch</comment>\r\n<created>2026-11-20T10:16:00.000000Z</created>\r\n"
         "</lock>\r\n</repos-status>\r\n</entry>\r\n<against\r\n   revision=\"12\"/>\r\n</target>\r\n"
         "</status>\r\n";
}

// A car that is locked here, an axle that is free, and a wheel that carl has locked.
class WholeReportOfSubversion : public WholeReport {
protected:
  WholeReportOfSubversion() {
    for (const char* file : {"car.CATProduct", "axle.CATPart", "front wheel.CATPart"}) {
      WriteFile(folder_ / "wc" / file, file);
    }
    WriteFile(folder_ / "wc/.svn/entries", Entries(""));
    const std::string wheel = "wc\\front wheel.CATPart";
    client_.When("--xml " + folder_.Host() + "\\" + wheel).Out(XMLReport("carl"));
    client_.When("status -v -u " + folder_.Host() + "\\" + wheel)
        .Out("     O           12        5 bert         " + wheel +
             "\r\nStatus against revision:     12\r\n");
  }

  static std::string Entries(const std::string& ownerOfTheAxle) {
    return "10\n" + Entry("car.CATProduct", "9", "anna") + Entry("axle.CATPart", "7", ownerOfTheAxle) +
           Entry("front wheel.CATPart", "5", "");
  }
};

TEST_F(WholeReportOfSubversion, OfAFolderIsTheSameOnBothTargets) {
  client_.When("unlock").Store(".svn/entries", Entries(""));
  client_.When("lock")
      .Store(".svn/entries", Entries("anna"))
      .Out("'axle.CATPart' locked by user 'anna'.\r\n");
  const std::string axle = "car.CATProduct/axle.CATPart";
  ExpectReport(
      "svn-folder",
      {"--folder", Path("wc"), "--root", "car.CATProduct",                                     //
       "-c", "refresh", "-c", "status " + axle, "-c", "edit " + axle, "-c", "unedit " + axle,  //
       "-c", "storage " + axle, "-c", "delete \"" + Host("wc/old part.CATPart") + "\"", "-c", "commtime"},
      0);
}

TEST_F(WholeReportOfSubversion, OfFailuresIsTheSameOnBothTargets) {
  const std::string session = Session(R"({
      "documents": "wc", "root": "car",
      "products": {
        "car": {"document": "car.CATProduct",
                "children": [{"name": "new.1", "reference": "new"},
                             {"name": "wheel.1", "reference": "wheel", "attributes": {"Comment": "old"}},
                             {"name": "gone", "reference": null}]},
        "wheel": {"document": "front wheel.CATPart"},
        "new": {"document": "elsewhere/new.CATPart"}
      }})");
  client_.When("update").Error("svn: E170013: Unable to connect to a repository\r\n").Exit(1);
  client_.When("unlock").Error("svn: warning: W160040: no lock\r\n").Exit(1);
  client_.When("lock").Error("svn: warning: W160035: already locked by user 'carl'\r\n").Exit(1);
  client_.When("--xml").Out("<?xml version=\"1.0\"?>\r\n<status>\r\n<target");
  client_.When("delete").Error("svn: E155010: not found\r\n").Exit(1);
  ExpectReport("svn-failures",
               {session, "-c", "refresh", "-c", "edit car/wheel.1", "-c", "unedit car/wheel.1",  //
                "-c", "edit car/new.1", "-c", "unedit car/gone", "-c", "delete \"" + Host("wc/gone") + "\""},
               1);
}

}  // namespace
