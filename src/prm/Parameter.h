#pragma once
#include "prm/KeyframeData.h"
#include "prm/ParameterWithoutType.h"

#include <QString>
#include <QVector>
#include <type_traits>

namespace Prm {

/// A named value of type `T`: one static value, or a curve of keyframes over time.
///
/// Keys are kept in ascending time with one `IType` record each (record i spans key i to key i + 1); key
/// times compare exactly, without tolerance. Every change raises `changed` after the state has changed.
/// A master, when set, takes over reading (`value`, `rawValue`, `interpolation(float)`, `interpolationData`,
/// the extrapolation getters) but not writing: the own keys stay and show again once the master is gone.
/// The read path writes nothing and allocates nothing, so concurrent readers are safe while no writer
/// runs. Nothing throws; an index out of range or a time without a key makes an operation a no-op.
/// Every definition outside this class body lives in ParameterImpl.h and is compiled only where a value
/// type is instantiated (`TQ_INSTANTIATE_PARAMETER`).
template <class T>
class Parameter : public virtual ParameterWithoutType {
public:
    /// Keyframed flag and name (display name as UTF-8, script name as ASCII); zero values, unset rules.
    Parameter(bool bKeyframed, char const* name);
    /// The usual constructor: static and default value, default interpolation, both extrapolations. The
    /// display name is translated in the context "Parameter".
    Parameter(bool bKeyframed, char const* name, T const& value, Interpolation interpolation,
              Extrapolation extrapolation);
    /// `bool` and `float` only: keyframed, zero values, display name "Not Set".
    template <class U = T, class = std::enable_if_t<std::is_same<U, bool>::value || std::is_same<U, float>::value>>
    Parameter();
    /// Copies names, visibility and all curve data; `bStreamingIn` starts false.
    Parameter(Parameter const& other);
    /// Assigns names, visibility and curve data, then raises `ParameterReplaced`. Master link and
    /// `bStreamingIn` stay as they were.
    Parameter& operator=(Parameter const& other);

    QString keyframeSuffixString(float time) const override;
    QString valueString(float time, Cache* cache) const override;
    void setValueFromString(QString const& text, float time) override;
    /// The value at `time`: the master's when one is set, else the curve's (a key's own value at a key).
    virtual T value(float time, Cache* cache) const;
    /// Sets the static value (not keyframed) or the key at exactly `time`, creating it when needed.
    /// Returns the key index, or -1 when not keyframed.
    virtual int vSetValue(T const& value, float time);
    /// Changes the value and time of the key at `fromTime`; returns its new index, or -1 without such a key.
    virtual int moveAndChangeKeyframe(T const& value, float fromTime, float toTime);
    virtual T defaultValue() const;
    virtual T staticValue() const;
    virtual void vSetDefault(T const& value);
    virtual T value2Display(T value, float time) const;
    virtual T display2Value(T value, float time) const;
    Extrapolation extrapolationBefore() const override;
    Extrapolation extrapolationAfter() const override;
    Interpolation interpolation(float time) const override;
    Interpolation interpolation(unsigned int index) const override;
    IType interpolationData(unsigned int index) const override;
    void vSetExtrapolationBefore(Extrapolation extrapolation) override;
    void vSetExtrapolationAfter(Extrapolation extrapolation) override;
    void vSetInterpolation(Interpolation interpolation, float time) override;
    void vSetDefaultInterpolation(Interpolation interpolation) override;
    void vSetInterpolationData(IType data, unsigned int index) override;
    virtual Bsc::CompositeCommand& vSetValueCommand(T const& value, float time, Bsc::CompositeCommand& composite);
    virtual Bsc::CompositeCommand& vSetDefaultValueCommand(T const& value, Bsc::CompositeCommand& composite);
    Bsc::CompositeCommand& vSetInterpolationCommand(Interpolation interpolation, float time,
                                                    Bsc::CompositeCommand& composite) override;
    Bsc::CompositeCommand& vSetInterpolationDataCommand(IType data, unsigned int index,
                                                        Bsc::CompositeCommand& composite) override;
    Bsc::CompositeCommand& vSetExtrapolationBeforeCommand(Extrapolation extrapolation,
                                                          Bsc::CompositeCommand& composite) override;
    Bsc::CompositeCommand& vSetExtrapolationAfterCommand(Extrapolation extrapolation,
                                                         Bsc::CompositeCommand& composite) override;
    bool bStreamOut(QTextStream& out, QString const& prefix, bool bQualify) const override;
    bool streamInValue(QString const& line, boost::function<QString(QString const&)> textFilter) override;
    bool isKeyframed() const override;
    unsigned int keyframeCount() const override;
    float keyframeTime(unsigned int index) const override;
    virtual T keyframeValue(unsigned int index) const;
    bool bKeyframeAt(float time) const override;
    bool bNearestKeyframeTime(float time, float& nearest) const override;
    bool bNearestKeyframeIndex(float time, unsigned int& nearest) const override;
    bool bPreviousKeyframe(float time, float& previous) const override;
    bool bNextKeyframe(float time, float& next) const override;
    int iAddKeyframe(float time) override;
    void vDeleteKeyframe(float time) override;
    void vDeleteAllKeyframes() override;
    void vReset(float time) override;
    Bsc::CompositeCommand& vAddKeyframeCommand(float time, Bsc::CompositeCommand& composite) override;
    void createKeyframeDeletion(float time, Bsc::CompositeCommand& composite) override;
    Bsc::CompositeCommand& vDeleteAllKeyframesCommand(Bsc::CompositeCommand& composite) override;
    Bsc::CompositeCommand& vResetCommand(float time, Bsc::CompositeCommand& composite) override;
    QVariant exportValueAt(float time) const override;
    void importValueAt(float time, QVariant const& value) override;
    std::type_info const* tRawValueType() const override;
    /// Puts a heap copy of the value at `time` (the static value when not keyframed) into `out`.
    void rawValue(float time, Bsc::AbstractData& out) const override;
    /// Sets the held value when its type is exactly `T`; -1 and nothing done otherwise.
    int vSetRawValue(Bsc::AbstractData const& value, float time) override;
    Bsc::CompositeCommand& bAddConstrainedParameterCommand(ParameterWithoutType* follower,
                                                           Bsc::CompositeCommand& composite) override;
    /// Copies the curve data of another `Prm::Parameter<T>` (not names, default value or default
    /// interpolation); anything else, null included, does nothing.
    void vCopyKeyframeDataFrom(ParameterWithoutType const* source) override;
    /// Follows `master` (null: none) and stores `name` unless it is the null string. Always true; a link
    /// that would close a cycle of masters is not made.
    virtual bool setMasterParameter(Parameter<T>* master, QString const& name);
    virtual T InterpolateKeyForwards(unsigned int index, float time, Cache* cache) const;
    virtual T ExtrapolateKey(bool bBefore, float time, Cache* cache) const;
    virtual IType intitialiseInterpolation(KeyframeData<T> const& left, KeyframeData<T> const& right,
                                           Interpolation interpolation) const;
    virtual bool supportsExtrapolationFromNoKeys() const;
    ~Parameter() override;

