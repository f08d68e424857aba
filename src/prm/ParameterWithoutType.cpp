#include "prm/ParameterWithoutType.h"

#include "bsc/Command.h"
#include "prm/edit/ConstraintEdits.h"
#include "prm/text/ParameterLineRouter.h"
#include "prm/set/ParameterSet.h"

namespace Prm {

namespace {

ParameterWithoutType* masterOf(ParameterWithoutType const* parameter)
{
    return qobject_cast<ParameterWithoutType*>(parameter->master());
}

} // namespace

ParameterWithoutType::ParameterWithoutType()
    : QObject(), bHidden(false), pOwner(nullptr)
{
    ParameterLineRouter::vNamesChanged();
}

ParameterWithoutType::ParameterWithoutType(ParameterWithoutType const& other)
    : QObject(),
      displayName(other.displayName),
      scriptName(other.scriptName),
      masterParameter(other.masterParameter),
      masterParameterId(other.masterParameterId),
      bHidden(other.bHidden),
      pOwner(nullptr)
{
    ParameterLineRouter::vNamesChanged();
}

ParameterWithoutType::~ParameterWithoutType()
{
    ParameterLineRouter::vNamesChanged();
    if (ParameterWithoutType* oldMaster = masterOf(this))
        oldMaster->followers.removeAll(QPointer<ParameterWithoutType>(this));
}

QString ParameterWithoutType::extendedName() const
{
    if (!pOwner)
        return scriptName;
    return pOwner->qstrScriptName() + QLatin1Char('.') + scriptName;
}

void ParameterWithoutType::hide(bool bHide)
{
    bHidden = bHide;
}

bool ParameterWithoutType::bIsInChainOf(ParameterWithoutType const* start) const
{
    // Links are only made when they close no cycle, so the walk ends; the cap is a second guard.
    int iSteps = 0;
    for (ParameterWithoutType const* p = start; p && iSteps < 100000; p = masterOf(p), ++iSteps) {
        if (p == this)
            return true;
    }
    return false;
}

bool ParameterWithoutType::bFollow(ParameterWithoutType* newMaster)
{
    if (newMaster && bIsInChainOf(newMaster))
        return false;
    ParameterWithoutType* oldMaster = masterOf(this);
    if (oldMaster == newMaster && masterParameter == static_cast<QObject*>(newMaster))
        return true;
    if (oldMaster)
        oldMaster->followers.removeAll(QPointer<ParameterWithoutType>(this));
    masterParameter = newMaster;
    if (newMaster)
        newMaster->followers.append(QPointer<ParameterWithoutType>(this));
    return true;
}

bool ParameterWithoutType::bAddConstrainedParameter(ParameterWithoutType* follower)
{
    if (!follower || follower == this)
        return false;
    std::type_info const* mine = tRawValueType();
    std::type_info const* theirs = follower->tRawValueType();
    if (!mine || !theirs || *mine != *theirs)
        return false;
    if (!follower->bFollow(this))
        return false;
    follower->masterParameterId = extendedName();
    return true;
}

bool ParameterWithoutType::bUnconstrain()
{
    if (!masterParameter)
        return false;
    bFollow(nullptr);
    masterParameterId = QString();
    return true;
}

QVector<ParameterWithoutType*> ParameterWithoutType::constrainedParameters() const
{
    QVector<ParameterWithoutType*> live;
    for (QPointer<ParameterWithoutType> const& follower : followers) {
        if (follower)
            live.append(follower.data());
    }
    return live;
}

void ParameterWithoutType::setDisplayName(QString const& name)
{
    displayName = name;
}

void ParameterWithoutType::setScriptName(QString const& name)
{
    scriptName = name;
    ParameterLineRouter::vNamesChanged();
}

void ParameterWithoutType::vAssignScriptName(QString const& name)
{
    if (scriptName == name)
        return;
    scriptName = name;
    ParameterLineRouter::vNamesChanged();
}

void ParameterWithoutType::vRaise(ParameterChange::ParameterChanges kind, unsigned int index)
{
    // Blocked signals reach no one: a read with signals blocked need not build the change.
    if (signalsBlocked())
        return;
    ParameterChange change(kind, this, index);
    emit changed(change);
}

bool ParameterWithoutType::bUnconstrainCommand(Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterUnconstrainEdit(this));
    return true;
}

bool ParameterWithoutType::bRemoveConstrainedParameterCommand(ParameterWithoutType* follower,
                                                              Bsc::CompositeCommand& composite)
{
    composite.push_back(new ParameterRemoveConstrainedParameterEdit(this, follower));
    return follower != nullptr;
}

bool ParameterWithoutType::bStreamInLine(QString const& line)
{
    return streamInValue(line, boost::function<QString(QString const&)>());
}

} // namespace Prm
