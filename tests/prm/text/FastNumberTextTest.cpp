// The readers' and writers' own number paths against Qt's conversions, which define the text format.
#include "prm/text/ValueText.h"

#include <gtest/gtest.h>

#include <QTextStream>
#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>

using namespace Prm;

namespace {

template <class Real>
bool bSameBits(Real a, Real b)
{
    return std::memcmp(&a, &b, sizeof(Real)) == 0 || (std::isnan(a) && std::isnan(b));
}

// Plain decimal texts of every length the fast path takes and a little beyond.
QStringList randomDecimalTexts(int count)
{
    std::mt19937 random(7);
    QStringList texts;
    for (int i = 0; i < count; ++i) {
        QString text = random() % 2 ? QStringLiteral("-") : QString();
        for (int digits = 1 + int(random() % 20); digits > 0; --digits)
            text += QChar('0' + int(random() % 10));
        if (random() % 2) {
            text += QLatin1Char('.');
            for (int digits = 1 + int(random() % 20); digits > 0; --digits)
                text += QChar('0' + int(random() % 10));
        }
        if (random() % 3 == 0)
            text += QStringLiteral("e%1").arg(int(random() % 199) - 99);
        texts << text;
    }
    return texts;
}

} // namespace

TEST(FastNumberText, ReadsAsQtReads)
{
    QStringList texts{"0", "-0", "-0.0", "0e5", "10", "0.37", "-1.5e-05", "1e22", "1e23", "1E+05", "00012.5000",
                      "9007199254740992", "9007199254740993", "0.1", "123456789012345678901234567890",
                      "1234567890123456789012345678901234567890", "12345678901234567890123456789012345678901",
                      "3.4028234663852886e38", "3.4028235e38", "3.5e38", "-3.5e38", "1.17549435e-38",
                      "1e-39", "1e-46", "-1e-50", "1e-99", "9e99", " 1", "1 ", "+1", "1.", ".5", "1e5x", "1e",
                      "1e123", "nan", "inf", "-inf", "0x10", "", "abc", "1,5", "--1", "1.2.3", "٣"};
    texts += randomDecimalTexts(20000);
    for (QString const& text : texts) {
        QStringRef const ref(&text);
        EXPECT_TRUE(bSameBits(NumberText::dToDouble(ref), text.toDouble())) << text.toStdString();
        EXPECT_TRUE(bSameBits(NumberText::fToFloat(ref), text.toFloat())) << text.toStdString();
        double plain = 0.0;
        if (NumberText::bReadPlain(ref, plain)) {
            QString copy(text);
            QTextStream in(&copy);
            double streamed = 0.0;
            in >> streamed;
            EXPECT_TRUE(bSameBits(plain, streamed)) << text.toStdString();
        }
    }
}

TEST(FastNumberText, WritesAsQtWrites)
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    double const inf = std::numeric_limits<double>::infinity();
    QVector<double> values{0.0, -0.0, nan, -nan, inf, -inf, 0.5, 2.5, 1.015625, -1.015625, 0.0001234565,
                           1234565.0, 1234575.0, 999999.0, 999999.5, 9999995.0, 1e6, 1e-4, 1e-5, 99999.95, 9.999995,
                           9.9999951, 0.000999999, 123456789.0, 4e-320, -3.3e-310,
                           0.37, 1.0 / 3.0, 5e-324, 2.2250738585072014e-308, DBL_MAX, -DBL_MAX, 1e15, 1e16,
                           123456.5, 0.1 + 0.2, double(FLT_MAX), double(FLT_MIN), 3.0, -7.0, 12.375};
    std::mt19937_64 random(11);
    for (int i = 0; i < 20000; ++i) {
        quint64 bits = random();
        double fromBits = 0.0;
        std::memcpy(&fromBits, &bits, sizeof(fromBits));
        float const narrowed = static_cast<float>(fromBits);
        double const scaled = double(int(random() % 2000001) - 1000000) * std::pow(10.0, int(random() % 21) - 10);
        values << fromBits << double(narrowed) << scaled << i * 0.37 << double(float(i * 0.1f));
    }
    for (double value : values) {
        QString fast = QStringLiteral("x");
        NumberText::vAppendShortReal(fast, value);
        EXPECT_EQ(fast.toStdString(), "x" + QString::number(value, 'g', 6).toStdString()) << value;
        // Bezier handles were filled in by arg() at its default precision: the same text.
        EXPECT_EQ(QStringLiteral("%1").arg(value, 0, 'g', -1), QString::number(value, 'g', 6)) << value;
    }
}
