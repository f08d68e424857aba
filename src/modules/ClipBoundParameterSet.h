#pragma once
/// The module sets' base sits with the clips, one layer down, because the lens module's set in camera/
/// derives from it too; this header keeps it reachable beside the sets.
#include "clip/ClipBoundParameterSet.h"
