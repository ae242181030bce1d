#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "CATBaseUnknown.h"
#include "ZRKIAttributes.h"

// The host's session as most tests want it: an attribute dictionary that knows package "ZRKCVS" with the
// parameters Revision, Status, Release and Comment; an application frame with a main window; no message
// catalogs; no failures to come. At the end all of it is as at the start of a process.
class Session {
public:
  Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;
  ~Session();
};

// The class of package "ZRKCVS"; null when the dictionary does not know it.
ZRKIAttClass_var StatusClass();

// Values of a product's "ZRKCVS" instance. A parameter without a value is empty.
struct StatusAttributes {
  std::string Revision;
  std::string Status;
  std::string Release;
  std::string Comment;

  bool operator==(const StatusAttributes&) const = default;
};
std::ostream& operator<<(std::ostream& stream, const StatusAttributes& attributes);

// Nothing when the product carries no instance.
std::optional<StatusAttributes> ReadStatusAttributes(const CATBaseUnknown_var& product);

// Gives the product an instance with these values. Throws when it cannot carry one.
void WriteStatusAttributes(const CATBaseUnknown_var& product, const StatusAttributes& attributes);
