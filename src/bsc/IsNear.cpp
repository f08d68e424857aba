#include "bsc/IsNear.h"

#include <cmath>

namespace Bsc {

bool isNear(float a, float b, float tolerance)
{
    return tolerance > std::fabs(a - b);
}

} // namespace Bsc
