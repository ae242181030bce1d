#include "support/Launches.h"

Launches::Launches() {
  standin::SetLaunchListener([this](const standin::Launch& launch) { launches_.push_back(launch); });
}

Launches::~Launches() {
  standin::SetLaunchListener({});
}
