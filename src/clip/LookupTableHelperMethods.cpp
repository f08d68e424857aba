#include "clip/LookupTableHelperMethods.h"

#include "clip/LookupTableDetail.h"
#include "gandalf/Error.h"

#include <cmath>

namespace TQ {
namespace LookupTable {

Geometry geometry(int bits)
{
    if (bits < 0 || bits > 32)
        return {false, 0, 0.0f};
    if (bits == 32)
        return {true, 1, 1024.0f};
    std::int64_t const length = std::int64_t(1) << bits;
    return {true, length - 1, 1024.0f / static_cast<float>(length)};
}

int iTruncate(double d)
{
    if (!(d > -2147483649.0 && d < 2147483648.0))
        return std::numeric_limits<int>::min();
    return static_cast<int>(d);
}

bool bFailForFloatInput(int line)
{
    // Saved callers read this entry back; the function name is the historical one for all four.
    gan_err_flush_trace();
    gan_err_register_fileline("CREATE_LINEAR_TO_LOG_LOOKUP", GAN_ERROR_ILLEGAL_ARGUMENT,
                              "LookupTableHelperMethods", line, "", 0);
    return false;
}

namespace {

/// Chooses the segments from the slope of the forward table: the finer end is built first and the
/// other segment is placed around the forward entry where the first one stops.
template <typename T, typename Curve>
void vFillFromForwardSlope(T* table, float const* forward, Segments const& segments, Curve curve)
{
    constexpr bool b8Bit = sizeof(T) == 1;
    constexpr int factor = b8Bit ? 1 : 8;
    constexpr int last = forwardLength<T>() - 1;
    constexpr int mid = b8Bit ? 128 : 32768;
    if (forward[1] - forward[0] > forward[last] - forward[last - 1]) {
        float const highStep = (forward[last] - forward[last - 1]) * factor;
        float const highStart = highStep * -32767.0f + forward[last];
        for (int i = 0; i < segmentLength; ++i)
            table[segmentLength + i] = curve(i * highStep + highStart);
        *segments.split = highStart;
        *segments.highOffset = highStart + highStep * -segmentLength;
        *segments.highScale = 1 / highStep;
        int j = mid;
        while (j < last && !(forward[j] > highStart))
            ++j;
        float const lowStep = (forward[j] - forward[j - 1]) * factor;
        float const lowOffset = lowStep * -32768.0f + forward[j];
        for (int i = 0; i < segmentLength; ++i)
            table[i] = curve(i * lowStep + lowOffset);
        *segments.lowOffset = lowOffset;
        *segments.lowScale = 1 / lowStep;
        return;
    }
    float const lowStep = (forward[1] - forward[0]) * factor;
    float const lowOffset = forward[0];
    float x = lowOffset;
    for (int i = 0; i < segmentLength; ++i) {
        x = i * lowStep + lowOffset;
        table[i] = curve(x);
    }
    *segments.split = x;
    *segments.lowOffset = lowOffset;
    *segments.lowScale = 1 / lowStep;
    int j = mid;
    while (j > 0 && !(x > forward[j]))
        --j;
    float const highStep = (forward[j + 1] - forward[j]) * factor;
    float const highStart = forward[j];
    for (int i = 0; i < segmentLength; ++i)
        table[segmentLength + i] = curve(i * highStep + highStart);
    *segments.highOffset = highStart + highStep * -segmentLength;
    *segments.highScale = 1 / highStep;
}

template <typename T>
bool bGamma(int bits, float gamma, T* table, Segments const& segments, float const* forward)
{
    Geometry const geo = geometry(bits);
    if (!geo.bValid || !table)
        return false;
    double const top = OutputTraits<T>::top;
    double const g = 1.0f / gamma;
    if (bits == 32) {
        if (!forward || !segments.bComplete())
            return false;
        table[0] = 0;
        vFillFromForwardSlope(table, forward, segments,
                              [=](float x) { return tTruncated<T>(std::pow(double(x), g) * top + 0.5); });
        return true;
    }
    std::int64_t const n = geo.maxIndex;
    double const s = top / std::pow(static_cast<float>(n), g);
    table[0] = 0;
    for (std::int64_t i = n; i >= 1; --i)
        table[i] = tTruncated<T>(std::pow(double(i), g) * s + 0.5);
    return true;
}

bool bFloatGamma(int bits, float gamma, float* table)
{
    // Entry 0 is written before float input is refused.
    if (bits == 32) {
        if (table)
            table[0] = 0.0f;
        return bFailForFloatInput(683);
    }
    Geometry const geo = geometry(bits);
    if (!geo.bValid || !table)
        return false;
    table[0] = 0.0f;
    double const g = 1.0f / gamma;
    std::int64_t const n = geo.maxIndex;
    double const s = 1 / std::pow(static_cast<float>(n), g);
    for (std::int64_t i = n; i >= 1; --i)
        table[i] = static_cast<float>(std::pow(double(i), g) * s);
    return true;
}

} // namespace
} // namespace LookupTable
} // namespace TQ

using namespace TQ::LookupTable;

bool gbCreate8BitGammaLookup(int bits, float gamma, unsigned char* table, float* lowScale, float* lowOffset,
                             float* split, float* highScale, float* highOffset, float* forward)
{
    return bGamma(bits, gamma, table, {lowScale, lowOffset, split, highScale, highOffset}, forward);
}

bool gbCreate16BitGammaLookup(int bits, float gamma, unsigned short* table, float* lowScale,
                              float* lowOffset, float* split, float* highScale, float* highOffset,
                              float* forward)
{
    return bGamma(bits, gamma, table, {lowScale, lowOffset, split, highScale, highOffset}, forward);
}

bool gbCreate32BitFloatGammaLookup(int bits, float gamma, float* table)
{
    return bFloatGamma(bits, gamma, table);
}

bool gbCreate32BitFloatGammaLookupDummy(int bits, float gamma, float* table, float*, float*, float*, float*,
                                        float*, float*)
{
    return bFloatGamma(bits, gamma, table);
}
