#include "prm/Fixtures.h"
#include "prm/NumericParameter.h"
#include "prm/Parameter.h"

#include <tuple>

using Filter = boost::function<QString(QString const&)>;

TEST(ParameterTextReader, FieldWordsArePrefixTestsInOrder)
{
    Prm::NumericParameter<double> p(true, "Gain", 0.0, 0.0, 1.0, Prm::InterpolationLinear, Prm::ExtrapolationHold);
    EXPECT_TRUE(p.bStreamIn("value=7.5"));
    EXPECT_EQ(p.staticValue(), 7.5) << "value= is not clamped";
    EXPECT_EQ(p.value(0.0f, nullptr), 1.0);
    EXPECT_TRUE(p.bStreamIn("HIDDEN=1=0"));
    EXPECT_TRUE(p.isHidden());
    EXPECT_TRUE(p.bStreamIn("keyframed=0"));
    EXPECT_FALSE(p.isKeyframed()) << "keyframed= is not taken for keyframes";
    EXPECT_TRUE(p.bStreamIn(QString::fromUtf8("\u212AEYFRAMED=1")));
    EXPECT_TRUE(p.isKeyframed()) << "Qt's case folding takes the Kelvin sign for a k";
    EXPECT_TRUE(p.bStreamIn("keyframed=0"));
    EXPECT_TRUE(p.bStreamIn("keyframedness=1"));
    EXPECT_TRUE(p.isKeyframed());
    EXPECT_TRUE(p.bStreamIn("beforehand=Linear"));
    EXPECT_EQ(p.extrapolationBefore(), Prm::ExtrapolationLinear) << "a word that begins with before";
    EXPECT_TRUE(p.bStreamIn("after=Sideways"));
    EXPECT_EQ(p.extrapolationAfter(), Prm::ExtrapolationHold) << "an unknown name keeps the field";
    EXPECT_TRUE(p.bStreamIn("MasterParameterId=Core.Gain=x"));
    EXPECT_EQ(p.qstrMasterParameterId(), "Core.Gain") << "ends at a second =";
    EXPECT_EQ(p.master(), nullptr);
    EXPECT_FALSE(p.bStreamIn("colour=1"));
    EXPECT_FALSE(p.bStreamIn(""));
}

TEST(ParameterTextReader, KeyLinesAndTheirFailures)
{
    LogCapture log;
    Prm::Parameter<double> p(true, "Gain", 0.0, Prm::InterpolationLinear, Prm::ExtrapolationHold);
    EXPECT_TRUE(p.streamInValue("keyframes.append( Key( 25, 1.25, Step ) )", Filter()));
    EXPECT_TRUE(p.streamInValue("KEYFRAMES.APPEND( KEY( 1, 0.5, BEZIER ) )", Filter()));
    ASSERT_EQ(p.keyframeCount(), 2u) << "key lines may come in any order";
    EXPECT_EQ(p.keyframeTime(0), 1.0f);
    EXPECT_EQ(p.interpolation(0u), Prm::InterpolationBezier);
    EXPECT_EQ(p.interpolation(1u), Prm::InterpolationStep);
    EXPECT_TRUE(p.streamInValue("keyframes.append( Key( 25, 2, Wobbly ) )", Filter()));
    EXPECT_EQ(p.keyframeValue(1), 2.0) << "overwritten in place";
    EXPECT_EQ(p.interpolation(1u), Prm::InterpolationStep) << "an unknown name keeps the kind";
    EXPECT_TRUE(p.streamInValue("keyframes.append( BezierKey( 1, 0.5, 8, 0.1, -8, -0.1 ) ) )", Filter()));
    Prm::IType const r = p.interpolationData(0u);
    EXPECT_EQ(std::make_tuple(r.dOutTime, r.dOutValue, r.dInTime, r.dInValue), std::make_tuple(8.0, 0.1, -8.0, -0.1));
    EXPECT_TRUE(p.streamInValue("keyframes.append( Key( x, y, Step ) )", Filter()));
    EXPECT_EQ(p.keyframeTime(0), 0.0f) << "unparsable numbers read as 0";
    EXPECT_TRUE(log.lines.empty());

    EXPECT_FALSE(p.streamInValue("keyframes.append( BezierKey( 1, 2 ) )", Filter()));
    EXPECT_FALSE(p.streamInValue("keyframes.append( Key( 30, 2, 1, 2 BezierKey ) )", Filter()));
    ASSERT_EQ(log.lines.size(), 2u);
    EXPECT_EQ(log.lines.at(0), "Parameter::streamInValue(): failed to parse Key() block: "
                               "'keyframes.append( BezierKey( 1, 2 ) )'");
    EXPECT_EQ(log.lines.at(1), "Parameter::streamInValue(): failed to parse BezierKey() block: "
                               "'keyframes.append( Key( 30, 2, 1, 2 BezierKey ) )'");
    EXPECT_TRUE(p.bKeyframeAt(30.0f)) << "the key of a short BezierKey line stays";
}

TEST(ParameterTextReader, KeysArriveBeforeKeyframedOnAStaticParameter)
{
    Prm::Parameter<int> p(false, "Count", 0, Prm::InterpolationStep, Prm::ExtrapolationHold);
    EXPECT_TRUE(p.streamInValue("keyframes.append( Key( 1, 5, Linear ) )", Filter()));
    EXPECT_TRUE(p.streamInValue("keyframes.append( Key( 2, 6, Linear ) )", Filter()));
    EXPECT_TRUE(p.streamInValue("keyframed=1", Filter()));
    EXPECT_TRUE(p.isKeyframed());
    EXPECT_EQ(p.keyframeCount(), 0u);
    EXPECT_EQ(p.staticValue(), 6) << "each key value went to the static value";

    Prm::Parameter<int> keyed(true, "Count", 0, Prm::InterpolationStep, Prm::ExtrapolationHold);
    keyed.vSetValue(3, 1.0f);
    EXPECT_TRUE(keyed.streamInValue("value=9", Filter()));
    EXPECT_EQ(keyed.staticValue(), 9);
    EXPECT_EQ(keyed.value(1.0f, nullptr), 3) << "value= leaves the keys alone";
}

