#include "ZRKCVSStatus.h"

ZRKCVSStatus::ZRKCVSStatus()
    : IsVersioned(0), Flag2(0), IsInEntries(0), IsLockedHere(0), IsLockedByOther(0), RevisionNumber(0) {}

// Written out here, not in the header, so that other modules call the library's own.
ZRKCVSStatus::ZRKCVSStatus(const ZRKCVSStatus& other) = default;
ZRKCVSStatus& ZRKCVSStatus::operator=(const ZRKCVSStatus& other) = default;
ZRKCVSStatus::~ZRKCVSStatus() = default;
