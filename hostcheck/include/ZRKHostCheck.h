#pragma once

#include "ZRKHostCheckExport.h"

class CATBaseUnknown;

// Checks what the component library expects of the host it is loaded by; docs/integration.md lists it.

// What came of one check.
enum ZRKHostCheckResult {
  ZRKHostCheckFails = 0,
  ZRKHostCheckHolds = 1,
  // The assembly has nothing to look at, or a check that this one builds on failed.
  ZRKHostCheckNotSeen = 2,
};

// Hears of one check: its name, a ZRKHostCheckResult, and what was found instead of what is expected or, when
// nothing was seen, what is missing; empty when the check holds. The texts are 8-bit text as the host's, and
// good during the call. It must not throw.
using ZRKHostCheckReport = void (*)(void* context, const char* check, int result, const char* found);

extern "C" {

// Runs all checks on a product of an open assembly, in the order of the table, and tells `report` of each.
// `context` is passed through. Gives the number of checks that do not hold, those not seen with them; -1,
// with nothing run, without a product or a report.
//
// Looked at are the product and those below it, at most 1000; to see everything the product must have a child
// whose reference is loaded and a document that is stored, and must be one that attributes can be put onto.
// One product's instance of package "ZRKCVS" is taken off and put back with its values; no document is
// changed. One entry of the check's own, `ZRKIHostCheck` on "ASMPRODUCT", stays in the host's dictionary, so
// the library must stay loaded.
ZRKHOSTCHECK_EXPORT int ZRKCheckHost(CATBaseUnknown* product, ZRKHostCheckReport report, void* context);
}
