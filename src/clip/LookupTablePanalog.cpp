// The fixed Panalog curve in both directions.
#include "clip/LookupTableHelperMethods.h"

#include "clip/LookupTableDetail.h"

#include <algorithm>
#include <cmath>

namespace TQ {
namespace LookupTable {
namespace {

/// The curve's constants: p = 10^2.15 and k = 6 / (p - 1).
struct Panalog {
    double p = std::pow(10.0, 2.15);
    double k = 6 / (p - 1);

    /// Linear value of a code (64 to 1019 for the useful range), before any output scale.
    double dLinear(double code) const
    {
        double const e = std::pow(10.0, (code - 64) / 955 * 2.15) / p;
        return (k + 6) * e - k;
    }

    /// Code value of a linear value (0 to 6 for the useful range), without limits.
    double dCode(double linear) const { return std::log10(p * ((linear + k) / (k + 6))) / 2.15 * 955 + 64; }
};

constexpr double oneSixth = 0.1666666716337204;
constexpr double whiteCode = 1019.0;

template <typename T> T tPanalogEntry(Panalog const& curve, double code)
{
    if (code <= 64)
        return 0;
    if (code > whiteCode) {
        if constexpr (std::is_same_v<T, float>)
            return 0.0f;
        else
            return std::numeric_limits<T>::max();
    }
    double const v = curve.dLinear(code) * OutputTraits<T>::panalogScale + 0.5;
    if constexpr (std::is_same_v<T, float>)
        return static_cast<float>(std::trunc(v));
    else
        return tTruncated<T>(v);
}

template <typename T> T tNormalisedEntry(Panalog const& curve, double code)
{
    double const v = curve.dLinear(code) * oneSixth;
    if constexpr (std::is_same_v<T, float>)
        return static_cast<float>(v);
    else
        return tTruncated<T>(v);
}

template <typename T> bool bPanalogToLinear(int bits, T* table, bool normalised)
{
    Geometry const geo = geometry(bits);
    if (!geo.bValid || !table)
        return false;
    Panalog const curve;
    double const step = geo.step;
    for (std::int64_t i = 0; i <= geo.maxIndex; ++i) {
        double const code = i * step;
        table[i] = normalised ? tNormalisedEntry<T>(curve, code) : tPanalogEntry<T>(curve, code);
    }
    return true;
}

template <typename T> T tLinearToPanalogEntry(Panalog const& curve, double linear)
{
    constexpr double codeScale = OutputTraits<T>::codeScale;
    double const code = std::max(64.0, curve.dCode(linear));
    double const v = std::min(code, whiteCode) * codeScale + 0.5;
    // The float output has no code scale, so its 0.5 is clamped into the empty range [0, 0].
    if constexpr (std::is_same_v<T, float>)
        return static_cast<float>(std::clamp(v, 0.0, whiteCode * codeScale));
    else
        return tTruncated<T>(v);
}

template <typename T>
bool bLinearToPanalog(int bits, T* table, Segments const& segments, float const* forward)
{
    // The float output cannot take float input; it reports that without touching the table.
    if (std::is_same_v<T, float> && bits == 32)
        return bFailForFloatInput(159);
    Geometry const geo = geometry(bits);
    if (!geo.bValid || !table)
        return false;
    Panalog const curve;
    if (bits == 32) {
        if constexpr (!std::is_same_v<T, float>) {
            if (!forward || !segments.bComplete())
                return false;
            // For float input the curve is neither rounded nor limited, and x * 6 stays single precision.
            vFillFromForwardSteps(table, forward, segments, [&](float x) {
                return tTruncated<T>(curve.dCode(x * 6.0f) * OutputTraits<T>::codeScale);
            });
            return true;
        }
    }
    float const step = 6.0f / static_cast<float>(geo.maxIndex);
    // The input is index times step in single precision, as saved tables were built.
    for (std::int64_t i = 0; i <= geo.maxIndex; ++i)
        table[i] = tLinearToPanalogEntry<T>(curve, static_cast<float>(i) * step);
    return true;
}

} // namespace
} // namespace LookupTable
} // namespace TQ

using namespace TQ::LookupTable;

bool gbCreate8BitPanalogLinLookup(int bits, unsigned char* table, bool normalised)
{
    return bPanalogToLinear(bits, table, normalised);
}

bool gbCreate16BitPanalogLinLookup(int bits, unsigned short* table, bool normalised)
{
    return bPanalogToLinear(bits, table, normalised);
}

bool gbCreate32BitFloatPanalogLinLookup(int bits, float* table, bool normalised)
{
    return bPanalogToLinear(bits, table, normalised);
}

bool gbCreate8BitLinPanalogLookup(int bits, unsigned char* table, float* lowScale, float* lowOffset,
                                  float* split, float* highScale, float* highOffset, float* forward)
{
    return bLinearToPanalog(bits, table, {lowScale, lowOffset, split, highScale, highOffset}, forward);
}

bool gbCreate16BitLinPanalogLookup(int bits, unsigned short* table, float* lowScale, float* lowOffset,
                                   float* split, float* highScale, float* highOffset, float* forward)
{
    return bLinearToPanalog(bits, table, {lowScale, lowOffset, split, highScale, highOffset}, forward);
}

bool gbCreate32BitFloatLinPanalogLookup(int bits, float* table, float* lowScale, float* lowOffset,
                                        float* split, float* highScale, float* highOffset, float* forward)
{
    return bLinearToPanalog(bits, table, {lowScale, lowOffset, split, highScale, highOffset}, forward);
}
