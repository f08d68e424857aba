#include "modules/NullObject3DParameterSet.h"

TQ_NullObject3DParameterSet::TQ_NullObject3DParameterSet(QString const& name)
    : Prm::ParameterSet(name, nullptr), position(QStringLiteral("Position")), rotation(QStringLiteral("Rotation")),
      scale(QStringLiteral("Scale"))
{
    init();
}

TQ_NullObject3DParameterSet::TQ_NullObject3DParameterSet(TQ_NullObject3DParameterSet const& other)
    : Prm::ParameterSet(other.qstrDisplayName(), nullptr), position(other.position), rotation(other.rotation),
      scale(other.scale)
{
    setScriptName(other.qstrScriptName());
    init();
}

TQ_NullObject3DParameterSet& TQ_NullObject3DParameterSet::operator=(TQ_NullObject3DParameterSet const& other)
{
    if (this == &other)
        return *this;
    Prm::ParameterSet::operator=(other);
    position = other.position;
    rotation = other.rotation;
    scale = other.scale;
    return *this;
}

TQ_NullObject3DParameterSet::~TQ_NullObject3DParameterSet() = default;

void TQ_NullObject3DParameterSet::init()
{
    childSets.append(&position);
    childSets.append(&rotation);
    childSets.append(&scale);
}

void TQ_NullObject3DParameterSet::deleteAllKeyframes()
{
    position.deleteAllKeyframes();
    rotation.deleteAllKeyframes();
    scale.deleteAllKeyframes();
}
