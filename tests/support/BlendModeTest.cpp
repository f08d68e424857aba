#include "support/BlendMode.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(BlendMode, RegisteredAtLoadInIdOrder)
{
    ASSERT_EQ(BlendMode::getBlendModeCount(), 3);
    EXPECT_EQ(BlendMode::getConcatenatedNames(), "Add|Subtract|Multiply");
    EXPECT_EQ(BlendMode::getMapById().keys(),
              (QList<AEBlendModeID>{AE_BLEND_MODE_ADD, AE_BLEND_MODE_SUBTRACT, AE_BLEND_MODE_MULTIPLY}));

    EXPECT_NE(dynamic_cast<AddBlendMode*>(BlendMode::fromID(AE_BLEND_MODE_ADD)), nullptr);
    EXPECT_NE(dynamic_cast<SubtractBlendMode*>(BlendMode::fromID(AE_BLEND_MODE_SUBTRACT)), nullptr);
    EXPECT_NE(dynamic_cast<MultiplyBlendMode*>(BlendMode::fromID(AE_BLEND_MODE_MULTIPLY)), nullptr);
    EXPECT_EQ(BlendMode::fromID(AE_BLEND_MODE_SUBTRACT)->qstrName, QStringLiteral("Subtract"));
    EXPECT_EQ(BlendMode::fromID(AE_BLEND_MODE_MULTIPLY)->eId, AE_BLEND_MODE_MULTIPLY);

    // Unknown ids fall back to the lowest id, silently.
    BlendMode* add = BlendMode::fromID(AE_BLEND_MODE_ADD);
    EXPECT_EQ(BlendMode::fromID(static_cast<AEBlendModeID>(0)), add);
    EXPECT_EQ(BlendMode::fromID(static_cast<AEBlendModeID>(4)), add);
    EXPECT_EQ(BlendMode::fromID(static_cast<AEBlendModeID>(-1)), add);
}

TEST(BlendMode, EachModeLimitsItsResultDifferently)
{
    BlendMode const* add = BlendMode::fromID(AE_BLEND_MODE_ADD);
    BlendMode const* subtract = BlendMode::fromID(AE_BLEND_MODE_SUBTRACT);
    BlendMode const* multiply = BlendMode::fromID(AE_BLEND_MODE_MULTIPLY);

    EXPECT_EQ(add->blend(0.75f, 0.75f), 1.0f);
    EXPECT_EQ(add->blend(0.25f, 0.5f), 0.75f);
    EXPECT_EQ(add->blend(-2.0f, 1.0f), -1.0f);
    EXPECT_EQ(add->blend(1.0f, 0.0f), 1.0f);

    EXPECT_EQ(subtract->blend(0.25f, 0.75f), 0.0f);
    EXPECT_EQ(subtract->blend(3.0f, 1.0f), 2.0f);
    EXPECT_EQ(subtract->blend(0.75f, 0.25f), 0.5f);

    EXPECT_EQ(multiply->blend(2.0f, 2.0f), 4.0f);
    EXPECT_EQ(multiply->blend(-1.0f, 2.0f), -2.0f);

    float const nan = std::numeric_limits<float>::quiet_NaN();
    float const inf = std::numeric_limits<float>::infinity();
    EXPECT_TRUE(std::isnan(add->blend(nan, 0.0f)));
    EXPECT_TRUE(std::isnan(subtract->blend(0.0f, nan)));
    EXPECT_TRUE(std::isnan(add->blend(inf, -inf)));
    EXPECT_TRUE(std::isnan(multiply->blend(nan, 1.0f)));
    EXPECT_EQ(add->blend(-inf, 0.0f), -inf);
    EXPECT_EQ(subtract->blend(inf, 0.0f), inf);
}

namespace {

class HalfBlendMode : public BlendMode {
public:
    explicit HalfBlendMode(AEBlendModeID eId) : BlendMode(eId, QStringLiteral("Half")) {}
    float blend(float a, float b) const override { return 0.5f * (a + b); }
};

} // namespace

TEST(BlendMode, RegisteringUnderATakenIdReplacesTheEntry)
{
    BlendMode::MapById const saved = BlendMode::getMapById();

    BlendMode::registerBlendMode(boost::shared_ptr<BlendMode>(new HalfBlendMode(static_cast<AEBlendModeID>(7))));
    EXPECT_EQ(BlendMode::getBlendModeCount(), 4);
    EXPECT_EQ(BlendMode::getConcatenatedNames(), "Add|Subtract|Multiply|Half");

    BlendMode::registerBlendMode(boost::shared_ptr<BlendMode>());
    EXPECT_EQ(BlendMode::getBlendModeCount(), 4);

    BlendMode::registerBlendMode(boost::shared_ptr<BlendMode>(new HalfBlendMode(AE_BLEND_MODE_ADD)));
    EXPECT_EQ(BlendMode::getBlendModeCount(), 4);
    EXPECT_EQ(BlendMode::getConcatenatedNames(), "Half|Subtract|Multiply|Half");
    EXPECT_EQ(BlendMode::fromID(static_cast<AEBlendModeID>(5))->blend(1.0f, 2.0f), 1.5f);

    BlendMode::getMapById() = saved;
    EXPECT_EQ(BlendMode::getConcatenatedNames(), "Add|Subtract|Multiply");
}
