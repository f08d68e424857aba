#include "prm/set/ParameterSet.h"

#include "prm/basic/BasicParameter.h"
#include "prm/ParameterWithoutType.h"

#include <QTextStream>

#include <algorithm>

namespace Prm {

ParameterSet::ParameterSet(QString const& name, ParameterTree*)
    : bBasicParametersOwned(false), displayName(name), scriptName(name), bLineBuffersInUse(false)
{
    ParameterLineRouter::vNamesChanged();
}

ParameterSet::ParameterSet(ParameterSet const& other)
    : bBasicParametersOwned(false),
      displayName(other.displayName),
      scriptName(other.scriptName),
      bLineBuffersInUse(false)
{
    ParameterLineRouter::vNamesChanged();
}

ParameterSet::~ParameterSet()
{
    ParameterLineRouter::vNamesChanged();
    // A parameter that outlives its set must not keep a dangling owner.
    for (QPointer<ParameterWithoutType> const& parameter : parameters) {
        if (parameter && parameter->pOwner == this)
            parameter->pOwner = nullptr;
    }
    if (bBasicParametersOwned)
        qDeleteAll(basicParameters);
}

void ParameterSet::setDisplayName(QString const& name)
{
    displayName = name;
}

void ParameterSet::setDisplayName(QString const& newDisplayName, QString const& newScriptName)
{
    displayName = newDisplayName;
    scriptName = newScriptName;
    ParameterLineRouter::vNamesChanged();
}

void ParameterSet::setScriptName(QString const& name)
{
    scriptName = name;
    ParameterLineRouter::vNamesChanged();
}

bool ParameterSet::bStreamOut(QTextStream& out, QString const& prefix, bool bQualify)
{
    QString setPrefix = prefix;
    if (bQualify && !scriptName.isEmpty())
        setPrefix += scriptName + QLatin1Char('.');
    for (ParameterWithoutType* parameter : parameterList())
        parameter->bStreamOut(out, setPrefix, true);
    for (BasicParameter* parameter : basicParameters) {
        if (parameter)
            parameter->bStreamOut(out, setPrefix, true);
    }
    for (ParameterSet* child : childSets) {
        if (child)
            child->bStreamOut(out, setPrefix, true);
    }
    return true;
}

bool ParameterSet::bStreamIn(QString const& line)
{
    // Names are short: a plain search beats Qt's set-up for a long one.
    QChar const* const chars = line.constData();
    int const dot = int(std::find(chars, chars + line.size(), QLatin1Char('.')) - chars);
    if (dot <= 0 || dot == line.size())
        return false;
    QStringView const name(chars, dot);
    if (bLineBuffersInUse)
        return bStreamInParts(name, line.mid(dot + 1));
    // The rest is copied into a string kept from line to line, so that a line costs no allocation; a
    // reader that keeps the rest shares it, and the next line then detaches.
    bLineBuffersInUse = true;
    restBuffer.setUnicode(line.constData() + dot + 1, line.size() - dot - 1);
    bool const bTaken = bStreamInParts(name, restBuffer);
    bLineBuffersInUse = false;
    return bTaken;
}

bool ParameterSet::bStreamInParts(QStringView name, QString const& rest)
{
    LineTargets const& targets = targetsOf(name);
    int const parameterCount = targets.parameters.size();
    int const count = parameterCount + targets.basicParameters.size();
    if (count == 0 && targets.childSets.isEmpty()) {
        // A line that still carries the set's own name, as a qualified write gives it, reads as well.
        return !scriptName.isEmpty() && name == scriptName && bStreamIn(rest);
    }
    if (count > 0) {
        int const chosen = count > 1 ? lineRouter.iChoose(name.toString(), count, eTextField(rest)) : 0;
        if (chosen < parameterCount ? parameters.at(targets.parameters.at(chosen))->bStreamInLine(rest)
                                    : basicParameters.at(targets.basicParameters.at(chosen - parameterCount))
                                          ->bStreamIn(rest))
            return true;
    }
    // A child may take the line only after the index above is done with: copy its positions.
    return bStreamInChild(name, rest, QVector<int>(targets.childSets));
}

LineTargets const& ParameterSet::targetsOf(QStringView name)
{
    auto const nameOf = [this](int list, int position) -> QString const* {
        if (list == ParameterLineRouter::Parameters) {
            ParameterWithoutType const* parameter = parameters.at(position).data();
            return parameter ? &parameter->qstrScriptName() : nullptr;
        }
        if (list == ParameterLineRouter::BasicParameters) {
            BasicParameter const* parameter = basicParameters.at(position);
            return parameter ? &parameter->scriptName() : nullptr;
        }
        ParameterSet const* child = childSets.at(position);
        return child ? &child->scriptName : nullptr;
    };
    return lineRouter.targetsOf(name, {{parameters.size(), basicParameters.size(), childSets.size()}}, nameOf);
}

bool ParameterSet::bStreamInChild(QStringView name, QString const& rest, QVector<int> const& children)
{
    ParameterSet* chosen = nullptr;
    if (children.size() > 1) {
        // Children that share a name (the two cameras of a warp) each get back the block they wrote.
        int const dot = rest.indexOf(QLatin1Char('.'));
        TextField const field = dot > 0 ? eTextField(rest.mid(dot + 1)) : TextField::Unknown;
        int const position = childSets.at(children.first())->iTextPosition(rest.left(dot));
        chosen = childSets.at(children.at(lineRouter.iChooseSet(name.toString(), children.size(), position, field)));
        if (chosen->bStreamIn(rest))
            return true;
    }
    for (int position : children) {
        ParameterSet* child = childSets.at(position);
        if (child != chosen && child->bStreamIn(rest))
            return true;
    }
    return false;
}

int ParameterSet::iTextPosition(QStringView name)
{
    LineTargets const& targets = targetsOf(name);
    if (!targets.parameters.isEmpty())
        return targets.parameters.first();
    if (!targets.basicParameters.isEmpty())
        return parameters.size() + targets.basicParameters.first();
    if (!targets.childSets.isEmpty())
        return parameters.size() + basicParameters.size() + targets.childSets.first();
    return -1;
}

void ParameterSet::assignName(QString const& name)
{
    displayName = name;
    scriptName = name;
    ParameterLineRouter::vNamesChanged();
}

void ParameterSet::addParameter(ParameterWithoutType* parameter)
{
    if (!parameter)
        return;
    parameter->pOwner = this;
    parameters.append(QPointer<ParameterWithoutType>(parameter));
}

void ParameterSet::forEachParameter(boost::function<void(ParameterWithoutType*)> function, bool bRecursive) const
{
    for (ParameterWithoutType* parameter : parameterList())
        function(parameter);
    if (!bRecursive)
        return;
    for (ParameterSet const* child : childSets) {
        if (child)
            child->forEachParameter(function, true);
    }
}

ParameterSet& ParameterSet::operator=(ParameterSet const& other)
{
    displayName = other.displayName;
    scriptName = other.scriptName;
    ParameterLineRouter::vNamesChanged();
    return *this;
}

QVector<ParameterWithoutType*> ParameterSet::parameterList() const
{
    QVector<ParameterWithoutType*> live;
    live.reserve(parameters.size());
    for (QPointer<ParameterWithoutType> const& parameter : parameters) {
        if (parameter)
            live.append(parameter.data());
    }
    return live;
}

ParameterWithoutType* ParameterSet::findParameter(QString const& name) const
{
    for (QPointer<ParameterWithoutType> const& parameter : parameters) {
        if (parameter && parameter->qstrScriptName() == name)
            return parameter.data();
    }
    return nullptr;
}

} // namespace Prm
