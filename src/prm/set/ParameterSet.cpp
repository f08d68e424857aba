#include "prm/set/ParameterSet.h"

#include "prm/basic/BasicParameter.h"
#include "prm/ParameterWithoutType.h"

#include <QTextStream>

#include <algorithm>

namespace Prm {

namespace {

// The `index`-th of the basic parameters named `name`.
bool bStreamInBasic(QVector<BasicParameter*> const& basicParameters, QString const& name, int index,
                    QString const& line)
{
    for (BasicParameter* parameter : basicParameters) {
        if (parameter && parameter->scriptName() == name && index-- == 0)
            return parameter->bStreamIn(line);
    }
    return false;
}

} // namespace

ParameterSet::ParameterSet(QString const& name, ParameterTree*)
    : bBasicParametersOwned(false), displayName(name), scriptName(name)
{
}

ParameterSet::ParameterSet(ParameterSet const& other)
    : bBasicParametersOwned(false), displayName(other.displayName), scriptName(other.scriptName)
{
}

ParameterSet::~ParameterSet()
{
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
}

void ParameterSet::setScriptName(QString const& name)
{
    scriptName = name;
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
    int const dot = line.indexOf(QLatin1Char('.'));
    if (dot <= 0)
        return false;
    QString const name = line.left(dot);
    QString const rest = line.mid(dot + 1);
    QVector<int> const positions = positionsOf(name);
    int basicCount = 0;
    for (BasicParameter* parameter : basicParameters) {
        if (parameter && parameter->scriptName() == name)
            ++basicCount;
    }
    int const count = positions.size() + basicCount;
    if (count > 0) {
        int const chosen = count > 1 ? lineRouter.iChoose(name, count, eTextField(rest)) : 0;
        if (chosen < positions.size() ? parameters.at(positions.at(chosen))->bStreamInLine(rest)
                                      : bStreamInBasic(basicParameters, name, chosen - positions.size(), rest))
            return true;
    }
    return bStreamInChild(name, rest);
}

bool ParameterSet::bStreamInChild(QString const& name, QString const& rest)
{
    auto const bNamed = [&name](ParameterSet const* child) { return child && child->scriptName == name; };
    ParameterSet* chosen = nullptr;
    int const count = static_cast<int>(std::count_if(childSets.cbegin(), childSets.cend(), bNamed));
    if (count > 1) {
        // Children that share a name (the two cameras of a warp) each get back the block they wrote.
        auto named = std::find_if(childSets.cbegin(), childSets.cend(), bNamed);
        int const dot = rest.indexOf(QLatin1Char('.'));
        TextField const field = dot > 0 ? eTextField(rest.mid(dot + 1)) : TextField::Unknown;
        for (int skip = lineRouter.iChooseSet(name, count, (*named)->iTextPosition(rest.left(dot)), field); skip > 0;
             --skip)
            named = std::find_if(named + 1, childSets.cend(), bNamed);
        chosen = *named;
        if (chosen->bStreamIn(rest))
            return true;
    }
    for (ParameterSet* child : childSets) {
        if (child != chosen && bNamed(child) && child->bStreamIn(rest))
            return true;
    }
    return false;
}

bool ParameterSet::bIndexHolds(QVector<int> const& positions, QString const& name) const
{
    if (positions.isEmpty())
        return false;
    for (int position : positions) {
        ParameterWithoutType const* parameter = parameters.at(position).data();
        if (!parameter || parameter->qstrScriptName() != name)
            return false;
    }
    return true;
}

QVector<int> ParameterSet::positionsOf(QString const& name)
{
    int const count = parameters.size();
    if (count == iIndexedCount) {
        auto const found = nameIndex.constFind(name);
        if (found != nameIndex.constEnd() && bIndexHolds(*found, name))
            return *found;
    }
    nameIndex.clear();
    for (int position = 0; position < count; ++position) {
        if (ParameterWithoutType const* parameter = parameters.at(position).data())
            nameIndex[parameter->qstrScriptName()].append(position);
    }
    iIndexedCount = count;
    return nameIndex.value(name);
}

int ParameterSet::iTextPosition(QString const& name)
{
    QVector<int> const positions = positionsOf(name);
    if (!positions.isEmpty())
        return positions.first();
    int position = parameters.size();
    for (BasicParameter const* parameter : basicParameters) {
        if (parameter && parameter->scriptName() == name)
            return position;
        ++position;
    }
    for (ParameterSet const* child : childSets) {
        if (child && child->scriptName == name)
            return position;
        ++position;
    }
    return -1;
}

void ParameterSet::assignName(QString const& name)
{
    displayName = name;
    scriptName = name;
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
