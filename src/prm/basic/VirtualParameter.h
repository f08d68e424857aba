#pragma once
#include "prm/basic/StaticParameter.h"

namespace Prm {

/// A static parameter whose value is a member of its owner, reached through a pointer.
///
/// The member is not owned and must outlive the parameter. Setting and reading go straight through the
/// pointer, with no signal and no limits: a change of the member is seen at the next `bStreamOut`. A null
/// pointer is survived: reads give the zero value and writes are dropped.
template <class T>
class VirtualParameter : public StaticParameter<T> {
public:
    VirtualParameter(QString const& scriptName, T* valuePointer);
    ~VirtualParameter() override;

    void doSetValue(T const& value) override;
    T value() const override;

protected:
    T* tValuePointer;
};

template <class T>
VirtualParameter<T>::VirtualParameter(QString const& scriptName, T* valuePointer)
    : StaticParameter<T>(scriptName), tValuePointer(valuePointer)
{
}

template <class T>
VirtualParameter<T>::~VirtualParameter() = default;

template <class T>
void VirtualParameter<T>::doSetValue(T const& value)
{
    if (tValuePointer)
        *tValuePointer = value;
}

template <class T>
T VirtualParameter<T>::value() const
{
    return tValuePointer ? *tValuePointer : T{};
}

#define TQ_EXTERN_VIRTUAL_PARAMETER(T) extern template class VirtualParameter<T>;
TQ_FOR_EACH_STATIC_PARAMETER_TYPE(TQ_EXTERN_VIRTUAL_PARAMETER)
#undef TQ_EXTERN_VIRTUAL_PARAMETER

} // namespace Prm
