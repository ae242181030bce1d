// In which order the attributes of a product are written.

#include <gtest/gtest.h>

#include "CATICkeParm.h"
#include "SVNStage.h"
#include "component/product/AlteredProduct.h"
#include "framework/Facet.h"
#include "svn/StatusReaders.h"

namespace {

using namespace entries;
using standin::OneInterface;

using Log = std::vector<std::string>;

class RecordingParameter final : public OneInterface<CATICkeParm> {
public:
  RecordingParameter(Log& log, std::string name) : log_(log), name_(std::move(name)) {}
  void Valuate(const CATUnicodeString&) override { log_.push_back(name_); }
  bool HasValue() override { return false; }
  CATUnicodeString AsText() override { return {}; }

private:
  Log& log_;
  const std::string name_;
};

class RecordingInstance final : public OneInterface<ZRKIAttInstance> {
public:
  explicit RecordingInstance(Log& log) : log_(log) {}
  CATBaseUnknown_var GetParameter(const CATUnicodeString& name) override {
    return CATBaseUnknown_var::Adopt(new RecordingParameter(log_, name.ConvertToChar()));
  }

private:
  Log& log_;
};

// Carries nothing until an instance is added.
class RecordingCarrier final : public OneInterface<ZRKIAttExtendable> {
public:
  explicit RecordingCarrier(Log& log) : log_(log) {}
  CATBaseUnknown_var FindInstance(const ZRKIAttClass_var&) override {
    log_.emplace_back("find");
    return instance_;
  }
  HRESULT AddInstance(const ZRKIAttClass_var&, const ZRKIAttInstance_var&) override {
    log_.emplace_back("add");
    instance_ = CATBaseUnknown_var::Adopt(new RecordingInstance(log_));
    return S_OK;
  }
  void RemoveInstance(const ZRKIAttClass_var&) override {
    log_.emplace_back("remove");
    instance_ = nullptr;
  }

private:
  Log& log_;
  CATBaseUnknown_var instance_;
};

class SVNWritingOrder : public SVNStage {
protected:
  SVNWritingOrder() {
    Products.Add("car", "wc/car.CATProduct");
    standin::SetRedrawListener([this](const CATBaseUnknown_var&) { Written.emplace_back("redraw"); });
  }

  void List() const { WriteEntries("wc", File(10, "car.CATProduct", "9", "bert")); }
  CATBaseUnknown_var Car() {
    return CATBaseUnknown_var::Adopt(
        new AlteredProduct(Products.At("car"), ZRKIAttExtendable::ClassId(),
                           CATBaseUnknown_var::Adopt(new RecordingCarrier(Written))));
  }

  Log Written;
  const Log InOrder{"find", "add", "find", "Revision", "Status", "Release", "Comment", "redraw"};
};

TEST_F(SVNWritingOrder, OfATreeRefreshIsRevisionStatusReleaseCommentAndThenTheRedraw) {
  List();
  zrk::svn::SVNTimes times;
  zrk::svn::RefreshSVNStatusTree(Context(), Car(), times);
  EXPECT_EQ(Written, InOrder);
}

TEST_F(SVNWritingOrder, OfASingleRefreshIsTheSame) {
  List();
  zrk::svn::RefreshSVNStatus(Context(), Car());
  EXPECT_EQ(Written, InOrder);
}

TEST_F(SVNWritingOrder, AnInstanceThatIsThereIsNotAddedAgain) {
  List();
  const CATBaseUnknown_var car = Car();
  zrk::svn::RefreshSVNStatus(Context(), car);
  Written.clear();
  zrk::svn::RefreshSVNStatus(Context(), car);
  EXPECT_EQ(Written, (Log{"find", "Revision", "Status", "Release", "Comment", "redraw"}));
}

TEST_F(SVNWritingOrder, OfAFileThatIsNotListedIsTheRemovalAndThenTheRedraw) {
  zrk::svn::RefreshSVNStatus(Context(), Car());
  EXPECT_EQ(Written, (Log{"remove", "redraw"}));
  Written.clear();
  zrk::svn::SVNTimes times;
  zrk::svn::RefreshSVNStatusTree(Context(), Car(), times);
  EXPECT_EQ(Written, (Log{"remove", "redraw"}));
}

}  // namespace
