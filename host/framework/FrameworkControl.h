#pragma once

#include <string>
#include <vector>

// Control of the stand-in: what the component framework knows, and making it run short of memory.
namespace standin {

struct DictionaryEntry {
  std::string Extension;
  std::string Interface;
  std::string LateType;
  // Empty when the library that made the entry named none.
  std::string Library;
  int Flag = 0;
};

// The dictionary in the order in which it was filled.
std::vector<DictionaryEntry> DictionaryEntries();

// Objects derived from CATBaseUnknown that were allocated and not freed.
long LiveObjectCount();

// Lets `successes` further allocations of that kind succeed, and the one after them fail, once.
// Negative: none fails.
void FailObjectAllocation(int successes);
void FailMetaClassAllocation(int successes);

}  // namespace standin
