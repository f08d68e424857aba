// The logarithmic film curve in both directions.
#include "clip/LookupTableHelperMethods.h"

#include "clip/LookupTableDetail.h"

#include <algorithm>
#include <cmath>

namespace TQ {
namespace LookupTable {
namespace {

constexpr float densityPerCode = 0.002f;

/// Values shared by both directions of the film curve.
struct LogSetup {
    float S;
    float black;
    float white;
    double gain;
    double lift;
    double knee;
};

LogSetup logSetup(double top, float refWhite, float refBlack, float gamma, float softClip)
{
    LogSetup s;
    s.S = std::max(0.0f, softClip);
    if (1 + refBlack > refWhite)
        refBlack = refWhite - 1;
    s.black = std::min(1024.0f, std::max(0.0f, refBlack));
    s.white = std::min(1024.0f, std::max(0.0f, refWhite));
    float const e0 = (s.black - s.white) * densityPerCode / gamma;
    s.gain = top / (1 - std::pow(10.0, double(e0)));
    s.lift = s.gain - top;
    s.knee = s.white - s.S;
    return s;
}

double dFilm(LogSetup const& s, double code, float gamma)
{
    return std::pow(10.0, (code - s.white) * 0.002 / gamma) * s.gain - s.lift;
}

template <typename T> T tFilmEntry(double v)
{
    if constexpr (std::is_same_v<T, float>)
        return static_cast<float>(v);
    else
        return tTruncated<T>(v + 0.5);
}

template <typename T> T tSoftClipEntry(double v)
{
    if constexpr (std::is_same_v<T, float>)
        return static_cast<float>(v);
    else
        return static_cast<T>(std::min<int>(iTruncate(v + 0.5), std::numeric_limits<T>::max()));
}

template <typename T>
bool bLogToLinear(int bits, float offset, float refWhite, float refBlack, float gamma, float softClip,
                  T* table)
{
    Geometry const geo = geometry(bits);
    if (!geo.bValid || !table)
        return false;
    constexpr bool bFloat = std::is_same_v<T, float>;
    double const top = OutputTraits<T>::top;
    LogSetup const s = logSetup(top, refWhite, refBlack, gamma, softClip);
    double const exponent = double(s.S) / 100;
    double knee = s.knee;
    double kneeValue = dFilm(s, knee, gamma);
    double slope = (top - kneeValue) / std::pow(5.0 * s.S, exponent);
    if (bFloat && s.S == 0.0f) {
        // Without a shoulder the float curve runs on past reference white.
        knee = 1024.0;
        kneeValue = slope = 1e9;
    }
    std::int64_t const i0 = iTruncate(offset / geo.step);
    std::int64_t const blackIndex = iTruncate(s.black / geo.step);
    std::int64_t const kneeIndex = iTruncate(knee / geo.step);
    std::int64_t const zeroEnd = std::min(blackIndex + 1 - i0, geo.maxIndex + 1);
    for (std::int64_t i = 0; i < zeroEnd; ++i)
        table[i] = 0;
    // Only the integer tables clip codes under reference black.
    std::int64_t const filmBegin = bFloat ? 0 : std::max<std::int64_t>(blackIndex + 1 - i0, 0);
    std::int64_t const filmEnd = std::min(geo.maxIndex, kneeIndex - i0);
    for (std::int64_t i = filmBegin; i <= filmEnd; ++i)
        table[i] = tFilmEntry<T>(dFilm(s, (i0 + i) * geo.step, gamma));
    for (std::int64_t i = std::max<std::int64_t>(kneeIndex + 1 - i0, 0); i <= geo.maxIndex; ++i) {
        double const code = (i0 + i) * geo.step;
        table[i] = tSoftClipEntry<T>(std::pow(code - knee, exponent) * slope + kneeValue);
    }
    return true;
}

/// The inverse film curve: maps a linear value to a code value.
class LinearToLog {
public:
    LinearToLog(double top, float offset, float codeScale, float refWhite, float refBlack, float gamma,
                float softClip)
        : m_s(logSetup(top, refWhite, refBlack, gamma, softClip))
        , m_codeScale(codeScale)
        , m_shift(static_cast<float>(iTruncate(offset * codeScale)))
        , m_L(gamma / (std::log(10.0) * double(densityPerCode)))
    {
        if (m_s.S != 0.0f) {
            m_kneeValue = dFilm(m_s, m_s.knee, gamma);
            m_slope = (top - m_kneeValue) / std::pow(5.0 * m_s.S, double(m_s.S) / 100);
            m_base = m_s.knee;
            m_origin = m_kneeValue;
        }
    }

