#pragma once
/// The `...Command` makers of `Prm::Parameter<T>`. Included only by the explicit instantiations of
/// `Prm::Parameter<T>`. Each maker creates one edit on the heap, pushes it onto the caller's composite
/// (which owns it from then on) and changes nothing: the parameter changes when the composite runs.
#include "bsc/Command.h"
#include "prm/Parameter.h"
#include "prm/edit/ParameterAddConstrainedParameterEdit.h"
#include "prm/edit/ParameterCurveEdits.h"
#include "prm/edit/ParameterKeyEdits.h"
#include "prm/edit/ParameterValueEdits.h"

namespace Prm {

template <class T>
Bsc::CompositeCommand& Parameter<T>::vSetValueCommand(T const& value, float time, Bsc::CompositeCommand& composite)
{
    // Unlimited here: a numeric parameter limits the value when the edit runs vSetValue.
    composite.push_back(new ParameterValueEdit<T>(this, value, time));
    return composite;
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::vSetDefaultValueCommand(T const& value, Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterDefaultValueEdit<T>(this, value));
    return composite;
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::vSetInterpolationCommand(Interpolation interpolation, float time,
                                                              Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterInterpolationEdit<T>(this, interpolation, time));
    return composite;
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::vSetInterpolationDataCommand(IType data, unsigned int index,
                                                                  Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterInterpolationDataEdit<T>(this, data, index));
    return composite;
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::vSetExtrapolationBeforeCommand(Extrapolation extrapolation,
                                                                    Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterExtrapolationBeforeEdit<T>(this, extrapolation));
    return composite;
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::vSetExtrapolationAfterCommand(Extrapolation extrapolation,
                                                                   Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterExtrapolationAfterEdit<T>(this, extrapolation));
    return composite;
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::vAddKeyframeCommand(float time, Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterAddKeyEdit<T>(this, time));
    return composite;
}

template <class T>
void Parameter<T>::createKeyframeDeletion(float time, Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterDeleteKeyEdit<T>(this, time));
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::vDeleteAllKeyframesCommand(Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterDeleteAllKeysEdit<T>(this));
    return composite;
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::vResetCommand(float time, Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterResetEdit<T>(this, time));
    return composite;
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::bAddConstrainedParameterCommand(ParameterWithoutType* follower,
                                                                     Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterAddConstrainedParameterEdit<T>(this, follower));
    return composite;
}

} // namespace Prm
