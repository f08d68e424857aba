#pragma once
#include "prm/ParameterWithoutType.h"

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

} // namespace TQ
