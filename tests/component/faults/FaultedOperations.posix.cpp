#include "component/faults/FaultedOperations.h"
#include "support/ClientReports.h"

#include <gtest/gtest.h>

#include "support/Files.h"

namespace faults {
namespace {

using standin::DialogAnswer;

constexpr char kForeignLock[] = "     O           12        9 bert         car.CATPart\r\n";

void TakeForEditing(FaultStage& stage) {
  WriteStatusAttributes(stage.Car(), {"1.3", "Edit", "", ""});
}

// The attributes that the check at the end of an Edit or Unedit leaves.
void ExpectTaken(const FaultStage& stage, const std::string& revision) {
  EXPECT_EQ(stage.Shown(), (StatusAttributes{revision, "Edit", "", ""}));
}

Operation RefreshOfCVS() {
  return {"RefreshStatusOfCVS",
          FaultStage::Kind::CVS,
          {2, 2},
          0,
          [](FaultStage& stage) {
            SetReadOnly(stage.DocumentFile());
            stage.Clients.When("status -v").Out(FaultStage::StatusReport());
            stage.Clients.When("-n edit").Out("wc/car.CATPart\tanna\r\n");
          },
          [](FaultStage& stage) {
            stage.Manager().RefreshStatus(stage.Car());
            return S_OK;
          },
          [](const FaultStage& stage, HRESULT, const Loss& loss) {
            if (loss.Run == 0) {
              // A file that the client does not report keeps what it had.
              EXPECT_EQ(stage.Shown(), std::nullopt);
            } else if (loss.Run == 1) {
              EXPECT_EQ(stage.Shown(), (StatusAttributes{"1.4", "ReadOnly", "", ""}));
            } else {
              EXPECT_EQ(stage.Shown(), (StatusAttributes{"1.4", "Locked", "", "wc/car.CATPart\nanna"}));
            }
          }};
}

Operation RefreshOfSVN() {
  return {"RefreshStatusOfSVN",
          FaultStage::Kind::SVN,
          {2, 2},
          0,
          [](FaultStage& stage) {
            stage.Clients.When("--xml").Out(FaultStage::XMLReport());
            stage.Clients.When("status").Out(kForeignLock);
          },
          [](FaultStage& stage) {
            stage.Manager().RefreshStatus(stage.Car());
            return S_OK;
          },
          [](const FaultStage& stage, HRESULT, const Loss& loss) {
            EXPECT_EQ(stage.Shown(),
                      (StatusAttributes{"9", loss.Run == 0 ? "ReadOnly" : "Locked", "",
                                        loss.Run == 1 ? "" : "Locked by: \nbert\n-------------\n"}));
          }};
}

Operation Query() {
  return {"GetFileStatus",
          FaultStage::Kind::CVS,
          {2},
          0,
          [](FaultStage& stage) { stage.Clients.When("status -v").Out(FaultStage::StatusReport()); },
          [](FaultStage& stage) { return stage.Manager().GetFileStatus(stage.Car(), stage.Record); },
          [](const FaultStage& stage, HRESULT result, const Loss& loss) {
            EXPECT_EQ(result, S_OK);
            EXPECT_STREQ(stage.Record.WorkingRevision.ConvertToChar(), loss.Run == 0 ? "" : "1.4");
          }};
}

Operation Edit() {
  return {"Edit",
          FaultStage::Kind::CVS,
          {1, 1, 2},
          0,
          [](FaultStage& stage) { stage.Clients.When("status -v").Out(FaultStage::StatusReport()); },
          [](FaultStage& stage) { return stage.Manager().Edit(); },
          [](const FaultStage& stage, HRESULT result, const Loss& loss) {
            // A client that says nothing has done what it was asked.
            EXPECT_EQ(result, S_OK);
            EXPECT_TRUE(stage.Dialogs().empty());
            ExpectTaken(stage, loss.Run == 2 ? "" : "1.4");
          }};
}

Operation EditOfANewerVersion() {
  return {"EditOfANewerVersion",
          FaultStage::Kind::CVS,
          {2},
          0,
          [](FaultStage& stage) { stage.Clients.When("-q update").Out("U wc/car.CATPart\r\n"); },
          [](FaultStage& stage) { return stage.Manager().Edit(); },
          [](const FaultStage& stage, HRESULT result, const Loss& loss) {
            EXPECT_EQ(result, loss.Run == 0 ? S_OK : E_FAIL);
            EXPECT_EQ(stage.Dialogs().size(), loss.Run == 0 ? 0u : 1u);
          }};
}

Operation EditThatIsRefused() {
  return {"EditThatIsRefused",
          FaultStage::Kind::CVS,
          {1, 2},
          0,
          [](FaultStage& stage) { stage.Clients.When("edit -z -c").Error("cvs edit: no\r\n"); },
          [](FaultStage& stage) { return stage.Manager().Edit(); },
          [](const FaultStage& stage, HRESULT result, const Loss& loss) {
            EXPECT_EQ(result, loss.Run == 1 ? S_OK : 1);
            EXPECT_EQ(stage.Dialogs().size(), loss.Run == 1 ? 0u : 1u);
          }};
}

Operation Unedit() {
  return {"Unedit",
          FaultStage::Kind::CVS,
          {2, 1, 1, 2, 1},
          0,
          [](FaultStage& stage) {
            TakeForEditing(stage);
            stage.Clients.When("status -v").Out(FaultStage::StatusReport());
          },
          [](FaultStage& stage) { return stage.Manager().Unedit(); },
          [](const FaultStage& stage, HRESULT result, const Loss&) {
            EXPECT_EQ(result, S_OK);
            EXPECT_TRUE(stage.Dialogs().empty());
            // One of the two checks has its report.
            ExpectTaken(stage, "1.4");
          }};
}

Operation UneditWithTheQuestion(bool agree) {
  Operation operation{"",
                      FaultStage::Kind::CVS,
                      {2, 1, 2, 2, 1},
                      1,
                      [](FaultStage& stage) {
                        TakeForEditing(stage);
                        stage.AnswerQuestions({DialogAnswer::Yes});
                        stage.Clients.When("status -v").Out(FaultStage::StatusReport());
                        stage.Clients.When("unedit").Out(zrk::sample::kRevertQuestion).ReadAll();
                      },
                      [](FaultStage& stage) { return stage.Manager().Unedit(); },
                      [](const FaultStage& stage, HRESULT result, const Loss& loss) {
                        EXPECT_EQ(result, S_OK);
                        EXPECT_EQ(stage.Dialogs().size(), loss.Run == 2 ? 0u : 1u);
                        const bool answered = loss.Run != 2 && !loss.Answer;
                        EXPECT_EQ(stage.InputOf("unedit") == std::string("yes\0", 4), answered);
                        ExpectTaken(stage, "1.4");
                      }};
  operation.Name = "UneditWithTheQuestionAgreed";
  if (agree) return operation;

  operation.Name = "UneditWithTheQuestionDeclined";
  operation.Reads = {2, 1, 2};
  operation.Prepare = [](FaultStage& stage) {
    TakeForEditing(stage);
    stage.AnswerQuestions({DialogAnswer::No});
    stage.Clients.When("status -v").Out(FaultStage::StatusReport());
    stage.Clients.When("unedit").Out(zrk::sample::kRevertQuestion).ReadAll();
  };
  operation.Expect = [](const FaultStage& stage, HRESULT result, const Loss& loss) {
    const bool asked = loss.Run != 2;
    EXPECT_EQ(result, asked ? 1 : S_OK);
    EXPECT_EQ(stage.Dialogs().size(), asked ? 1u : 0u);
    const bool answered = asked && !loss.Answer;
    EXPECT_EQ(stage.InputOf("unedit") == std::string("no\0", 3), answered);
    // Without the question the second check makes good for the first.
    ExpectTaken(stage, loss.Run == 0 ? "1.3" : "1.4");
  };
  return operation;
}

Operation CVSRemove() {
  return {"CVSRemove",
          FaultStage::Kind::CVS,
          {2},
          0,
          [](FaultStage& stage) { stage.Clients.When("remove -f").Error("cvs remove: done\r\n"); },
          [](FaultStage& stage) { return stage.Manager().CVSRemove(stage.Document().c_str()); },
          [](const FaultStage& stage, HRESULT result, const Loss&) {
            EXPECT_EQ(result, S_OK);
            EXPECT_TRUE(stage.Dialogs().empty());
          }};
}

Operation SVNDelete() {
  return {"SVNDelete",
          FaultStage::Kind::SVN,
          {2},
          0,
          [](FaultStage& stage) { stage.Clients.When("delete").Out("D  car.CATPart\r\n"); },
          [](FaultStage& stage) { return stage.Manager().SVNDelete(stage.Document().c_str()); },
          [](const FaultStage& stage, HRESULT result, const Loss&) {
            EXPECT_EQ(result, S_OK);
            EXPECT_TRUE(stage.Dialogs().empty());
          }};
}

// The run with that number is the one whose report is read.
template <int statusRun>
void ExpectSVNAttributes(const FaultStage& stage, HRESULT result, const Loss& loss) {
  EXPECT_EQ(result, S_OK);
  EXPECT_EQ(stage.Shown(), (StatusAttributes{"9", loss.Run == statusRun ? "ReadOnly" : "Locked", "", "\n"}));
}

Operation EditOfSVN() {
  return {"EditOfSVN",
          FaultStage::Kind::SVN,
          {1, 1, 2},
          0,
          [](FaultStage& stage) { stage.Clients.When("status -v -u").Out(kForeignLock); },
          [](FaultStage& stage) { return stage.Manager().Edit(); },
          &ExpectSVNAttributes<2>};
}

Operation UneditOfSVN() {
  return {"UneditOfSVN",
          FaultStage::Kind::SVN,
          {1, 2},
          0,
          [](FaultStage& stage) { stage.Clients.When("status -v -u").Out(kForeignLock); },
          [](FaultStage& stage) { return stage.Manager().Unedit(); },
          &ExpectSVNAttributes<1>};
}

void ReportDatabase(FaultStage& stage) {
  stage.Clients.When("status -v -u --xml").Out(stage.DatabaseReport());
  stage.Clients.When("status -v --xml").Out(stage.DatabaseReportWithoutRepository());
}

Operation RefreshOfDatabase() {
  return {"RefreshStatusOfDatabase",
          FaultStage::Kind::Database,
          {2},
          0,
          &ReportDatabase,
          [](FaultStage& stage) {
            stage.Manager().RefreshStatus(stage.Car());
            return S_OK;
          },
          [](const FaultStage& stage, HRESULT, const Loss& loss) {
            // A report that is lost is made good for by the working copy's own.
            EXPECT_EQ(stage.Shown(),
                      loss.Run == 0
                          ? (StatusAttributes{"9", "Edit", "", "Locked by: \nanna\n-------------\n"})
                          : (StatusAttributes{"9", "Locked", "", "Locked by: \nbert\n-------------\n"}));
          }};
}

// The run with that number is the one whose report is read.
template <int statusRun>
void ExpectDatabaseAttributes(const FaultStage& stage, HRESULT result, const Loss& loss) {
  EXPECT_EQ(result, S_OK);
  EXPECT_EQ(stage.Shown(), loss.Run == statusRun ? (StatusAttributes{"9", "Edit", "", "anna\n"})
                                                 : (StatusAttributes{"9", "Locked", "", "bert\n"}));
}

Operation EditOfDatabase() {
  return {"EditOfDatabase",
          FaultStage::Kind::Database,
          {1, 1, 2},
          0,
          &ReportDatabase,
          [](FaultStage& stage) { return stage.Manager().Edit(); },
          &ExpectDatabaseAttributes<2>};
}

Operation UneditOfDatabase() {
  return {"UneditOfDatabase",
          FaultStage::Kind::Database,
          {1, 2},
          0,
          &ReportDatabase,
          [](FaultStage& stage) { return stage.Manager().Unedit(); },
          &ExpectDatabaseAttributes<1>};
}

Operation DeleteOfDatabase() {
  return {"SVNDeleteOfDatabase",
          FaultStage::Kind::Database,
          {2},
          0,
          [](FaultStage& stage) { stage.Clients.When("delete").Out("D  car.CATPart\r\n"); },
          [](FaultStage& stage) { return stage.Manager().SVNDelete(stage.Document().c_str()); },
          [](const FaultStage& stage, HRESULT result, const Loss&) {
            EXPECT_EQ(result, S_OK);
            EXPECT_TRUE(stage.Dialogs().empty());
          }};
}

Operation QueryOfDatabase() {
  return {"GetFileStatusOfDatabase",
          FaultStage::Kind::Database,
          {2},
          0,
          &ReportDatabase,
          [](FaultStage& stage) { return stage.Manager().GetFileStatus(stage.Car(), stage.Record); },
          [](const FaultStage& stage, HRESULT result, const Loss& loss) {
            EXPECT_EQ(result, S_OK);
            EXPECT_STREQ(stage.Record.WorkingRevision.ConvertToChar(), "9");
            EXPECT_STREQ(stage.Record.LockOwner.ConvertToChar(), loss.Run == 0 ? "anna" : "bert");
          }};
}

}  // namespace

const std::vector<Operation>& Operations() {
  static const std::vector<Operation> operations{RefreshOfCVS(),
                                                 RefreshOfSVN(),
                                                 Query(),
                                                 Edit(),
                                                 EditOfANewerVersion(),
                                                 EditThatIsRefused(),
                                                 Unedit(),
                                                 UneditWithTheQuestion(true),
                                                 UneditWithTheQuestion(false),
                                                 CVSRemove(),
                                                 SVNDelete(),
                                                 EditOfSVN(),
                                                 UneditOfSVN(),
                                                 RefreshOfDatabase(),
                                                 EditOfDatabase(),
                                                 UneditOfDatabase(),
                                                 DeleteOfDatabase(),
                                                 QueryOfDatabase()};
  return operations;
}

}  // namespace faults
