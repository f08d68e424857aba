#include "../Fixtures.h"
#include "prm/text/CurveTypeNames.h"
#include "prm/text/ParameterLine.h"
#include "prm/text/StreamOperators.h"
#include "prm/text/ValueText.h"

#include <vector>

using namespace Prm;

TEST(ParameterTextStreamOperators, BoolAndUnsignedCharAreDigits)
{
    QString text;
    QTextStream out(&text);
    out << true << false << static_cast<unsigned char>(200);
    out.flush();
    EXPECT_EQ(text, "10200");

    text = "1, TRUE false 0 -3 65, 258 maybe";
    QTextStream in(&text);
    bool values[6] = {false, false, true, true, false, true};
    unsigned char bytes[2] = {};
    QChar commas[2];
    in >> values[0] >> commas[0] >> values[1] >> values[2] >> values[3] >> values[4] >> bytes[0] >> commas[1];
    in >> bytes[1];
    EXPECT_EQ(commas[0], QLatin1Char(',')) << "the separator of a key line stays in the stream";
    EXPECT_EQ(std::vector<int>(bytes, bytes + 2), (std::vector<int>{65, 2})) << "the low 8 bits";
    EXPECT_EQ(in.status(), QTextStream::Ok);
    in >> values[5];
    EXPECT_EQ(std::vector<bool>(values, values + 6), (std::vector<bool>{true, true, false, false, true, false}));
    EXPECT_EQ(in.status(), QTextStream::ReadCorruptData);
    QString blank("   ");
    QTextStream atEnd(&blank);
    atEnd >> values[0];
    EXPECT_EQ(atEnd.status(), QTextStream::ReadPastEnd);
}

TEST(ParameterTextKeyframeDeclaration, SplitsTheInnerCallHonouringQuotes)
{
    for (QString const& line : qstrDataFile("KeyLines.txt").split('\n')) {
        QStringList entries = line.split(" | ");
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        EXPECT_EQ(parseKeyframeDeclaration(entries.takeFirst()), entries) << line.toStdString();
    }
}

TEST(ParameterTextCurveNames, NamesRoundTripAndReadersAreLenient)
{
    for (auto const& row : {std::make_pair(0, "Unset"), {1, "Step"}, {2, "Linear"}, {3, "Bezier"}, {6, "Custom 2"}})
        EXPECT_EQ(qstrInterpolationTypeString(Interpolation(row.first)), row.second);
    for (auto const& row : {std::make_pair(0, "Unset"), {1, "Hold"}, {2, "Linear"}, {3, "Custom 0"}})
        EXPECT_EQ(qstrExtrapolationTypeString(Extrapolation(row.first)), row.second);
    for (int i = 0; i < 9; ++i) {
        Interpolation interpolation{};
        Extrapolation extrapolation{};
        EXPECT_TRUE(bStringToInterpolationType(qstrInterpolationTypeString(Interpolation(i)), interpolation) &&
                    bStringToExtrapolationType(qstrExtrapolationTypeString(Extrapolation(i)), extrapolation));
        EXPECT_EQ(std::make_pair(int(interpolation), int(extrapolation)), std::make_pair(i, i));
    }

    Interpolation interpolation = Interpolation(1);
    for (auto const& row : {std::make_pair(" linear ) )", 2), {"CUSTOM 1)", 5}}) {
        EXPECT_TRUE(bStringToInterpolationType(row.first, interpolation));
        EXPECT_EQ(int(interpolation), row.second) << row.first;
    }
    for (char const* bad : {"Hold", "", "Custom", "Custom -1", "Custom x", "Linearly"})
        EXPECT_FALSE(bStringToInterpolationType(bad, interpolation)) << bad;
    EXPECT_EQ(int(interpolation), 5) << "left alone on failure";
    Extrapolation extrapolation = Extrapolation(2);
    EXPECT_TRUE(!bStringToExtrapolationType("Step", extrapolation) && bStringToExtrapolationType("hOLD", extrapolation));
    EXPECT_EQ(int(extrapolation), 1);
}

TEST(ParameterTextValueText, QuotingWordsAndVariants)
{
    EXPECT_EQ(ValueText<QString>::qstrWritten("say \"hi\""), "\"say \"hi\"\"");
    EXPECT_EQ(ValueText<QString>::qstrDisplay("a b"), "a b");
    // A quote is taken off only where there is one at both ends.
    for (auto const& row : {std::make_pair("\"a=b\"", "a=b"), {"\"a", "\"a"}, {"\"", ""}}) {
        QString text(row.first);
        EXPECT_EQ(ValueText<QString>::tRead(text), row.second) << row.first;
    }
    double d = 0;
    EXPECT_TRUE(!ValueText<double>::bReadWord("abc", d) && ValueText<double>::bReadWord("2.5", d));
    EXPECT_EQ(d, 2.5);

    EXPECT_EQ(std::vector<int>({ValueText<double>::variant(1.5).userType(), ValueText<float>::variant(1.5f).userType(),
                                ValueText<unsigned char>::variant(7).userType(),
                                ValueText<bool>::variant(true).userType(), ValueText<unsigned int>::variant(7u).userType()}),
              std::vector<int>({QMetaType::Double, QMetaType::Float, QMetaType::UChar, QMetaType::Bool, QMetaType::UInt}));
    int value = 3;
    EXPECT_TRUE(ValueText<int>::bFromVariant(QVariant(QString("12")), value));
    EXPECT_EQ(value, 12);
    EXPECT_TRUE(ValueText<int>::bFromVariant(QVariant(QString("x")), value));
    EXPECT_EQ(value, 0) << "a failed conversion gives zero";
    EXPECT_FALSE(ValueText<int>::bFromVariant(QVariant(QStringList{"a"}), value = 3));
    EXPECT_EQ(value, 3);
}
