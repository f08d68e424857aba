#include "support/BlendMode.h"

#include <utility>

BlendMode::BlendMode(AEBlendModeID eId, QString const& qstrName) : eId(eId), qstrName(qstrName) {}

BlendMode::~BlendMode() = default;

BlendMode::MapById& BlendMode::getMapById()
{
    static MapById map;
    return map;
}

int BlendMode::getBlendModeCount()
{
    return getMapById().size();
}

std::string BlendMode::getConcatenatedNames()
{
    std::string names;
    for (boost::shared_ptr<BlendMode> const& mode : qAsConst(getMapById())) {
        if (!names.empty())
            names += "|";
        names += mode->qstrName.toStdString();
    }
    return names;
}

BlendMode* BlendMode::fromID(AEBlendModeID eId)
{
    MapById const& map = getMapById();
    if (map.isEmpty())
        return nullptr;
    MapById::const_iterator const found = map.constFind(eId);
    return (found != map.constEnd() ? found.value() : map.constBegin().value()).get();
}

void BlendMode::registerBlendMode(boost::shared_ptr<BlendMode> mode)
{
    // A null mode has no id to file it under, and would make fromID hand out null.
    if (!mode)
        return;
    AEBlendModeID const eId = mode->eId;
    getMapById().insert(eId, std::move(mode));
}

// Comparisons are written so that a NaN result falls through unchanged.

AddBlendMode::AddBlendMode() : BlendMode(AE_BLEND_MODE_ADD, QStringLiteral("Add")) {}

float AddBlendMode::blend(float a, float b) const
{
    float const fSum = a + b;
    return fSum > 1.0f ? 1.0f : fSum;
}

AddBlendMode::RegHelper::RegHelper()
{
    registerBlendMode(boost::shared_ptr<BlendMode>(new AddBlendMode));
}

SubtractBlendMode::SubtractBlendMode() : BlendMode(AE_BLEND_MODE_SUBTRACT, QStringLiteral("Subtract")) {}

float SubtractBlendMode::blend(float a, float b) const
{
    float const fDifference = a - b;
    return fDifference < 0.0f ? 0.0f : fDifference;
}

SubtractBlendMode::RegHelper::RegHelper()
{
    registerBlendMode(boost::shared_ptr<BlendMode>(new SubtractBlendMode));
}

MultiplyBlendMode::MultiplyBlendMode() : BlendMode(AE_BLEND_MODE_MULTIPLY, QStringLiteral("Multiply")) {}

float MultiplyBlendMode::blend(float a, float b) const
{
    return a * b;
}

MultiplyBlendMode::RegHelper::RegHelper()
{
    registerBlendMode(boost::shared_ptr<BlendMode>(new MultiplyBlendMode));
}

// Built while the library loads, in any order: the registry orders by id.
AddBlendMode::RegHelper AddBlendMode::regHelper;
SubtractBlendMode::RegHelper SubtractBlendMode::regHelper;
MultiplyBlendMode::RegHelper MultiplyBlendMode::regHelper;
