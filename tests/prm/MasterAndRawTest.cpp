#include "Fixtures.h"
#include "bsc/AbstractData.h"
#include "prm/basic/BasicParameter.h"
#include "prm/NumericParameter.h"
#include "prm/set/ParameterSet.h"

#include <memory>

using namespace Prm;

namespace {

class CountedBasic : public BasicParameter {
public:
    explicit CountedBasic(int* deaths) : deaths(deaths) {}
    ~CountedBasic() override { ++*deaths; }
    bool bStreamOut(QTextStream&, QString const&, bool) const override { return true; }
    bool bStreamIn(QString const&) override { return false; }
    // The signature a host subclass writes: the name by reference.
    QString const& scriptName() const override { return name; }
    int* deaths;
    QString const name = QStringLiteral("Basic");
};

class TestSet : public ParameterSet {
public:
    TestSet(bool bOwned, int* deaths) : ParameterSet(QStringLiteral("Core"), nullptr)
    {
        addParameter(&gain);
        addParameter(&label);
        basicParameters.append(new CountedBasic(deaths));
        bBasicParametersOwned = bOwned;
    }
    ~TestSet() override
    {
        if (!bBasicParametersOwned)
            qDeleteAll(basicParameters);
    }
    NumericParameter<double> gain{true, "Gain", 1.0, 0.0, 10.0, InterpolationLinear, ExtrapolationHold};
    Parameter<QString> label{false, "Label"};
};

} // namespace

TEST(MasterAndRaw, FollowerReadsItsMasterUntilTheMasterGoes)
{
    auto master = std::make_unique<NumericParameter<double>>(true, "Master", 2.0, 0.0, 100.0, InterpolationLinear,
                                                              ExtrapolationLinear);
    master->vSetValue(10.0, 0.0f);
    master->vSetValue(20.0, 10.0f);
    NumericParameter<double> follower(true, "Follower", 7.0, 0.0, 15.0, InterpolationStep, ExtrapolationHold);
    ASSERT_TRUE(master->bAddConstrainedParameter(&follower));
    EXPECT_EQ(follower.master(), master.get());
    EXPECT_EQ(follower.qstrMasterParameterId(), "Master");
    EXPECT_EQ(master->constrainedParameters().size(), 1);

    EXPECT_EQ(follower.value(5.0f, nullptr), 15.0); // the master's 15, then the follower's own clamp
    EXPECT_EQ(follower.value(2.0f, nullptr), 12.0);
    EXPECT_EQ(follower.extrapolationAfter(), ExtrapolationLinear);
    EXPECT_EQ(follower.interpolation(5.0f), InterpolationLinear);
    // Writes and key queries act on the follower's own store.
    EXPECT_EQ(follower.vSetValue(3.0, 1.0f), 0);
    EXPECT_EQ(follower.keyframeCount(), 1u);
    EXPECT_EQ(follower.interpolation(0u), InterpolationStep);
    EXPECT_EQ(follower.value(1.0f, nullptr), 11.0);
    Bsc::AbstractData raw;
    follower.rawValue(2.0f, raw);
    ASSERT_NE(raw.get<double>(), nullptr);
    EXPECT_EQ(*raw.get<double>(), 12.0); // the master's, unclamped by the follower

    master.reset();
    EXPECT_EQ(follower.master(), nullptr);
    EXPECT_EQ(follower.value(1.0f, nullptr), 3.0);
    EXPECT_EQ(follower.extrapolationAfter(), ExtrapolationHold);
    EXPECT_FALSE(follower.bUnconstrain()); // nothing left to follow
}

