#include "support/BlendMode.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(BlendMode, RegisteredAtLoadInIdOrder)
{
    EXPECT_EQ(BlendMode::getBlendModeCount(), 3);
    EXPECT_EQ(BlendMode::getConcatenatedNames(), "Add|Subtract|Multiply");
    EXPECT_NE(dynamic_cast<AddBlendMode*>(BlendMode::fromID(AE_BLEND_MODE_ADD)), nullptr);
    EXPECT_NE(dynamic_cast<SubtractBlendMode*>(BlendMode::fromID(AE_BLEND_MODE_SUBTRACT)), nullptr);
    EXPECT_NE(dynamic_cast<MultiplyBlendMode*>(BlendMode::fromID(AE_BLEND_MODE_MULTIPLY)), nullptr);
    // Unknown ids fall back to the lowest id, silently.
    for (int iId : {0, 4, -1})
        EXPECT_EQ(BlendMode::fromID(static_cast<AEBlendModeID>(iId)), BlendMode::fromID(AE_BLEND_MODE_ADD)) << iId;
}

TEST(BlendMode, EachModeLimitsItsResultDifferently)
{
    float const nan = std::numeric_limits<float>::quiet_NaN();
    float const inf = std::numeric_limits<float>::infinity();
    AEBlendModeID const add = AE_BLEND_MODE_ADD, sub = AE_BLEND_MODE_SUBTRACT, mul = AE_BLEND_MODE_MULTIPLY;
    struct { AEBlendModeID eId; float a, b, expected; } const rows[] = {
        {add, 0.75f, 0.75f, 1.0f}, {add, 0.25f, 0.5f, 0.75f}, {add, -2.0f, 1.0f, -1.0f}, {add, 1.0f, 0.0f, 1.0f},
        {sub, 0.25f, 0.75f, 0.0f}, {sub, 3.0f, 1.0f, 2.0f}, {sub, 0.75f, 0.25f, 0.5f},
        {mul, 2.0f, 2.0f, 4.0f}, {mul, -1.0f, 2.0f, -2.0f}, {add, -inf, 0.0f, -inf}, {sub, inf, 0.0f, inf},
        {add, nan, 0.0f, nan}, {sub, 0.0f, nan, nan}, {add, inf, -inf, nan}, {mul, nan, 1.0f, nan}};
    for (auto const& r : rows) {
        float const result = BlendMode::fromID(r.eId)->blend(r.a, r.b);
        SCOPED_TRACE(testing::Message() << "mode " << r.eId << ": " << r.a << ", " << r.b);
        if (std::isnan(r.expected))
            EXPECT_TRUE(std::isnan(result));
        else
            EXPECT_EQ(result, r.expected);
    }
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
    BlendMode::registerBlendMode(boost::shared_ptr<BlendMode>());
    EXPECT_EQ(BlendMode::getConcatenatedNames(), "Add|Subtract|Multiply|Half");

    BlendMode::registerBlendMode(boost::shared_ptr<BlendMode>(new HalfBlendMode(AE_BLEND_MODE_ADD)));
    EXPECT_EQ(BlendMode::getBlendModeCount(), 4);
    EXPECT_EQ(BlendMode::getConcatenatedNames(), "Half|Subtract|Multiply|Half");
    EXPECT_EQ(BlendMode::fromID(static_cast<AEBlendModeID>(5))->blend(1.0f, 2.0f), 1.5f);

    BlendMode::getMapById() = saved;
    EXPECT_EQ(BlendMode::getConcatenatedNames(), "Add|Subtract|Multiply");
}
