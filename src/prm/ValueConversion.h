#pragma once
#include <cstdint>
#include <limits>

namespace Prm {

/// Conversions between a numeric value type and `double`, the arithmetic type of every curve.
///
/// From `double` the integer types truncate toward zero. Where C++ leaves the conversion undefined (NaN,
/// out of range) the result is what x86's truncating conversion gives, computed without undefined
/// behaviour: 0x80000000 for `int` (and so 0 for `unsigned char`, which keeps the low 8 bits of the `int`),
/// 0 for `unsigned int` (the low 32 bits of 0x8000000000000000). `bool` is true for anything but 0.0, NaN
/// included. `float` rounds to single precision.
template <class T> struct ValueConversion {
    static double toDouble(T value) { return static_cast<double>(value); }
    static T fromDouble(double value) { return static_cast<T>(value); }
    /// The chord `to - from` in the type's own arithmetic, widened: a Bezier handle's starting length.
    static double difference(T from, T to) { return static_cast<double>(to - from); }
};

template <> struct ValueConversion<int> {
    static double toDouble(int value) { return value; }
    static int fromDouble(double value)
    {
        if (value > -2147483649.0 && value < 2147483648.0)
            return static_cast<int>(value);
        return std::numeric_limits<int>::min();
    }
    static double difference(int from, int to)
    {
        // 32-bit wrapping subtraction, done in unsigned arithmetic to stay defined.
        return static_cast<int32_t>(static_cast<uint32_t>(to) - static_cast<uint32_t>(from));
    }
};

template <> struct ValueConversion<unsigned int> {
    static double toDouble(unsigned int value) { return value; }
    static unsigned int fromDouble(double value)
    {
        if (value >= -9223372036854775808.0 && value < 9223372036854775808.0)
            return static_cast<unsigned int>(static_cast<uint64_t>(static_cast<int64_t>(value)));
        return 0u;
    }
    static double difference(unsigned int from, unsigned int to) { return static_cast<unsigned int>(to - from); }
};

template <> struct ValueConversion<unsigned char> {
    static double toDouble(unsigned char value) { return value; }
    static unsigned char fromDouble(double value)
    {
        return static_cast<unsigned char>(static_cast<uint32_t>(ValueConversion<int>::fromDouble(value)) & 0xFFu);
    }
    static double difference(unsigned char from, unsigned char to) { return int(to) - int(from); }
};

template <> struct ValueConversion<bool> {
    static double toDouble(bool value) { return value ? 1.0 : 0.0; }
    static bool fromDouble(double value) { return value != 0.0; }
    static double difference(bool from, bool to) { return int(to) - int(from); }
};

template <> struct ValueConversion<float> {
    static double toDouble(float value) { return value; }
    static float fromDouble(double value) { return static_cast<float>(value); }
    static double difference(float from, float to) { return static_cast<float>(to - from); }
};

template <class T> double dToDouble(T value) { return ValueConversion<T>::toDouble(value); }
template <class T> T tFromDouble(double value) { return ValueConversion<T>::fromDouble(value); }

/// Limits a value: the smaller of it and `maximum`, then the larger of that and `minimum`, so that crossed
/// limits give the minimum, and so does a NaN.
template <class T> T tClamp(T value, T minimum, T maximum)
{
    T const below = (maximum < value) ? maximum : value;
    return (minimum < below) ? below : minimum;
}

} // namespace Prm
