#pragma once
/// Definitions of Prm::NumericParameter<T>: its own operations, text and `...Command` makers, and the
/// macro that instantiates it. Included only by the .cpp files that instantiate a value type. Both
/// makers limit the value in `double` and convert it to `T` when the edit is made.
#include "bsc/Command.h"
#include "prm/NumericParameter.h"
#include "prm/ParameterImpl.h"
#include "prm/curve/Interpolate.h"
#include "prm/edit/MoveChangeKeyframeEdit.h"
#include "prm/edit/ParameterValueEdits.h"

#include <QTextStream>

namespace Prm {

template <class T>
NumericParameter<T>::NumericParameter(bool bKeyframedIn, char const* name, T const& initial, T const& minimum,
                                      T const& maximum, Interpolation interpolation, Extrapolation extrapolation)
    : ParameterWithoutType(),
      Parameter<T>(bKeyframedIn, name, initial, interpolation, extrapolation),
      NumericParameterWithoutType(),
      tMinimum(minimum),
      tMaximum(maximum)
{
}

template <class T>
NumericParameter<T>::NumericParameter(NumericParameter const& other)
    : ParameterWithoutType(other),
      Parameter<T>(other),
      NumericParameterWithoutType(other),
      tMinimum(other.tMinimum),
      tMaximum(other.tMaximum)
{
}

template <class T>
NumericParameter<T>& NumericParameter<T>::operator=(NumericParameter const& other)
{
    Parameter<T>::operator=(other);
    tMinimum = other.tMinimum;
    tMaximum = other.tMaximum;
    return *this;
}

template <class T>
NumericParameter<T>::~NumericParameter() = default;

template <class T>
T NumericParameter<T>::value(float time, Cache* cache) const
{
    return tClamped(Parameter<T>::value(time, cache));
}

template <class T>
int NumericParameter<T>::vSetValue(T const& newValue, float time)
{
    return Parameter<T>::vSetValue(tClamped(newValue), time);
}

template <class T>
void NumericParameter<T>::vCopyKeyframeDataFrom(ParameterWithoutType const* source)
{
    // The static value comes first; the base copies it again with the rest of the curve data.
    if (Parameter<T> const* other = dynamic_cast<Parameter<T> const*>(source))
        this->tStaticValue = other->staticValue();
    Parameter<T>::vCopyKeyframeDataFrom(source);
}

template <class T>
T NumericParameter<T>::InterpolateKeyForwards(unsigned int index, float time, Cache* cache) const
{
    if (index >= static_cast<unsigned int>(this->interpolationRecords.size()))
        return T();
    Interpolation const kind = this->interpolationRecords[int(index)].eType;
    if (kind <= InterpolationBezier)
        return Interpolate<T>(this->keyframes, this->interpolationRecords, kind, time, int(index), cache);
    // Without its method a custom kind reads as Interpolate reads it (the first as step, others zero).
    if (ParamInterpolator<T> const* method = customInterpolationMethod(kind))
        return method->interpolate(*this, index, time, cache);
    return Interpolate<T>(this->keyframes, this->interpolationRecords, kind, time, int(index), cache);
}

template <class T>
T NumericParameter<T>::ExtrapolateKey(bool bBefore, float time, Cache* cache) const
{
    Extrapolation const rule = bBefore ? this->eExtrapolationBefore : this->eExtrapolationAfter;
    if (rule <= ExtrapolationLinear)
        return Extrapolate<T>(this->keyframes, this->interpolationRecords, rule, time, bBefore, cache);
    // Without its method a custom rule reads as Extrapolate reads it (the first as hold, others zero).
    if (ParamExtrapolator<T> const* method = customExtrapolationMethod(rule))
        return method->extrapolate(*this, bBefore, time, cache);
    return Extrapolate<T>(this->keyframes, this->interpolationRecords, rule, time, bBefore, cache);
}

template <class T>
IType NumericParameter<T>::intitialiseInterpolation(KeyframeData<T> const& left, KeyframeData<T> const& right,
                                                    Interpolation kind) const
{
    IType record;
    record.eType = kind;
    if (kind != InterpolationBezier)
        return record;
    double const dt = static_cast<float>(right.fTime - left.fTime);
    double const dv = ValueConversion<T>::difference(left.tValue, right.tValue);
    record.dOutTime = dt * 0.1;
    record.dInTime = -(dt * 0.1);
    record.dOutValue = dv * 0.1;
    record.dInValue = -(dv * 0.1);
    return record;
}

template <class T>
bool NumericParameter<T>::supportsExtrapolationFromNoKeys() const
{
    Extrapolation const rule = this->eExtrapolationAfter;
    if (rule < ExtrapolationCustomFirst)
        return false;
    ParamExtrapolator<T> const* method = customExtrapolationMethod(rule);
    return method && method->bSupportsNoKeys;
}

template <class T>
ParamInterpolator<T> const* NumericParameter<T>::customInterpolationMethod(Interpolation kind) const
{
    // Built-in kinds (and any kind below them) hold no method; testing first keeps the subtraction in range.
    if (kind < InterpolationCustomFirst || int(kind) - InterpolationCustomFirst >= customInterpolators.size())
        return nullptr;
    return customInterpolators[int(kind) - InterpolationCustomFirst].get();
}

template <class T>
ParamExtrapolator<T> const* NumericParameter<T>::customExtrapolationMethod(Extrapolation rule) const
{
    if (rule < ExtrapolationCustomFirst || int(rule) - ExtrapolationCustomFirst >= customExtrapolators.size())
        return nullptr;
    return customExtrapolators[int(rule) - ExtrapolationCustomFirst];
}

template <class T>
T NumericParameter<T>::tLimitedDouble(double input) const
{
    return tFromDouble<T>(tClamp(input, dToDouble(tMinimum), dToDouble(tMaximum)));
}

template <class T>
double NumericParameter<T>::valueAsDouble(float time, Cache* cache) const
{
    return dToDouble(this->value(time, cache));
}

template <class T>
double NumericParameter<T>::keyframeValueAsDouble(unsigned int index) const
{
    return dToDouble(this->keyframeValue(index));
}

template <class T>
void NumericParameter<T>::setValueFromDouble(double input, float time)
{
    this->vSetValue(tFromDouble<T>(input), time);
}

template <class T>
int NumericParameter<T>::moveKeyframeAsDouble(double input, float fromTime, float toTime)
{
    return this->moveAndChangeKeyframe(tLimitedDouble(input), fromTime, toTime);
}

template <class T> double NumericParameter<T>::minAsDouble() const { return dToDouble(tMinimum); }
template <class T> double NumericParameter<T>::maxAsDouble() const { return dToDouble(tMaximum); }
template <class T> bool NumericParameter<T>::isInteger() const { return !std::is_floating_point<T>::value; }
template <class T> T NumericParameter<T>::minimum() const { return tMinimum; }
template <class T> T NumericParameter<T>::maximum() const { return tMaximum; }
template <class T> void NumericParameter<T>::vSetMinimum(T const& limit) { tMinimum = limit; }
template <class T> void NumericParameter<T>::vSetMaximum(T const& limit) { tMaximum = limit; }

template <class T>
double NumericParameter<T>::value2DisplayAsDouble(double input, float time) const
{
    return dToDouble(this->value2Display(tFromDouble<T>(input), time));
}

template <class T>
double NumericParameter<T>::display2ValueAsDouble(double input, float time) const
{
    return dToDouble(this->display2Value(tFromDouble<T>(input), time));
}

template <class T> bool NumericParameter<T>::hasCustomInterpolationMethods() const
{
    return !customInterpolators.isEmpty();
}

template <class T> bool NumericParameter<T>::hasCustomExtrapolationMethods() const
{
    return !customExtrapolators.isEmpty();
}

template <class T> QVector<QString> const& NumericParameter<T>::availableCustomInterpolationMethods() const
{
    return customInterpolationNames;
}

template <class T> QVector<QString> const& NumericParameter<T>::availableCustomExtrapolationMethods() const
{
    return customExtrapolationNames;
}

template <class T> Interpolation NumericParameter<T>::CustomInterpolationMethodFromNameIndex(unsigned int index) const
{
    return static_cast<Interpolation>(static_cast<int>(index + 4u));
}

template <class T> Extrapolation NumericParameter<T>::CustomExtrapolationMethodFromNameIndex(unsigned int index) const
{
    return static_cast<Extrapolation>(static_cast<int>(index + 3u));
}

template <class T>
QString NumericParameter<T>::keyframeSuffixString(float time) const
{
    return Parameter<T>::keyframeSuffixString(time);
}

template <class T>
QString NumericParameter<T>::valueString(float time, Cache* cache) const
{
    return ValueText<T>::qstrDisplay(this->value(time, cache));
}

template <class T>
bool NumericParameter<T>::bStreamOut(QTextStream& out, QString const& prefix, bool bQualify) const
{
    Parameter<T>::bStreamOut(out, prefix, bQualify);
    return true;
}

template <class T>
bool NumericParameter<T>::bStreamInLine(QString const& line)
{
    return bStreamIn(line);
}

template <class T>
bool NumericParameter<T>::bStreamIn(QString const& line)
{
    if (this->streamInValue(line, boost::function<QString(QString const&)>()))
        return true;
    // Repairs what a failed key line leaves behind: the flag cleared, signals on.
    this->bStreamingIn = true;
    this->blockSignals(true);
    this->bStreamingIn = false;
    this->blockSignals(false);
    return false;
}

template <class T>
Bsc::CompositeCommand& NumericParameter<T>::vSetDoubleValueCommand(double value, float time,
                                                                   Bsc::CompositeCommand& composite)
{
    T const newValue = this->tLimitedDouble(value);
    composite.push_back(new ParameterValueEdit<T>(this, newValue, time));
    return composite;
}

template <class T>
Bsc::CompositeCommand& NumericParameter<T>::moveKeyframeAsDoubleCommand(double value, float fromTime, float toTime,
                                                                        Bsc::CompositeCommand& composite)
{
    // The one maker that reads old state now rather than at the edit's first run.
    T const oldValue = this->value(fromTime, nullptr);
    T const newValue = this->tLimitedDouble(value);
    composite.push_back(new MoveChangeKeyframeEdit<T>(this, fromTime, toTime, newValue, oldValue));
    return composite;
}

} // namespace Prm

/// `TQ_INSTANTIATE_PARAMETER` for a numeric value type: both templates, all their edits and the curve
/// methods.
#define TQ_INSTANTIATE_NUMERIC_PARAMETER(T)                                                                 \
    TQ_INSTANTIATE_PARAMETER(T)                                                                             \
    template class Prm::NumericParameter<T>;                                                                \
    template class Prm::MoveChangeKeyframeEdit<T>;                                                          \
    TQ_INSTANTIATE_CURVE(T)
