#pragma once

namespace Bsc {

/// True when `tolerance > |a - b|`, all in single precision; strict, so a zero tolerance is never met.
bool isNear(float a, float b, float tolerance);

} // namespace Bsc
