#pragma once
/// Definitions of Prm::Parameter<T>'s getters, key searches, deletion, raw access and curve hooks.
/// Included by ParameterImpl.h only.

namespace Prm {

template <class T> T Parameter<T>::defaultValue() const { return tDefaultValue; }
template <class T> T Parameter<T>::staticValue() const { return tStaticValue; }
template <class T> void Parameter<T>::vSetDefault(T const& newDefault) { tDefaultValue = newDefault; }
template <class T> T Parameter<T>::value2Display(T shown, float) const { return shown; }
template <class T> T Parameter<T>::display2Value(T shown, float) const { return shown; }
template <class T> bool Parameter<T>::isKeyframed() const { return bKeyframed; }
template <class T> void Parameter<T>::vSetDefaultInterpolation(Interpolation kind) { eDefaultInterpolation = kind; }
template <class T> std::type_info const* Parameter<T>::tRawValueType() const { return &typeid(T); }
template <class T> bool Parameter<T>::supportsExtrapolationFromNoKeys() const { return false; }

template <class T>
Extrapolation Parameter<T>::extrapolationBefore() const
{
    if (ParameterWithoutType const* master = masterBase())
        return master->extrapolationBefore();
    return bKeyframed ? eExtrapolationBefore : ExtrapolationHold;
}

template <class T>
Extrapolation Parameter<T>::extrapolationAfter() const
{
    if (ParameterWithoutType const* master = masterBase())
        return master->extrapolationAfter();
    return bKeyframed ? eExtrapolationAfter : ExtrapolationHold;
}

template <class T>
Interpolation Parameter<T>::interpolation(float time) const
{
    if (ParameterWithoutType const* master = masterBase())
        return master->interpolation(time);
    if (!bKeyframed)
        return InterpolationStep;
    int const n = qMin(keyframes.size(), interpolationRecords.size());
    if (n == 0)
        return eDefaultInterpolation;
    for (int i = 0; i < n; ++i) {
        if (keyframes[i].fTime == time)
            return interpolationRecords[i].eType;
        if (keyframes[i].fTime > time)
            return interpolationRecords[i == 0 ? 0 : i - 1].eType;
    }
    return interpolationRecords[n - 1].eType;
}

template <class T>
Interpolation Parameter<T>::interpolation(unsigned int index) const
{
    if (!bKeyframed || index >= keyframeCount() || int(index) >= interpolationRecords.size())
        return InterpolationStep;
    return interpolationRecords[int(index)].eType;
}

template <class T>
IType Parameter<T>::interpolationData(unsigned int index) const
{
    if (ParameterWithoutType const* master = masterBase())
        return master->interpolationData(index);
    IType record;
    if (!bKeyframed) {
        record.eType = InterpolationStep;
        return record;
    }
    if (index >= static_cast<unsigned int>(keyframes.size()) || int(index) >= interpolationRecords.size()) {
        record.eType = eDefaultInterpolation;
        return record;
    }
    return interpolationRecords[int(index)];
}

template <class T>
void Parameter<T>::vSetExtrapolationBefore(Extrapolation rule)
{
    if (!bKeyframed)
        return;
    eExtrapolationBefore = rule;
    vRaise(ParameterChange::ExtrapolationBeforeChanged, 0);
}

template <class T>
void Parameter<T>::vSetExtrapolationAfter(Extrapolation rule)
{
    if (!bKeyframed)
        return;
    eExtrapolationAfter = rule;
    vRaise(ParameterChange::ExtrapolationAfterChanged, 0);
}

template <class T>
void Parameter<T>::vSetInterpolation(Interpolation kind, float time)
{
    int const index = bKeyframed ? iKeyIndex(time) : -1;
    if (index < 0 || index >= interpolationRecords.size())
        return;
    interpolationRecords[index].eType = kind;
    if (index < keyframes.size() - 1)
        interpolationRecords[index] = intitialiseInterpolation(keyframes[index], keyframes[index + 1], kind);
    vRaise(ParameterChange::InterpolationChanged, static_cast<unsigned int>(index));
}

template <class T>
void Parameter<T>::vSetInterpolationData(IType data, unsigned int index)
{
    if (!bKeyframed || index >= static_cast<unsigned int>(keyframes.size())
        || int(index) >= interpolationRecords.size())
        return;
    interpolationRecords[int(index)] = data;
    vRaise(ParameterChange::InterpolationChanged, index);
}

template <class T>
unsigned int Parameter<T>::keyframeCount() const
{
    return bKeyframed ? static_cast<unsigned int>(keyframes.size()) : 0u;
}

template <class T>
float Parameter<T>::keyframeTime(unsigned int index) const
{
    if (!bKeyframed || index >= static_cast<unsigned int>(keyframes.size()))
        return 0.0f;
    return keyframes[int(index)].fTime;
}

template <class T>
T Parameter<T>::keyframeValue(unsigned int index) const
{
    if (!bKeyframed || keyframes.isEmpty())
        return tStaticValue;
    unsigned int const last = static_cast<unsigned int>(keyframes.size() - 1);
    return keyframes[int(qMin(index, last))].tValue;
}

template <class T>
bool Parameter<T>::bKeyframeAt(float time) const
{
    return bKeyframed && iKeyIndex(time) >= 0;
}

template <class T>
bool Parameter<T>::bNearestKeyframeIndex(float time, unsigned int& nearest) const
{
    if (!bKeyframed || keyframes.isEmpty())
        return false;
    int const later = iNextKeyIndex(time);
    if (later == -1) {
        nearest = static_cast<unsigned int>(keyframes.size() - 1);
    } else if (later == 0) {
        nearest = 0;
    } else {
        float const fAfter = keyframes[later].fTime - time;
        float const fBefore = time - keyframes[later - 1].fTime;
        // A tie goes to the later key.
        nearest = static_cast<unsigned int>(fAfter > fBefore ? later - 1 : later);
    }
    return true;
}

template <class T>
bool Parameter<T>::bNearestKeyframeTime(float time, float& nearest) const
{
    unsigned int index = 0;
    if (!bNearestKeyframeIndex(time, index))
        return false;
    nearest = keyframes[int(index)].fTime;
    return true;
}

template <class T>
bool Parameter<T>::bPreviousKeyframe(float time, float& previous) const
{
    if (!bKeyframed || keyframes.isEmpty())
        return false;
    int const n = keyframes.size();
    for (int i = 0; i < n; ++i) {
        if (keyframes[i].fTime >= time) {
            if (i == 0)
                return false;
            previous = keyframes[i - 1].fTime;
            return true;
        }
    }
    previous = keyframes[n - 1].fTime;
    return true;
}

template <class T>
bool Parameter<T>::bNextKeyframe(float time, float& next) const
{
    if (!bKeyframed || keyframes.isEmpty())
        return false;
    int const n = keyframes.size();
    for (int i = 0; i < n; ++i) {
        if (keyframes[i].fTime == time) {
            if (i == n - 1)
                return false;
            next = keyframes[i + 1].fTime;
            return true;
        }
        if (keyframes[i].fTime > time) {
            next = keyframes[i].fTime;
            return true;
        }
    }
    return false;
}

template <class T>
void Parameter<T>::vDeleteKeyframe(float time)
{
    int const index = bKeyframed ? iKeyIndex(time) : -1;
    if (index < 0)
        return;
    if (keyframes.size() == 1)
        tStaticValue = keyframes[0].tValue;
    keyframes.remove(index);
    if (index < interpolationRecords.size())
        interpolationRecords.remove(index);
    vRaise(ParameterChange::KeyframeDeleted, static_cast<unsigned int>(index));
}

template <class T>
void Parameter<T>::vDeleteAllKeyframes()
{
    if (!bKeyframed)
        return;
    keyframes.clear();
    interpolationRecords.clear();
    vRaise(ParameterChange::AllKeyframesDeleted, 0);
}

template <class T>
void Parameter<T>::vReset(float time)
{
    if (bKeyframed && !keyframes.isEmpty()) {
        if (bKeyframeAt(time))
            vDeleteKeyframe(time);
        return;
    }
    tStaticValue = tDefaultValue;
    vRaise(ParameterChange::ParameterReset, 0);
}

template <class T>
void* Parameter<T>::AbstractDataCopy(void const* source)
{
    return new T(*static_cast<T const*>(source));
}

template <class T>
void Parameter<T>::AbstractDataDestroy(void* cell)
{
    static_cast<T*>(cell)->~T();
#ifdef TQ_LSAN_IGNORE
    // The cell is kept by design; tell the leak checker so.
    __lsan_ignore_object(cell);
#endif
}

template <class T>
void Parameter<T>::rawValue(float time, Bsc::AbstractData& out) const
{
    if (ParameterWithoutType const* master = masterBase()) {
        master->rawValue(time, out);
        return;
    }
    T const current = bKeyframed ? value(time, nullptr) : staticValue();
    out = Bsc::AbstractData(new T(current), tRawValueType(), &AbstractDataCopy, &AbstractDataDestroy);
}

template <class T>
int Parameter<T>::vSetRawValue(Bsc::AbstractData const& raw, float time)
{
    if (raw.pType != tRawValueType() || !raw.pValue)
        return -1;
    T const& held = *static_cast<T const*>(raw.pValue);
    if (bKeyframed)
        return vSetValue(held, time);
    tStaticValue = held;
    vRaise(ParameterChange::StaticValueChanged, 0);
    return -1;
}

template <class T>
void Parameter<T>::vCopyKeyframeDataFrom(ParameterWithoutType const* source)
{
    Parameter<T> const* other = dynamic_cast<Parameter<T> const*>(source);
    if (!other)
        return;
    bKeyframed = other->bKeyframed;
    tStaticValue = other->tStaticValue;
    eExtrapolationBefore = other->eExtrapolationBefore;
    eExtrapolationAfter = other->eExtrapolationAfter;
    keyframes = other->keyframes;
    interpolationRecords = other->interpolationRecords;
    vRaise(ParameterChange::ParameterReplaced, 0);
}

template <class T>
bool Parameter<T>::setMasterParameter(Parameter<T>* master, QString const& name)
{
    if (masterParameter.data() != static_cast<QObject*>(master))
        bFollow(master);
    if (!name.isNull())
        masterParameterId = name;
    return true;
}

template <class T>
T Parameter<T>::InterpolateKeyForwards(unsigned int index, float, Cache*) const
{
    return index < static_cast<unsigned int>(keyframes.size()) ? keyframes[int(index)].tValue : T();
}

template <class T>
T Parameter<T>::ExtrapolateKey(bool bBefore, float, Cache*) const
{
    if (keyframes.isEmpty())
        return tStaticValue;
    return bBefore ? keyframes.first().tValue : keyframes.last().tValue;
}

template <class T>
IType Parameter<T>::intitialiseInterpolation(KeyframeData<T> const&, KeyframeData<T> const&, Interpolation kind) const
{
    IType record;
    record.eType = kind;
    return record;
}

} // namespace Prm
