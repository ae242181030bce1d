#include "CATDialog.h"

#include <algorithm>
#include <utility>

CATDialog::CATDialog(CATDialog* parent) : parent_(parent) {
  if (parent_) parent_->children_.push_back(this);
}

CATDialog::~CATDialog() {
  if (parent_) std::erase(parent_->children_, this);
  for (CATDialog* const child : std::exchange(children_, {})) {
    child->parent_ = nullptr;
    child->ParentEnds();
  }
}

void CATDialog::ParentEnds() {
  RequestDestruction();
}

void CATDialog::RequestDestruction() {
  delete this;
}
