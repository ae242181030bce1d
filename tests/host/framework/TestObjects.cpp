#include "host/framework/TestObjects.h"

CATImplementInterface(ITestFirst,
                      {0x7d1f3001, 0x2a6b, 0x4c1e, {0x80, 0x3d, 0x11, 0x52, 0x9e, 0xaf, 0x60, 0x01}})
CATImplementInterface(ITestSecond,
                      {0x7d1f3002, 0x2a6b, 0x4c1e, {0x80, 0x3d, 0x11, 0x52, 0x9e, 0xaf, 0x60, 0x01}})
CATImplementInterface(ITestOwn,
                      {0x7d1f3003, 0x2a6b, 0x4c1e, {0x80, 0x3d, 0x11, 0x52, 0x9e, 0xaf, 0x60, 0x01}})

namespace {
template <class Interface>
class TestTie final : public CATTie<Interface> {
public:
  explicit TestTie(CATBaseUnknown* extension) : CATTie<Interface>(extension, nullptr) {}
  int Number() override { return static_cast<TestExtension*>(this->TieContext())->Number(); }
};

bool TakeOne(int& left) {
  if (left == 0) return false;
  --left;
  return true;
}

}  // namespace

TestExtensionLog& ExtensionLog() {
  static TestExtensionLog log;
  return log;
}

CATBaseUnknown* TestObject::OwnInterface(const CATIID& interfaceId) {
  return interfaceId == ITestOwn::ClassId() ? &own_ : nullptr;
}

TestExtension::TestExtension(CATBaseUnknown& extended)
    : CATBaseUnknown(extended), number_(++ExtensionLog().Made) {
  if (ExtensionLog().WhileMade) ExtensionLog().WhileMade(*this);
}

TestExtension::~TestExtension() {
  if (ExtensionLog().WhileEnding) ExtensionLog().WhileEnding(*this);
  ++ExtensionLog().Ended;
}

CATBaseUnknown* MakeTestExtension(CATBaseUnknown& extended) {
  return TakeOne(ExtensionLog().FactoryFailures) ? nullptr : new TestExtension(extended);
}

CATBaseUnknown* MakeFirstTie(CATBaseUnknown* extension) {
  return TakeOne(ExtensionLog().TieFailures) ? nullptr : new TestTie<ITestFirst>(extension);
}

CATBaseUnknown* MakeSecondTie(CATBaseUnknown* extension) {
  return TakeOne(ExtensionLog().TieFailures) ? nullptr : new TestTie<ITestSecond>(extension);
}

TestExtensions::TestExtensions() {
  static int count = 0;
  lateType_ = "TESTTYPE" + std::to_string(++count);
  meta_ = fct_RetrieveMetaObject(("TestExtension" + std::to_string(count)).c_str(),
                                 CATMetaClassKind::DataExtension, CATBaseUnknown::MetaObject(),
                                 lateType_.c_str(), "External", &MakeTestExtension);
  ExtensionLog() = {};
}

void TestExtensions::FillDictionary() const {
  CATFillDictionary(meta_, ITestFirst::MetaObject(), &MakeFirstTie, nullptr, 1);
  CATFillDictionary(meta_, ITestSecond::MetaObject(), &MakeSecondTie, nullptr, 1);
}
