#pragma once

#include <utility>
#include <vector>

#include "CATBaseUnknown.h"
#include "CATUnicodeString.h"

class CATISpecObject;

// The host's lists: values in order, counted from 1.
template <class Value>
class CATListVal {
public:
  int Size() const { return static_cast<int>(values_.size()); }
  void Append(Value value) { values_.push_back(std::move(value)); }
  // `position` must be from 1 to Size().
  Value& operator[](int position) { return values_[static_cast<std::size_t>(position - 1)]; }
  const Value& operator[](int position) const { return values_[static_cast<std::size_t>(position - 1)]; }

private:
  std::vector<Value> values_;
};

using CATListValCATUnicodeString = CATListVal<CATUnicodeString>;
using CATListValCATBaseUnknown_var = CATListVal<CATBaseUnknown_var>;
using CATListValCATISpecObject_var = CATListVal<CATHandle<CATISpecObject>>;
