#pragma once
#include "prm/NumericParameterWithoutType.h"
#include "prm/curve/ParamInterpolator.h"
#include "prm/Parameter.h"
#include "prm/ValueConversion.h"

#include <boost/shared_ptr.hpp>
#include <cmath>
#include <limits>

namespace Prm {

/// A `Prm::Parameter<T>` with limits and a real curve, for `bool`, `unsigned char`, `int`, `unsigned int`,
/// `float` and `double`.
///
/// Writes through `vSetValue` and reads through `value` are clamped (maximum first, then minimum, so
/// crossed limits and NaN give the minimum); `moveAndChangeKeyframe` and raw static writes are not.
/// Between and beyond keys the record's kind and the extrapolation rules apply (Prm::Interpolate,
/// Prm::Extrapolate, or a custom method). The custom method lists start empty after every constructor
/// and do not travel with copies. Subclasses may override `value2Display` and `display2Value`.
template <class T>
class NumericParameter : public Parameter<T>, public NumericParameterWithoutType {
public:
    /// Keyframed flag, name, value (stored unclamped), minimum, maximum, interpolation, extrapolation.
    NumericParameter(bool bKeyframed, char const* name, T const& value, T const& minimum, T const& maximum,
                     Interpolation interpolation, Extrapolation extrapolation);
    /// `float` only: the two-argument base constructor; the owner assigns the limits (until then they
    /// are the widest the type has).
    template <class U = T, class = std::enable_if_t<std::is_same<U, float>::value>>
    NumericParameter(bool bKeyframed, char const* name);
    /// `float` only: the default base constructor; limits as above.
    template <class U = T, class = std::enable_if_t<std::is_same<U, float>::value>>
    NumericParameter();
    /// Copies the base and the limits; the custom lists start empty.
    NumericParameter(NumericParameter const& other);
    /// The base's assignment (which raises `ParameterReplaced`), then the limits.
    NumericParameter& operator=(NumericParameter const& other);
    ~NumericParameter() override;

    QString keyframeSuffixString(float time) const override;
    QString valueString(float time, Cache* cache) const override;
    T value(float time, Cache* cache) const override;
    int vSetValue(T const& value, float time) override;
    bool bStreamOut(QTextStream& out, QString const& prefix, bool bQualify) const override;
    /// Copies the curve data of a parameter of the same value type; the limits stay.
    void vCopyKeyframeDataFrom(ParameterWithoutType const* source) override;
    T InterpolateKeyForwards(unsigned int index, float time, Cache* cache) const override;
    T ExtrapolateKey(bool bBefore, float time, Cache* cache) const override;
    IType intitialiseInterpolation(KeyframeData<T> const& left, KeyframeData<T> const& right,
                                   Interpolation interpolation) const override;
    bool supportsExtrapolationFromNoKeys() const override;

    double valueAsDouble(float time, Cache* cache) const override;
    double keyframeValueAsDouble(unsigned int index) const override;
    void setValueFromDouble(double value, float time) override;
    int moveKeyframeAsDouble(double value, float fromTime, float toTime) override;
    Bsc::CompositeCommand& vSetDoubleValueCommand(double value, float time, Bsc::CompositeCommand& composite) override;
    Bsc::CompositeCommand& moveKeyframeAsDoubleCommand(double value, float fromTime, float toTime,
                                                       Bsc::CompositeCommand& composite) override;
    double minAsDouble() const override;
    double maxAsDouble() const override;
    bool isInteger() const override;
    virtual T minimum() const;
    virtual T maximum() const;
    virtual void vSetMinimum(T const& minimum);
    virtual void vSetMaximum(T const& maximum);
    double value2DisplayAsDouble(double value, float time) const override;
    double display2ValueAsDouble(double value, float time) const override;
    bool hasCustomInterpolationMethods() const override;
    bool hasCustomExtrapolationMethods() const override;
    QVector<QString> const& availableCustomInterpolationMethods() const override;
    QVector<QString> const& availableCustomExtrapolationMethods() const override;
    Interpolation CustomInterpolationMethodFromNameIndex(unsigned int index) const override;
    Extrapolation CustomExtrapolationMethodFromNameIndex(unsigned int index) const override;
    ParamInterpolator<T> const* customInterpolationMethod(Interpolation interpolation) const override;
    ParamExtrapolator<T> const* customExtrapolationMethod(Extrapolation extrapolation) const override;
    /// Reads one line without a text filter (the text format).
    virtual bool bStreamIn(QString const& line);
    bool bStreamInLine(QString const& line) override;

    /// `unsigned int` and `float` only: scales every key's (clamped) value by `factor`; a parameter
    /// without keys is left alone, and a key at a NaN time (read from a damaged text) keeps its value.
    template <class U = T,
              class = std::enable_if_t<std::is_same<U, unsigned int>::value || std::is_same<U, float>::value>>
    NumericParameter& operator*=(double factor);

protected:
    /// `value` limited in `double` and converted to `T`: what the double-valued move and edits store.
    T tLimitedDouble(double value) const;
    T tClamped(T value) const { return tClamp(value, tMinimum, tMaximum); }

    T tMinimum;
    T tMaximum;
    QVector<QString> customInterpolationNames;
    QVector<QString> customExtrapolationNames;
    QVector<boost::shared_ptr<ParamInterpolator<T> const>> customInterpolators;
    QVector<ParamExtrapolator<T> const*> customExtrapolators;
};

template <class T>
template <class U, class>
NumericParameter<T>::NumericParameter(bool bKeyframedIn, char const* name)
    : ParameterWithoutType(), Parameter<T>(bKeyframedIn, name), NumericParameterWithoutType(),
      tMinimum(std::numeric_limits<T>::lowest()), tMaximum(std::numeric_limits<T>::max())
{
}

template <class T>
template <class U, class>
NumericParameter<T>::NumericParameter()
    : ParameterWithoutType(), Parameter<T>(), NumericParameterWithoutType(),
      tMinimum(std::numeric_limits<T>::lowest()), tMaximum(std::numeric_limits<T>::max())
{
}

template <class T>
template <class U, class>
NumericParameter<T>& NumericParameter<T>::operator*=(double factor)
{
    for (unsigned int i = 0; i < this->keyframeCount(); ++i) {
        float const time = this->keyframeTime(i);
        // A key at a NaN time cannot be found by its time: setting a value there would append a new
        // key on every round and the loop would never end. Such a key keeps its value.
        if (std::isnan(time))
            continue;
        double const scaled = dToDouble(this->value(time, nullptr)) * factor;
        this->vSetValue(tFromDouble<T>(scaled), time);
    }
    return *this;
}

} // namespace Prm

/// Calls `X(T)` once per value type of `Prm::NumericParameter<T>`; NumericParameterTypes.cpp
/// instantiates each. A value type needs QTextStream's `<<` and `>>` and a Qt meta type.
#define TQ_FOR_EACH_NUMERIC_VALUE_TYPE(X)                                                                    \
    X(bool)                                                                                                 \
    X(unsigned char)                                                                                        \
    X(int)                                                                                                  \
    X(unsigned int)                                                                                         \
    X(float)                                                                                                \
    X(double)

/// `TQ_EXTERN_PARAMETER` for a numeric value type: both templates.
#define TQ_EXTERN_NUMERIC_PARAMETER(T)                                                                      \
    TQ_EXTERN_PARAMETER(T)                                                                                  \
    extern template class Prm::NumericParameter<T>;

TQ_FOR_EACH_NUMERIC_VALUE_TYPE(TQ_EXTERN_NUMERIC_PARAMETER)
