#include "prm/TextCases.h"
#include "prm/NumericParameter.h"
#include "prm/Parameter.h"

#include <tuple>

using namespace Prm;
using Filter = boost::function<QString(QString const&)>;

// The cases and their format are in the data file.
TEST(ParameterText, DataFileCasesReadAndWrite)
{
    vRunTextCases("ParameterText.txt");
}

TEST(ParameterText, ReadIsQuietUnblocksSignalsAndKeepsTheMasterName)
{
    NumericParameter<double> p(true, "Gain", 0.0, 0.0, 1.0, InterpolationLinear, ExtrapolationHold);
    ChangeRecorder recorder(p);
    p.blockSignals(true);
    EXPECT_TRUE(p.bStreamIn("keyframes.append( Key( 1, 0.5, Linear ) )"));
    EXPECT_FALSE(p.signalsBlocked()) << "unblocked even though the caller had blocked them";
    LogCapture log;
    EXPECT_FALSE(p.bStreamIn("keyframes.append( Key( 1 ) )"));
    EXPECT_FALSE(p.signalsBlocked());
    EXPECT_TRUE(recorder.events.empty());
    EXPECT_TRUE(p.bStreamIn("MasterParameterId=Core.Gain=x"));
    EXPECT_EQ(p.qstrMasterParameterId(), "Core.Gain") << "ends at a second =";
}

TEST(ParameterText, FilterSeesValueTextsOnlyWithTheirQuotes)
{
    Parameter<QString> p(true, "Label", QString(), InterpolationStep, ExtrapolationHold);
    QStringList seen;
    Filter const upper = [&seen](QString const& text) { seen << text; return text.toUpper(); };
    for (char const* line : {"keyframes.append( Key( 2, \"low\", Step ) )", "value=\"v\"", "MasterParameterId=a",
                             "hidden=0"})
        EXPECT_TRUE(p.streamInValue(line, upper)) << line;
    EXPECT_EQ(seen, (QStringList{"\"low\"", "\"v\""}));
    EXPECT_EQ(std::make_tuple(p.staticValue(), p.keyframeValue(0), p.qstrMasterParameterId()),
              std::make_tuple(QString("V"), QString("LOW"), QString("a")));
}

TEST(ParameterText, FailedKeyLineLeavesAPlainParameterStreamingAndANumericOneRepaired)
{
    LogCapture log;
    IType handles;
    handles.eType = InterpolationBezier;
    handles.dOutTime = 5.0;
    Parameter<double> plain(true, "Gain", 0.0, InterpolationBezier, ExtrapolationHold);
    Curve numeric(true, "Gain", 0.0, -10.0, 10.0, InterpolationBezier, ExtrapolationHold);
    auto const fail = [&handles](auto& p) {
        withKeys(p, {{0.0f, 1.0}}).vSetInterpolationData(handles, 0);
        EXPECT_FALSE(p.bStreamInLine("keyframes.append( Key( 1 ) )"));
        p.vSetValue(2.0, 10.0f);
    };
    fail(plain);
    fail(numeric);
    // Still streaming, the plain one leaves the old last segment alone; the numeric one's bStreamIn cleared it.
    EXPECT_EQ(std::make_pair(plain.interpolationData(0).dOutTime, numeric.interpolationData(0).dOutTime),
              std::make_pair(5.0, 1.0));
    EXPECT_TRUE(plain.bStreamInLine("hidden=0"));
    plain.vSetInterpolationData(handles, 1);
    plain.vSetValue(3.0, 20.0f);
    EXPECT_EQ(plain.interpolationData(1u).dOutTime, 0.0) << "a line read to its end cleared the flag";
}

TEST(ParameterText, WriterPrefixesPrecisionMastersAndMissingKeys)
{
    Parameter<double> pi(false, "Pi", 3.14159265358979, InterpolationStep, ExtrapolationHold);
    QString text;
    QTextStream out(&text);
    out.setRealNumberPrecision(10);
    pi.bStreamOut(out, "", true);
    EXPECT_TRUE(text.startsWith("Pi.value=3.141592654\n")) << "the caller's stream keeps its own precision";
    // bQualify false: the caller has put the name in the prefix already; an empty name adds no dot.
    EXPECT_TRUE(qstrStreamed(pi, "Set.Pi.", false).startsWith("Set.Pi.value=3.14159\n"));
    Parameter<int> unnamed(false, "", 3, InterpolationStep, ExtrapolationHold);
    EXPECT_TRUE(qstrStreamed(unnamed, "Set.").startsWith("Set.value=3\n"));

    auto* master = new Parameter<int>(true, "Master", 0, InterpolationStep, ExtrapolationHold);
    ASSERT_TRUE(master->bAddConstrainedParameter(&unnamed));
    EXPECT_TRUE(qstrStreamed(unnamed, "").endsWith("\nMasterParameterId=Master\n"));
    delete master;
    EXPECT_TRUE(qstrStreamed(unnamed, "").endsWith("\nafter=Hold\n")) << "the name stays, the line does not";

    unnamed.vSetValue(1, 1.0f);
    EXPECT_EQ(unnamed.keyframeSuffixString(1.0001f), "");
    EXPECT_EQ(unnamed.indexSuffixString(1), "");
}

TEST(ParameterText, ValueStringsAndVariants)
{
    NumericParameter<int> clamped(true, "Count", 0, 0, 10, InterpolationLinear, ExtrapolationHold);
    clamped.moveAndChangeKeyframe(0, 0.0f, 0.0f); // no key: no effect
    clamped.vSetValue(5, 0.0f);
    clamped.moveAndChangeKeyframe(50, 0.0f, 0.0f); // stored unclamped
    EXPECT_EQ(clamped.valueString(0.0f, nullptr), "10") << "the value after clamping";
    EXPECT_EQ(clamped.keyframeSuffixString(0.0f), "keyframes.append( Key( 0, 50, Linear ) )");
    clamped.setValueFromString("7", 1.0f);
    clamped.setValueFromString("seven", 2.0f); // bad text changes nothing
    EXPECT_EQ(state(clamped), "0 | 0:50L 1:7L");

    Parameter<QString> text(true, "Text", QString(), InterpolationStep, ExtrapolationHold);
    text.setValueFromString("\"two words\"", 0.0f);
    EXPECT_EQ(text.value(0.0f, nullptr), "\"two") << "one word, quotes kept";

    QVariant const exported = clamped.exportValueAt(1.0f);
    EXPECT_EQ(exported.userType(), int(QMetaType::Int));
    EXPECT_EQ(exported.toInt(), 7);
    clamped.importValueAt(3.0f, QVariant(4.9)); // Qt's conversion rounds
    clamped.importValueAt(4.0f, QVariant(QStringList{"x"})); // one that cannot convert changes nothing
    EXPECT_EQ(state(clamped), "0 | 0:50L 1:7L 3:5L");
}
