#include "prm/text/NumberText.h"

#include <algorithm>

namespace Prm::NumberText {

namespace {

// The decimal form of `value` between 1e-4 and 1e6 when a decimal of at most six significant digits
// reads back as `value` (whole frames, most hand-typed numbers): no other six-digit decimal lies that
// close, so it is the text Qt prints. Found by scaling with exact powers of ten and checking the way
// back, which divides two exact numbers and so rounds as reading does. Returns the count written to
// `chars`, or 0 when there is no such decimal.
int iShortDecimalChars(double value, char* chars)
{
    static double const powers[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};
    double const magnitude = std::fabs(value);
    if (!(magnitude >= powers[0] / powers[4]) || magnitude >= powers[6])
        return 0;
    // The power of ten of the first digit, from -4 to 5; the decimal has at most 5 - exponent places.
    int exponent = -4;
    while (exponent < 5 && magnitude >= (exponent + 1 >= 0 ? powers[exponent + 1] : 1.0 / powers[-exponent - 1]))
        ++exponent;
    for (int places = exponent < 0 ? -exponent : 0; places <= 5 - exponent; ++places) {
        double const scaled = std::nearbyint(magnitude * powers[places]);
        if (scaled / powers[places] != magnitude)
            continue;
        char digits[16];
        int const count = int(std::to_chars(digits, digits + sizeof(digits), quint64(scaled)).ptr - digits);
        char* out = chars;
        if (value < 0)
            *out++ = '-';
        int const whole = count - places;
        if (whole <= 0) {
            *out++ = '0';
            *out++ = '.';
            out = std::fill_n(out, -whole, '0');
            out = std::copy(digits, digits + count, out);
        } else {
            out = std::copy(digits, digits + whole, out);
            if (places > 0) {
                *out++ = '.';
                out = std::copy(digits + whole, digits + count, out);
            }
        }
        return int(out - chars);
    }
    return 0;
}

} // namespace

/// Writes `value` as `QString::number(value, 'g', 6)` does into `chars` (at least 32 of them) and
/// returns the count, or -1 for a value it leaves to Qt: zero, NaN, the infinities, subnormals (too few
/// binary places for what follows), and a value whose shortest text has seven digits ending in 5, which
/// may lie exactly half way between two six-digit texts (Qt rounds those up).
///
/// Elsewhere the six digits come from the shortest text that reads back as `value`: that text lies
/// within half a unit of the last binary place of the value, far closer than the six-digit steps, so
/// both round to the same six digits unless a half way point lies between them, which only the case
/// above allows.
int iShortRealChars(double value, char* chars)
{
    if (!(std::fabs(value) >= DBL_MIN) || std::isinf(value))
        return -1;
    int const decimal = iShortDecimalChars(value, chars);
    if (decimal > 0)
        return decimal;
    char shortest[40];
    std::to_chars_result const written =
        std::to_chars(shortest, shortest + sizeof(shortest), value, std::chars_format::scientific);
    if (written.ec != std::errc())
        return -1;
    // "-d.ddde-XX": the digits and the power of ten of the first one.
    char const* p = shortest;
    bool const bNegative = *p == '-';
    p += bNegative ? 1 : 0;
    char digits[24];
    int count = 0;
    for (; *p != 'e'; ++p) {
        if (*p != '.')
            digits[count++] = *p;
    }
    int exponent = 0;
    std::from_chars(p + 1 + (p[1] == '+' ? 1 : 0), written.ptr, exponent);
    if (count == 7 && digits[6] == '5')
        return -1;
    if (count > 6) {
        bool const bUp = digits[6] > '5' || (digits[6] == '5' && count > 7);
        count = 6;
        for (int i = 5; bUp && i >= 0; --i) {
            if (digits[i] != '9') {
                ++digits[i];
                break;
            }
            digits[i] = '0';
            if (i == 0) {
                digits[0] = '1';
                ++exponent;
            }
        }
    }
    while (count > 1 && digits[count - 1] == '0')
        --count;
    char* out = chars;
    if (bNegative)
        *out++ = '-';
    if (exponent < -4 || exponent > 5) {
        *out++ = digits[0];
        if (count > 1) {
            *out++ = '.';
            out = std::copy(digits + 1, digits + count, out);
        }
        *out++ = 'e';
        *out++ = exponent < 0 ? '-' : '+';
        int const magnitude = exponent < 0 ? -exponent : exponent;
        if (magnitude < 10)
            *out++ = '0';
        out = std::to_chars(out, chars + 32, magnitude).ptr;
    } else if (exponent < 0) {
        *out++ = '0';
        *out++ = '.';
        out = std::fill_n(out, -exponent - 1, '0');
        out = std::copy(digits, digits + count, out);
    } else {
        for (int i = 0; i <= exponent; ++i)
            *out++ = i < count ? digits[i] : '0';
        if (count > exponent + 1) {
            *out++ = '.';
            out = std::copy(digits + exponent + 1, digits + count, out);
        }
    }
    return int(out - chars);
}

/// Appends `QString::number(value, 'g', 6)` to `text`.
void vAppendShortReal(QString& text, double value)
{
    char chars[32];
    int const count = iShortRealChars(value, chars);
    if (count < 0)
        text += QString::number(value, 'g', 6);
    else
        text += QLatin1String(chars, count);
}


} // namespace Prm::NumberText