TEST(MasterAndRaw, ConstraintsRefuseBadFollowersAndCycles)
{
    Parameter<int> a(true, "A"), b(true, "B"), c(true, "C");
    Parameter<float> other(true, "Other");
    EXPECT_FALSE(a.bAddConstrainedParameter(nullptr));
    EXPECT_FALSE(a.bAddConstrainedParameter(&a));
    EXPECT_FALSE(a.bAddConstrainedParameter(&other));
    ASSERT_TRUE(a.bAddConstrainedParameter(&b)); // b follows a
    ASSERT_TRUE(b.bAddConstrainedParameter(&c)); // c follows b
    EXPECT_FALSE(c.bAddConstrainedParameter(&a)); // a following c would close a cycle
    EXPECT_FALSE(b.bAddConstrainedParameter(&a));
    EXPECT_EQ(a.master(), nullptr);
    EXPECT_TRUE(a.setMasterParameter(&c, QStringLiteral("X.C"))); // refused silently, the name is kept
    EXPECT_EQ(a.master(), nullptr);
    EXPECT_EQ(a.qstrMasterParameterId(), "X.C");
    a.vSetValue(4, 0.0f);
    EXPECT_EQ(c.value(0.0f, nullptr), 4); // through b to a, and no further

    // Moving a follower to another master leaves the first one's list.
    Parameter<int> d(true, "D");
    ASSERT_TRUE(d.bAddConstrainedParameter(&c));
    EXPECT_TRUE(b.constrainedParameters().isEmpty());
    EXPECT_TRUE(c.bUnconstrain());
    EXPECT_EQ(c.master(), nullptr);
    EXPECT_TRUE(c.qstrMasterParameterId().isEmpty());
    EXPECT_TRUE(d.constrainedParameters().isEmpty());
}

TEST(MasterAndRaw, RawAccessChecksTheExactType)
{
    Parameter<int> keyed(true, "K", 1, InterpolationStep, ExtrapolationHold);
    Parameter<int> flat(false, "F", 1, InterpolationStep, ExtrapolationHold);
    ChangeRecorder rec(flat);
    EXPECT_EQ(*keyed.tRawValueType(), typeid(int));

    Bsc::AbstractData const wrong = Bsc::AbstractData::make<float>(2.0f);
    EXPECT_EQ(keyed.vSetRawValue(wrong, 0.0f), -1);
    EXPECT_EQ(keyed.keyframeCount(), 0u);
    EXPECT_EQ(keyed.vSetRawValue(Bsc::AbstractData(), 0.0f), -1);

    Bsc::AbstractData const right = Bsc::AbstractData::make<int>(5);
    EXPECT_EQ(keyed.vSetRawValue(right, 3.0f), 0);
    EXPECT_EQ(keyed.keyframeValue(0), 5);
    EXPECT_EQ(flat.vSetRawValue(right, 3.0f), -1);
    EXPECT_EQ(flat.staticValue(), 5);
    ASSERT_EQ(rec.events.size(), 1u);
    EXPECT_EQ(rec.events[0], ChangeRecorder::Event(ParameterChange::StaticValueChanged, 0));

    NumericParameter<double> limited(false, "L", 0.0, 0.0, 1.0, InterpolationStep, ExtrapolationHold);
    limited.vSetRawValue(Bsc::AbstractData::make<double>(9.0), 0.0f);
    EXPECT_EQ(limited.staticValue(), 9.0); // the static raw path does not clamp

    Parameter<QString> text(false, "T", QStringLiteral("hello"), InterpolationStep, ExtrapolationHold);
    Bsc::AbstractData out;
    text.rawValue(0.0f, out);
    Bsc::AbstractData copy;
    copy = out;
    ASSERT_NE(copy.get<QString>(), nullptr);
    EXPECT_EQ(*copy.get<QString>(), "hello");
    keyed.rawValue(3.0f, out); // replaces the held string through its destroy function
    EXPECT_EQ(*out.get<int>(), 5);
}

TEST(MasterAndRaw, SetRegistersNamesAndOwnsBasicParametersOnRequest)
{
    int deaths = 0;
    {
        TestSet set(true, &deaths);
        ASSERT_EQ(set.parameterList().size(), 2);
        EXPECT_EQ(set.parameterList()[0], &set.gain);
        EXPECT_EQ(set.findParameter(QStringLiteral("Label")), &set.label);
        EXPECT_EQ(set.findParameter(QStringLiteral("None")), nullptr);
        EXPECT_EQ(set.gain.extendedName(), "Core.Gain");
        set.forEachParameter([](ParameterWithoutType* p) { p->hide(true); }, false);
        EXPECT_TRUE(set.gain.isHidden());
        EXPECT_TRUE(set.label.isHidden());
    }
    EXPECT_EQ(deaths, 1);
    {
        TestSet set(false, &deaths);
    }
    EXPECT_EQ(deaths, 2);

    // A parameter that outlives the set it was registered with keeps no dangling owner.
    Parameter<int> loose(true, "Loose");
    {
        ParameterSet set(QStringLiteral("Tmp"), nullptr);
        set.addParameter(&loose);
        EXPECT_EQ(loose.extendedName(), "Tmp.Loose");
    }
    EXPECT_EQ(loose.extendedName(), "Loose");
}
