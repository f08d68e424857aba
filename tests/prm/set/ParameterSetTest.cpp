#include "prm/Fixtures.h"
#include "prm/basic/MovedParameter.h"
#include "prm/NumericParameter.h"
#include "prm/set/ParameterSet.h"
#include "prm/text/ParameterTextDocument.h"
#include "prm/basic/VirtualParameter.h"

#include <QTextStream>
#include <algorithm>

namespace {

using Prm::InterpolationLinear;
using Prm::ExtrapolationHold;
using Number = Prm::NumericParameter<double>;

class ChildSet : public Prm::ParameterSet {
public:
    ChildSet() : Prm::ParameterSet("ROI", nullptr) { addParameter(&width); }
    Number width{true, "Width", 1.0, 0.0, 100.0, InterpolationLinear, ExtrapolationHold};
};

// Two parameters share "HomograpyZX", as in the warp sets.
class RootSet : public Prm::ParameterSet {
public:
    RootSet() : Prm::ParameterSet("Core", nullptr)
    {
        for (auto* parameter :
             std::initializer_list<Prm::ParameterWithoutType*>{&gain, &label, &first, &second, &follower})
            addParameter(parameter);
        basicParameters << new Prm::VirtualParameter<int>("Frames", &frames)
                        << new Prm::MovedParameter("OldName", nullptr);
        bBasicParametersOwned = true;
        childSets.append(&roi);
    }
    Number gain{true, "Gain", 0.5, 0.0, 10.0, InterpolationLinear, ExtrapolationHold};
    Prm::Parameter<QString> label{true, "Label", QString("none"), Prm::InterpolationStep, ExtrapolationHold};
    Number first{true, "HomograpyZX", 0.0, -1e9, 1e9, InterpolationLinear, ExtrapolationHold};
    Number second{true, "HomograpyZX", 0.0, -1e9, 1e9, InterpolationLinear, ExtrapolationHold};
    Number follower{true, "Follower", 0.0, 0.0, 10.0, InterpolationLinear, ExtrapolationHold};
    void vAddBasic(Prm::BasicParameter* parameter) { basicParameters.append(parameter); }
    int frames = 12;
    ChildSet roi;
};

// A basic parameter that shares the name of a keyed one, behind one that does not.
class TwinSet : public Prm::ParameterSet {
public:
    TwinSet() : Prm::ParameterSet("Twins", nullptr)
    {
        addParameter(&keyed);
        basicParameters << new Prm::VirtualParameter<int>("Other", &other)
                        << new Prm::VirtualParameter<int>("Twin", &twin);
        bBasicParametersOwned = true;
    }
    Number keyed{true, "Twin", 0.0, -10.0, 10.0, InterpolationLinear, ExtrapolationHold};
    int other = 0;
    int twin = 0;
};

// Two children of one script name, as the two cameras of a warp.
class TwinChildrenSet : public Prm::ParameterSet {
public:
    TwinChildrenSet() : Prm::ParameterSet("Warp", nullptr)
    {
        for (ChildSet* child : {&left, &right}) {
            child->addParameter(&child->height);
            childSets.append(child);
        }
        right.setDisplayName("Right");
    }
    struct ChildSet : ::ChildSet {
        Number height{true, "Height", 2.0, 0.0, 100.0, InterpolationLinear, ExtrapolationHold};
    };
    ChildSet left;
    ChildSet right;
};

void vFill(RootSet& set)
{
    set.gain.vSetValue(1.5, 0.0f);
    set.gain.vSetValue(3.0, 10.0f);
    set.label.vSetValue("a, \"b\"", 2.0f);
    set.first.vSetValue(0.25, 0.0f);
    set.second.vSetValue(-4.0, 0.0f);
    set.second.vSetValue(-8.0, 5.0f);
    set.second.hide(true);
    set.frames = 48;
    set.roi.width.vSetValue(7.0, 3.0f);
    set.gain.bAddConstrainedParameter(&set.follower);
}

} // namespace

