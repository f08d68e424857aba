#pragma once
#include "modules/NullObject3DParameterSet.h"

/// A camera of a three-dimensional scene: a null named "Camera" (script name "Camera3D") with a keyframed,
/// unbounded focal length "FocalLength" (display name "Focal Length") that holds its end values.
class TQ_Camera3DParameterSet : public TQ_NullObject3DParameterSet
{
public:
    TQ_Camera3DParameterSet();
    TQ_Camera3DParameterSet(TQ_Camera3DParameterSet const& other);
    TQ_Camera3DParameterSet& operator=(TQ_Camera3DParameterSet const& other);
    ~TQ_Camera3DParameterSet() override;

    /// The null's keys first, then the focal length's.
    void deleteAllKeyframes() override;

    Prm::NumericParameter<float> const* focus() const { return &focalLength; }
    Prm::NumericParameter<float>* focus() { return &focalLength; }
    /// Sets the focal length `value` at `time`, clamped to its limits.
    void setFocus(float value, float time);

private:
    Prm::NumericParameter<float> focalLength;
};
