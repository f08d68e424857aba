#pragma once
#include <QList>

namespace Prm {

class ParameterWithoutType;

/// What changed in a parameter: built on the stack, handed by reference to `changed`, then dropped.
///
/// Holds the kind, the parameter, and either one key index or a pointer to a list of indices; the list
/// belongs to the raiser and is valid only while the signal is delivered.
class ParameterChange {
public:
    enum ParameterChanges {
        KeyframeAdded = 1,
        KeyframeDeleted = 2,
        ValueChanged = 3,
        KeyframeMoved = 4,
        InterpolationChanged = 5,
        ExtrapolationBeforeChanged = 6,
        ExtrapolationAfterChanged = 7,
        ParameterReplaced = 8,
        ParameterReset = 9,
        AllKeyframesDeleted = 10,
        StaticValueChanged = 12,
        KeyframeReordered = 13
    };

    ParameterChange(ParameterChanges kind, ParameterWithoutType* parameter, unsigned int index)
        : eKind(kind), pParameter(parameter), uiIndex(index), pIndices(nullptr) {}
    ParameterChange(ParameterChanges kind, ParameterWithoutType* parameter, QList<unsigned int> const* indices)
        : eKind(kind), pParameter(parameter), uiIndex(0), pIndices(indices) {}

    ParameterChanges kind() const { return eKind; }
    ParameterWithoutType* parameter() const { return pParameter; }
    /// The single index; 0 for a change that carries a list.
    unsigned int index() const { return uiIndex; }
    /// The list of indices (old, new for `KeyframeReordered`), or null for a change with one index.
    QList<unsigned int> const* indices() const { return pIndices; }

private:
    ParameterChanges eKind;
    ParameterWithoutType* pParameter;
    unsigned int uiIndex;
    QList<unsigned int> const* pIndices;
};

} // namespace Prm
