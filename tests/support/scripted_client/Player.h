#pragma once

#include "RunLog.h"
#include "Script.h"

// Plays the actions of a rule and gives the status to end with. The process may end on the way.
int Play(const Rule& rule, RunLog& log);
