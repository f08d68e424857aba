#include "modules/InsertROIParameterSet.h"

#include "clip/BaseClipInfo.h"
#include "clip/BaseClipInfoContainer.h"

namespace TQ {

ROIParameter::ROIParameter(bool bKeyframedIn, char const* name, float value, float minimum, float maximum,
                           Prm::Interpolation interpolation, Prm::Extrapolation extrapolation,
                           Prm::Parameter<unsigned int>* clipId, TQ_BaseClipInfoContainer* container,
                           bool bHorizontalIn)
    : Prm::ParameterWithoutType(),
      Prm::NumericParameter<float>(bKeyframedIn, name, value, minimum, maximum, interpolation, extrapolation),
      clipIdParameter(nullptr), clipContainer(container), bHorizontal(bHorizontalIn)
{
    vSetClipIdParameter(clipId);
}

ROIParameter::ROIParameter(ROIParameter const& other)
    : Prm::ParameterWithoutType(other), Prm::NumericParameter<float>(other), clipIdParameter(other.clipIdParameter),
      clipContainer(other.clipContainer), bHorizontal(other.bHorizontal), clipIdGuard(other.clipIdGuard)
{
}

ROIParameter& ROIParameter::operator=(ROIParameter const& other)
{
    Prm::NumericParameter<float>::operator=(other);
    clipIdParameter = other.clipIdParameter;
    clipIdGuard = other.clipIdGuard;
    clipContainer = other.clipContainer;
    bHorizontal = other.bHorizontal;
    return *this;
}

ROIParameter::~ROIParameter() = default;

void ROIParameter::vSetClipIdParameter(Prm::Parameter<unsigned int>* clipId)
{
    clipIdParameter = clipId;
    clipIdGuard = clipId ? static_cast<Prm::ParameterWithoutType*>(clipId) : nullptr;
}

float ROIParameter::fScale(float time) const
{
    unsigned int const clipId = clipIdParameter && clipIdGuard ? clipIdParameter->value(time, nullptr) : 0u;
    TQ_BaseClipInfo const* clip = clipId != 0 && clipContainer ? clipContainer->baseClipInfo(clipId) : nullptr;
    if (!clip)
        return 1.0f;
    if (bHorizontal)
        return static_cast<float>(clip->FrameWidth);
    // Each field of an interlaced clip holds half the lines of the frame.
    bool const bInterlaced = clip->eInterlaceMode == TQ_INTERLACE_FIELDS_1 || clip->eInterlaceMode == TQ_INTERLACE_FIELDS_2;
    return static_cast<float>(clip->FrameHeight) * (bInterlaced ? 2.0f : 1.0f);
}

float ROIParameter::value2Display(float value, float time) const
{
    return fScale(time) * value;
}

float ROIParameter::display2Value(float value, float time) const
{
    return value / fScale(time);
}

} // namespace TQ

namespace TQ::Table {

InsertROIParameters::InsertROIParameters(Parameter<unsigned int>* clipId, TQ_BaseClipInfoContainer* container)
    : ROIX1(Keyed, "ROIX1", 0.0f, -10.0f, 10.0f, Linear, Hold, clipId, container, true)
    , ROIY1(Keyed, "ROIY1", 0.0f, -10.0f, 10.0f, Linear, Hold, clipId, container, false)
    , ROIX2(Keyed, "ROIX2", 1.0f, -10.0f, 10.0f, Linear, Hold, clipId, container, true)
    , ROIY2(Keyed, "ROIY2", 1.0f, -10.0f, 10.0f, Linear, Hold, clipId, container, false)
{
}

} // namespace TQ::Table

TQ_InsertROIParameterSet::TQ_InsertROIParameterSet(Prm::Parameter<unsigned int>* clipId,
                                                   TQ_BaseClipInfoContainer* container)
    : TQ::ClipBoundParameterSet(QStringLiteral("ROI")), TQ::Table::InsertROIParameters(clipId, container)
{
    init();
}

TQ_InsertROIParameterSet::TQ_InsertROIParameterSet(TQ_InsertROIParameterSet const& other)
    : TQ::ClipBoundParameterSet(QStringLiteral("ROI")), TQ::Table::InsertROIParameters(other)
{
    init();
}

TQ_InsertROIParameterSet& TQ_InsertROIParameterSet::operator=(TQ_InsertROIParameterSet const& other)
{
    bAssignSet<TQ::Table::InsertROIParameters>(other, {});
    return *this;
}

TQ_InsertROIParameterSet::~TQ_InsertROIParameterSet() = default;

void TQ_InsertROIParameterSet::init()
{
    vAddParameters({&ROIX1, &ROIY1, &ROIX2, &ROIY2});
}
