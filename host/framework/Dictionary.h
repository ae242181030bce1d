#pragma once

#include <map>
#include <string_view>

#include "CATDictionary.h"

// The framework's dictionary: which interfaces the objects of a late type have through extensions.
namespace standin {

struct TieBinding {
  CATMetaClass* Extension;
  CATTieCreator Creator;
};

class LateType {
public:
  // Null when objects of the type do not have the interface. Libraries may be loaded at any time, so an
  // interface that is not there now may be there on the next call.
  const TieBinding* Find(const CATIID& interfaceId) const;
  // False when the interface is bound already; the binding that stands holds.
  bool Bind(const CATIID& interfaceId, const TieBinding& binding);

private:
  std::map<CATIID, TieBinding> bindings_;
};

// The late type of that name; the same object on each call, good until the process ends.
LateType& LateTypeNamed(std::string_view name);

}  // namespace standin
