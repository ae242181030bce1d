#pragma once

#include <stdexcept>
#include <string>

#include "commands/Commands.h"

namespace zrkhost {

// What a command has at hand when it is run.
struct CommandCall {
  const Command& Given;
  const HostSession& Session;
  const Plugin& Component;
  // Where the product stands that the command is about.
  const Place& Where;

  const CATBaseUnknown_var& Product() const { return Where.Product; }
};

// An interface that the component gives the product. Throws when it does not.
template <class Interface>
CATHandle<Interface> InterfaceOf(const CATBaseUnknown_var& product) {
  CATHandle<Interface> handle(product);
  if (!handle)
    throw std::runtime_error("the component gives the product no " +
                             std::string(Interface::MetaObject()->Name()));
  return handle;
}

}  // namespace zrkhost
