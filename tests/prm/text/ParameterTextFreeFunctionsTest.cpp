#include "prm/text/CurveTypeNames.h"
#include "prm/text/ParameterLine.h"
#include "prm/text/StreamOperators.h"
#include "prm/text/ValueText.h"

#include <gtest/gtest.h>

#include <QTextStream>

namespace {

template <class T>
QString qstrWrite(T const& value)
{
    QString text;
    QTextStream out(&text);
    out << value;
    out.flush();
    return text;
}

} // namespace

TEST(ParameterTextStreamOperators, BoolAndUnsignedCharAreDigits)
{
    EXPECT_EQ(qstrWrite(true) + qstrWrite(false), "10");
    EXPECT_EQ(qstrWrite(static_cast<unsigned char>(200)), "200");

    QString text("1, TRUE false 0 -3 65, 258 maybe");
    QTextStream in(&text);
    bool value = false;
    in >> value;
    EXPECT_TRUE(value);
    QChar comma;
    in >> comma;
    EXPECT_EQ(comma, QLatin1Char(',')) << "the separator of a key line stays in the stream";
    for (bool expected : {true, false, false, true}) {
        value = !expected;
        in >> value;
        EXPECT_EQ(value, expected);
    }
    unsigned char byte = 0;
    in >> byte;
    EXPECT_EQ(byte, 65);
    in >> comma >> byte;
    EXPECT_EQ(byte, 2) << "low 8 bits of an out-of-range number";
    EXPECT_EQ(in.status(), QTextStream::Ok);
    value = true;
    in >> value;
    EXPECT_FALSE(value);
    EXPECT_EQ(in.status(), QTextStream::ReadCorruptData);

    QString empty("   ");
    QTextStream atEnd(&empty);
    atEnd >> value;
    EXPECT_EQ(atEnd.status(), QTextStream::ReadPastEnd);
}

TEST(ParameterTextKeyframeDeclaration, SplitsTheInnerCallHonouringQuotes)
{
    std::pair<char const*, QStringList> const rows[] = {
        {"keyframes.append( Key( 1, 0.5, Linear ) )", {"1", "0.5", "Linear"}},
        {"keyframes.append( BezierKey( 1, 0.5, 8, 0.1, -8, -0.1 ) )", {"1", "0.5", "8", "0.1", "-8", "-0.1"}},
        {"KEYFRAMES.APPEND(KEY(2,3,STEP))", {"2", "3", "STEP"}},
        // Commas and parentheses inside quotes belong to the value, and the quotes stay for the reader.
        {"keyframes.append( Key( 4, \"a, (b)\", Step ) )", {"4", "\"a, (b)\"", "Step"}},
        {"keyframes.append( Key( 1, 2", {"1", "2"}}, // an unclosed call still gives its entries
        // Quotes that do not pair up around a value as written: the value runs to the line's last quote.
        {"keyframes.append( Key( 1, \"a\"b\", Step ) )", {"1", "\"a\"b\"", "Step"}},
        {"keyframes.append( Key( 1, \"say \"hi, there\"\", Step ) )", {"1", "\"say \"hi, there\"\"", "Step"}},
        {"keyframes.append( BezierKey( 1, \"\"\", 1, 2, 3, 4 ) )", {"1", "\"\"\"", "1", "2", "3", "4"}},
        // With nothing but a parenthesis behind the last quote, the line splits as it always did.
        {"keyframes.append( Key( 1, \"a\", \"Step\" ) )", {"1", "\"a\"", "\"Step\""}},
        {"keyframes.append( Key( 1, \"\"\" ) )", {"1", "\"\"\" ) )"}},
        {"keyframes.append( Key( 1 ) )", {"1"}},
        {"keyframes", {}},
    };
    for (auto const& row : rows)
        EXPECT_EQ(Prm::parseKeyframeDeclaration(row.first), row.second) << row.first;
}

