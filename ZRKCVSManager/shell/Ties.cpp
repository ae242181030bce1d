#include "shell/Ties.h"

#include "CATTie.h"
#include "ZRKICVS.h"
#include "ZRKICVSManager.h"
#include "ZRKICVSModifiable.h"
#include "manager/ZRKECVSManager.h"
#include "shell/Binding.h"
#include "shell/ZRKECVS.h"
#include "shell/ZRKECVSModifiable.h"

using zrk::shell::ContainedOr;
using zrk::shell::CreateTie;

namespace {

class TIEZRKICVSZRKECVS : public CATTie<ZRKICVS> {
public:
  using CATTie::CATTie;

  void GetStorageName(CATUnicodeString& path) override {
    ContainedOr(0, [&] { return Extension()->GetStorageName(path), 0; });
  }

private:
  ZRKECVS* Extension() const { return static_cast<ZRKECVS*>(TieContext()); }
};

class TIEZRKICVSManagerZRKECVSManager : public CATTie<ZRKICVSManager> {
public:
  using CATTie::CATTie;

  void RefreshStatus(CATBaseUnknown_var root) override {
    ContainedOr(0, [&] { return Extension()->RefreshStatus(CATISpecObject_var(root)), 0; });
  }
  HRESULT PrintCommTime() override {
    return ContainedOr(S_OK, [&] { return Extension()->PrintCommTime(); });
  }
  HRESULT Edit() override {
    return ContainedOr(E_FAIL, [&] { return Extension()->Edit(); });
  }
  HRESULT Unedit() override {
    return ContainedOr(E_FAIL, [&] { return Extension()->Unedit(); });
  }
  HRESULT GetFileStatus(CATBaseUnknown_var product, ZRKCVSStatus& status) override {
    return ContainedOr(S_OK, [&] { return Extension()->GetFileStatus(CATIProduct_var(product), status); });
  }
  HRESULT CVSRemove(const CATUnicodeString& file) override {
    return ContainedOr(E_FAIL, [&] { return Extension()->CVSRemove(file); });
  }
  HRESULT SVNDelete(const CATUnicodeString& file) override {
    return ContainedOr(E_FAIL, [&] { return Extension()->SVNDelete(file); });
  }

private:
  ZRKECVSManager* Extension() const { return static_cast<ZRKECVSManager*>(TieContext()); }
};

class TIEZRKICVSModifiableZRKECVSModifiable : public CATTie<ZRKICVSModifiable> {
public:
  using CATTie::CATTie;
};

}  // namespace

CATBaseUnknown* CreateTIEZRKICVSZRKECVS(CATBaseUnknown* extension) {
  return CreateTie<TIEZRKICVSZRKECVS, ZRKICVS, ZRKECVS>(extension);
}

CATBaseUnknown* CreateTIEZRKICVSManagerZRKECVSManager(CATBaseUnknown* extension) {
  return CreateTie<TIEZRKICVSManagerZRKECVSManager, ZRKICVSManager, ZRKECVSManager>(extension);
}

CATBaseUnknown* CreateTIEZRKICVSModifiableZRKECVSModifiable(CATBaseUnknown* extension) {
  return CreateTie<TIEZRKICVSModifiableZRKECVSModifiable, ZRKICVSModifiable, ZRKECVSModifiable>(extension);
}
