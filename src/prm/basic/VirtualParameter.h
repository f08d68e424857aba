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

} // namespace Prm

/// Declares, at global scope, that `Prm::StaticParameter<T>` and `Prm::VirtualParameter<T>` are
/// instantiated elsewhere: in the header of the folder that owns `T`, beside the one
/// `TQ_INSTANTIATE_STATIC_PARAMETER(T)` in its .cpp file.
#define TQ_EXTERN_STATIC_PARAMETER(T)                                                                       \
    extern template class Prm::StaticParameter<T>;                                                          \
    extern template class Prm::VirtualParameter<T>;

/// Instantiates both templates for `T`, which needs QTextStream's `<<` and `>>` visible here.
#define TQ_INSTANTIATE_STATIC_PARAMETER(T)                                                                  \
    template class Prm::StaticParameter<T>;                                                                 \
    template class Prm::VirtualParameter<T>;

/// Calls `X(T)` once per value type of static and virtual parameters that the engine itself owns;
/// StaticParameter.cpp instantiates each.
#define TQ_FOR_EACH_STATIC_PARAMETER_TYPE(X)                                                                \
    X(unsigned int)                                                                                         \
    X(int)                                                                                                  \
    X(float)                                                                                                \
    X(double)                                                                                               \
    X(bool)                                                                                                 \
    X(unsigned char)                                                                                        \
    X(QString)

TQ_FOR_EACH_STATIC_PARAMETER_TYPE(TQ_EXTERN_STATIC_PARAMETER)