TEST(ParameterTextCurveNames, NamesRoundTripAndReadersAreLenient)
{
    for (auto const& row : {std::make_pair(0, "Unset"), {1, "Step"}, {2, "Linear"}, {3, "Bezier"}, {6, "Custom 2"}})
        EXPECT_EQ(Prm::qstrInterpolationTypeString(static_cast<Prm::Interpolation>(row.first)), row.second);
    for (auto const& row : {std::make_pair(0, "Unset"), {1, "Hold"}, {2, "Linear"}, {3, "Custom 0"}})
        EXPECT_EQ(Prm::qstrExtrapolationTypeString(static_cast<Prm::Extrapolation>(row.first)), row.second);

    for (int i = 0; i < 9; ++i) {
        Prm::Interpolation interpolation{};
        ASSERT_TRUE(Prm::bStringToInterpolationType(
            Prm::qstrInterpolationTypeString(static_cast<Prm::Interpolation>(i)), interpolation));
        EXPECT_EQ(static_cast<int>(interpolation), i);
        Prm::Extrapolation extrapolation{};
        ASSERT_TRUE(Prm::bStringToExtrapolationType(
            Prm::qstrExtrapolationTypeString(static_cast<Prm::Extrapolation>(i)), extrapolation));
        EXPECT_EQ(static_cast<int>(extrapolation), i);
    }

    Prm::Interpolation interpolation = static_cast<Prm::Interpolation>(1);
    for (auto const& row : {std::make_pair(" linear ) )", 2), {"CUSTOM 1)", 5}}) {
        EXPECT_TRUE(Prm::bStringToInterpolationType(row.first, interpolation));
        EXPECT_EQ(static_cast<int>(interpolation), row.second) << row.first;
    }
    for (char const* bad : {"Hold", "", "Custom", "Custom -1", "Custom x", "Linearly"}) {
        EXPECT_FALSE(Prm::bStringToInterpolationType(bad, interpolation)) << bad;
        EXPECT_EQ(static_cast<int>(interpolation), 5) << "left alone on failure";
    }
    Prm::Extrapolation extrapolation = static_cast<Prm::Extrapolation>(2);
    EXPECT_FALSE(Prm::bStringToExtrapolationType("Step", extrapolation));
    EXPECT_TRUE(Prm::bStringToExtrapolationType("hOLD", extrapolation));
    EXPECT_EQ(static_cast<int>(extrapolation), 1);
}

TEST(ParameterTextValueText, QuotingAndWordReading)
{
    using Text = Prm::ValueText<QString>;
    EXPECT_EQ(Text::qstrWritten("say \"hi\""), "\"say \"hi\"\"");
    EXPECT_EQ(Text::qstrDisplay("a b"), "a b");
    // A quote is taken off only where there is one at both ends.
    for (auto const& row : {std::make_pair("\"a=b\"", "a=b"), {"\"a", "\"a"}, {"\"", ""}}) {
        QString text(row.first);
        EXPECT_EQ(Text::tRead(text), row.second) << row.first;
    }

    double d = 0;
    EXPECT_FALSE(Prm::ValueText<double>::bReadWord("abc", d));
    EXPECT_TRUE(Prm::ValueText<double>::bReadWord("2.5", d));
    EXPECT_EQ(d, 2.5);
}

TEST(ParameterTextValueText, VariantTypes)
{
    EXPECT_EQ(Prm::ValueText<double>::variant(1.5).userType(), int(QMetaType::Double));
    EXPECT_EQ(Prm::ValueText<float>::variant(1.5f).userType(), int(QMetaType::Float));
    EXPECT_EQ(Prm::ValueText<unsigned char>::variant(7).userType(), int(QMetaType::UChar));
    EXPECT_EQ(Prm::ValueText<bool>::variant(true).userType(), int(QMetaType::Bool));
    EXPECT_EQ(Prm::ValueText<unsigned int>::variant(7u).userType(), int(QMetaType::UInt));

    int value = 3;
    EXPECT_TRUE(Prm::ValueText<int>::bFromVariant(QVariant(QString("12")), value));
    EXPECT_EQ(value, 12);
    EXPECT_TRUE(Prm::ValueText<int>::bFromVariant(QVariant(QString("x")), value));
    EXPECT_EQ(value, 0) << "a failed conversion gives zero";
    value = 3;
    EXPECT_FALSE(Prm::ValueText<int>::bFromVariant(QVariant(QStringList{"a"}), value));
    EXPECT_EQ(value, 3);
}
