#include "prm/ParameterWithoutType.h"

#include "bsc/Command.h"
#include "prm/edit/ConstraintEdits.h"

namespace Prm {

bool ParameterWithoutType::bUnconstrainCommand(Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterUnconstrainEdit(this));
    return true;
}

bool ParameterWithoutType::bRemoveConstrainedParameterCommand(ParameterWithoutType* follower,
                                                              Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterRemoveConstrainedParameterEdit(this, follower));
    return follower != nullptr;
}

} // namespace Prm
