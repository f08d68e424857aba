#pragma once
#include "modules/NullObject3DParameterSet.h"

#include <QMap>

/// The nulls of a three-dimensional layer, named "Nulls", numbered by id.
///
/// The set owns its nulls: `createNull` allocates them, `clear` and the destructor delete each exactly
/// once. Every null is also a child set, in order of creation, so that it streams with the layer. A copy
/// owns copies of the source's nulls (same ids, names, values and order); assignment deletes the target's
/// nulls and copies the source's. Pointers returned by `findNull` and `createNull` stay valid until
/// `clear`, an assignment to the layer, or its destruction.
class TQ_Layer3DParameterSet : public Prm::ParameterSet
{
public:
    TQ_Layer3DParameterSet();
    TQ_Layer3DParameterSet(TQ_Layer3DParameterSet const& other);
    TQ_Layer3DParameterSet& operator=(TQ_Layer3DParameterSet const& other);
    ~TQ_Layer3DParameterSet() override;

    /// The null with `id` (taken as unsigned, so -1 is 4294967295), or null when there is none.
    TQ_NullObject3DParameterSet const* findNull(int id) const;
    TQ_NullObject3DParameterSet* findNull(int id);
    /// The null with `id`, created with `name` when there is none; an existing null keeps its name.
    TQ_NullObject3DParameterSet* createNull(int id, QString const& name);
    /// Deletes every null, in id order.
    void clear();
    /// Removes the keys of every null, in id order.
    void deleteAllKeyframes();

    /// The nulls by id; owned by this set.
    QMap<unsigned int, TQ_NullObject3DParameterSet*> nulls;

private:
    void vCopyNullsOf(TQ_Layer3DParameterSet const& other);
};
