#pragma once
#include "prm/curve/ParamInterpolator.h"
#include "prm/ParameterWithoutType.h"

namespace Prm {

/// Double-valued view of a numeric parameter, implemented by `Prm::NumericParameter<T>`. Holds no value
/// of its own; it shares the one `Prm::ParameterWithoutType` of the object through virtual inheritance.
class NumericParameterWithoutType : public virtual ParameterWithoutType {
public:
    NumericParameterWithoutType();
    NumericParameterWithoutType(NumericParameterWithoutType const& other);
    ~NumericParameterWithoutType() override;

    virtual double valueAsDouble(float time, Cache* cache) const = 0;
    virtual double keyframeValueAsDouble(unsigned int index) const = 0;
    virtual void setValueFromDouble(double value, float time) = 0;
    virtual int moveKeyframeAsDouble(double value, float fromTime, float toTime) = 0;
    virtual Bsc::CompositeCommand& vSetDoubleValueCommand(double value, float time,
                                                          Bsc::CompositeCommand& composite) = 0;
    virtual Bsc::CompositeCommand& moveKeyframeAsDoubleCommand(double value, float fromTime, float toTime,
                                                               Bsc::CompositeCommand& composite) = 0;
    virtual double minAsDouble() const = 0;
    virtual double maxAsDouble() const = 0;
    virtual bool isInteger() const = 0;
    virtual double value2DisplayAsDouble(double value, float time) const = 0;
    virtual double display2ValueAsDouble(double value, float time) const = 0;
    virtual bool hasCustomInterpolationMethods() const = 0;
    virtual bool hasCustomExtrapolationMethods() const = 0;
    virtual QVector<QString> const& availableCustomInterpolationMethods() const = 0;
    virtual QVector<QString> const& availableCustomExtrapolationMethods() const = 0;
    virtual Interpolation CustomInterpolationMethodFromNameIndex(unsigned int index) const = 0;
    virtual Extrapolation CustomExtrapolationMethodFromNameIndex(unsigned int index) const = 0;
    /// The custom method serving `interpolation`, or null when the list holds none for it.
    virtual ParamInterpolatorBase const* customInterpolationMethod(Interpolation interpolation) const = 0;
    /// The custom method serving `extrapolation`, or null when the list holds none for it.
    virtual ParamExtrapolatorBase const* customExtrapolationMethod(Extrapolation extrapolation) const = 0;
    virtual bool supportsExtrapolationFromNoKeys() const = 0;
};

} // namespace Prm
