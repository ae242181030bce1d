// The whole Subversion status reader with a client that prints the input: its text report up to the first
// 0, its XML report behind that. Each input costs two client runs.

#include "fuzz/Fuzzing.h"
#include "support/Assembly.h"
#include "support/ClientReports.h"
#include "support/Files.h"
#include "support/Session.h"
#include "svn/StatusReaders.h"
#include "svn/StatusReport.h"
#include "windows/WindowsControl.h"

namespace {

namespace fs = std::filesystem;

// A working copy of one file, which the entries file lists as not locked here.
class Stage {
public:
  Stage() {
    // A client that costs little more than its start.
    WriteFile(folder_ / "svn.exe",
              "#!/bin/sh\ncase \"$4\" in\n--xml) exec cat xml ;;\n*) exec cat text ;;\nesac\n");
    fs::permissions(folder_ / "svn.exe", fs::perms::owner_all);
    products_.Add("car", "car.CATProduct");
    WriteFile(folder_ / ".svn/entries",
              "10\n\ndir\n\f\ncar.CATProduct\nfile" + std::string(8, '\n') + "7\n\f\n");
  }

  StatusAttributes Refresh(std::string_view textReport, std::string_view xmlReport) {
    WriteFile(folder_ / "text", textReport);
    WriteFile(folder_ / "xml", xmlReport);
    zrk::svn::SVNTimes times;
    zrk::svn::RefreshSVNStatusTree(context_, products_.At("car"), times);
    output_.Close();
    input_.Close();
    Require(standin::OpenHandleCount() == 0, "a refresh leaves no handle open");
    const auto attributes = ReadStatusAttributes(products_.At("car"));
    Require(attributes.has_value(), "a listed file has its attributes");
    return *attributes;
  }

private:
  const Session session_;
  const TemporaryFolder folder_;
  Assembly products_{folder_};
  const CATUnicodeString none_;
  const CATUnicodeString client_ = folder_.Host("svn.exe").c_str();
  const CATUnicodeString workingFolder_ = folder_.Host().c_str();
  const ZRKIAttClass_var class_ = StatusClass();
  zrk::tools::Pipe output_;
  zrk::tools::Pipe input_;
  const zrk::svn::SVNContext context_{{true, none_, none_, client_, output_, input_}, workingFolder_, class_};
};

std::string Comment(const std::string& owner) {
  return owner.empty() ? "" : "Locked by: \n" + owner + "\n-------------\n";
}

void ShowsWhatTheReadersSay(Stage& stage, const std::string& textReport, const std::string& xmlReport) {
  // A question ends the reading of a report, and how much of it had come by then is a matter of chance.
  if (textReport.find("revert changes") != std::string::npos) return;
  if (xmlReport.find("revert changes") != std::string::npos) return;
  const StatusAttributes shown = stage.Refresh(textReport, xmlReport);
  const auto owner = zrk::svn::FirstLockOwner(xmlReport.c_str());
  Require(shown.Revision == "7" && shown.Release.empty(), "the revision is that of the entries file");
  Require(shown.Status == (zrk::svn::ShowsForeignLock(textReport.c_str()) ? "Locked" : "ReadOnly"),
          "the lock shows");
  Require(shown.Comment == Comment(owner ? owner->ConvertToChar() : ""), "the owner shows");
}

void ValuesComeBack(Stage& stage, FuzzedDataProvider& values) {
  const bool locked = values.ConsumeBool();
  const std::string owner = "o" + ConsumeWord(values, kOwnerCharacters, 40);
  const std::string report =
      std::string(locked ? "     O  " : "        ") + "    12        9 anna         car\r\n";
  const StatusAttributes shown = stage.Refresh(report, reports::XMLReport(owner));
  Require(shown == StatusAttributes{"7", locked ? "Locked" : "ReadOnly", "", Comment(owner)},
          "values come back");
}

// A 0 cuts a chunk of output at itself, and where chunks begin is a matter of chance.
std::string UpToZero(std::string_view text) {
  return std::string(text.substr(0, text.find('\0')));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Stage stage;
  const std::string_view input = Text(data, size);
  const std::string text = UpToZero(input);
  ShowsWhatTheReadersSay(stage, text, UpToZero(input.substr(std::min(text.size() + 1, size))));
  FuzzedDataProvider values(data, size);
  ValuesComeBack(stage, values);
  return 0;
}
