#pragma once
/// The `...Command` makers that `Prm::NumericParameter<T>` adds. Included only by its explicit
/// instantiations. Both limit the value in `double` and convert it to `T` when the edit is made.
#include "bsc/Command.h"
#include "prm/edit/MoveChangeKeyframeEdit.h"
#include "prm/NumericParameter.h"
#include "prm/edit/ParameterValueEdits.h"

namespace Prm {

template <class T>
Bsc::CompositeCommand& NumericParameter<T>::vSetDoubleValueCommand(double value, float time,
                                                                   Bsc::CompositeCommand& composite)
{
    T const newValue = this->tLimitedDouble(value);
    composite.push_back(new ParameterValueEdit<T>(this, newValue, time));
    return composite;
}

template <class T>
Bsc::CompositeCommand& NumericParameter<T>::moveKeyframeAsDoubleCommand(double value, float fromTime, float toTime,
                                                                        Bsc::CompositeCommand& composite)
{
    // The one maker that reads old state now rather than at the edit's first run.
    T const oldValue = this->value(fromTime, nullptr);
    T const newValue = this->tLimitedDouble(value);
    composite.push_back(new MoveChangeKeyframeEdit<T>(this, fromTime, toTime, newValue, oldValue));
    return composite;
}

} // namespace Prm
