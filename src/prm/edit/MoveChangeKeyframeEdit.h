#pragma once
#include "prm/Parameter.h"
#include "prm/edit/ParameterEdit.h"

namespace Prm {

/// Moves a key to a new time and value at once (made by `NumericParameter<T>::moveKeyframeAsDoubleCommand`,
/// which also reads the old value when it makes the edit).
///
/// One-shot on purpose: only the first `doIt` moves the key, so a redo after an undo leaves it at its old
/// time and value. Every `undoIt` after that first run moves it back. Numeric types only.
template <class T>
class MoveChangeKeyframeEdit : public ParameterEdit {
public:
    MoveChangeKeyframeEdit(Parameter<T>* parameter, float oldTime, float newTime, T const& newValue,
                           T const& oldValue);
    void doIt() override;
    void undoIt() override;

protected:
    float fOldTime;
    float fNewTime;
    T tNewValue;
    T tOldValue;
    Parameter<T>* parameter;
};

template <class T>
MoveChangeKeyframeEdit<T>::MoveChangeKeyframeEdit(Parameter<T>* parameter, float oldTime, float newTime,
                                                  T const& newValue, T const& oldValue)
    : ParameterEdit(parameter), fOldTime(oldTime), fNewTime(newTime), tNewValue(newValue), tOldValue(oldValue),
      parameter(parameter)
{
}

template <class T>
void MoveChangeKeyframeEdit<T>::doIt()
{
    if (bDone)
        return;
    parameter->moveAndChangeKeyframe(tNewValue, fOldTime, fNewTime);
    bDone = true;
}

template <class T>
void MoveChangeKeyframeEdit<T>::undoIt()
{
    if (bDone)
        parameter->moveAndChangeKeyframe(tOldValue, fNewTime, fOldTime);
}

} // namespace Prm
