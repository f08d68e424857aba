#pragma once
/// Internal helpers shared by the lookup table builders (not part of the public interface): the
/// constants of each output width, the table geometry for a bit depth, truncating stores that behave
/// like x86 conversions without undefined behaviour, and the two-segment tables for float input.
#include <cstdint>
#include <limits>
#include <type_traits>

namespace TQ {
namespace LookupTable {

/// Constants of one output entry type.
template <typename T> struct OutputTraits;
template <> struct OutputTraits<unsigned char> {
    static constexpr double top = 255.0;
    static constexpr double panalogScale = 42.5;
    static constexpr float codeScale = 0.25f;
};
template <> struct OutputTraits<unsigned short> {
    static constexpr double top = 65535.0;
    static constexpr double panalogScale = 10922.5;
    static constexpr float codeScale = 64.0f;
};
template <> struct OutputTraits<float> {
    static constexpr double top = 1.0;
    static constexpr double panalogScale = 0.0;
    static constexpr float codeScale = 0.0f;
};

/// Number of entries and code step of a table indexed by a `bits`-bit code; `bits` 32 stands for a
/// 2-entry table with step 1024. `bValid` is false for depths that no table can have.
struct Geometry {
    bool bValid;
    std::int64_t maxIndex;
    float step;
};
Geometry geometry(int bits);

/// `d` truncated towards zero as an int; NaN and values outside int give INT_MIN, as x86 does.
int iTruncate(double d);

/// A truncated value stored in an integer entry, wrapping like the machine's narrowing store.
template <typename T> T tTruncated(double d)
{
    return static_cast<T>(static_cast<std::uint32_t>(iTruncate(d)));
}

/// Leaves the one Gandalf error entry of a float-output builder asked for float input (`line` is the
/// line tabled for that builder) and returns false.
bool bFailForFloatInput(int line);

/// The five floats that locate a value in a two-segment table, in the order of the builders' arguments.
struct Segments {
    float* lowScale;
    float* lowOffset;
    float* split;
    float* highScale;
    float* highOffset;
    bool bComplete() const { return lowScale && lowOffset && split && highScale && highOffset; }
};

constexpr int segmentLength = 32768;

/// Length of the forward table matching an output type: 256 for 8-bit, 65536 for 16-bit.
template <typename T> constexpr int forwardLength() { return sizeof(T) == 1 ? 256 : 65536; }

/// Fills both segments from the forward table's steps at its start and middle (log and Panalog
/// curves). `curve` maps a float input to an entry.
template <typename T, typename Curve>
void vFillFromForwardSteps(T* table, float const* forward, Segments const& segments, Curve curve)
{
    constexpr bool b8Bit = sizeof(T) == 1;
    constexpr int stride = b8Bit ? 1 : 64;
    constexpr int mid = b8Bit ? 128 : 32768;
    float const lowStep = forward[stride] - forward[0];
    float const lowOffset = forward[0];
    float x = lowOffset;
    for (int i = 0; i < segmentLength; ++i) {
        x = i * lowStep + lowOffset;
        table[i] = curve(x);
    }
    *segments.split = x;
    *segments.lowOffset = lowOffset;
    *segments.lowScale = 1 / lowStep;
    float const highStep = forward[mid + stride] - forward[mid];
    float const highStart = forward[mid];
    for (int i = 0; i < segmentLength; ++i)
        table[segmentLength + i] = curve(i * highStep + highStart);
    *segments.highOffset = highStart + highStep * -segmentLength;
    *segments.highScale = 1 / highStep;
}

} // namespace LookupTable
} // namespace TQ
