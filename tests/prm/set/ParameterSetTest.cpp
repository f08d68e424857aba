#include "prm/Fixtures.h"
#include "prm/basic/MovedParameter.h"
#include "prm/basic/VirtualParameter.h"
#include "prm/NumericParameter.h"
#include "prm/set/ParameterSet.h"
#include "prm/text/ParameterTextDocument.h"

#include <QFile>
#include <algorithm>
#include <tuple>

using namespace Prm;

namespace {

class ChildSet : public ParameterSet {
public:
    ChildSet() : ParameterSet("ROI", nullptr)
    {
        addParameter(&width);
        addParameter(&height);
    }
    Curve width{true, "Width", 1.0, 0.0, 100.0, InterpolationLinear, ExtrapolationHold};
    Curve height{true, "Height", 2.0, 0.0, 100.0, InterpolationLinear, ExtrapolationHold};
};

// Two parameters share "HomograpyZX" and two children "ROI", as in the warp sets with their two cameras.
// Basic parameters the set does not own die here.
class RootSet : public ParameterSet {
public:
    explicit RootSet(bool bOwned = true) : ParameterSet("Core", nullptr)
    {
        for (auto* parameter : std::initializer_list<ParameterWithoutType*>{&gain, &label, &first, &second, &follower})
            addParameter(parameter);
        basicParameters << new VirtualParameter<int>("Frames", &frames) << new MovedParameter("OldName", nullptr);
        bBasicParametersOwned = bOwned;
        childSets << &roi << &roi2;
    }
    ~RootSet() override
    {
        if (!bBasicParametersOwned)
            qDeleteAll(basicParameters);
    }
    void vAddBasic(BasicParameter* parameter) { basicParameters.append(parameter); }
    Curve gain{true, "Gain", 0.5, 0.0, 10.0, InterpolationLinear, ExtrapolationHold};
    Parameter<QString> label{true, "Label", QString("none"), InterpolationStep, ExtrapolationHold};
    Curve first{true, "HomograpyZX", 0.0, -1e9, 1e9, InterpolationLinear, ExtrapolationHold};
    Curve second{true, "HomograpyZX", 0.0, -1e9, 1e9, InterpolationLinear, ExtrapolationHold};
    Curve follower{true, "Follower", 0.0, 0.0, 10.0, InterpolationLinear, ExtrapolationHold};
    int frames = 12;
    ChildSet roi;
    ChildSet roi2;
};

} // namespace

TEST(ParameterSet, RegistersNamesAndOwnsBasicParametersOnRequest)
{
    int deaths = 0;
    for (bool bOwned : {true, false}) {
        RootSet set(bOwned);
        for (BasicParameter* basic : set.basicParameterList())
            QObject::connect(basic, &QObject::destroyed, [&deaths] { ++deaths; });
        ASSERT_EQ(set.parameterList().size(), 5);
        EXPECT_EQ(set.parameterList()[0], &set.gain);
        EXPECT_EQ(set.findParameter(QStringLiteral("Label")), &set.label);
        EXPECT_EQ(set.findParameter(QStringLiteral("None")), nullptr);
        EXPECT_EQ(set.gain.extendedName(), "Core.Gain");
        set.forEachParameter([](ParameterWithoutType* p) { p->hide(true); }, false);
        EXPECT_TRUE(set.gain.isHidden() && set.label.isHidden() && !set.roi.width.isHidden());
    }
    EXPECT_EQ(deaths, 4);

    Parameter<int> loose(true, "Loose"); // outlives its set, and keeps no dangling owner
    {
        ParameterSet set(QStringLiteral("Tmp"), nullptr);
        set.addParameter(&loose);
        EXPECT_EQ(loose.extendedName(), "Tmp.Loose");
    }
    EXPECT_EQ(loose.extendedName(), "Loose");
}

// The data file is what the set writes: parameters, then basic parameters, then child sets; children that
// share a name each read their own block.
TEST(ParameterSet, WholeTextRoundTripWithNestedSetsSharedNamesAndMasters)
{
    QString const text = qstrDataFile("CoreSet.txt");
    RootSet set;
    LogCapture log;
    ParameterTextDocument document(set);
    for (int pass = 0; pass < 2; ++pass) { // the second read lands on the same parameters
        EXPECT_EQ(document.iRead(text), text.count('\n'));
        EXPECT_EQ(ParameterTextDocument(set).qstrWrite().toStdString(), text.toStdString());
    }
    EXPECT_TRUE(log.lines.empty() && document.unreadLines().isEmpty());
    EXPECT_EQ(set.follower.master(), &set.gain) << "bound after all lines were read";
    EXPECT_TRUE(qstrStreamed(set.roi, "Host.", false).startsWith("Host.Width.keyframes."))
        << "without qualification the set adds no name";

}

