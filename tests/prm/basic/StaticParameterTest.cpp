#include "prm/Fixtures.h"
#include "prm/basic/MovedParameter.h"
#include "prm/basic/VirtualParameter.h"

TEST(StaticParameter, WritesOneLineQualifiedOrNotByEachTypesWriter)
{
    double gain = 0.5;
    Prm::VirtualParameter<double> parameter("Gain", &gain);
    EXPECT_EQ(qstrStreamed(parameter, "Clip.", true), "Clip.Gain.value=0.5\n");
    EXPECT_EQ(qstrStreamed(parameter, "Clip.Gain.", false), "Clip.Gain.value=0.5\n");
    EXPECT_EQ(qstrStreamed(Prm::VirtualParameter<double>("", &gain), "Clip"), "Clip.value=0.5\n");
    gain = 2.0; // a change of the member is seen at the next write
    EXPECT_EQ(qstrStreamed(parameter, ""), "Gain.value=2\n");

    bool flag = true;
    unsigned char byte = 200;
    QString text = "a \"quoted\" word";
    EXPECT_EQ(qstrStreamed(Prm::VirtualParameter<bool>("Flag", &flag), ""), "Flag.value=1\n");
    EXPECT_EQ(qstrStreamed(Prm::VirtualParameter<unsigned char>("Byte", &byte), ""), "Byte.value=200\n");
    // Nothing inside a text is escaped.
    EXPECT_EQ(qstrStreamed(Prm::VirtualParameter<QString>("Name", &text), ""), "Name.value=\"a \"quoted\" word\"\n");
}

TEST(StaticParameter, ReadsOnlyLinesStartingWithValue)
{
    int number = 5;
    Prm::VirtualParameter<int> parameter("Number", &number);
    EXPECT_FALSE(parameter.bStreamIn("hidden=1"));
    EXPECT_FALSE(parameter.bStreamIn("Number.value=4"));
    EXPECT_EQ(number, 5);
    // Unparsable and empty values still count as read, and store what the reader leaves.
    for (auto const& row : {std::make_pair("VALUE=3", 3), {"valueless=7", 7}, {"value=abc", 0}, {"value=8", 8},
                            {"value=", 0}}) {
        EXPECT_TRUE(parameter.bStreamIn(row.first)) << row.first;
        EXPECT_EQ(number, row.second) << row.first;
    }

    QString text;
    Prm::VirtualParameter<QString> name("Name", &text);
    for (auto const& row : {std::make_pair("value=a=b", "a=b"), {"value=\"x\"", "x"}, {"value=\"x", "\"x"},
                            {"value=\"say \"hi\"\"", "say \"hi\""}}) {
        EXPECT_TRUE(name.bStreamIn(row.first)) << row.first;
        EXPECT_EQ(text, row.second) << row.first;
    }
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
    frames = 30;
    EXPECT_EQ(parameter.value(), 30u);
    EXPECT_FALSE(parameter.bStreamIn("other=1"));
    EXPECT_EQ(raised, 0);
    EXPECT_TRUE(parameter.bStreamIn("value=40"));
    EXPECT_EQ(raised, 1);
    EXPECT_EQ(frames, 40u);

    Prm::VirtualParameter<int> loose("Loose", nullptr); // a null member is survived
    loose.doSetValue(3);
    EXPECT_EQ(loose.value(), 0);
    EXPECT_TRUE(loose.bStreamIn("value=9"));
    EXPECT_EQ(qstrStreamed(loose, ""), "Loose.value=0\n");
}

TEST(MovedParameter, WritesNothingAndForwardsLines)
{
    Prm::MovedParameter withoutTarget("Render", nullptr);
    EXPECT_EQ(qstrStreamed(withoutTarget, "Set."), "");
    EXPECT_EQ(qstrStreamed(withoutTarget, "", false), "");
    // Old text with the name still loads, and changes nothing.
    EXPECT_TRUE(withoutTarget.bStreamIn("value=1"));
    EXPECT_TRUE(withoutTarget.bStreamIn("anything"));

    int number = 0;
    auto* target = new Prm::VirtualParameter<int>("Number", &number);
    Prm::MovedParameter moved("OldNumber", target);
    EXPECT_TRUE(moved.bStreamIn("value=12"));
    EXPECT_EQ(number, 12);
    EXPECT_FALSE(moved.bStreamIn("keyframed=1"));
    delete target; // a target that goes away reads as none
    EXPECT_EQ(moved.targetParameter(), nullptr);
    EXPECT_TRUE(moved.bStreamIn("value=13"));
    EXPECT_EQ(number, 12);
}
