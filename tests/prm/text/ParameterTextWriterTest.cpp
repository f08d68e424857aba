#include "prm/Fixtures.h"
#include "prm/NumericParameter.h"
#include "prm/Parameter.h"

#include <tuple>

namespace {

template <class P>
QStringList writtenLines(P const& parameter, QString const& prefix = "Set.", bool bQualify = true)
{
    return qstrStreamed(parameter, prefix, bQualify).split('\n', Qt::SkipEmptyParts);
}

Prm::IType bezier(double outTime, double outValue, double inTime, double inValue)
{
    Prm::IType record;
    record.eType = Prm::InterpolationBezier;
    std::tie(record.dOutTime, record.dOutValue, record.dInTime, record.dInValue) =
        std::tie(outTime, outValue, inTime, inValue);
    return record;
}

} // namespace

TEST(ParameterTextWriter, StaticKeyedBezierAndEmptyKeyed)
{
    Prm::Parameter<double> still(false, "Gain", 0.5, Prm::InterpolationLinear, Prm::ExtrapolationHold);
    EXPECT_EQ(writtenLines(still), (QStringList{"Set.Gain.value=0.5", "Set.Gain.hidden=0", "Set.Gain.keyframed=0",
                                                "Set.Gain.before=Hold", "Set.Gain.after=Hold"}));

    Prm::Parameter<double> keyed(true, "Gain", 0.5, Prm::InterpolationLinear, Prm::ExtrapolationLinear);
    EXPECT_EQ(writtenLines(keyed), (QStringList{"Set.Gain.value=0.5", "Set.Gain.hidden=0", "Set.Gain.keyframed=1",
                                                "Set.Gain.before=Linear", "Set.Gain.after=Linear"}));

    keyed.vSetValue(0.5, 1.0f);
    keyed.vSetValue(1.25, 25.0f);
    keyed.hide(true);
    EXPECT_EQ(writtenLines(keyed),
              (QStringList{"Set.Gain.keyframes.append( Key( 1, 0.5, Linear ) )",
                           "Set.Gain.keyframes.append( Key( 25, 1.25, Linear ) )", "Set.Gain.hidden=1",
                           "Set.Gain.keyframed=1", "Set.Gain.before=Linear", "Set.Gain.after=Linear"}));

    Prm::Parameter<double> curved(true, "Gain", 0.0, Prm::InterpolationStep, Prm::ExtrapolationHold);
    curved.vSetValue(0.5, 1.0f);
    curved.vSetInterpolationData(bezier(8, 0.1, -8, -0.1), 0);
    EXPECT_EQ(writtenLines(curved).first(), "Set.Gain.keyframes.append( BezierKey( 1, 0.5, 8, 0.1, -8, -0.1 ) )");
    EXPECT_EQ(curved.keyframeSuffixString(1.0001f), "");
    EXPECT_EQ(curved.indexSuffixString(1), "") << "an index out of range gives no text";
}

TEST(ParameterTextWriter, SixSignificantDigitsEverywhereButTheCallersStream)
{
    Prm::NumericParameter<double> p(true, "Angle", 0.0, 0.0, 1e9, Prm::InterpolationStep, Prm::ExtrapolationHold);
    p.vSetValue(3.14159265358979, 1234.5678f);
    p.vSetInterpolationData(bezier(0.123456789, 1e-7, -1e7, 2.5), 0);
    EXPECT_EQ(p.keyframeSuffixString(1234.5678f),
              "keyframes.append( BezierKey( 1234.57, 3.14159, 0.123457, 1e-07, -1e+07, 2.5 ) )");

    Prm::Parameter<double> still(false, "Pi", 3.14159265358979, Prm::InterpolationStep, Prm::ExtrapolationHold);
    QString text;
    QTextStream out(&text);
    out.setRealNumberPrecision(10);
    still.bStreamOut(out, "", true);
    EXPECT_TRUE(text.startsWith("Pi.value=3.141592654\n")) << qPrintable(text);
}