TEST(ParameterTextReader, SignalsAreQuietDuringAReadAndOnAfterIt)
{
    LogCapture log;
    Prm::NumericParameter<double> p(true, "Gain", 0.0, 0.0, 1.0, Prm::InterpolationLinear, Prm::ExtrapolationHold);
    ChangeRecorder recorder(p);
    p.blockSignals(true);
    EXPECT_TRUE(p.bStreamIn("keyframes.append( Key( 1, 0.5, Linear ) )"));
    EXPECT_FALSE(p.signalsBlocked()) << "unblocked even though the caller had blocked them";
    EXPECT_FALSE(p.bStreamIn("keyframes.append( Key( 1 ) )"));
    EXPECT_FALSE(p.signalsBlocked());
    EXPECT_TRUE(recorder.events.empty());
}

TEST(ParameterTextReader, TextValuesFiltersAndQuotes)
{
    Prm::Parameter<QString> p(true, "Label", QString(), Prm::InterpolationStep, Prm::ExtrapolationHold);
    EXPECT_TRUE(p.streamInValue("value=\"a=b \"c\"\"", Filter()));
    EXPECT_EQ(p.staticValue(), "a=b \"c\"") << "equals signs and inner quotes stay";
    EXPECT_TRUE(p.streamInValue("value=\"open", Filter()));
    EXPECT_EQ(p.staticValue(), "\"open");
    EXPECT_TRUE(p.streamInValue("keyframes.append( Key( 1, \"x, y\", Step ) )", Filter()));
    EXPECT_EQ(p.keyframeValue(0), "x, y");

    QStringList seen;
    Filter const upper = [&seen](QString const& text) {
        seen << text;
        return text.toUpper();
    };
    EXPECT_TRUE(p.streamInValue("keyframes.append( Key( 2, \"low\", Step ) )", upper));
    EXPECT_TRUE(p.streamInValue("value=\"v\"", upper));
    EXPECT_TRUE(p.streamInValue("MasterParameterId=Core.a", upper));
    EXPECT_TRUE(p.streamInValue("hidden=0", upper));
    EXPECT_EQ(seen, (QStringList{"\"low\"", "\"v\""})) << "the filter sees value texts only, with quotes";
    EXPECT_EQ(p.keyframeValue(1), "LOW");
    EXPECT_EQ(p.qstrMasterParameterId(), "Core.a");
}

TEST(ParameterTextReader, EveryTextWithoutALineBreakRoundTripsThroughAKeyLine)
{
    LogCapture log;
    Prm::Parameter<QString> written(true, "Url", QString(), Prm::InterpolationStep, Prm::ExtrapolationHold);
    QStringList const texts = {"\"", "\"\"", "a\"b", "a, \"b\"", ")(", "%1 and %2", "say \"hi, there\"",
                               "C:/shots/it's \"final.exr", "\", linear ) )", " padded ", "", "plain"};
    for (int i = 0; i < texts.size(); ++i)
        written.vSetValue(texts.at(i), float(i));
    Prm::Parameter<QString> read(true, "Url", QString(), Prm::InterpolationStep, Prm::ExtrapolationHold);
    for (int i = 0; i < texts.size(); ++i)
        EXPECT_TRUE(read.streamInValue(written.indexSuffixString(i), Filter())) << written.indexSuffixString(i).toStdString();
    EXPECT_EQ(keysOf(read), keysOf(written));
    EXPECT_TRUE(log.lines.empty());

    // Lines that really lack entries still fail with their own words.
    EXPECT_FALSE(read.streamInValue("keyframes.append( Key( 1, \"\"\" ) )", Filter()));
    EXPECT_FALSE(read.streamInValue("keyframes.append( BezierKey( 1, \"a\"b\", 2 ) )", Filter()));
    ASSERT_EQ(log.lines.size(), 2u);
    EXPECT_EQ(log.lines[0], "Parameter::streamInValue(): failed to parse Key() block: "
                            "'keyframes.append( Key( 1, \"\"\" ) )'");
    EXPECT_EQ(log.lines[1], "Parameter::streamInValue(): failed to parse BezierKey() block: "
                            "'keyframes.append( BezierKey( 1, \"a\"b\", 2 ) )'");
}

TEST(ParameterTextReader, PlainParameterStaysStreamingAfterAFailedKeyLine)
{
    LogCapture log;
    Prm::Parameter<double> p(true, "Gain", 0.0, Prm::InterpolationBezier, Prm::ExtrapolationHold);
    Prm::IType handles;
    handles.eType = Prm::InterpolationBezier;
    handles.dOutTime = 5.0;
    p.vSetValue(1.0, 0.0f);
    p.vSetInterpolationData(handles, 0);
    EXPECT_FALSE(p.streamInValue("keyframes.append( Key( 1 ) )", Filter()));
    p.vSetValue(2.0, 10.0f);
    EXPECT_EQ(p.interpolationData(0u).dOutTime, 5.0) << "still streaming: the old last segment is left alone";
    EXPECT_TRUE(p.streamInValue("hidden=0", Filter()));
    p.vSetInterpolationData(handles, 1);
    p.vSetValue(3.0, 20.0f);
    EXPECT_EQ(p.interpolationData(1u).dOutTime, 0.0) << "a line read to its end cleared the flag";
}
