#pragma once
/// Definitions of Prm::Parameter<T>: its own operations, keys, text and `...Command` makers, and the
/// macros that instantiate it. Included only by the .cpp files that instantiate a value type.
///
/// Each `...Command` maker creates one edit on the heap, pushes it onto the caller's composite (which owns
/// it from then on) and changes nothing: the parameter changes when the composite runs.
#include "bsc/AbstractData.h"
#include "bsc/Command.h"
#include "bsc/Logger.h"
#include "prm/Parameter.h"
#include "prm/edit/ParameterEditsInstantiation.h"
#include "prm/text/CurveTypeNames.h"
#include "prm/text/ParameterLine.h"
#include "prm/text/ValueText.h"

#include <QCoreApplication>
#include <QTextStream>
#include <algorithm>
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
      bStreamingIn(false),
      iOrderedKeys(-1),
      iKeyHint(-1)
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
      bStreamingIn(false),
      iOrderedKeys(-1),
      iKeyHint(-1)
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
      bStreamingIn(false),
      iOrderedKeys(-1),
      iKeyHint(-1)
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
    iOrderedKeys = -1;
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
bool Parameter<T>::bKeysOrdered() const
{
    return iOrderedKeys == keyframes.size();
}

template <class T>
bool Parameter<T>::bCheckKeysOrdered()
{
    if (bKeysOrdered())
        return true;
    KeyframeData<T> const* keys = keyframes.constData();
    int const n = keyframes.size();
    for (int i = 0; i < n; ++i) {
        // A NaN time compares false both ways, so `<` alone would let it through.
        if (!(keys[i].fTime == keys[i].fTime) || (i > 0 && !(keys[i - 1].fTime < keys[i].fTime)))
            return false;
    }
    iOrderedKeys = n;
    return true;
}

template <class T>
int Parameter<T>::iOrderedLowerBound(float time) const
{
    KeyframeData<T> const* const keys = keyframes.constData();
    int const n = keyframes.size();
    // A reader's keys land behind the last one, or just behind the one it set before when the same
    // text is read again.
    if (n == 0 || keys[n - 1].fTime < time)
        return n;
    if (keys[n - 1].fTime == time)
        return n - 1;
    int const hint = iKeyHint;
    if (hint >= 0 && hint < n && keys[hint].fTime == time)
        return hint;
    if (hint >= 0 && hint + 1 < n && keys[hint + 1].fTime == time)
        return hint + 1;
    auto const before = [](KeyframeData<T> const& key, float t) { return key.fTime < t; };
    return int(std::lower_bound(keys, keys + n, time, before) - keys);
}

