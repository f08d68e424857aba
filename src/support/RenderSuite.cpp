#include "support/RenderSuite.h"

namespace TQ {

void RenderSuite::destroyResources()
{
}

} // namespace TQ
