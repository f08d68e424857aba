#pragma once
#include "prm/ParameterWithoutType.h"

#include <QVector>

namespace TQ {

/// A parameter member that a set's copy constructor copies but its assignment leaves as it was in the
/// target. Used where a module's saved projects rely on the gap.
template <class P>
class KeptOnAssignment : public P
{
public:
    using P::P;
    KeptOnAssignment(KeptOnAssignment const&) = default;
    KeptOnAssignment& operator=(KeptOnAssignment const&) { return *this; }
};

/// A parameter member that neither copies nor assigns: every set object has its own default-built one.
template <class P>
class NotCopied : public P
{
public:
    NotCopied() = default;
    NotCopied(NotCopied const&) : Prm::ParameterWithoutType(), P() {}
    NotCopied& operator=(NotCopied const&) { return *this; }
};

/// A container member that a copy starts empty and an assignment leaves as it was in the target: what it
/// holds belongs to the one set object that filled it.
template <class C>
class EmptyOnCopy : public C
{
public:
    EmptyOnCopy() = default;
    EmptyOnCopy(EmptyOnCopy const&) : C() {}
    EmptyOnCopy& operator=(EmptyOnCopy const&) { return *this; }
};

/// Parameters that a set holds on the heap and deletes with itself, through their virtual destructor.
/// A copy starts empty and an assignment leaves them as they were, so that each is deleted once.
class OwnedParameters : public EmptyOnCopy<QVector<Prm::ParameterWithoutType*>>
{
public:
    OwnedParameters() = default;
    OwnedParameters(OwnedParameters const&) = default;
    OwnedParameters& operator=(OwnedParameters const&) = default;
    ~OwnedParameters() { qDeleteAll(*this); }
};

} // namespace TQ