template <class T>
int Parameter<T>::iKeyIndex(float time) const
{
    int const n = keyframes.size();
    if (bKeysOrdered() && n > 0) {
        // Strictly ascending times: the one key at `time`, found by halving.
        int const found = time == time ? iOrderedLowerBound(time) : n;
        return found < n && keyframes[found].fTime == time ? found : -1;
    }
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
    iOrderedKeys = -1;
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
    int const count = keyframes.size();
    bool const bOrdered = count > 0 && bCheckKeysOrdered();
    if (bOrdered) {
        // Found by halving; a NaN time meets no key and comes before none.
        int const found = time == time ? iOrderedLowerBound(time) : count;
        if (found < count && keyframes[found].fTime == time)
            index = found;
        else if (found < count)
            next = found;
    }
    for (int i = 0, n = bOrdered ? 0 : count; i < n && index < 0; ++i) {
        float const keyTime = keyframes[i].fTime;
        if (keyTime == time)
            index = i;
        else if (next < 0 && keyTime > time)
            next = i;
    }
    if (index >= 0) {
        keyframes[index].tValue = newValue;
        iKeyHint = index;
        vRaise(ParameterChange::ValueChanged, static_cast<unsigned int>(index));
        return index;
    }
    // A set key takes the kind of the segment it will start, unlike iAddKeyframe.
    Interpolation const kind = next == -1 ? eDefaultInterpolation : eRecordKind(next);
    index = iInsertKey(KeyframeData<T>{time, newValue}, next, kind);
    // A key that is not at NaN keeps ascending keys ascending.
    iOrderedKeys = (bOrdered || count == 0) && time == time ? keyframes.size() : -1;
    iKeyHint = index;
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
    iOrderedKeys = -1;
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
    iOrderedKeys = -1;
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
    iOrderedKeys = -1;
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
    iOrderedKeys = -1;
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

namespace TextDetail {

enum class LineRead { Taken, Failed, NotMine };

inline void vLogKeyFailure(char const* block, QString const& line)
{
    Bsc::LOG_STRING(QStringLiteral("Parameter::streamInValue(): failed to parse %1() block: '%2'")
                        .arg(QLatin1String(block), line));
}

/// Reads a key line through the parameter's virtual setters. A failed line may already have set its key.
template <class T>
LineRead eReadKeyLine(Parameter<T>& parameter, QString const& line,
                      boost::function<QString(QString const&)> const& textFilter)
{
    // Only the case-sensitive block word tells the two blocks apart, wherever it stands.
    bool const bBezier = bHasBezierBlockWord(line);
    // The entries of parseKeyframeDeclaration, as views: no copy of each on the load path.
    KeyframeEntries tokens;
    vKeyframeDeclarationEntries(line, tokens);
    if (tokens.size() < 3) {
        vLogKeyFailure("Key", line);
        return LineRead::Failed;
    }
    float const time = NumberText::fToFloat(tokens.at(0));
    T value{};
    if (textFilter || !NumberText::bReadPlain(tokens.at(1), value)) {
        QString text = textFilter ? textFilter(tokens.at(1).toString()) : tokens.at(1).toString();
        value = ValueText<T>::tRead(text);
    }
    int const index = parameter.vSetValue(value, time);
    if (!bBezier) {
        Interpolation interpolation = InterpolationUnset;
        if (bInterpolationOfEntry(tokens.at(2), interpolation))
            parameter.vSetInterpolation(interpolation, time);
        return LineRead::Taken;
    }
    if (tokens.size() < 6) {
        vLogKeyFailure("BezierKey", line);
        return LineRead::Failed;
    }
    IType record;
    record.eType = InterpolationBezier;
    record.dOutTime = NumberText::dToDouble(tokens.at(2));
    record.dOutValue = NumberText::dToDouble(tokens.at(3));
    record.dInTime = NumberText::dToDouble(tokens.at(4));
    QStringRef const last = tokens.at(5);
    record.dInValue = last.contains(QLatin1Char(')')) ? last.toString().remove(QLatin1Char(')')).toDouble()
                                                      : NumberText::dToDouble(last);
    // -1 (not keyframed) becomes an index out of range, which the setter ignores.
    parameter.vSetInterpolationData(record, static_cast<unsigned int>(index));
    return LineRead::Taken;
}

} // namespace TextDetail

template <class T>
QString Parameter<T>::indexSuffixString(int index) const
{
    if (index < 0 || index >= keyframes.size())
        return QString();
    KeyframeData<T> const& key = keyframes.at(index);
    IType const record = index < interpolationRecords.size() ? interpolationRecords.at(index) : IType();
    bool const bBezier = record.eType == InterpolationBezier;
    // Joined piece by piece rather than by markers, so that nothing in a text value is filled in. Every
    // real prints as QString::arg(double) prints it at its default: six significant digits.
    QString line;
    line.reserve(64);
    line += QLatin1String(bBezier ? "keyframes.append( BezierKey( " : "keyframes.append( Key( ");
    NumberText::vAppendShortReal(line, static_cast<double>(key.fTime));
    line += QLatin1String(", ");
    ValueText<T>::vAppendWritten(line, key.tValue);
    line += QLatin1String(", ");
    if (bBezier) {
        double const handles[] = {record.dOutTime, record.dOutValue, record.dInTime, record.dInValue};
        for (int i = 0; i < 4; ++i) {
            if (i > 0)
                line += QLatin1String(", ");
            NumberText::vAppendShortReal(line, handles[i]);
        }
    } else {
        line += qstrInterpolationTypeString(record.eType);
    }
    line += QLatin1String(" ) )");
    return line;
}

template <class T>
QString Parameter<T>::keyframeSuffixString(float time) const
{
    for (int i = 0; i < keyframes.size(); ++i) {
        if (keyframes.at(i).fTime == time)
            return indexSuffixString(i);
    }
    return QString();
}

template <class T>
QString Parameter<T>::valueString(float time, Cache* cache) const
{
    return ValueText<T>::qstrDisplay(value(time, cache));
}

template <class T>
void Parameter<T>::setValueFromString(QString const& text, float time)
{
    T parsed{};
    if (ValueText<T>::bReadWord(text, parsed))
        vSetValue(parsed, time);
}

template <class T>
bool Parameter<T>::bStreamOut(QTextStream& out, QString const& prefix, bool bQualify) const
{
    QString linePrefix = prefix;
    if (bQualify && !scriptName.isEmpty())
        linePrefix += scriptName + QLatin1Char('.');
    if (!bKeyframed || keyframes.isEmpty()) {
        out << linePrefix << "value=";
        ValueText<T>::vWrite(out, tStaticValue);
        out << Qt::endl;
    }
    if (bKeyframed) {
        // Without a field width nothing pads the pieces, so each key line goes out as one string.
        bool const bJoin = out.fieldWidth() == 0;
        QString line;
        for (int i = 0; i < keyframes.size(); ++i) {
            if (!bJoin) {
                out << linePrefix << indexSuffixString(i) << Qt::endl;
                continue;
            }
            line.resize(0);
            line += linePrefix;
            line += indexSuffixString(i);
            line += QLatin1Char('\n');
            out << line;
            out.flush();
        }
    }
    out << linePrefix << "hidden=" << (bHidden ? '1' : '0') << Qt::endl;
    out << linePrefix << "keyframed=" << (bKeyframed ? '1' : '0') << Qt::endl;
    out << linePrefix << "before=" << qstrExtrapolationTypeString(eExtrapolationBefore) << Qt::endl;
    out << linePrefix << "after=" << qstrExtrapolationTypeString(eExtrapolationAfter) << Qt::endl;
    if (auto const* master = dynamic_cast<ParameterWithoutType const*>(masterParameter.data()))
        out << linePrefix << "MasterParameterId=" << master->extendedName() << Qt::endl;
    return true;
}

template <class T>
bool Parameter<T>::streamInValue(QString const& line, boost::function<QString(QString const&)> textFilter)
{
    using TextDetail::LineRead;
    bStreamingIn = true;
    blockSignals(true);
    LineRead result = LineRead::Taken;
    switch (eTextField(line)) {
    case TextField::Keyframes:
        result = TextDetail::eReadKeyLine(*this, line, textFilter);
        break;
    case TextField::Value: {
        QString text = qstrValueText(line);
        if (textFilter)
            text = textFilter(text);
        tStaticValue = ValueText<T>::tRead(text);
        break;
    }
    case TextField::Hidden:
        bHidden = bFlagOfLine(line);
        break;
    case TextField::Keyframed:
        bKeyframed = bFlagOfLine(line);
        break;
    case TextField::Before:
        bStringToExtrapolationType(qstrFieldText(line), eExtrapolationBefore);
        break;
    case TextField::After:
        bStringToExtrapolationType(qstrFieldText(line), eExtrapolationAfter);
        break;
    case TextField::MasterParameterId:
        masterParameterId = qstrFieldText(line);
        break;
    case TextField::Unknown:
        result = LineRead::NotMine;
        break;
    }
    // A failed key line leaves the flag set; NumericParameter::bStreamIn clears it.
    if (result != LineRead::Failed)
        bStreamingIn = false;
    blockSignals(false);
    return result == LineRead::Taken;
}

template <class T>
QVariant Parameter<T>::exportValueAt(float time) const
{
    return ValueText<T>::variant(value(time, nullptr));
}

template <class T>
void Parameter<T>::importValueAt(float time, QVariant const& variant)
{
    T converted{};
    if (ValueText<T>::bFromVariant(variant, converted))
        vSetValue(converted, time);
}

template <class T>
void Parameter<T>::setFromString(QString& target, QString& text)
{
    target = ValueText<QString>::tRead(text);
}

template <class T>
void Parameter<T>::writeValue(QTextStream& out, QString const& text) const
{
    ValueText<QString>::vWrite(out, text);
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::vSetValueCommand(T const& value, float time, Bsc::CompositeCommand& composite)
{
    // Unlimited here: a numeric parameter limits the value when the edit runs vSetValue.
    composite.push_back(new ParameterValueEdit<T>(this, value, time));
    return composite;
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::vSetDefaultValueCommand(T const& value, Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterDefaultValueEdit<T>(this, value));
    return composite;
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::vSetInterpolationCommand(Interpolation interpolation, float time,
                                                              Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterInterpolationEdit<T>(this, interpolation, time));
    return composite;
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::vSetInterpolationDataCommand(IType data, unsigned int index,
                                                                  Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterInterpolationDataEdit<T>(this, data, index));
    return composite;
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::vSetExtrapolationBeforeCommand(Extrapolation extrapolation,
                                                                    Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterExtrapolationBeforeEdit<T>(this, extrapolation));
    return composite;
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::vSetExtrapolationAfterCommand(Extrapolation extrapolation,
                                                                   Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterExtrapolationAfterEdit<T>(this, extrapolation));
    return composite;
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::vAddKeyframeCommand(float time, Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterAddKeyEdit<T>(this, time));
    return composite;
}

template <class T>
void Parameter<T>::createKeyframeDeletion(float time, Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterDeleteKeyEdit<T>(this, time));
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::vDeleteAllKeyframesCommand(Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterDeleteAllKeysEdit<T>(this));
    return composite;
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::vResetCommand(float time, Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterResetEdit<T>(this, time));
    return composite;
}

template <class T>
Bsc::CompositeCommand& Parameter<T>::bAddConstrainedParameterCommand(ParameterWithoutType* follower,
                                                                     Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterAddConstrainedParameterEdit<T>(this, follower));
    return composite;
}

} // namespace Prm

/// Instantiates `Prm::Parameter<T>` and the edits its `...Command` makers create. Used at global scope,
/// once per value type, in a .cpp file of the folder that owns `T`, whose header carries the matching
/// `TQ_EXTERN_PARAMETER(T)`. `T` needs QTextStream's `<<` and `>>` and a Qt meta type, visible there.
#define TQ_INSTANTIATE_PARAMETER(T)                                                                         \
    template class Prm::Parameter<T>;                                                                       \
    TQ_INSTANTIATE_PARAMETER_EDITS(T)
