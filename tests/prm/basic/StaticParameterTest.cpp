#include "prm/Fixtures.h"
#include "prm/basic/MovedParameter.h"
#include "prm/basic/VirtualParameter.h"

using namespace Prm;

TEST(StaticParameter, WritesOneLineQualifiedOrNotByEachTypesWriter)
{
    double gain = 0.5;
    VirtualParameter<double> parameter("Gain", &gain);
    EXPECT_EQ(qstrStreamed(parameter, "Clip.", true) + qstrStreamed(parameter, "Clip.Gain.", false) +
                  qstrStreamed(VirtualParameter<double>("", &gain), "Clip"),
              "Clip.Gain.value=0.5\nClip.Gain.value=0.5\nClip.value=0.5\n");
    gain = 2.0; // a change of the member is seen at the next write
    bool flag = true;
    unsigned char byte = 200;
    QString text = "a \"quoted\" word"; // nothing inside a text is escaped
    EXPECT_EQ(qstrStreamed(parameter, "") + qstrStreamed(VirtualParameter<bool>("Flag", &flag), "") +
                  qstrStreamed(VirtualParameter<unsigned char>("Byte", &byte), "") +
                  qstrStreamed(VirtualParameter<QString>("Name", &text), ""),
              "Gain.value=2\nFlag.value=1\nByte.value=200\nName.value=\"a \"quoted\" word\"\n");
}

TEST(StaticParameter, ReadsOnlyLinesStartingWithValue)
{
    int number = 5;
    VirtualParameter<int> parameter("Number", &number);
    EXPECT_FALSE(parameter.bStreamIn("hidden=1") || parameter.bStreamIn("Number.value=4"));
    EXPECT_EQ(number, 5);
    // Unparsable and empty values still count as read, and store what the reader leaves.
    for (auto const& row : {std::make_pair("VALUE=3", 3), {"valueless=7", 7}, {"value=abc", 0}, {"value=8", 8},
                            {"value=", 0}}) {
        EXPECT_TRUE(parameter.bStreamIn(row.first)) << row.first;
        EXPECT_EQ(number, row.second) << row.first;
    }
    QString text;
    VirtualParameter<QString> name("Name", &text);
    for (auto const& row : {std::make_pair("value=a=b", "a=b"), {"value=\"x\"", "x"}, {"value=\"x", "\"x"},
                            {"value=\"say \"hi\"\"", "say \"hi\""}}) {
        EXPECT_TRUE(name.bStreamIn(row.first)) << row.first;
        EXPECT_EQ(text, row.second) << row.first;
    }
    QString quoted = "\"y\"";
    EXPECT_EQ(StaticParameter<QString>::fromString(quoted), "y");
    EXPECT_EQ(quoted, "\"y\"");
}

TEST(StaticParameter, OnlyReadingALineRaisesValueChanged)
{
    unsigned int frames = 10;
    VirtualParameter<unsigned int> parameter("Frames", &frames);
    int raised = 0;
    QObject::connect(&parameter, &BasicParameter::valueChanged, [&raised] { ++raised; });
    parameter.doSetValue(20);
    EXPECT_EQ(frames, 20u);
    frames = 30;
    EXPECT_EQ(parameter.value(), 30u);
    EXPECT_FALSE(parameter.bStreamIn("other=1"));
    EXPECT_EQ(raised, 0);
    EXPECT_TRUE(parameter.bStreamIn("value=40"));
    EXPECT_EQ(std::make_pair(raised, frames), std::make_pair(1, 40u));

    VirtualParameter<int> loose("Loose", nullptr); // a null member is survived
    loose.doSetValue(3);
    EXPECT_EQ(loose.value(), 0);
    EXPECT_TRUE(loose.bStreamIn("value=9"));
    EXPECT_EQ(qstrStreamed(loose, ""), "Loose.value=0\n");
}

TEST(MovedParameter, WritesNothingAndForwardsLines)
{
    MovedParameter withoutTarget("Render", nullptr);
    EXPECT_EQ(qstrStreamed(withoutTarget, "Set.") + qstrStreamed(withoutTarget, "", false), "");
    // Old text with the name still loads, and changes nothing.
    EXPECT_TRUE(withoutTarget.bStreamIn("value=1") && withoutTarget.bStreamIn("anything"));

    int number = 0;
    auto* target = new VirtualParameter<int>("Number", &number);
    MovedParameter moved("OldNumber", target);
    EXPECT_TRUE(moved.bStreamIn("value=12"));
    EXPECT_FALSE(moved.bStreamIn("keyframed=1"));
    delete target; // a target that goes away reads as none
    EXPECT_EQ(moved.targetParameter(), nullptr);
    EXPECT_TRUE(moved.bStreamIn("value=13"));
    EXPECT_EQ(number, 12);
}
