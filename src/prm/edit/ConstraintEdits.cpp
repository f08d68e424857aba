#include "prm/edit/ConstraintEdits.h"

#include "prm/ParameterWithoutType.h"

namespace Prm {

ParameterUnconstrainEdit::ParameterUnconstrainEdit(ParameterWithoutType* follower) : ParameterEdit(follower) {}

void ParameterUnconstrainEdit::doIt()
{
    if (!bDone) {
        formerMaster = parameterBase->master();
        bDone = true;
    }
    parameterBase->bUnconstrain();
}

void ParameterUnconstrainEdit::undoIt()
{
    if (auto* master = qobject_cast<ParameterWithoutType*>(formerMaster.data()))
        master->bAddConstrainedParameter(parameterBase);
}

ParameterRemoveConstrainedParameterEdit::ParameterRemoveConstrainedParameterEdit(ParameterWithoutType* master,
                                                                                 ParameterWithoutType* follower)
    : ParameterEdit(master), bWasFollowing(false), follower(follower)
{
}

void ParameterRemoveConstrainedParameterEdit::doIt()
{
    if (!bDone) {
        bWasFollowing = follower && follower->master() == parameterBase;
        bDone = true;
    }
    if (bWasFollowing && follower)
        follower->bUnconstrain();
}

void ParameterRemoveConstrainedParameterEdit::undoIt()
{
    if (bWasFollowing && follower)
        parameterBase->bAddConstrainedParameter(follower);
}

} // namespace Prm