TEST(ParameterTextSet, WritesParametersThenBasicThenChildSets)
{
    RootSet set;
    QStringList const lines = Prm::ParameterTextDocument(set).qstrWrite().split('\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 5 * 5 + 1 + 5);
    EXPECT_EQ(lines.at(0), "Core.Gain.value=0.5");
    EXPECT_EQ(lines.at(5), "Core.Label.value=\"none\"");
    EXPECT_EQ(lines.at(10), "Core.HomograpyZX.value=0");
    EXPECT_EQ(lines.at(25), "Core.Frames.value=12");
    EXPECT_EQ(lines.at(26), "Core.ROI.Width.value=1");

    QString text;
    QTextStream out(&text);
    set.roi.bStreamOut(out, "Host.", false);
    EXPECT_TRUE(text.startsWith("Host.Width.value=1\n")) << "without qualification the set adds no name";
}

TEST(ParameterTextSet, WholeTextRoundTripWithNestedSetsSharedNamesAndMasters)
{
    RootSet source;
    vFill(source);
    QString const text = Prm::ParameterTextDocument(source).qstrWrite();

    RootSet target;
    LogCapture log;
    Prm::ParameterTextDocument document(target);
    int const lineCount = text.count('\n');
    EXPECT_EQ(document.iRead(text), lineCount);
    EXPECT_TRUE(document.unreadLines().isEmpty());
    EXPECT_TRUE(log.lines.empty());
    EXPECT_EQ(Prm::ParameterTextDocument(target).qstrWrite(), text);

    EXPECT_EQ(target.first.keyframeCount(), 1u);
    EXPECT_EQ(target.second.keyframeCount(), 2u);
    EXPECT_FALSE(target.first.isHidden());
    EXPECT_TRUE(target.second.isHidden());
    EXPECT_EQ(target.label.keyframeValue(0), "a, \"b\"");
    EXPECT_EQ(target.frames, 48);
    EXPECT_EQ(target.roi.width.value(3.0f, nullptr), 7.0);
    EXPECT_EQ(target.follower.master(), &target.gain) << "bound after all lines were read";

    // Reading the same text again lands on the same parameters.
    EXPECT_EQ(document.iRead(text), lineCount);
    EXPECT_EQ(Prm::ParameterTextDocument(target).qstrWrite(), text);
}

TEST(ParameterTextSet, SharedNamesCloseABlockOnARepeatedOrLateField)
{
    RootSet set;
    EXPECT_TRUE(set.bStreamIn("HomograpyZX.value=1"));
    EXPECT_TRUE(set.bStreamIn("HomograpyZX.hidden=1"));
    EXPECT_TRUE(set.bStreamIn("HomograpyZX.value=2")) << "a repeated field opens the next block";
    EXPECT_TRUE(set.bStreamIn("HomograpyZX.keyframes.append( Key( 1, 3, Linear ) )"));
    EXPECT_TRUE(set.bStreamIn("HomograpyZX.keyframes.append( Key( 2, 4, Linear ) )"));
    EXPECT_EQ(set.first.staticValue(), 1.0);
    EXPECT_TRUE(set.first.isHidden());
    EXPECT_EQ(set.second.staticValue(), 2.0);
    EXPECT_EQ(set.second.keyframeCount(), 2u) << "key lines may repeat within a block";
    EXPECT_EQ(set.first.keyframeCount(), 0u);
    EXPECT_TRUE(set.bStreamIn("HomograpyZX.hidden=1"));
    EXPECT_TRUE(set.bStreamIn("HomograpyZX.keyframes.append( Key( 5, 5, Linear ) )"))
        << "a field out of written order closes the block; after the last one the first opens again";
    EXPECT_EQ(set.first.keyframeCount(), 1u);
    EXPECT_TRUE(set.second.isHidden());

    TwinSet twins;
    EXPECT_TRUE(twins.bStreamIn("Twin.value=1"));
    EXPECT_TRUE(twins.bStreamIn("Twin.value=7")) << "the next block is the basic parameter of that name";
    EXPECT_EQ(twins.keyed.staticValue(), 1.0);
    EXPECT_EQ(twins.twin, 7);
    EXPECT_EQ(twins.other, 0);
}

TEST(ParameterTextSet, ChildSetsSharingANameEachReadTheirOwnBlock)
{
    TwinChildrenSet source;
    source.left.width.vSetValue(3.0, 1.0f);
    source.right.width.vSetValue(5.0, 0.0f);
    source.right.height.vSetValue(6.0, 0.0f);
    source.right.height.vSetValue(7.0, 4.0f);
    QString const text = Prm::ParameterTextDocument(source).qstrWrite();

    TwinChildrenSet target;
    Prm::ParameterTextDocument document(target);
    for (int pass = 0; pass < 2; ++pass) {
        EXPECT_EQ(document.iRead(text), text.count('\n'));
        EXPECT_EQ(Prm::ParameterTextDocument(target).qstrWrite(), text);
    }
    EXPECT_EQ(target.left.width.keyframeValue(0), 3.0);
    EXPECT_EQ(target.left.height.keyframeCount(), 0u);
    EXPECT_EQ(target.right.height.keyframeCount(), 2u);

    // A line that goes back in the child's order opens the next child; one of unknown place stays.
    TwinChildrenSet lines;
    for (char const* line : {"ROI.Height.value=8", "ROI.Unknown.value=1", "ROI.Width.value=9", "ROI.Height.value=10"})
        lines.bStreamIn(line);
    EXPECT_EQ(lines.left.height.staticValue(), 8.0);
    EXPECT_EQ(lines.right.width.staticValue(), 9.0);
    EXPECT_EQ(lines.right.height.staticValue(), 10.0);
}

TEST(ParameterTextSet, LinesNotTakenAndMastersNotFoundAreReported)
{
    RootSet set;
    LogCapture log;
    Prm::ParameterTextDocument document(set);
    QString const text = "Core.Gain.value=2\n"
                         "\n"
                         "Core.Nothing.value=1\n"
                         "Gain.hidden=1\n"
                         "Core.Gain.keyframes.append( Key( 1 ) )\n"
                         "Core.ROI.Width.colour=3\n"
                         "Core.Follower.MasterParameterId=Core.Missing\n"
                         "Core.OldName.value=9\n"
                         "Core.Label.keyframes.append( Key( 1, \"x\", Step ) )\n"
                         "garbage without a dot";
    EXPECT_EQ(document.iRead(text), 5);
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

TEST(ParameterTextSet, NumericFailedKeyLineIsRepaired)
{
    RootSet set;
    LogCapture log;
    // The numeric parameter's bStreamIn clears the flag: a key appended afterwards reinitialises the
    // segment before it.
    EXPECT_TRUE(set.bStreamIn("Gain.keyframes.append( BezierKey( 0, 1, 0, 0, 0, 0 ) )"));
    EXPECT_FALSE(set.bStreamIn("Gain.keyframes.append( BezierKey( 1, 2, 3 ) )"));
    ASSERT_EQ(log.lines.size(), 1u);
    EXPECT_EQ(log.lines.at(0), "Parameter::streamInValue(): failed to parse BezierKey() block: "
                               "'keyframes.append( BezierKey( 1, 2, 3 ) )'");
    EXPECT_EQ(set.gain.keyframeCount(), 2u) << "the key of the failed line stays";
    set.gain.vSetInterpolation(Prm::InterpolationBezier, 1.0f);
    set.gain.vSetValue(5.0, 10.0f);
    EXPECT_NE(set.gain.interpolationData(1).dOutTime, 0.0) << "not streaming any more";
}

TEST(ParameterTextSet, NameIndexFollowsRenamesAndAdditionsAfterUnknownLines)
{
    RootSet set;
    EXPECT_FALSE(set.bStreamIn("Renamed.value=1")); // builds the index; the name is unknown
    EXPECT_FALSE(set.bStreamIn("Late.value=1"));
    EXPECT_FALSE(set.bStreamIn("Zone.Width.value=1"));

    set.gain.setScriptName("Renamed");
    Number copyNamedLate(true, "Late", 0.0, -9.0, 9.0, InterpolationLinear, ExtrapolationHold);
    set.follower = copyNamedLate; // assignment renames too
    set.roi.setScriptName("Zone");
    EXPECT_TRUE(set.bStreamIn("Renamed.value=4"));
    EXPECT_EQ(set.gain.staticValue(), 4.0);
    EXPECT_FALSE(set.bStreamIn("Gain.value=5")) << "the old name is gone";
    EXPECT_TRUE(set.bStreamIn("Late.value=6"));
    EXPECT_EQ(set.follower.staticValue(), 6.0);
    EXPECT_TRUE(set.bStreamIn("Zone.Width.value=7"));
    EXPECT_EQ(set.roi.width.staticValue(), 7.0);

    // A parameter added or destroyed after the index was built.
    int extra = 0;
    {
        Number added(true, "Added", 0.0, -9.0, 9.0, InterpolationLinear, ExtrapolationHold);
        set.addParameter(&added);
        EXPECT_TRUE(set.bStreamIn("Added.value=2"));
        EXPECT_EQ(added.staticValue(), 2.0);
    }
    EXPECT_FALSE(set.bStreamIn("Added.value=3")) << "a destroyed parameter takes nothing";
    EXPECT_FALSE(set.bStreamIn("Extra.value=8"));
    set.vAddBasic(new Prm::VirtualParameter<int>("Extra", &extra));
    EXPECT_TRUE(set.bStreamIn("Extra.value=8"));
    EXPECT_EQ(extra, 8);
}