TEST(ParameterSet, SharedNamesCloseABlockOnARepeatedOrLateField)
{
    RootSet set;
    int twin = 0;
    set.vAddBasic(new VirtualParameter<int>("Gain", &twin));
    for (char const* line : {"HomograpyZX.value=1", "HomograpyZX.hidden=1",
                             "HomograpyZX.value=2", // a repeated field opens the next block
                             "HomograpyZX.keyframes.append( Key( 1, 3, Linear ) )",
                             "HomograpyZX.keyframes.append( Key( 2, 4, Linear ) )", "Gain.value=1", "Gain.value=7"})
        EXPECT_TRUE(set.bStreamIn(line)) << line;
    EXPECT_EQ(state(set.first), "1 |");
    EXPECT_EQ(state(set.second), "2 | 1:3L 2:4L") << "key lines may repeat within a block";
    EXPECT_TRUE(set.first.isHidden() && !set.second.isHidden());
    EXPECT_EQ(std::make_tuple(set.gain.staticValue(), twin, set.frames), std::make_tuple(1.0, 7, 12))
        << "the next block of a name may be a basic parameter's, past basic ones of other names";
    // A field out of written order closes the block; after the last one the first opens again.
    EXPECT_TRUE(set.bStreamIn("HomograpyZX.hidden=1"));
    EXPECT_TRUE(set.bStreamIn("HomograpyZX.keyframes.append( Key( 5, 5, Linear ) )"));
    EXPECT_EQ(state(set.first), "1 | 5:5L");
    EXPECT_TRUE(set.second.isHidden());

    // A line that goes back in a child's order opens the next child; one of unknown place stays.
    for (char const* line : {"ROI.Height.value=8", "ROI.Unknown.value=1", "ROI.Width.value=9", "ROI.Height.value=10"})
        set.bStreamIn(line);
    EXPECT_EQ(std::make_tuple(set.roi.height.staticValue(), set.roi2.width.staticValue(), set.roi2.height.staticValue()),
              std::make_tuple(8.0, 9.0, 10.0));
}

TEST(ParameterSet, LinesNotTakenAndMastersNotFoundAreReported)
{
    RootSet set;
    LogCapture log;
    ParameterTextDocument document(set);
    EXPECT_EQ(document.iRead("Core.Gain.value=2\n\nCore.Nothing.value=1\nGain.hidden=1\n"
                             "Core.Gain.keyframes.append( Key( 1 ) )\nCore.ROI.Width.colour=3\n"
                             "Core.Follower.MasterParameterId=Core.Missing\nCore.OldName.value=9\n"
                             "Core.Label.keyframes.append( Key( 1, \"x\", Step ) )\ngarbage without a dot"),
              5);
    QList<int> unread;
    for (auto const& line : document.unreadLines())
        unread << line.iLineNumber;
    EXPECT_EQ(unread, (QList<int>{3, 5, 6, 10}));
    EXPECT_EQ(document.unreadLines().at(0).qstrText, "Core.Nothing.value=1");
    EXPECT_EQ(set.gain.staticValue(), 2.0) << "what was read stays";
    EXPECT_TRUE(set.gain.isHidden()) << "a line without the root's name is offered as it stands";
    EXPECT_EQ(set.label.keyframeCount(), 1u) << "reading goes on after bad lines";
    EXPECT_EQ(set.follower.master(), nullptr);
    EXPECT_NE(std::find(log.lines.begin(), log.lines.end(),
                        "ParameterTextDocument: master 'Core.Missing' of 'Core.Follower' not found"),
              log.lines.end());
}

TEST(ParameterSet, NameIndexFollowsRenamesAndAdditionsAfterUnknownLines)
{
    RootSet set;
    for (char const* line : {"Renamed.value=1", "Late.value=1", "Zone.Width.value=1"}) // builds the index
        EXPECT_FALSE(set.bStreamIn(line));
    set.gain.setScriptName("Renamed");
    Curve const late(true, "Late", 0.0, -9.0, 9.0, InterpolationLinear, ExtrapolationHold);
    set.follower = late; // assignment renames too
    set.roi.setScriptName("Zone");
    int extra = 0;
    {
        Curve added(true, "Added", 0.0, -9.0, 9.0, InterpolationLinear, ExtrapolationHold);
        set.addParameter(&added);
        EXPECT_TRUE(set.bStreamIn("Added.value=2"));
        EXPECT_EQ(added.staticValue(), 2.0);
    }
    EXPECT_FALSE(set.bStreamIn("Extra.value=8"));
    set.vAddBasic(new VirtualParameter<int>("Extra", &extra));
    for (char const* line : {"Renamed.value=4", "Late.value=6", "Zone.Width.value=7", "Extra.value=8"})
        EXPECT_TRUE(set.bStreamIn(line)) << line;
    EXPECT_FALSE(set.bStreamIn("Gain.value=5") || set.bStreamIn("Added.value=3")) << "old names and the dead";
    // A line that keeps the set's own name, as a qualified write gives it, reads; the name alone does not.
    EXPECT_TRUE(set.bStreamIn("Core.Renamed.value=4") && set.bStreamIn("Core.Zone.Width.value=7"));
    EXPECT_FALSE(set.bStreamIn("Core.Gain.value=5") || set.bStreamIn("Core.value=5") || set.bStreamIn("Zone.Core.x=1"));
    EXPECT_EQ(std::make_tuple(set.gain.staticValue(), set.follower.staticValue(), set.roi.width.staticValue(), extra),
              std::make_tuple(4.0, 6.0, 7.0, 8));
}
