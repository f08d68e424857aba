#pragma once
/// Explicit instantiation of the edits of `Prm::Parameter<T>` for one value type; part of
/// `TQ_INSTANTIATE_PARAMETER` (ParameterImpl.h). `Prm::MoveChangeKeyframeEdit<T>` belongs to the numeric
/// instantiation.
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
