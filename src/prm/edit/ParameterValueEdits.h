#pragma once
#include "prm/Parameter.h"
#include "prm/edit/ParameterEdit.h"

namespace Prm {

/// Sets the value at a time; made by `Parameter<T>::vSetValueCommand` and
/// `NumericParameter<T>::vSetDoubleValueCommand`.
///
/// First run records whether a key stood at the time and the value read there. Undo writes the old value
/// back and, when the run created the key, deletes it again; on a parameter without keys that deletion
/// finds nothing.
template <class T>
class ParameterValueEdit : public ParameterEdit {
public:
    ParameterValueEdit(Parameter<T>* parameter, T const& newValue, float time);
    void doIt() override;
    void undoIt() override;

protected:
    bool bHadKey;
    T tNewValue;
    float fTime;
    T tOldValue;
    Parameter<T>* parameter;
};

/// Sets the default value that `vReset` restores; made by `Parameter<T>::vSetDefaultValueCommand`.
template <class T>
class ParameterDefaultValueEdit : public ParameterEdit {
public:
    ParameterDefaultValueEdit(Parameter<T>* parameter, T const& newDefault);
    void doIt() override;
    void undoIt() override;

protected:
    T tOldDefault;
    T tNewDefault;
    Parameter<T>* parameter;
};

template <class T>
ParameterValueEdit<T>::ParameterValueEdit(Parameter<T>* parameter, T const& newValue, float time)
    : ParameterEdit(parameter), bHadKey(false), tNewValue(newValue), fTime(time), tOldValue(),
      parameter(parameter)
{
}

template <class T>
void ParameterValueEdit<T>::doIt()
{
    if (!bDone) {
        bHadKey = parameter->bKeyframeAt(fTime);
        tOldValue = parameter->value(fTime, nullptr);
        bDone = true;
    }
    parameter->vSetValue(tNewValue, fTime);
}

template <class T>
void ParameterValueEdit<T>::undoIt()
{
    parameter->vSetValue(tOldValue, fTime);
    if (!bHadKey)
        parameter->vDeleteKeyframe(fTime);
}

template <class T>
ParameterDefaultValueEdit<T>::ParameterDefaultValueEdit(Parameter<T>* parameter, T const& newDefault)
    : ParameterEdit(parameter), tOldDefault(), tNewDefault(newDefault), parameter(parameter)
{
}

template <class T>
void ParameterDefaultValueEdit<T>::doIt()
{
    if (!bDone) {
        tOldDefault = parameter->defaultValue();
        bDone = true;
    }
    parameter->vSetDefault(tNewDefault);
}

template <class T>
void ParameterDefaultValueEdit<T>::undoIt()
{
    parameter->vSetDefault(tOldDefault);
}

} // namespace Prm
