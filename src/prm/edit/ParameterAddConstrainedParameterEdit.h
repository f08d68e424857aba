#pragma once
#include "prm/Parameter.h"
#include "prm/edit/ParameterEdit.h"

namespace Prm {

/// Makes one parameter follow another (made by `Parameter<T>::bAddConstrainedParameterCommand`).
///
/// Both are seen as `Parameter<T>`: a null pointer, or a parameter of another value type, is held as null
/// and handed on as null, which the master refuses. The first run keeps a copy of the follower's own keys,
/// static value and rules; undo ends the constraint and gives that copy back. A refused constraint makes
/// undo do nothing.
template <class T>
class ParameterAddConstrainedParameterEdit : public ParameterEdit {
public:
    ParameterAddConstrainedParameterEdit(ParameterWithoutType* master, ParameterWithoutType* slave);
    void doIt() override;
    void undoIt() override;

protected:
    bool bAddFailed;
    Parameter<T>* master;
    Parameter<T>* slave;
    Parameter<T> savedSlave;
};

template <class T>
ParameterAddConstrainedParameterEdit<T>::ParameterAddConstrainedParameterEdit(ParameterWithoutType* master,
                                                                              ParameterWithoutType* slave)
    : ParameterEdit(master), bAddFailed(false), master(dynamic_cast<Parameter<T>*>(master)),
      slave(dynamic_cast<Parameter<T>*>(slave)), savedSlave(true, "")
{
}

template <class T>
void ParameterAddConstrainedParameterEdit<T>::doIt()
{
    if (!bDone && slave)
        savedSlave.vCopyKeyframeDataFrom(slave);
    bAddFailed = !(master && master->bAddConstrainedParameter(slave));
    bDone = true;
}

template <class T>
void ParameterAddConstrainedParameterEdit<T>::undoIt()
{
    if (!bDone || bAddFailed || !slave)
        return;
    slave->bUnconstrain();
    slave->vCopyKeyframeDataFrom(&savedSlave);
}

} // namespace Prm
