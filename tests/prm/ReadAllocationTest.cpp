#include "prm/NumericParameter.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {
std::atomic<long> g_allocations{0};
std::atomic<bool> g_counting{false};
} // namespace

// Counts allocations while a test asks for it; everything else goes straight to malloc.
void* operator new(std::size_t size)
{
    if (g_counting.load(std::memory_order_relaxed))
        g_allocations.fetch_add(1, std::memory_order_relaxed);
    if (void* p = std::malloc(size ? size : 1))
        return p;
    throw std::bad_alloc();
}

void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }

using namespace Prm;

TEST(ReadAllocation, ValueAllocatesNothingOnAnyPath)
{
    NumericParameter<double> p(true, "P", 0.0, -1e6, 1e6, InterpolationLinear, ExtrapolationLinear);
    for (int i = 0; i < 100; ++i)
        p.vSetValue(i * 0.5, float(i));
    p.vSetInterpolation(InterpolationBezier, 10.0f);
    p.vSetInterpolation(InterpolationStep, 20.0f);
    NumericParameter<double> follower(true, "F", 0.0, -1e6, 1e6, InterpolationLinear, ExtrapolationLinear);
    ASSERT_TRUE(p.bAddConstrainedParameter(&follower));

    double sum = 0.0;
    g_allocations = 0;
    g_counting = true;
    for (float t = -5.0f; t < 105.0f; t += 0.25f) {
        sum += p.value(t, nullptr);
        sum += follower.value(t, nullptr);
        sum += p.valueAsDouble(t, nullptr);
    }
    g_counting = false;
    EXPECT_EQ(g_allocations.load(), 0);
    EXPECT_NE(sum, 0.0);
}
