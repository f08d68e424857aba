#pragma once
#include "prm/text/StreamOperators.h"

#include <QMetaType>
#include <QString>
#include <QTextStream>
#include <QVariant>
#include <algorithm>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <type_traits>

namespace Prm {

namespace NumberText {

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

/// The decimal form of `value` between 1e-4 and 1e6 when a decimal of at most six significant digits
/// reads back as `value` (whole frames, most hand-typed numbers): no other six-digit decimal lies that
/// close, so it is the text Qt prints. Found by scaling with exact powers of ten and checking the way
/// back, which divides two exact numbers and so rounds as reading does. Returns the count written to
/// `chars`, or 0 when there is no such decimal.
inline int iShortDecimalChars(double value, char* chars)
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

/// Writes `value` as `QString::number(value, 'g', 6)` does into `chars` (at least 32 of them) and
/// returns the count, or -1 for a value it leaves to Qt: zero, NaN, the infinities, subnormals (too few
/// binary places for what follows), and a value whose shortest text has seven digits ending in 5, which
/// may lie exactly half way between two six-digit texts (Qt rounds those up).
///
/// Elsewhere the six digits come from the shortest text that reads back as `value`: that text lies
/// within half a unit of the last binary place of the value, far closer than the six-digit steps, so
/// both round to the same six digits unless a half way point lies between them, which only the case
/// above allows.
inline int iShortRealChars(double value, char* chars)
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
inline void vAppendShortReal(QString& text, double value)
{
    char chars[32];
    int const count = iShortRealChars(value, chars);
    if (count < 0)
        text += QString::number(value, 'g', 6);
    else
        text += QLatin1String(chars, count);
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

/// How one value of a static parameter prints and parses.
///
/// Numbers use QTextStream's own operators; `bool`, `unsigned char` and the enumerations use the free
/// stream operators declared beside their types, which must be visible where this is instantiated.
template <class T>
struct StaticValueText {
    static void vWrite(QTextStream& out, T const& value) { out << value; }

    /// Reads one value from `text` through a read-write stream on it. Unparsable text gives what the
    /// reader leaves, starting from the zero value.
    static T tRead(QString& text)
    {
        T value{};
        // Building a stream costs more than the rest of a line's reading: plain numbers skip it.
        if (NumberText::bReadPlain(text, value))
            return value;
        QTextStream in(&text, QIODevice::ReadWrite);
        in >> value;
        return value;
    }
};

/// Text is written between double quotes with nothing escaped, and read back as it stands, losing one
/// pair of enclosing quotes when it has both.
template <>
struct StaticValueText<QString> {
    static void vWrite(QTextStream& out, QString const& value) { out << '"' << value << '"'; }

    static QString tRead(QString& text)
    {
        QLatin1Char const quote('"');
        // A lone quote both starts and ends the text: it reads as empty.
        if (text.startsWith(quote) && text.endsWith(quote))
            return text.size() < 2 ? QString() : text.mid(1, text.size() - 2);
        return text;
    }
};

/// How one value of a keyframed parameter prints and parses, beyond the line form shared with static
/// parameters (`vWrite`, `tRead`).
///
/// Stateless; every function builds its own stream, except `vWrite`, which writes to the caller's stream
/// with that stream's settings.
template <class T>
struct ValueText : StaticValueText<T> {
    /// The line form through a fresh string stream at default settings (six significant digits).
    static QString qstrWritten(T const& value)
    {
        // A fresh stream prints numbers as QString::number does (six significant digits for reals);
        // building the stream would cost more than the rest of a key line.
        if constexpr (std::is_same<T, double>::value || std::is_same<T, float>::value) {
            QString text;
            NumberText::vAppendShortReal(text, static_cast<double>(value));
            return text;
        }
        if constexpr (std::is_same<T, int>::value || std::is_same<T, unsigned int>::value)
            return QString::number(value);
        QString text;
        QTextStream out(&text, QIODevice::WriteOnly);
        StaticValueText<T>::vWrite(out, value);
        out.flush();
        return text;
    }

    /// Appends `qstrWritten(value)` to `text`.
    static void vAppendWritten(QString& text, T const& value)
    {
        if constexpr (std::is_same<T, double>::value || std::is_same<T, float>::value)
            NumberText::vAppendShortReal(text, static_cast<double>(value));
        else
            text += qstrWritten(value);
    }

    /// What `valueString` shows; for `QString` the text without quotes.
    static QString qstrDisplay(T const& value) { return qstrWritten(value); }

    /// Reads one value through a read-only stream on a copy of `text`; true only when the stream's status
    /// stays Ok. `value` is written either way.
    static bool bReadWord(QString text, T& value)
    {
        QTextStream in(&text, QIODevice::ReadOnly);
        in >> value;
        return in.status() == QTextStream::Ok;
    }

    /// The Qt type id that carries this value type in a `QVariant`; a value type that the engine does not
    /// own registers its own, visible where it is instantiated.
    static int iMetaType() { return qMetaTypeId<T>(); }

    static QVariant variant(T const& value) { return QVariant(iMetaType(), &value); }

    /// False, leaving `value` alone, when `variant` cannot convert to this type. Otherwise the held value,
    /// or after Qt's conversion, and the zero value when that conversion fails.
    static bool bFromVariant(QVariant const& variant, T& value)
    {
        int const type = iMetaType();
        if (!variant.canConvert(type))
            return false;
        if (variant.userType() == type) {
            value = *static_cast<T const*>(variant.constData());
            return true;
        }
        QVariant converted(variant);
        value = converted.convert(type) ? *static_cast<T const*>(converted.constData()) : T();
        return true;
    }
};

template <>
inline QString ValueText<QString>::qstrDisplay(QString const& value)
{
    return value;
}

} // namespace Prm
