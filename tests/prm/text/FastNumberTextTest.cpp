// The readers' and writers' own number paths against Qt's conversions, which define the text format.
#include "../Fixtures.h"
#include "prm/text/ValueText.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <random>

using namespace Prm;

namespace {

template <class Real>
bool bSameBits(Real a, Real b)
{
    return std::memcmp(&a, &b, sizeof(Real)) == 0 || (std::isnan(a) && std::isnan(b));
}

/// The quoted texts of the rows of data/Numbers.txt marked `mark`, without their quotes.
QStringList numberRows(QChar mark)
{
    QStringList rows;
    for (QString const& line : qstrDataFile("Numbers.txt").split('\n'))
        if (line.startsWith(mark))
            rows << line.mid(3, line.size() - 4);
    return rows;
}

} // namespace

TEST(FastNumberText, ReadsAsQtReads)
{
    QStringList texts = numberRows('r');
    std::mt19937 random(7); // plain decimals of every length the fast path takes and a little beyond
    auto const digits = [&random](QString& text) {
        for (int n = 1 + int(random() % 20); n > 0; --n)
            text += QChar('0' + int(random() % 10));
    };
    for (int i = 0; i < 20000; ++i) {
        QString text = random() % 2 ? QStringLiteral("-") : QString();
        digits(text);
        if (random() % 2)
            digits(text += '.');
        if (random() % 3 == 0)
            text += QStringLiteral("e%1").arg(int(random() % 199) - 99);
        texts << text;
    }
    for (QString const& text : texts) {
        QStringRef const ref(&text);
        EXPECT_TRUE(bSameBits(NumberText::dToDouble(ref), text.toDouble())) << text.toStdString();
        EXPECT_TRUE(bSameBits(NumberText::fToFloat(ref), text.toFloat())) << text.toStdString();
        double plain = 0.0, streamed = 0.0;
        if (NumberText::bReadPlain(ref, plain)) {
            QString copy(text);
            QTextStream(&copy) >> streamed;
            EXPECT_TRUE(bSameBits(plain, streamed)) << text.toStdString();
        }
    }
}

TEST(FastNumberText, WritesAsQtWrites)
{
    QVector<double> values;
    for (QString const& row : numberRows('w'))
        values << std::strtod(row.toLatin1().data(), nullptr);
    std::mt19937_64 random(11);
    for (int i = 0; i < 20000; ++i) {
        quint64 const bits = random();
        double fromBits = 0.0;
        std::memcpy(&fromBits, &bits, sizeof(fromBits));
        double const scaled = double(int(random() % 2000001) - 1000000) * std::pow(10.0, int(random() % 21) - 10);
        values << fromBits << double(float(fromBits)) << scaled << i * 0.37 << double(float(i * 0.1f));
    }
    for (double value : values) {
        QString fast = QStringLiteral("x");
        NumberText::vAppendShortReal(fast, value);
        EXPECT_EQ(fast.toStdString(), "x" + QString::number(value, 'g', 6).toStdString()) << value;
        // Bezier handles were filled in by arg() at its default precision: the same text.
        EXPECT_EQ(QStringLiteral("%1").arg(value, 0, 'g', -1), QString::number(value, 'g', 6)) << value;
    }
}
