#include "prm/MovedParameter.h"
#include "prm/VirtualParameter.h"
#include "support/Enumerations.h"

#include <gtest/gtest.h>

namespace {

template <class T>
QString written(Prm::BasicParameter const& parameter, QString const& prefix, bool bQualify)
{
    QString text;
    QTextStream out(&text);
    EXPECT_TRUE(parameter.bStreamOut(out, prefix, bQualify));
    return text;
}

} // namespace

TEST(StaticParameter, WritesOneLineQualifiedOrNot)
{
    double gain = 0.5;
    Prm::VirtualParameter<double> parameter("Gain", &gain);
    EXPECT_EQ(written<double>(parameter, "Clip.", true), "Clip.Gain.value=0.5\n");
    EXPECT_EQ(written<double>(parameter, "Clip.Gain.", false), "Clip.Gain.value=0.5\n");

    Prm::VirtualParameter<double> unnamed("", &gain);
    EXPECT_EQ(written<double>(unnamed, "Clip", true), "Clip.value=0.5\n");

    // A change of the member is seen at the next write.
    gain = 2.0;
    EXPECT_EQ(written<double>(parameter, "", true), "Gain.value=2\n");
}

TEST(StaticParameter, PrintsEachValueTypeByItsWriter)
{
    bool flag = true;
    unsigned char byte = 200;
    _TQ_CLIP_MODE mode = TQ_CLIP_MODE_PING_PONG;
    QString text = "a \"quoted\" word";
    EXPECT_EQ(written<bool>(Prm::VirtualParameter<bool>("Flag", &flag), "", true), "Flag.value=1\n");
    EXPECT_EQ(written<unsigned char>(Prm::VirtualParameter<unsigned char>("Byte", &byte), "", true),
              "Byte.value=200\n");
    EXPECT_EQ(written<_TQ_CLIP_MODE>(Prm::VirtualParameter<_TQ_CLIP_MODE>("Mode", &mode), "", true),
              "Mode.value=3\n");
    // Nothing inside a text is escaped.
    EXPECT_EQ(written<QString>(Prm::VirtualParameter<QString>("Name", &text), "", true),
              "Name.value=\"a \"quoted\" word\"\n");
}

TEST(StaticParameter, ReadsOnlyLinesStartingWithValue)
{
    int number = 0;
    Prm::VirtualParameter<int> parameter("Number", &number);
    EXPECT_FALSE(parameter.bStreamIn("hidden=1"));
    EXPECT_FALSE(parameter.bStreamIn("Number.value=4"));
    EXPECT_EQ(number, 0);

    EXPECT_TRUE(parameter.bStreamIn("VALUE=3"));
    EXPECT_EQ(number, 3);
    EXPECT_TRUE(parameter.bStreamIn("valueless=7"));
    EXPECT_EQ(number, 7);
    // Unparsable and empty values still count as read, and store what the reader leaves.
    EXPECT_TRUE(parameter.bStreamIn("value=abc"));
    EXPECT_EQ(number, 0);
    number = 5;
    EXPECT_TRUE(parameter.bStreamIn("value="));
    EXPECT_EQ(number, 0);
}

TEST(StaticParameter, ReadsTextWithItsQuotingRules)
{
    QString text;
    Prm::VirtualParameter<QString> parameter("Name", &text);
    EXPECT_TRUE(parameter.bStreamIn("value=a=b"));
    EXPECT_EQ(text, "a=b");
    EXPECT_TRUE(parameter.bStreamIn("value=\"x\""));
    EXPECT_EQ(text, "x");
    EXPECT_TRUE(parameter.bStreamIn("value=\"x"));
    EXPECT_EQ(text, "\"x");
    EXPECT_TRUE(parameter.bStreamIn("value=\"say \"hi\"\""));
    EXPECT_EQ(text, "say \"hi\"");

    QString quoted = "\"y\"";
    EXPECT_EQ(Prm::StaticParameter<QString>::fromString(quoted), "y");
    EXPECT_EQ(quoted, "\"y\"");
}

TEST(StaticParameter, OnlyReadingALineRaisesValueChanged)
{
    unsigned int frames = 10;
    Prm::VirtualParameter<unsigned int> parameter("Frames", &frames);
    int raised = 0;
    QObject::connect(&parameter, &Prm::BasicParameter::valueChanged, [&raised] { ++raised; });

    parameter.doSetValue(20);
    EXPECT_EQ(frames, 20u);
    EXPECT_EQ(parameter.value(), 20u);
    frames = 30;
    EXPECT_EQ(parameter.value(), 30u);
    EXPECT_EQ(raised, 0);

    EXPECT_FALSE(parameter.bStreamIn("other=1"));
    EXPECT_EQ(raised, 0);
    EXPECT_TRUE(parameter.bStreamIn("value=40"));
    EXPECT_EQ(raised, 1);
    EXPECT_EQ(frames, 40u);
}

TEST(StaticParameter, NullMemberIsSurvived)
{
    Prm::VirtualParameter<int> parameter("Loose", nullptr);
    parameter.doSetValue(3);
    EXPECT_EQ(parameter.value(), 0);
    EXPECT_TRUE(parameter.bStreamIn("value=9"));
    EXPECT_EQ(written<int>(parameter, "", true), "Loose.value=0\n");
}

TEST(MovedParameter, WritesNothingAndForwardsLines)
{
    Prm::MovedParameter withoutTarget("Render", nullptr);
    EXPECT_EQ(withoutTarget.scriptName(), "Render");
    EXPECT_EQ(written<int>(withoutTarget, "Set.", true), "");
    EXPECT_EQ(written<int>(withoutTarget, "", false), "");
    // Old text with the name still loads, and changes nothing.
    EXPECT_TRUE(withoutTarget.bStreamIn("value=1"));
    EXPECT_TRUE(withoutTarget.bStreamIn("anything"));

    int number = 0;
    auto* target = new Prm::VirtualParameter<int>("Number", &number);
    Prm::MovedParameter moved("OldNumber", target);
    EXPECT_TRUE(moved.bStreamIn("value=12"));
    EXPECT_EQ(number, 12);
    EXPECT_FALSE(moved.bStreamIn("keyframed=1"));

    // A target that goes away reads as none.
    delete target;
    EXPECT_EQ(moved.targetParameter(), nullptr);
    EXPECT_TRUE(moved.bStreamIn("value=13"));
    EXPECT_EQ(number, 12);
}
