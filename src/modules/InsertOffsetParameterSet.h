#pragma once
#include "modules/ClipBoundParameterSet.h"
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

/// The parameters of the offset applied on top of the track, in text order.
struct InsertOffsetMembers {
    static constexpr double dLargest = std::numeric_limits<double>::max();
    static constexpr float fLargest = std::numeric_limits<float>::max();

    Prm::NumericParameter<double> OffsetTranslationX{true, "OffsetTranslationX", 0.0, -dLargest, dLargest,
                                                     Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<double> OffsetTranslationY{true, "OffsetTranslationY", 0.0, -dLargest, dLargest,
                                                     Prm::InterpolationLinear, Prm::ExtrapolationHold};
    RotationParameter OffsetRotationZ{true, "OffsetRotationZ", 0.0, -dLargest, dLargest, Prm::InterpolationLinear,
                                      Prm::ExtrapolationHold};
    Prm::NumericParameter<double> OffsetScale{true, "OffsetScale", 1.0, -dLargest, dLargest,
                                              Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<double> OffsetShearX{true, "OffsetShearX", 0.0, -dLargest, dLargest,
                                               Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<double> OffsetShearY{true, "OffsetShearY", 1.0, -dLargest, dLargest,
                                               Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<double> OffsetElationX{true, "OffsetElationX", 0.0, -dLargest, dLargest,
                                                 Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<double> OffsetElationY{true, "OffsetElationY", 0.0, -dLargest, dLargest,
                                                 Prm::InterpolationLinear, Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> ApplyTrackingScale{true, "ApplyTrackingScale", false, false, true,
                                                   Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> TrackingScale{true, "TrackingScale", 0.0f, 0.0f, fLargest, Prm::InterpolationLinear,
                                               Prm::ExtrapolationHold};
    Prm::NumericParameter<unsigned int> TrackingScaleReferenceFrame{true, "TrackingScaleReferenceFrame", 0u, 0u,
                                                                    1000000u, Prm::InterpolationStep,
                                                                    Prm::ExtrapolationHold};
    Prm::NumericParameter<bool> Apply3DDepthEffect{true, "Apply3DDepthEffect", false, false, true,
                                                   Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> CornerDepth{true, "CornerDepth", 0.0f, -fLargest, fLargest, Prm::InterpolationLinear,
                                             Prm::ExtrapolationHold};
    Prm::NumericParameter<float> CornerAxisZ{true, "CornerAxisZ", 0.0f, -fLargest, fLargest, Prm::InterpolationLinear,
                                             Prm::ExtrapolationHold};
    Prm::NumericParameter<float> CornerTiltXY{true, "CornerTiltXY", 0.0f, -fLargest, fLargest,
                                              Prm::InterpolationLinear, Prm::ExtrapolationHold};
};

} // namespace TQ

/// The offset of an inserted image from its track, "Offset": translation, rotation, scale, shear and
/// perspective, a tracking scale and a 3D depth effect. Shown under display names of their own (the
/// perspective values persist as "Elation"). It names no clip: `rescale` and `removeReferencesToClip` do
/// nothing.
class TQ_InsertOffsetParameterSet : public TQ::ClipBoundParameterSet, public TQ::InsertOffsetMembers
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
