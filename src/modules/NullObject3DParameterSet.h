#pragma once
#include "modules/XYZParameterSet.h"

/// An object of a three-dimensional scene: three keyframed points "Position", "Rotation" and "Scale",
/// held by value and streamed as child sets in that order.
///
/// A copy takes the source's names and copies of the three points; assignment takes over both.
class TQ_NullObject3DParameterSet : public Prm::ParameterSet
{
public:
    /// `name` is both the script and the display name.
    explicit TQ_NullObject3DParameterSet(QString const& name);
    TQ_NullObject3DParameterSet(TQ_NullObject3DParameterSet const& other);
    TQ_NullObject3DParameterSet& operator=(TQ_NullObject3DParameterSet const& other);
    ~TQ_NullObject3DParameterSet() override;

    /// Removes every key of Position, Rotation and Scale, in that order.
    virtual void deleteAllKeyframes();

    TQ_XYZParameterSet position;
    TQ_XYZParameterSet rotation;
    TQ_XYZParameterSet scale;

private:
    void init();
};
