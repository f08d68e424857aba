#pragma once
#include "prm/edit/ParameterEdit.h"

#include <QPointer>

namespace Prm {

/// Ends a parameter's constraint (made by `ParameterWithoutType::bUnconstrainCommand`, pushed for the
/// follower). The first run records the master followed then; undo makes the parameter follow it again,
/// unless that master has gone.
class ParameterUnconstrainEdit : public ParameterEdit {
public:
    explicit ParameterUnconstrainEdit(ParameterWithoutType* follower);
    void doIt() override;
    void undoIt() override;

protected:
    QPointer<QObject> formerMaster;
};

/// Ends one follower's constraint to a master (made by
/// `ParameterWithoutType::bRemoveConstrainedParameterCommand`, pushed for the master). The first run records
/// whether the follower follows this master; when it does not, the edit does nothing either way.
class ParameterRemoveConstrainedParameterEdit : public ParameterEdit {
public:
    ParameterRemoveConstrainedParameterEdit(ParameterWithoutType* master, ParameterWithoutType* follower);
    void doIt() override;
    void undoIt() override;

protected:
    bool bWasFollowing;
    QPointer<ParameterWithoutType> follower;
};

} // namespace Prm
