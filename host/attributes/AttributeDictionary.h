#pragma once

#include <string>
#include <vector>

#include "ZRKIAttributes.h"

// Control of the stand-in: the session's attribute dictionary.
namespace standin {

struct AttributeClassDescription {
  std::string Package;
  std::vector<std::string> Parameters;
  // What the class answers when it is asked whether an object may be modified: not 0 when it may.
  unsigned char Modifiable = 1;
};

// Gives the session an attribute dictionary that knows these classes and no others, in place of what
// stood there.
void InstallAttributeDictionary(const std::vector<AttributeClassDescription>& classes);
// Leaves the session without an attribute dictionary, as it is at the start.
void RemoveAttributeDictionary();

// Makes every following AddInstance fail, or work again.
void RefuseNewInstances(bool refuse);

// Names of an instance's parameters, in the order of its class; none of a null instance.
std::vector<std::string> ParameterNames(const ZRKIAttInstance_var& instance);

}  // namespace standin
