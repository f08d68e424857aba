#pragma once
#include "prm/Parameter.h"
#include "prm/edit/ParameterEdit.h"

namespace Prm {

/// Sets the interpolation kind of the key at a time (made by `vSetInterpolationCommand`). Without a key
/// at that time the setter finds nothing to do, in both directions.
template <class T>
class ParameterInterpolationEdit : public ParameterEdit {
public:
    ParameterInterpolationEdit(Parameter<T>* parameter, Interpolation newInterpolation, float time);
    void doIt() override;
    void undoIt() override;

protected:
    float fTime;
    Interpolation eOldInterpolation;
    Interpolation eNewInterpolation;
    Parameter<T>* parameter;
};

/// Replaces the segment record of a key index (made by `vSetInterpolationDataCommand`).
template <class T>
class ParameterInterpolationDataEdit : public ParameterEdit {
public:
    ParameterInterpolationDataEdit(Parameter<T>* parameter, IType const& newData, unsigned int index);
    void doIt() override;
    void undoIt() override;

protected:
    unsigned int uiIndex;
    IType tOldData;
    IType tNewData;
    Parameter<T>* parameter;
};

/// Sets the rule at one end of the curve: before the first key when `bBefore`, else after the last. The
/// two ends share this logic; the classes below name them.
template <class T, bool bBefore>
class ParameterExtrapolationEdit : public ParameterEdit {
public:
    ParameterExtrapolationEdit(Parameter<T>* parameter, Extrapolation newExtrapolation);
    void doIt() override;
    void undoIt() override;

protected:
    Extrapolation eOldExtrapolation;
    Extrapolation eNewExtrapolation;
    Parameter<T>* parameter;

private:
    Extrapolation eCurrentExtrapolation() const;
    void vApply(Extrapolation extrapolation);
};

/// Sets the rule before the first key (made by `vSetExtrapolationBeforeCommand`).
template <class T>
class ParameterExtrapolationBeforeEdit : public ParameterExtrapolationEdit<T, true> {
public:
    using ParameterExtrapolationEdit<T, true>::ParameterExtrapolationEdit;
};

/// Sets the rule after the last key (made by `vSetExtrapolationAfterCommand`).
template <class T>
class ParameterExtrapolationAfterEdit : public ParameterExtrapolationEdit<T, false> {
public:
    using ParameterExtrapolationEdit<T, false>::ParameterExtrapolationEdit;
};

template <class T>
ParameterInterpolationEdit<T>::ParameterInterpolationEdit(Parameter<T>* parameter, Interpolation newInterpolation,
                                                          float time)
    : ParameterEdit(parameter), fTime(time), eOldInterpolation(newInterpolation),
      eNewInterpolation(newInterpolation), parameter(parameter)
{
}

template <class T>
void ParameterInterpolationEdit<T>::doIt()
{
    if (!bDone) {
        eOldInterpolation = parameter->interpolation(fTime);
        bDone = true;
    }
    parameter->vSetInterpolation(eNewInterpolation, fTime);
}

template <class T>
void ParameterInterpolationEdit<T>::undoIt()
{
    parameter->vSetInterpolation(eOldInterpolation, fTime);
}

template <class T>
ParameterInterpolationDataEdit<T>::ParameterInterpolationDataEdit(Parameter<T>* parameter, IType const& newData,
                                                                  unsigned int index)
    : ParameterEdit(parameter), uiIndex(index), tOldData(newData), tNewData(newData), parameter(parameter)
{
}

template <class T>
void ParameterInterpolationDataEdit<T>::doIt()
{
    if (!bDone) {
        tOldData = parameter->interpolationData(uiIndex);
        bDone = true;
    }
    parameter->vSetInterpolationData(tNewData, uiIndex);
}

template <class T>
void ParameterInterpolationDataEdit<T>::undoIt()
{
    parameter->vSetInterpolationData(tOldData, uiIndex);
}

template <class T, bool bBefore>
ParameterExtrapolationEdit<T, bBefore>::ParameterExtrapolationEdit(Parameter<T>* parameter,
                                                                   Extrapolation newExtrapolation)
    : ParameterEdit(parameter), eOldExtrapolation(newExtrapolation), eNewExtrapolation(newExtrapolation),
      parameter(parameter)
{
}

template <class T, bool bBefore>
void ParameterExtrapolationEdit<T, bBefore>::doIt()
{
    if (!bDone) {
        eOldExtrapolation = eCurrentExtrapolation();
        bDone = true;
    }
    vApply(eNewExtrapolation);
}

template <class T, bool bBefore>
void ParameterExtrapolationEdit<T, bBefore>::undoIt()
{
    vApply(eOldExtrapolation);
}

template <class T, bool bBefore>
Extrapolation ParameterExtrapolationEdit<T, bBefore>::eCurrentExtrapolation() const
{
    return bBefore ? parameter->extrapolationBefore() : parameter->extrapolationAfter();
}

template <class T, bool bBefore>
void ParameterExtrapolationEdit<T, bBefore>::vApply(Extrapolation extrapolation)
{
    if (bBefore)
        parameter->vSetExtrapolationBefore(extrapolation);
    else
        parameter->vSetExtrapolationAfter(extrapolation);
}

} // namespace Prm
