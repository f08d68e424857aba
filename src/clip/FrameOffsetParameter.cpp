#include "clip/FrameOffsetParameter.h"

#include "clip/BaseClipInfo.h"
#include "clip/BaseClipInfoContainer.h"

PrmFrameOffset::PrmFrameOffset(bool bKeyframed, char const* name, unsigned int const& value,
                               unsigned int const& minimum, unsigned int const& maximum,
                               Prm::Interpolation interpolation, Prm::Extrapolation extrapolation,
                               TQ_BaseClipInfoContainer* container)
    : Prm::ParameterWithoutType(),
      Prm::NumericParameter<unsigned int>(bKeyframed, name, value, minimum, maximum, interpolation, extrapolation),
      clipContainer(container)
{
}

PrmFrameOffset::PrmFrameOffset(PrmFrameOffset const& other)
    : Prm::ParameterWithoutType(other), Prm::NumericParameter<unsigned int>(other),
      clipContainer(other.clipContainer)
{
}

PrmFrameOffset& PrmFrameOffset::operator=(PrmFrameOffset const& other)
{
    Prm::NumericParameter<unsigned int>::operator=(other);
    return *this;
}

PrmFrameOffset::~PrmFrameOffset() = default;

// The offset as unsigned, so that adding and subtracting it wrap in 32 bits.
unsigned int PrmFrameOffset::uiOffset() const
{
    TQ_BaseClipInfo const* clip = clipContainer ? clipContainer->baseClipInfo(1) : nullptr;
    return clip ? static_cast<unsigned int>(clip->FirstFrameOffset) : 0u;
}

unsigned int PrmFrameOffset::value2Display(unsigned int value, float) const
{
    return value + uiOffset();
}

unsigned int PrmFrameOffset::display2Value(unsigned int value, float) const
{
    return value - uiOffset();
}
