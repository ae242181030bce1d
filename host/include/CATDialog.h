#pragma once

#include <vector>

// Base of the host's dialog objects. They are made with `new` and owned by their parent; whoever is
// done with one asks it to go.
class CATDialog {
public:
  CATDialog(const CATDialog&) = delete;
  CATDialog& operator=(const CATDialog&) = delete;

  // The dialog takes itself out of its parent and ends, with all dialogs that it is the parent of and that
  // are not up; the pointer is no longer good.
  virtual void RequestDestruction();

protected:
  explicit CATDialog(CATDialog* parent = nullptr);
  virtual ~CATDialog();

  // The parent is about to end. The dialog goes with it, unless it is up.
  virtual void ParentEnds();

private:
  CATDialog* parent_;
  std::vector<CATDialog*> children_;
};
