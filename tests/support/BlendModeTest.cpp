#include "support/BlendMode.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

// Ids 0, 4 and -1 name no mode and fall back to the lowest id, Add, silently.
TEST(BlendMode, EachModeLimitsItsResultDifferently)
{
    float const nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
    AEBlendModeID const add = AE_BLEND_MODE_ADD, sub = AE_BLEND_MODE_SUBTRACT, mul = AE_BLEND_MODE_MULTIPLY,
                        none = AEBlendModeID(0), four = AEBlendModeID(4), negative = AEBlendModeID(-1);
    struct { AEBlendModeID eId; float a, b, expected; } const rows[] = {
        {add, 0.75f, 0.75f, 1.0f}, {add, 0.25f, 0.5f, 0.75f}, {add, -2.0f, 1.0f, -1.0f}, {add, 1.0f, 0.0f, 1.0f},
        {sub, 0.25f, 0.75f, 0.0f}, {sub, 3.0f, 1.0f, 2.0f}, {sub, 0.75f, 0.25f, 0.5f},
        {mul, 2.0f, 2.0f, 4.0f}, {mul, -1.0f, 2.0f, -2.0f}, {add, -inf, 0.0f, -inf}, {sub, inf, 0.0f, inf},
        {add, nan, 0.0f, nan}, {sub, 0.0f, nan, nan}, {add, inf, -inf, nan}, {mul, nan, 1.0f, nan},
        {none, 0.75f, 0.75f, 1.0f}, {four, 0.25f, 0.5f, 0.75f}, {negative, 2.0f, 2.0f, 1.0f}};
    for (auto const& r : rows) {
        float const result = BlendMode::fromID(r.eId)->blend(r.a, r.b);
        EXPECT_TRUE(std::isnan(r.expected) ? std::isnan(result) : result == r.expected)
            << "mode " << r.eId << ": " << r.a << ", " << r.b << " gives " << result;
    }
}

namespace {

class HalfBlendMode : public BlendMode {
public:
    explicit HalfBlendMode(AEBlendModeID eId) : BlendMode(eId, QStringLiteral("Half")) {}
    float blend(float a, float b) const override { return 0.5f * (a + b); }
};

} // namespace

TEST(BlendMode, RegisteredAtLoadInIdOrderAndReplacedUnderATakenId)
{
    BlendMode::MapById const saved = BlendMode::getMapById();
    EXPECT_EQ(BlendMode::getBlendModeCount(), 3);
    EXPECT_EQ(BlendMode::getConcatenatedNames(), "Add|Subtract|Multiply");
    BlendMode::registerBlendMode(boost::shared_ptr<BlendMode>(new HalfBlendMode(static_cast<AEBlendModeID>(7))));
    BlendMode::registerBlendMode(boost::shared_ptr<BlendMode>());
    EXPECT_EQ(BlendMode::getConcatenatedNames(), "Add|Subtract|Multiply|Half");
    BlendMode::registerBlendMode(boost::shared_ptr<BlendMode>(new HalfBlendMode(AE_BLEND_MODE_ADD)));
    EXPECT_EQ(BlendMode::getBlendModeCount(), 4);
    EXPECT_EQ(BlendMode::getConcatenatedNames(), "Half|Subtract|Multiply|Half");
    EXPECT_EQ(BlendMode::fromID(static_cast<AEBlendModeID>(5))->blend(1.0f, 2.0f), 1.5f);
    BlendMode::getMapById() = saved;
}