    /// The text of key `index`, without prefix or end of line; the empty string for an index out of range.
    virtual QString indexSuffixString(int index) const;
    /// `QString` only: text reading and writing of one value.
    void setFromString(QString& value, QString& text);
    void writeValue(QTextStream& out, QString const& value) const;

    /// Heap copy of a `T` for `Bsc::AbstractData`.
    static void* AbstractDataCopy(void const* value);
    /// Releases the value's resources but keeps its heap cell: a raw value costs one small cell for good.
    static void AbstractDataDestroy(void* value);

protected:
    /// Index of the first key with exactly this time, or -1.
    int iKeyIndex(float time) const;
    /// Whether the keys are known to be in strictly ascending time, none at NaN (`iOrderedKeys`).
    bool bKeysOrdered() const;
    /// The same, looking at the keys (once per change of them) when not known.
    bool bCheckKeysOrdered();
    /// With ordered keys: the index of the first key not before `time` (not NaN), the key count for none.
    /// Tries the last key and the keys at and behind `iKeyHint` before halving.
    int iOrderedLowerBound(float time) const;
    /// Index of the first key later than `time`, or -1.
    int iNextKeyIndex(float time) const;
    /// The segment the halving search of `value` ends in, or -1 when it meets a key at exactly `time` on
    /// the way or there are fewer than two keys.
    int iSegmentIndex(float time) const;
    /// The halving search of `value` between the first and the last key.
    T tSearchKeys(float time, Cache* cache) const;
    /// Kind of record `index`; the default interpolation when the record is missing.
    Interpolation eRecordKind(int index) const;
    /// Inserts a key before `next` (-1: at the end) with a record of `kind`; returns its index.
    int iInsertKey(KeyframeData<T> const& key, int next, Interpolation kind);
    /// The master as this type, or null (none, gone, or of another type).
    Parameter<T> const* typedMaster() const;

    bool bKeyframed;
    T tStaticValue;
    T tDefaultValue;
    Extrapolation eExtrapolationBefore;
    Extrapolation eExtrapolationAfter;
    Interpolation eDefaultInterpolation;
    QVector<KeyframeData<T>> keyframes;
    QVector<IType> interpolationRecords;
    bool bStreamingIn;
    /// The key count when the keys were last known to be in strictly ascending time with no NaN, else
    /// -1. Lets an append behind the last key and a look-up by time skip the scan of every key; every
    /// change of `keyframes` other than such an append resets it.
    int iOrderedKeys;
    /// The index of the key that `vSetValue` set last (possibly gone since): where an ordered look-up
    /// tries first. A hint only, checked before use.
    int iKeyHint;
};

template <class T>
template <class U, class>
Parameter<T>::Parameter()
    : ParameterWithoutType(),
      bKeyframed(true),
      tStaticValue(),
      tDefaultValue(),
      eExtrapolationBefore(ExtrapolationUnset),
      eExtrapolationAfter(ExtrapolationUnset),
      eDefaultInterpolation(InterpolationUnset),
      bStreamingIn(false),
      iOrderedKeys(-1),
      iKeyHint(-1)
{
    displayName = QStringLiteral("Not Set");
}

} // namespace Prm

/// Declares, at global scope, that `Prm::Parameter<T>` is instantiated elsewhere: in the header of the
/// folder that owns `T`, beside the one `TQ_INSTANTIATE_PARAMETER(T)` in its .cpp file.
#define TQ_EXTERN_PARAMETER(T) extern template class Prm::Parameter<T>;

TQ_EXTERN_PARAMETER(QString)
