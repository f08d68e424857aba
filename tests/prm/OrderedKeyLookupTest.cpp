// Keys are looked up by halving while they are known to be in order, and by a scan from the first key
// otherwise (NaN times and moves can leave them out of order). Both must find what the scan finds.
#include "prm/NumericParameter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

using namespace Prm;

namespace {

struct Key {
    float fTime;
    double dValue;
};

// The scan's rules: a value lands on the first key at its time, else before the first key after it.
int iModelSet(std::vector<Key>& keys, float time, double value)
{
    for (size_t i = 0; i < keys.size(); ++i) {
        if (keys[i].fTime == time) {
            keys[i].dValue = value;
            return int(i);
        }
    }
    for (size_t i = 0; i < keys.size(); ++i) {
        if (keys[i].fTime > time) {
            keys.insert(keys.begin() + long(i), Key{time, value});
            return int(i);
        }
    }
    keys.push_back(Key{time, value});
    return int(keys.size()) - 1;
}

int iModelFind(std::vector<Key> const& keys, float time)
{
    for (size_t i = 0; i < keys.size(); ++i) {
        if (keys[i].fTime == time)
            return int(i);
    }
    return -1;
}

} // namespace

TEST(OrderedKeyLookup, SetMoveAndDeleteFindTheKeysTheScanFinds)
{
    float const nan = std::numeric_limits<float>::quiet_NaN();
    float const times[] = {0.0f, 1.0f, 2.0f, 3.0f, 5.0f, 8.0f, -1.0f, -0.0f, nan};
    std::mt19937 random(3);
    for (int round = 0; round < 200; ++round) {
        NumericParameter<double> parameter(true, "P", 0.0, -1e9, 1e9, InterpolationLinear, ExtrapolationHold);
        std::vector<Key> model;
        for (int step = 0; step < 40; ++step) {
            float const time = times[random() % 9];
            double const value = step;
            switch (random() % 6) {
            case 0: {
                // A move that stays in place may leave the keys out of order around a NaN neighbour.
                float const to = times[random() % 9];
                int const index = iModelFind(model, time);
                bool const bStays = index >= 0 && (index == 0 || !(to < model[size_t(index) - 1].fTime))
                                    && (index == int(model.size()) - 1 || !(model[size_t(index) + 1].fTime < to));
                int expected = -1;
                if (bStays) {
                    model[size_t(index)] = Key{to, value};
                    expected = index;
                } else if (index >= 0) {
                    model.erase(model.begin() + index);
                    expected = iModelSet(model, to, value);
                }
                EXPECT_EQ(parameter.moveAndChangeKeyframe(value, time, to), expected);
                break;
            }
            case 1: {
                int const index = iModelFind(model, time);
                if (index >= 0)
                    model.erase(model.begin() + index);
                parameter.vDeleteKeyframe(time);
                break;
            }
            default:
                EXPECT_EQ(parameter.vSetValue(value, time), iModelSet(model, time, value));
            }
            ASSERT_EQ(parameter.keyframeCount(), model.size());
            for (size_t i = 0; i < model.size(); ++i) {
                float const stored = parameter.keyframeTime(unsigned(i));
                EXPECT_TRUE(stored == model[i].fTime || (std::isnan(stored) && std::isnan(model[i].fTime)));
                EXPECT_EQ(parameter.keyframeValue(unsigned(i)), model[i].dValue);
            }
            for (float probe : times)
                EXPECT_EQ(parameter.bKeyframeAt(probe), iModelFind(model, probe) >= 0);
        }
    }
}
