#pragma once
#include "bsc/AbstractData.h"
#include "prm/Parameter.h"
#include "prm/edit/ParameterEdit.h"

#include <QVector>

namespace Prm {

/// Adds a key at a time (made by `vAddKeyframeCommand`), its value read from the curve.
///
/// A key already standing there at a run before the first record sets `bSkip` for good: the edit then
/// does nothing either way. A parameter that follows a master gets no key from it, yet undo deletes a
/// key of its own at that time.
template <class T>
class ParameterAddKeyEdit : public ParameterEdit {
public:
    ParameterAddKeyEdit(Parameter<T>* parameter, float time);
    void doIt() override;
    void undoIt() override;

protected:
    bool bSkip;
    float fTime;
    Parameter<T>* parameter;
};

/// Deletes the key at a time (made by `createKeyframeDeletion`).
///
/// No key there at a run before the first record sets `bSkip` for good. Undo brings back the time and
/// value only: the key takes the interpolation that `iAddKeyframe` gives it, and Bezier handles are lost.
template <class T>
class ParameterDeleteKeyEdit : public ParameterEdit {
public:
    ParameterDeleteKeyEdit(Parameter<T>* parameter, float time);
    void doIt() override;
    void undoIt() override;

protected:
    bool bSkip;
    float fTime;
    Parameter<T>* parameter;
    T tOldValue;
};

/// Deletes every key, one at a time from the earliest (made by `vDeleteAllKeyframesCommand`).
///
/// The first run makes one key deletion per key then present; undo runs them again in the same order.
/// Deleting the last key moves its value into the static value, which undo does not restore.
template <class T>
class ParameterDeleteAllKeysEdit : public ParameterEdit {
public:
    explicit ParameterDeleteAllKeysEdit(Parameter<T>* parameter);
    void doIt() override;
    void undoIt() override;

protected:
    Parameter<T>* parameter;
    QVector<ParameterDeleteKeyEdit<T>> keyEdits;
};

/// The undoable form of a reset (made by `vResetCommand`). It never changes the value when run:
/// - no keys: records the value, and undo writes it back as the static value;
/// - a key at the time: records nothing and does nothing, until a later run finds another state;
/// - keys, none at the time: records the value; runs delete a key at the time (none is there the first
///   time), and undo adds a key there holding the recorded value.
template <class T>
class ParameterResetEdit : public ParameterEdit {
public:
    ParameterResetEdit(Parameter<T>* parameter, float time);
    void doIt() override;
    void undoIt() override;

protected:
    bool bKeyPresent;
    bool bNoKeys;
    float fTime;
    Parameter<T>* parameter;
    Bsc::AbstractData tOldValue;
};

template <class T>
ParameterAddKeyEdit<T>::ParameterAddKeyEdit(Parameter<T>* parameter, float time)
    : ParameterEdit(parameter), bSkip(false), fTime(time), parameter(parameter)
{
}

template <class T>
void ParameterAddKeyEdit<T>::doIt()
{
    if (!bDone) {
        if (parameter->bKeyframeAt(fTime)) {
            bSkip = true;
            return;
        }
        bDone = true;
    }
    if (!bSkip && !parameter->master())
        parameter->iAddKeyframe(fTime);
}

template <class T>
void ParameterAddKeyEdit<T>::undoIt()
{
    if (!bSkip)
        parameter->vDeleteKeyframe(fTime);
}

template <class T>
ParameterDeleteKeyEdit<T>::ParameterDeleteKeyEdit(Parameter<T>* parameter, float time)
    : ParameterEdit(parameter), bSkip(false), fTime(time), parameter(parameter), tOldValue()
{
}

template <class T>
void ParameterDeleteKeyEdit<T>::doIt()
{
    if (!bDone) {
        if (!parameter->bKeyframeAt(fTime)) {
            bSkip = true;
            return;
        }
        tOldValue = parameter->value(fTime, nullptr);
        bDone = true;
    }
    if (!bSkip)
        parameter->vDeleteKeyframe(fTime);
}

template <class T>
void ParameterDeleteKeyEdit<T>::undoIt()
{
    if (bSkip)
        return;
    parameter->iAddKeyframe(fTime);
    parameter->vSetValue(tOldValue, fTime);
}

template <class T>
ParameterDeleteAllKeysEdit<T>::ParameterDeleteAllKeysEdit(Parameter<T>* parameter)
    : ParameterEdit(parameter), parameter(parameter)
{
}

template <class T>
void ParameterDeleteAllKeysEdit<T>::doIt()
{
    if (!bDone) {
        unsigned int const count = parameter->keyframeCount();
        for (unsigned int index = 0; index < count; ++index)
            keyEdits.append(ParameterDeleteKeyEdit<T>(parameter, parameter->keyframeTime(index)));
        bDone = true;
    }
    for (int i = 0; i < keyEdits.size(); ++i)
        keyEdits[i].doIt();
}

template <class T>
void ParameterDeleteAllKeysEdit<T>::undoIt()
{
    // Same order as doIt, not the reverse: each entry re-adds its own key wherever it falls.
    for (int i = 0; i < keyEdits.size(); ++i)
        keyEdits[i].undoIt();
}

template <class T>
ParameterResetEdit<T>::ParameterResetEdit(Parameter<T>* parameter, float time)
    : ParameterEdit(parameter), bKeyPresent(false), bNoKeys(false), fTime(time), parameter(parameter)
{
}

template <class T>
void ParameterResetEdit<T>::doIt()
{
    if (!bDone) {
        bNoKeys = parameter->keyframeCount() == 0;
        bKeyPresent = !bNoKeys && parameter->bKeyframeAt(fTime);
        if (bKeyPresent)
            return;
        parameter->rawValue(fTime, tOldValue);
        bDone = true;
    }
    if (!bNoKeys)
        parameter->vDeleteKeyframe(fTime);
}

template <class T>
void ParameterResetEdit<T>::undoIt()
{
    if (!bDone)
        return;
    if (bNoKeys) {
        parameter->vSetRawValue(tOldValue, 0.0f);
        return;
    }
    parameter->iAddKeyframe(fTime);
    parameter->vSetRawValue(tOldValue, fTime);
}

} // namespace Prm
