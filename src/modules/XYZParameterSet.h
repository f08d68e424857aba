#pragma once
#include "gandalf/Matrix.h"
#include "prm/NumericParameter.h"
#include "prm/set/ParameterSet.h"

/// A keyframed point of a three-dimensional scene: three float parameters "x", "y" and "z", unbounded,
/// holding their ends, with no default interpolation (whoever keys them chooses the kind of each key).
///
/// The parameters are members and live with the set. A copy gets the source's name and a copy of each
/// coordinate, registered with the copy; assignment takes over names and coordinates.
class TQ_XYZParameterSet : public Prm::ParameterSet
{
public:
    /// `name` is both the script and the display name.
    explicit TQ_XYZParameterSet(QString const& name);
    TQ_XYZParameterSet(TQ_XYZParameterSet const& other);
    TQ_XYZParameterSet& operator=(TQ_XYZParameterSet const& other);
    ~TQ_XYZParameterSet() override;

    /// Removes every key of x, y and z, in that order.
    virtual void deleteAllKeyframes();

    Prm::NumericParameter<float> const* x() const { return &xParameter; }
    Prm::NumericParameter<float> const* y() const { return &yParameter; }
    Prm::NumericParameter<float> const* z() const { return &zParameter; }
    Prm::NumericParameter<float>* x() { return &xParameter; }
    Prm::NumericParameter<float>* y() { return &yParameter; }
    Prm::NumericParameter<float>* z() { return &zParameter; }

    /// The three values at `time`, each clamped to its limits.
    Gan_Vector3 value(float time) const;
    /// Sets x, y and z at `time`, each narrowed to float and clamped.
    void setValue(Gan_Vector3 value, float time);

private:
    void init();

    Prm::NumericParameter<float> xParameter;
    Prm::NumericParameter<float> yParameter;
    Prm::NumericParameter<float> zParameter;
};
