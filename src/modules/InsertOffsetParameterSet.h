#pragma once
#include "modules/ParameterTable.h"
#include "prm/NumericParameter.h"

#include <limits>

namespace TQ {

/// An angle stored in radians and shown in degrees with the sign turned over: the stored angle turns one
/// way, the user's the other.
class RotationParameter : public Prm::NumericParameter<double>
{
public:
    using Prm::NumericParameter<double>::NumericParameter;
    RotationParameter(RotationParameter const& other);
    RotationParameter& operator=(RotationParameter const&) = default;
    ~RotationParameter() override;

    /// `value` * -180 / pi.
    double value2Display(double value, float time) const override;
    /// `value` * pi / -180.
    double display2Value(double value, float time) const override;
};

} // namespace TQ

namespace TQ::Table {

/// The parameters of the offset applied on top of the track, in text order.
struct InsertOffsetParameters {
    static constexpr float LargestFloat = std::numeric_limits<float>::max();

    Numeric<double> OffsetTranslationX{Keyed, "OffsetTranslationX", 0.0, -LargestDouble, LargestDouble, Linear, Hold};
    Numeric<double> OffsetTranslationY{Keyed, "OffsetTranslationY", 0.0, -LargestDouble, LargestDouble, Linear, Hold};
    RotationParameter OffsetRotationZ{Keyed, "OffsetRotationZ", 0.0, -LargestDouble, LargestDouble, Linear, Hold};
    Numeric<double> OffsetScale{Keyed, "OffsetScale", 1.0, -LargestDouble, LargestDouble, Linear, Hold};
    Numeric<double> OffsetShearX{Keyed, "OffsetShearX", 0.0, -LargestDouble, LargestDouble, Linear, Hold};
    Numeric<double> OffsetShearY{Keyed, "OffsetShearY", 1.0, -LargestDouble, LargestDouble, Linear, Hold};
    Numeric<double> OffsetElationX{Keyed, "OffsetElationX", 0.0, -LargestDouble, LargestDouble, Linear, Hold};
    Numeric<double> OffsetElationY{Keyed, "OffsetElationY", 0.0, -LargestDouble, LargestDouble, Linear, Hold};
    Numeric<bool> ApplyTrackingScale{Keyed, "ApplyTrackingScale", false, false, true, Step, Hold};
    Numeric<float> TrackingScale{Keyed, "TrackingScale", 0.0f, 0.0f, LargestFloat, Linear, Hold};
    Numeric<unsigned int> TrackingScaleReferenceFrame{Keyed, "TrackingScaleReferenceFrame", 0u, 0u, 1000000u, Step,
                                                      Hold};
    Numeric<bool> Apply3DDepthEffect{Keyed, "Apply3DDepthEffect", false, false, true, Step, Hold};
    Numeric<float> CornerDepth{Keyed, "CornerDepth", 0.0f, -LargestFloat, LargestFloat, Linear, Hold};
    Numeric<float> CornerAxisZ{Keyed, "CornerAxisZ", 0.0f, -LargestFloat, LargestFloat, Linear, Hold};
    Numeric<float> CornerTiltXY{Keyed, "CornerTiltXY", 0.0f, -LargestFloat, LargestFloat, Linear, Hold};
};

} // namespace TQ::Table

/// The offset of an inserted image from its track, "Offset": translation, rotation, scale, shear and
/// perspective, a tracking scale and a 3D depth effect. Shown under display names of their own (the
/// perspective values persist as "Elation"). It names no clip: `rescale` and `removeReferencesToClip` do
/// nothing.
class TQ_InsertOffsetParameterSet : public TQ::ClipBoundParameterSet, public TQ::Table::InsertOffsetParameters
{
public:
    using RotationParameter = TQ::RotationParameter;

    TQ_InsertOffsetParameterSet();
    TQ_InsertOffsetParameterSet(TQ_InsertOffsetParameterSet const& other);
    TQ_InsertOffsetParameterSet& operator=(TQ_InsertOffsetParameterSet const& other);
    ~TQ_InsertOffsetParameterSet() override;

private:
    void init();
};
