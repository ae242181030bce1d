// What is thrown below an operation ends in the component: the host's code is not built for exceptions. One
// that got through would end these tests.

#include "shell/Containment.h"

#include <gtest/gtest.h>

#include <iostream>
#include <memory>
#include <new>
#include <streambuf>

#include "ZRKCVSStatus.h"
#include "ZRKICVS.h"
#include "ZRKICVSManager.h"
#include "framework/CATLateTypeObject.h"
#include "framework/FrameworkControl.h"
#include "manager/ZRKECVSManager.h"
#include "shell/Ties.h"
#include "shell/ZRKECVS.h"
#include "support/DialogRecorder.h"
#include "support/ScriptedClient.h"
#include "support/Session.h"

namespace {

// Has no interfaces, and when it is asked to, no memory to say so.
class ForgetfulObject final : public CATBaseUnknown {
public:
  CATBaseUnknown* QueryInterface(const CATIID&) override {
    if (Throws) throw std::bad_alloc();
    return nullptr;
  }
  bool Throws = false;
};

// Cannot be held.
class SlipperyObject final : public CATBaseUnknown {
public:
  SlipperyObject() = default;
  ~SlipperyObject() override = default;
  unsigned long AddRef() override { throw std::bad_alloc(); }
};

// Standard output that cannot be written to and throws, while it lives.
class ThrowingOutput : public std::streambuf {
public:
  ThrowingOutput() : before_(std::cout.rdbuf(this)) { std::cout.exceptions(std::ios::badbit); }
  ThrowingOutput(const ThrowingOutput&) = delete;
  ThrowingOutput& operator=(const ThrowingOutput&) = delete;
  ~ThrowingOutput() override {
    std::cout.exceptions(std::ios::goodbit);
    std::cout.rdbuf(before_);
  }

protected:
  int_type overflow(int_type) override { throw std::bad_alloc(); }

private:
  std::streambuf* before_;
};

class Containment : public testing::Test {
protected:
  Containment() { product_->Throws = true; }

  template <class Interface>
  static CATHandle<Interface> TieOf(CATBaseUnknown* (*create)(CATBaseUnknown*), CATBaseUnknown& extension) {
    return CATHandle<Interface>::Adopt(static_cast<Interface*>(create(&extension)));
  }

  const Session session_;
  const ScriptedClient client_;
  DialogRecorder dialogs_;
  ForgetfulObject* const product_ = new ForgetfulObject;
  const CATBaseUnknown_var object_ = CATBaseUnknown_var::Adopt(product_);
};

class ContainmentOfTheManager : public Containment {
protected:
  ContainmentOfTheManager() {
    product_->Throws = false;
    manager_ = std::make_unique<ZRKECVSManager>(*product_);
    tie_ = TieOf<ZRKICVSManager>(CreateTIEZRKICVSManagerZRKECVSManager, *manager_);
    product_->Throws = true;
  }

  std::unique_ptr<ZRKECVSManager> manager_;
  ZRKICVSManager_var tie_;
};

}  // namespace

TEST_F(Containment, ThePredicatesThenAnswerNo) {
  EXPECT_EQ(IsCVSable(product_), 0);
  EXPECT_EQ(IsCVSModifiable(product_), 0);
}

TEST_F(Containment, TheStorageNameStaysAsItWas) {
  ZRKECVS extension(*product_);
  CATUnicodeString path("before");
  TieOf<ZRKICVS>(CreateTIEZRKICVSZRKECVS, extension)->GetStorageName(path);
  EXPECT_STREQ(path.ConvertToChar(), "before");
}

TEST_F(Containment, AnExtensionThatCannotBeMadeIsNone) {
  const long objects = standin::LiveObjectCount();
  EXPECT_EQ(ZRKECVSManager::MetaObject()->Factory()(*product_), nullptr);
  EXPECT_EQ(standin::LiveObjectCount(), objects);
}

TEST_F(Containment, ATieThatCannotHoldItsExtensionIsNone) {
  SlipperyObject extension;
  const long objects = standin::LiveObjectCount();
  EXPECT_EQ(CreateTIEZRKICVSZRKECVS(&extension), nullptr);
  EXPECT_EQ(CreateTIEZRKICVSManagerZRKECVSManager(&extension), nullptr);
  EXPECT_EQ(CreateTIEZRKICVSModifiableZRKECVSModifiable(&extension), nullptr);
  EXPECT_EQ(standin::LiveObjectCount(), objects);
}

TEST_F(ContainmentOfTheManager, TheRefreshEnds) {
  tie_->RefreshStatus(object_);
  EXPECT_TRUE(client_.Runs().empty());
}

TEST_F(ContainmentOfTheManager, TheQueryEndsWithoutAFailure) {
  ZRKCVSStatus record;
  EXPECT_EQ(tie_->GetFileStatus(object_, record), S_OK);
}

TEST_F(ContainmentOfTheManager, PrintingTheTimeEndsWithoutAFailure) {
  const ThrowingOutput output;
  EXPECT_EQ(tie_->PrintCommTime(), S_OK);
}

TEST_F(ContainmentOfTheManager, EditAndUneditFail) {
  for (const bool isSVN : {false, true}) {
    manager_->IsSVN = isSVN;
    EXPECT_EQ(tie_->Edit(), E_FAIL);
    EXPECT_EQ(tie_->Unedit(), E_FAIL);
  }
}

TEST_F(ContainmentOfTheManager, TheRemovalFails) {
  manager_->CVSExePath = "";
  dialogs_.WhileShown([] { throw std::bad_alloc(); });
  EXPECT_EQ(tie_->CVSRemove("\\w\\a.txt"), E_FAIL);
}
