#pragma once
#include "bsc/Command.h"

namespace Prm {

class ParameterWithoutType;

/// Base of every parameter edit: one undoable change of one parameter.
///
/// An edit records the old state the first time it runs, not when it is made, so that edits pushed in
/// sequence onto one composite each see the state left by those before them; `bDone` marks that record
/// and is never cleared. The parameter is not owned and must outlive the edit. Edits never throw and never
/// fail: a change that does not fit the parameter's state does nothing.
class ParameterEdit : public Bsc::Command {
public:
    explicit ParameterEdit(ParameterWithoutType* parameterBase);
    ~ParameterEdit() override;

    /// Whether a run has recorded the old state.
    bool isDone() const { return bDone; }
    ParameterWithoutType* editedParameter() const { return parameterBase; }

protected:
    bool bDone;
    ParameterWithoutType* parameterBase;
};

} // namespace Prm
