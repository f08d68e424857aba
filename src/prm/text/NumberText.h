#pragma once
// Numbers in the parameter text read and written without Qt's locale machinery, with results identical to
// Qt's conversions, which define the text format; anything unusual is left to Qt.
#include <QString>
#include <QStringRef>
#include <cfloat>
#include <charconv>
#include <cmath>

namespace Prm {

namespace NumberText {

/// Writes `value` as `QString::number(value, 'g', 6)` does into `chars` (at least 32 of them) and returns the
/// count, or -1 for a value left to Qt (zero, NaN, the infinities, subnormals, possible half-way cases).
int iShortRealChars(double value, char* chars);

/// Appends `QString::number(value, 'g', 6)` to `text`.
void vAppendShortReal(QString& text, double value);


/// Reads `text` when it is as a whole a plain decimal number: an optional minus, digits, optionally a
/// point and digits, optionally `e` or `E`, a sign and one or two digits, 40 characters at most. The
/// value is correctly rounded, as QString's conversion and the stream's reader round it, without their
/// heap copy and locale checks. False, `value` untouched, for any other text.
template <class Text>
bool bPlainValue(Text const& text, double& value)
{
    int const n = text.size();
    if (n == 0 || n > 40)
        return false;
    QChar const* const chars = text.unicode();
    char ascii[48];
    // Digits as an integer and the power of ten that scales them; when both are exact in a double, one
    // multiplication or division rounds correctly (most texts that files hold end there).
    quint64 digits = 0;
    int significant = 0;
    int scale = 0;
    int i = 0;
    auto const digitRun = [&](bool bFraction) {
        int const start = i;
        for (; i < n && chars[i].unicode() >= '0' && chars[i].unicode() <= '9'; ++i) {
            int const digit = chars[i].unicode() - '0';
            ascii[i] = static_cast<char>('0' + digit);
            if (significant < 19) {
                digits = digits * 10 + quint64(digit);
                significant += digits != 0 ? 1 : 0;
                scale -= bFraction ? 1 : 0;
            } else {
                scale += bFraction ? 0 : 1;
            }
        }
        return i - start;
    };
    bool const bNegative = chars[0] == QLatin1Char('-');
    if (bNegative)
        ascii[i++] = '-';
    if (digitRun(false) == 0)
        return false;
    if (i < n && chars[i] == QLatin1Char('.')) {
        ascii[i++] = '.';
        if (digitRun(true) == 0)
            return false;
    }
    if (i < n && (chars[i] == QLatin1Char('e') || chars[i] == QLatin1Char('E'))) {
        ascii[i++] = 'e';
        bool const bNegativeExponent = i < n && chars[i] == QLatin1Char('-');
        if (i < n && (bNegativeExponent || chars[i] == QLatin1Char('+')))
            ascii[i++] = bNegativeExponent ? '-' : '+';
        int exponent = 0;
        int const start = i;
        for (; i < n && i - start < 3 && chars[i].unicode() >= '0' && chars[i].unicode() <= '9'; ++i) {
            ascii[i] = static_cast<char>(chars[i].unicode());
            exponent = exponent * 10 + (chars[i].unicode() - '0');
        }
        if (i == start || i - start > 2)
            return false;
        scale += bNegativeExponent ? -exponent : exponent;
    }
    if (i != n)
        return false;
    static double const powers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    if (digits <= (quint64(1) << 53) && scale >= -22 && scale <= 22) {
        double const magnitude = double(digits);
        double const scaled = scale < 0 ? magnitude / powers[-scale] : magnitude * powers[scale];
        value = bNegative ? -scaled : scaled;
    } else {
        value = 0.0;
        std::from_chars(ascii, ascii + n, value);
    }
    return true;
}

/// A decimal integer without a leading zero (the stream would read that as octal), of at most nine
/// digits, with a minus only when `bSigned`.
template <class Text>
bool bPlainInteger(Text const& text, bool bSigned)
{
    int const start = (bSigned && text.startsWith(QChar(QLatin1Char('-')))) ? 1 : 0;
    int const digitCount = text.size() - start;
    if (digitCount < 1 || digitCount > 9 || (text.at(start) == QLatin1Char('0') && digitCount > 1))
        return false;
    for (int i = start; i < text.size(); ++i) {
        if (text.at(i) < QLatin1Char('0') || text.at(i) > QLatin1Char('9'))
            return false;
    }
    return true;
}

/// `text.toDouble()`, faster for plain decimal numbers.
template <class Text>
double dToDouble(Text const& text)
{
    double value = 0.0;
    return bPlainValue(text, value) ? value : text.toDouble();
}

/// `text.toFloat()`, faster for plain decimal numbers whose double lies in the normal float range or is
/// zero (Qt narrows those as a cast does; it treats overflow and underflow on its own).
template <class Text>
float fToFloat(Text const& text)
{
    double wide = 0.0;
    if (bPlainValue(text, wide)) {
        double const magnitude = std::fabs(wide);
        if (wide == 0.0 || (magnitude >= double(FLT_MIN) && magnitude <= double(FLT_MAX)))
            return static_cast<float>(wide);
    }
    return text.toFloat();
}

/// Reads `text` (a QString or a QStringRef) without building a stream when it is a number whose every
/// reading agrees: the stream's readers and QString's conversions both round correctly in the C locale.
/// False, `value` untouched, for any other text, which the caller reads through a stream as before.
template <class Text>
bool bReadPlain(Text const& text, double& value)
{
    return bPlainValue(text, value);
}

/// As the stream: the double, narrowed; only within the float range.
template <class Text>
bool bReadPlain(Text const& text, float& value)
{
    double wide = 0.0;
    if (!bReadPlain(text, wide) || wide > 3.4028234663852886e38 || wide < -3.4028234663852886e38)
        return false;
    value = static_cast<float>(wide);
    return true;
}

template <class Text>
bool bReadPlain(Text const& text, int& value)
{
    if (!bPlainInteger(text, true))
        return false;
    value = text.toInt();
    return true;
}

template <class Text>
bool bReadPlain(Text const& text, unsigned int& value)
{
    if (!bPlainInteger(text, false))
        return false;
    value = text.toUInt();
    return true;
}

template <class Text, class T>
bool bReadPlain(Text const&, T&)
{
    return false;
}

} // namespace NumberText

} // namespace Prm
