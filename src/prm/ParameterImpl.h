#pragma once
/// Definitions of Prm::Parameter<T>'s own operations. Included only where the template is instantiated.
#include "bsc/AbstractData.h"
#include "prm/Parameter.h"

#include <QCoreApplication>
#include <new>
#include <utility>

#if defined(__SANITIZE_ADDRESS__)
#define TQ_LSAN_IGNORE 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define TQ_LSAN_IGNORE 1
#endif
#endif
#ifdef TQ_LSAN_IGNORE
#include <sanitizer/lsan_interface.h>
#endif

namespace Prm {

template <class T>
Parameter<T>::Parameter(bool bKeyframedIn, char const* name)
    : ParameterWithoutType(),
      bKeyframed(bKeyframedIn),
      tStaticValue(),
      tDefaultValue(),
      eExtrapolationBefore(ExtrapolationUnset),
      eExtrapolationAfter(ExtrapolationUnset),
      eDefaultInterpolation(InterpolationUnset),
      bStreamingIn(false)
{
    displayName = QString::fromUtf8(name);
    scriptName = QString::fromLatin1(name);
}

template <class T>
Parameter<T>::Parameter(bool bKeyframedIn, char const* name, T const& value, Interpolation interpolation,
                        Extrapolation extrapolation)
    : ParameterWithoutType(),
      bKeyframed(bKeyframedIn),
      tStaticValue(value),
      tDefaultValue(value),
      eExtrapolationBefore(extrapolation),
      eExtrapolationAfter(extrapolation),
      eDefaultInterpolation(interpolation),
      bStreamingIn(false)
{
    displayName = QCoreApplication::translate("Parameter", name);
    scriptName = QString::fromLatin1(name);
}

template <class T>
Parameter<T>::Parameter(Parameter const& other)
    : ParameterWithoutType(other),
      bKeyframed(other.bKeyframed),
      tStaticValue(other.tStaticValue),
      tDefaultValue(other.tDefaultValue),
      eExtrapolationBefore(other.eExtrapolationBefore),
      eExtrapolationAfter(other.eExtrapolationAfter),
      eDefaultInterpolation(other.eDefaultInterpolation),
      keyframes(other.keyframes),
      interpolationRecords(other.interpolationRecords),
      bStreamingIn(false)
{
    displayName = other.displayName;
    scriptName = other.scriptName;
    bHidden = other.bHidden;
}

template <class T>
Parameter<T>& Parameter<T>::operator=(Parameter const& other)
{
    displayName = other.displayName;
    vAssignScriptName(other.scriptName);
    bHidden = other.bHidden;
    bKeyframed = other.bKeyframed;
    tStaticValue = other.tStaticValue;
    tDefaultValue = other.tDefaultValue;
    eDefaultInterpolation = other.eDefaultInterpolation;
    eExtrapolationBefore = other.eExtrapolationBefore;
    eExtrapolationAfter = other.eExtrapolationAfter;
    keyframes = other.keyframes;
    interpolationRecords = other.interpolationRecords;
    vRaise(ParameterChange::ParameterReplaced, 0);
    return *this;
}

template <class T>
Parameter<T>::~Parameter() = default;

template <class T>
Parameter<T> const* Parameter<T>::typedMaster() const
{
    if (masterParameter.isNull())
        return nullptr;
    return dynamic_cast<Parameter<T> const*>(masterParameter.data());
}

template <class T>
int Parameter<T>::iKeyIndex(float time) const
{
    int const n = keyframes.size();
    for (int i = 0; i < n; ++i) {
        if (keyframes[i].fTime == time)
            return i;
    }
    return -1;
}

template <class T>
int Parameter<T>::iNextKeyIndex(float time) const
{
    int const n = keyframes.size();
    for (int i = 0; i < n; ++i) {
        if (keyframes[i].fTime > time)
            return i;
    }
    return -1;
}

template <class T>
T Parameter<T>::value(float time, Cache* cache) const
{
    if (Parameter<T> const* master = typedMaster())
        return master->value(time, nullptr);
    int const n = keyframes.size();
    if (bKeyframed && n == 0 && supportsExtrapolationFromNoKeys())
        return ExtrapolateKey(false, time, cache);
    if (!bKeyframed || n == 0)
        return tStaticValue;
    KeyframeData<T> const* keys = keyframes.constData();
    if (keys[0].fTime > time)
        return ExtrapolateKey(true, time, cache);
    if (time > keys[n - 1].fTime)
        return ExtrapolateKey(false, time, cache);
    if (time == keys[0].fTime)
        return keys[0].tValue;
    if (n >= 2 && time == keys[n - 1].fTime)
        return keys[n - 1].tValue;
    int const segment = iSegmentIndex(time);
    if (segment >= 0)
        return InterpolateKeyForwards(static_cast<unsigned int>(segment), time, cache);
    return tSearchKeys(time, cache);
}

template <class T>
int Parameter<T>::iSegmentIndex(float time) const
{
    // The probes of the halving search, with its bounds moved without a branch. Keys need not be in
    // order (a key set at a NaN time stays where it was appended), so it is the same probes that decide.
    KeyframeData<T> const* keys = keyframes.constData();
    int low = 0;
    int high = keyframes.size() - 1;
    bool bMet = high < 1;
    while (high - low > 1) {
        int const mid = (low + high) / 2;
        float const fMid = keys[mid].fTime;
        bool const bAbove = fMid > time;
        bMet |= fMid == time;
        high = bAbove ? mid : high;
        low = bAbove ? low : mid;
    }
    return bMet ? -1 : low;
}

template <class T>
T Parameter<T>::tSearchKeys(float time, Cache* cache) const
{
    KeyframeData<T> const* keys = keyframes.constData();
    int low = 0;
    int high = keyframes.size() - 1;
    while (low != high) {
        if (low + 1 == high)
            return InterpolateKeyForwards(static_cast<unsigned int>(low), time, cache);
        int const mid = (low + high) / 2;
        if (keys[mid].fTime == time)
            return keys[mid].tValue;
        if (keys[mid].fTime > time)
            high = mid;
        else
            low = mid;
    }
    // Only a NaN time gets here, with one key.
    return keys[low].tValue;
}

template <class T>
Interpolation Parameter<T>::eRecordKind(int index) const
{
    return index < interpolationRecords.size() ? interpolationRecords[index].eType : eDefaultInterpolation;
}

template <class T>
int Parameter<T>::iInsertKey(KeyframeData<T> const& key, int next, Interpolation kind)
{
    IType record;
    record.eType = kind;
    int const n = keyframes.size();
    if (next != -1) {
        record = intitialiseInterpolation(key, keyframes[next], kind);
        keyframes.insert(next, key);
        interpolationRecords.insert(qMin(next, interpolationRecords.size()), record);
        return next;
    }
    if (n > 0 && !bStreamingIn && n - 1 < interpolationRecords.size()) {
        IType& formerLast = interpolationRecords[n - 1];
        formerLast = intitialiseInterpolation(keyframes[n - 1], key, formerLast.eType);
    }
    keyframes.append(key);
    interpolationRecords.append(record);
    return n;
}

template <class T>
int Parameter<T>::vSetValue(T const& newValue, float time)
{
    if (!bKeyframed) {
        tStaticValue = newValue;
        vRaise(ParameterChange::ValueChanged, static_cast<unsigned int>(-1));
        return -1;
    }
    // iKeyIndex and iNextKeyIndex in one pass: the first key at `time`, else the first key after it.
    int index = -1;
    int next = -1;
    for (int i = 0, n = keyframes.size(); i < n && index < 0; ++i) {
        float const keyTime = keyframes[i].fTime;
        if (keyTime == time)
            index = i;
        else if (next < 0 && keyTime > time)
            next = i;
    }
    if (index >= 0) {
        keyframes[index].tValue = newValue;
        vRaise(ParameterChange::ValueChanged, static_cast<unsigned int>(index));
        return index;
    }
    // A set key takes the kind of the segment it will start, unlike iAddKeyframe.
    Interpolation const kind = next == -1 ? eDefaultInterpolation : eRecordKind(next);
    index = iInsertKey(KeyframeData<T>{time, newValue}, next, kind);
    vRaise(ParameterChange::KeyframeAdded, static_cast<unsigned int>(index));
    vRaise(ParameterChange::ValueChanged, static_cast<unsigned int>(index));
    return index;
}

template <class T>
int Parameter<T>::iAddKeyframe(float time)
{
    if (!bKeyframed || iKeyIndex(time) >= 0)
        return -1;
    int const next = iNextKeyIndex(time);
    T const current = value(time, nullptr);
    // An added key takes the kind of the segment it splits.
    Interpolation const kind = next <= 0 ? eDefaultInterpolation : eRecordKind(next - 1);
    int const index = iInsertKey(KeyframeData<T>{time, current}, next, kind);
    vRaise(ParameterChange::KeyframeAdded, static_cast<unsigned int>(index));
    return index;
}

template <class T>
int Parameter<T>::moveAndChangeKeyframe(T const& newValue, float fromTime, float toTime)
{
    int const index = iKeyIndex(fromTime);
    if (index < 0)
        return -1;
    int const n = keyframes.size();
    bool const bStays = (index == 0 || !(toTime < keyframes[index - 1].fTime))
                        && (index == n - 1 || !(keyframes[index + 1].fTime < toTime));
    if (bStays) {
        keyframes[index].fTime = toTime;
        keyframes[index].tValue = newValue;
        vRaise(ParameterChange::KeyframeMoved, static_cast<unsigned int>(index));
        return index;
    }
    // The record stays behind on purpose: records and keys stay misaligned until replaced wholesale.
    keyframes.remove(index);
    bool const bWasBlocked = blockSignals(true);
    int newIndex = -1;
    try {
        newIndex = vSetValue(newValue, toTime);
    } catch (...) {
        blockSignals(bWasBlocked);
        throw;
    }
    blockSignals(bWasBlocked);
    QList<unsigned int> const indices{static_cast<unsigned int>(index), static_cast<unsigned int>(newIndex)};
    ParameterChange change(ParameterChange::KeyframeReordered, this, &indices);
    emit changed(change);
    return newIndex;
}

} // namespace Prm

#include "prm/ParameterImplKeys.h"
