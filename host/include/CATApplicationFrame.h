#pragma once

#include "CATDialog.h"

// The frame of the interactive application.
class CATApplicationFrame {
public:
  // Null in a session without user interface.
  static CATApplicationFrame* GetFrame();

  // Null while no window is up.
  virtual CATDialog* GetMainWindow() = 0;

protected:
  ~CATApplicationFrame() = default;
};
