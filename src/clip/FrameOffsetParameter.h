#pragma once

#include "prm/NumericParameter.h"

class TQ_BaseClipInfoContainer;

/// A frame number shown in the numbering of the project's first clip: the display adds clip 1's
/// "FirstFrameOffset" (which may be negative) and reading back subtracts it, both wrapping in 32 bits.
/// The time is ignored. `clipContainer` is not owned; while the display mapping is used it must be set and
/// hold a clip with id 1 (a missing container or clip leaves the value unshifted rather than crashing).
class PrmFrameOffset : public Prm::NumericParameter<unsigned int>
{
public:
    /// As the base's usual constructor, plus the container the clip is looked up in.
    PrmFrameOffset(bool bKeyframed, char const* name, unsigned int const& value, unsigned int const& minimum,
                   unsigned int const& maximum, Prm::Interpolation interpolation,
                   Prm::Extrapolation extrapolation, TQ_BaseClipInfoContainer* container);
    /// Copies the base, the limits and the container pointer.
    PrmFrameOffset(PrmFrameOffset const& other);
    /// The base's assignment only: the owning set copies the container pointer itself.
    PrmFrameOffset& operator=(PrmFrameOffset const& other);
    ~PrmFrameOffset() override;

    unsigned int value2Display(unsigned int value, float time) const override;
    unsigned int display2Value(unsigned int value, float time) const override;

    TQ_BaseClipInfoContainer* clipContainer;

private:
    unsigned int uiOffset() const;
};
