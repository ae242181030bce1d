#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "CATBaseUnknown.h"
#include "product/ProductModel.h"
#include "session/SessionDescription.h"

namespace zrkhost {

// One place in the product tree.
struct Place {
  CATBaseUnknown_var Product;
  // As the host shows it, in the native encoding.
  std::string Name;
  std::size_t Depth = 0;
  // Position behind the last place below this one.
  std::size_t End = 0;
};

// The host's session as a description asks for it: products, attribute dictionary, catalogs, main window.
// There can be one at a time, for most of this is the process's own.
class HostSession {
public:
  explicit HostSession(const SessionDescription& description);
  ~HostSession();
  HostSession(const HostSession&) = delete;
  HostSession& operator=(const HostSession&) = delete;

  // The tree, depth first; the root is the first.
  const std::vector<Place>& Places() const { return places_; }
  const Place& Root() const { return places_.front(); }
  // Null when there is no such place. Names may hold "/": of several places that fit, the first in the
  // tree.
  const Place* Find(std::string_view path) const;

  // Names of the attribute class's parameters, UTF-8; empty when there is no class.
  const std::vector<std::string>& Parameters() const { return parameters_; }

private:
  void InstallAttributes(const SessionDescription& description);
  void BuildProducts(const SessionDescription& description);
  void BuildPlaces(const SessionDescription& description);

  standin::ProductModel model_;
  std::vector<Place> places_;
  std::vector<std::string> parameters_;
};

}  // namespace zrkhost
