#include "CATApplicationFrame.h"

#include "dialogs/UserInterface.h"

namespace standin {
namespace {

class MainWindow final : public CATDialog {
public:
  // `slot` holds the window for as long as it lives.
  explicit MainWindow(CATDialog*& slot) : slot_(slot) { slot_ = this; }

protected:
  ~MainWindow() override { slot_ = nullptr; }

private:
  CATDialog*& slot_;
};

class ApplicationFrame final : public CATApplicationFrame {
public:
  CATDialog* GetMainWindow() override { return window_; }

  void SetWindow(bool shown) {
    if (shown && !window_) new MainWindow(window_);
    if (!shown && window_) window_->RequestDestruction();
  }

  bool IsUp = false;

private:
  CATDialog* window_ = nullptr;
};

// Never destroyed: code that ends late may still ask for it.
ApplicationFrame& TheFrame() {
  static auto* const frame = new ApplicationFrame;
  return *frame;
}

}  // namespace

void SetApplicationFrame(bool frame, bool mainWindow) {
  TheFrame().IsUp = frame;
  TheFrame().SetWindow(frame && mainWindow);
}

}  // namespace standin

CATApplicationFrame* CATApplicationFrame::GetFrame() {
  return standin::TheFrame().IsUp ? &standin::TheFrame() : nullptr;
}