TEST(ParameterTextWriter, ValueTypesAndPrefixRules)
{
    Prm::Parameter<QString> name(true, "Name", QString("a \"b\", c"), Prm::InterpolationStep,
                                 Prm::ExtrapolationHold);
    EXPECT_EQ(writtenLines(name, "").first(), "Name.value=\"a \"b\", c\"");
    name.vSetValue("x=1", 2.0f);
    EXPECT_EQ(writtenLines(name, "").first(), "Name.keyframes.append( Key( 2, \"x=1\", Step ) )");
    EXPECT_EQ(name.valueString(2.0f, nullptr), "x=1") << "valueString shows no quotes";

    Prm::NumericParameter<bool> flag(false, "On", true, false, true, Prm::InterpolationStep, Prm::ExtrapolationHold);
    EXPECT_EQ(writtenLines(flag, "").first(), "On.value=1");
    Prm::NumericParameter<unsigned char> level(true, "Level", 7, 0, 255, Prm::InterpolationStep,
                                               Prm::ExtrapolationHold);
    level.vSetValue(200, 0.0f);
    EXPECT_EQ(writtenLines(level, "").first(), "Level.keyframes.append( Key( 0, 200, Step ) )");

    // bQualify false: the caller has put the name in the prefix already.
    EXPECT_EQ(writtenLines(flag, "Set.On.", false).first(), "Set.On.value=1");
    Prm::Parameter<int> unnamed(false, "", 3, Prm::InterpolationStep, Prm::ExtrapolationHold);
    EXPECT_EQ(writtenLines(unnamed, "Set.").first(), "Set.value=3") << "an empty name adds no dot";
}

TEST(ParameterTextWriter, MasterLineOnlyWhileTheMasterLives)
{
    auto* master = new Prm::Parameter<int>(true, "Master", 0, Prm::InterpolationStep, Prm::ExtrapolationHold);
    Prm::Parameter<int> slave(true, "Slave", 0, Prm::InterpolationStep, Prm::ExtrapolationHold);
    ASSERT_TRUE(master->bAddConstrainedParameter(&slave));
    EXPECT_EQ(writtenLines(slave, "").last(), "Slave.MasterParameterId=" + master->extendedName());
    delete master;
    EXPECT_TRUE(writtenLines(slave, "").last().startsWith("Slave.after="));
    EXPECT_FALSE(slave.qstrMasterParameterId().isEmpty()) << "the name stays, the line does not";
}

TEST(ParameterTextWriter, ValueStringsAndVariants)
{
    Prm::NumericParameter<int> clamped(true, "Count", 0, 0, 10, Prm::InterpolationLinear, Prm::ExtrapolationHold);
    clamped.moveAndChangeKeyframe(0, 0.0f, 0.0f); // no key: no effect
    clamped.vSetValue(5, 0.0f);
    clamped.moveAndChangeKeyframe(50, 0.0f, 0.0f); // stored unclamped
    EXPECT_EQ(clamped.valueString(0.0f, nullptr), "10") << "the value after clamping";
    EXPECT_EQ(clamped.keyframeSuffixString(0.0f), "keyframes.append( Key( 0, 50, Linear ) )");

    clamped.setValueFromString("7", 1.0f);
    EXPECT_EQ(clamped.keyframeCount(), 2u);
    clamped.setValueFromString("seven", 2.0f);
    EXPECT_EQ(clamped.keyframeCount(), 2u) << "bad text changes nothing";

    Prm::Parameter<QString> text(true, "Text", QString(), Prm::InterpolationStep, Prm::ExtrapolationHold);
    text.setValueFromString("\"two words\"", 0.0f);
    EXPECT_EQ(text.value(0.0f, nullptr), "\"two") << "one word, quotes kept";

    QVariant const exported = clamped.exportValueAt(1.0f);
    EXPECT_EQ(exported.userType(), int(QMetaType::Int));
    EXPECT_EQ(exported.toInt(), 7);
    clamped.importValueAt(3.0f, QVariant(4.9));
    EXPECT_EQ(clamped.value(3.0f, nullptr), 5) << "Qt's conversion rounds";
    clamped.importValueAt(4.0f, QVariant(QStringList{"x"}));
    EXPECT_FALSE(clamped.bKeyframeAt(4.0f)) << "a variant that cannot convert changes nothing";
}
