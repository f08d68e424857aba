#pragma once
/// Explicit instantiation of every edit template for one value type; used only by the ParameterEdits*.cpp
/// files, which split the value types so that they build in parallel.
#include "prm/edit/MoveChangeKeyframeEdit.h"
#include "prm/edit/ParameterAddConstrainedParameterEdit.h"
#include "prm/edit/ParameterCurveEdits.h"
#include "prm/edit/ParameterKeyEdits.h"
#include "prm/edit/ParameterValueEdits.h"

#define TQ_INSTANTIATE_PARAMETER_EDITS(T)                                                                   \
    template class Prm::ParameterValueEdit<T>;                                                              \
    template class Prm::ParameterDefaultValueEdit<T>;                                                       \
    template class Prm::ParameterInterpolationEdit<T>;                                                      \
    template class Prm::ParameterInterpolationDataEdit<T>;                                                  \
    template class Prm::ParameterExtrapolationEdit<T, true>;                                                \
    template class Prm::ParameterExtrapolationEdit<T, false>;                                               \
    template class Prm::ParameterExtrapolationBeforeEdit<T>;                                                \
    template class Prm::ParameterExtrapolationAfterEdit<T>;                                                 \
    template class Prm::ParameterAddKeyEdit<T>;                                                             \
    template class Prm::ParameterDeleteKeyEdit<T>;                                                          \
    template class Prm::ParameterDeleteAllKeysEdit<T>;                                                      \
    template class Prm::ParameterResetEdit<T>;                                                              \
    template class Prm::ParameterAddConstrainedParameterEdit<T>;

#define TQ_INSTANTIATE_NUMERIC_PARAMETER_EDITS(T)                                                           \
    TQ_INSTANTIATE_PARAMETER_EDITS(T)                                                                       \
    template class Prm::MoveChangeKeyframeEdit<T>;
