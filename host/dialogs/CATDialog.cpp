#include "CATDialog.h"

#include <algorithm>

CATDialog::CATDialog(CATDialog* parent) : parent_(parent) {
  if (parent_) parent_->children_.push_back(this);
}

CATDialog::~CATDialog() {
  if (parent_) std::erase(parent_->children_, this);
  while (!children_.empty()) children_.back()->RequestDestruction();
}

void CATDialog::RequestDestruction() {
  delete this;
}
