// The memory runs out during a call of the host's: the call ends with a result all the same, for nothing may
// be thrown into the host, and leaves nothing behind.

#include <gtest/gtest.h>

#include <memory>
#include <ostream>

#include "ZRKICVS.h"
#include "component/faults/FaultStage.h"
#include "component/faults/MemoryFaults.h"
#include "framework/CATLateTypeObject.h"
#include "manager/ZRKECVSManager.h"
#include "windows/WindowsControl.h"

namespace faults {
namespace {

using Kind = FaultStage::Kind;

// What a call works with, made before the memory runs short.
struct Prepared {
  ZRKICVSManager& Manager;
  ZRKICVS_var Facts;
  CATBaseUnknown_var Product;
  CATUnicodeString File;
  ZRKCVSStatus Record;
};

struct Call {
  const char* Name;
  Kind WorkingCopy;
  HRESULT (*Make)(Prepared&);
  // When the very first allocation fails.
  HRESULT Result;
};

void PrintTo(const Call& call, std::ostream* stream) {
  *stream << call.Name;
}

HRESULT Refresh(Prepared& prepared) {
  prepared.Manager.RefreshStatus(prepared.Product);
  return S_OK;
}
HRESULT PrintTime(Prepared& prepared) {
  return prepared.Manager.PrintCommTime();
}
HRESULT Edit(Prepared& prepared) {
  return prepared.Manager.Edit();
}
HRESULT Unedit(Prepared& prepared) {
  return prepared.Manager.Unedit();
}
HRESULT Query(Prepared& prepared) {
  return prepared.Manager.GetFileStatus(prepared.Product, prepared.Record);
}
HRESULT RemoveFromCVS(Prepared& prepared) {
  return prepared.Manager.CVSRemove(prepared.File);
}
HRESULT DeleteFromSVN(Prepared& prepared) {
  return prepared.Manager.SVNDelete(prepared.File);
}
HRESULT StorageName(Prepared& prepared) {
  prepared.Facts->GetStorageName(prepared.File);
  return S_OK;
}
HRESULT MayBeVersioned(Prepared& prepared) {
  return IsCVSable(prepared.Product.Get());
}
HRESULT MakeManager(Prepared& prepared) {
  const std::unique_ptr<CATBaseUnknown, CATExtensionDeleter> made(
      ZRKECVSManager::MetaObject()->Factory()(*prepared.Product));
  return made ? S_OK : E_FAIL;
}

constexpr Call kCalls[] = {
    {"RefreshOfCVS", Kind::CVS, Refresh, S_OK},
    {"RefreshOfSVN", Kind::SVN, Refresh, S_OK},
    {"PrintCommTime", Kind::CVS, PrintTime, S_OK},
    {"EditOfCVS", Kind::CVS, Edit, E_FAIL},
    {"EditOfSVN", Kind::SVN, Edit, E_FAIL},
    {"UneditOfCVS", Kind::CVS, Unedit, E_FAIL},
    {"UneditOfSVN", Kind::SVN, Unedit, E_FAIL},
    {"GetFileStatus", Kind::CVS, Query, S_OK},
    {"CVSRemove", Kind::CVS, RemoveFromCVS, E_FAIL},
    {"SVNDelete", Kind::SVN, DeleteFromSVN, E_FAIL},
    {"RefreshOfDatabase", Kind::Database, Refresh, S_OK},
    {"EditOfDatabase", Kind::Database, Edit, E_FAIL},
    {"UneditOfDatabase", Kind::Database, Unedit, E_FAIL},
    {"GetFileStatusOfDatabase", Kind::Database, Query, S_OK},
    {"SVNDeleteOfDatabase", Kind::Database, DeleteFromSVN, E_FAIL},
    {"MakingAManagerOfDatabase", Kind::Database, MakeManager, E_FAIL},
    {"GetStorageName", Kind::CVS, StorageName, S_OK},
    {"IsCVSable", Kind::CVS, MayBeVersioned, 0},
    {"MakingAManagerOfCVS", Kind::CVS, MakeManager, E_FAIL},
    {"MakingAManagerOfSVN", Kind::SVN, MakeManager, E_FAIL},
};

class MemoryFaults : public testing::TestWithParam<Call> {
protected:
  // False when the call was over before the memory ran out.
  static bool MakeWithFailureAfter(int successes) {
    const Call& call = GetParam();
    FaultStage stage(call.WorkingCopy);
    stage.Clients.When("--xml").Out(stage.DatabaseReport());
    stage.Clients.When("status -v").Out(FaultStage::StatusReport());
    stage.Clients.When("-n edit").Out("wc/car.CATPart\tanna\r\n");
    WriteStatusAttributes(stage.Car(), {"1.3", "Edit", "", ""});
    Prepared prepared{stage.Manager(), stage.Car(), stage.Car(), stage.Document().c_str(), {}};

    FailMemory(successes);
    const HRESULT result = call.Make(prepared);
    const bool failed = MemoryHasFailed();

    if (successes == 0 && failed) {
      EXPECT_EQ(result, call.Result);
    }
    EXPECT_EQ(standin::OpenHandleCount(), 0);
    EXPECT_TRUE(AllClientsEnd());
    return failed;
  }
};

std::string CallName(const testing::TestParamInfo<Call>& info) {
  return info.param.Name;
}

}  // namespace

TEST_P(MemoryFaults, EndsWhenTheMemoryRunsOut) {
  EXPECT_TRUE(MakeWithFailureAfter(0));
  // Every allocation at first, and then some, to the end of the call.
  for (int successes = 1; MakeWithFailureAfter(successes); successes += 1 + successes / 8) {
  }
}

INSTANTIATE_TEST_SUITE_P(, MemoryFaults, testing::ValuesIn(kCalls), CallName);

}  // namespace faults
