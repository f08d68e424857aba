#include "modules/Layer3DParameterSet.h"

#include <QHash>

TQ_Layer3DParameterSet::TQ_Layer3DParameterSet() : Prm::ParameterSet(QStringLiteral("Nulls"), nullptr) {}

TQ_Layer3DParameterSet::TQ_Layer3DParameterSet(TQ_Layer3DParameterSet const& other)
    : Prm::ParameterSet(QStringLiteral("Nulls"), nullptr)
{
    vCopyNullsOf(other);
}

TQ_Layer3DParameterSet& TQ_Layer3DParameterSet::operator=(TQ_Layer3DParameterSet const& other)
{
    if (this == &other)
        return *this;
    Prm::ParameterSet::operator=(other);
    clear();
    vCopyNullsOf(other);
    return *this;
}

TQ_Layer3DParameterSet::~TQ_Layer3DParameterSet()
{
    clear();
}

// Copies each null of `other` under its id; the child list follows the source's order of creation.
void TQ_Layer3DParameterSet::vCopyNullsOf(TQ_Layer3DParameterSet const& other)
{
    QHash<Prm::ParameterSet const*, TQ_NullObject3DParameterSet*> copies;
    for (auto it = other.nulls.cbegin(); it != other.nulls.cend(); ++it) {
        auto* copy = new TQ_NullObject3DParameterSet(*it.value());
        nulls.insert(it.key(), copy);
        copies.insert(it.value(), copy);
    }
    for (Prm::ParameterSet const* child : other.childSets) {
        if (TQ_NullObject3DParameterSet* copy = copies.value(child, nullptr))
            childSets.append(copy);
    }
}

TQ_NullObject3DParameterSet const* TQ_Layer3DParameterSet::findNull(int id) const
{
    return nulls.value(static_cast<unsigned int>(id), nullptr);
}

TQ_NullObject3DParameterSet* TQ_Layer3DParameterSet::findNull(int id)
{
    nulls.detach();
    return nulls.value(static_cast<unsigned int>(id), nullptr);
}

TQ_NullObject3DParameterSet* TQ_Layer3DParameterSet::createNull(int id, QString const& name)
{
    if (TQ_NullObject3DParameterSet* existing = findNull(id))
        return existing;
    auto* null = new TQ_NullObject3DParameterSet(name);
    nulls.insert(static_cast<unsigned int>(id), null);
    childSets.append(null);
    return null;
}

void TQ_Layer3DParameterSet::clear()
{
    childSets.clear();
    qDeleteAll(nulls);
    nulls.clear();
}

void TQ_Layer3DParameterSet::deleteAllKeyframes()
{
    for (TQ_NullObject3DParameterSet* null : qAsConst(nulls))
        null->deleteAllKeyframes();
}