    float fCode(double x) const
    {
        if (m_kneeValue >= x)
            return static_cast<float>(std::log((x + m_s.lift) / m_s.gain) * m_L) + m_s.white;
        return static_cast<float>(std::pow((x - m_origin) / m_slope, 100 / double(m_s.S)) + m_base);
    }

    /// Entry for an integer input (an index).
    double dEntry(double x) const { return double(fCode(x) * m_codeScale - m_shift) + 0.5; }

    /// Entry for a float input, rounded in single precision.
    float fEntry(float x) const { return fCode(x) * m_codeScale - m_shift + 0.5f; }

private:
    LogSetup m_s;
    float m_codeScale;
    float m_shift;
    double m_L;
    double m_kneeValue = 1e9;
    double m_slope = 0.0;
    double m_base = 1e9;
    double m_origin = 0.0;
};

template <typename T>
bool bLinearToLog(int bits, float offset, float refWhite, float refBlack, float gamma, float softClip,
                  T* table, Segments const& segments, float const* forward)
{
    // The float output cannot take float input; it reports that without touching the table.
    if (std::is_same_v<T, float> && bits == 32)
        return bFailForFloatInput(474);
    Geometry const geo = geometry(bits);
    if (!geo.bValid || !table)
        return false;
    constexpr float codeScale = OutputTraits<T>::codeScale;
    if (bits == 32) {
        if constexpr (!std::is_same_v<T, float>) {
            if (!forward || !segments.bComplete())
                return false;
            LinearToLog const curve(1.0, offset, codeScale, refWhite, refBlack, gamma, softClip);
            vFillFromForwardSteps(table, forward, segments,
                                  [&](float x) { return tTruncated<T>(curve.fEntry(x)); });
            return true;
        }
    }
    double const top = static_cast<float>(geo.maxIndex);
    LinearToLog const curve(top, offset, codeScale, refWhite, refBlack, gamma, softClip);
    for (std::int64_t i = 0; i <= geo.maxIndex; ++i) {
        if constexpr (std::is_same_v<T, float>)
            table[i] = static_cast<float>(curve.dEntry(double(i)));
        else
            table[i] = tTruncated<T>(curve.dEntry(double(i)));
    }
    return true;
}

} // namespace
} // namespace LookupTable
} // namespace TQ

using namespace TQ::LookupTable;

bool gbCreate8BitLogLinLookup(int bits, float offset, float refWhite, float refBlack, float gamma,
                              float softClip, unsigned char* table)
{
    return bLogToLinear(bits, offset, refWhite, refBlack, gamma, softClip, table);
}

bool gbCreate16BitLogLinLookup(int bits, float offset, float refWhite, float refBlack, float gamma,
                               float softClip, unsigned short* table)
{
    return bLogToLinear(bits, offset, refWhite, refBlack, gamma, softClip, table);
}

bool gbCreate32BitFloatLogLinLookup(int bits, float offset, float refWhite, float refBlack, float gamma,
                                    float softClip, float* table)
{
    return bLogToLinear(bits, offset, refWhite, refBlack, gamma, softClip, table);
}

bool gbCreate8BitLinLogLookup(int bits, float offset, float refWhite, float refBlack, float gamma,
                              float softClip, unsigned char* table, float* lowScale, float* lowOffset,
                              float* split, float* highScale, float* highOffset, float* forward)
{
    return bLinearToLog(bits, offset, refWhite, refBlack, gamma, softClip, table,
                        {lowScale, lowOffset, split, highScale, highOffset}, forward);
}

bool gbCreate16BitLinLogLookup(int bits, float offset, float refWhite, float refBlack, float gamma,
                               float softClip, unsigned short* table, float* lowScale, float* lowOffset,
                               float* split, float* highScale, float* highOffset, float* forward)
{
    return bLinearToLog(bits, offset, refWhite, refBlack, gamma, softClip, table,
                        {lowScale, lowOffset, split, highScale, highOffset}, forward);
}

bool gbCreate32BitFloatLinLogLookup(int bits, float offset, float refWhite, float refBlack, float gamma,
                                    float softClip, float* table, float* lowScale, float* lowOffset,
                                    float* split, float* highScale, float* highOffset, float* forward)
{
    return bLinearToLog(bits, offset, refWhite, refBlack, gamma, softClip, table,
                        {lowScale, lowOffset, split, highScale, highOffset}, forward);
}
