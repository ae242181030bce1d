#pragma once

#include <functional>
#include <string>

#include "CATDictionary.h"
#include "CATTie.h"
#include "framework/CATLateTypeObject.h"
#include "framework/Facet.h"

// Two interfaces that test objects have through extensions, and one that they have themselves.

class ITestFirst : public CATBaseUnknown {
  CATDeclareInterface

  virtual int Number() = 0;
};
using ITestFirst_var = CATHandle<ITestFirst>;

class ITestSecond : public CATBaseUnknown {
  CATDeclareInterface

  virtual int Number() = 0;
};
using ITestSecond_var = CATHandle<ITestSecond>;

class ITestOwn : public CATBaseUnknown {
  CATDeclareInterface

  virtual int OwnNumber() = 0;
};
using ITestOwn_var = CATHandle<ITestOwn>;

class TestObject final : public CATLateTypeObject {
public:
  explicit TestObject(const std::string& lateType) : CATLateTypeObject(lateType) {}
  ~TestObject() override { EndExtensions(); }

protected:
  CATBaseUnknown* OwnInterface(const CATIID& interfaceId) override;

private:
  struct OwnPart final : standin::Facet<ITestOwn> {
    using Facet::Facet;
    int OwnNumber() override { return 7; }
  };

  OwnPart own_{*this};
};

// An extension that records when it is made and when it ends.
class TestExtension final : public CATBaseUnknown {
public:
  explicit TestExtension(CATBaseUnknown& extended);
  ~TestExtension() override;

  int Number() const { return number_; }

private:
  int number_;
};

// What test extensions did, and what they do. Every test starts from new ones, by TestExtensions below.
struct TestExtensionLog {
  int Made = 0;
  int Ended = 0;
  // How many of the following requests for an extension, or for a tie, fail.
  int FactoryFailures = 0;
  int TieFailures = 0;
  std::function<void(TestExtension&)> WhileMade;
  std::function<void(TestExtension&)> WhileEnding;
};
TestExtensionLog& ExtensionLog();

// Binds both interfaces to a test extension, for a late type of its own, which nobody else uses.
class TestExtensions {
public:
  TestExtensions();
  ~TestExtensions() { ExtensionLog() = {}; }

  const std::string& LateType() const { return lateType_; }
  CATMetaClass* Meta() const { return meta_; }
  CATBaseUnknown_var NewObject() const { return CATBaseUnknown_var::Adopt(new TestObject(lateType_)); }
  void FillDictionary() const;

private:
  std::string lateType_;
  CATMetaClass* meta_;
};

CATBaseUnknown* MakeTestExtension(CATBaseUnknown& extended);
CATBaseUnknown* MakeFirstTie(CATBaseUnknown* extension);
CATBaseUnknown* MakeSecondTie(CATBaseUnknown* extension);
