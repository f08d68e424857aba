#include "prm/Fixtures.h"
#include "bsc/Command.h"
#include "prm/NumericParameter.h"
#include "prm/Parameter.h"

#include <tuple>


TEST(EditValue, NewKeyExistingKeyAndStaticValueComeBack)
{
    Curve parameter = curveOf({{0.0f, 0.0}, {10.0f, 10.0}});
    Bsc::CompositeCommand composite;
    EXPECT_EQ(&parameter.vSetValueCommand(50.0, 5.0f, composite), &composite);
    parameter.vSetValueCommand(7.0, 10.0f, composite);
    EXPECT_EQ(parameter.keyframeCount(), 2u); // nothing happens when the edit is made
    for (int pass = 0; pass < 2; ++pass) {
        composite.doIt();
        EXPECT_EQ(keysOf(parameter), (Keys<Curve>{{0.0f, 0.0}, {5.0f, 50.0}, {10.0f, 7.0}}));
        composite.undoIt();
        EXPECT_EQ(keysOf(parameter), (Keys<Curve>{{0.0f, 0.0}, {10.0f, 10.0}}));
    }

    Curve flat(false, "Flat", 0.25, 0.0, 1.0, Prm::InterpolationLinear, Prm::ExtrapolationHold);
    Prm::Parameter<QString> name(true, "Name", QString("static"), Prm::InterpolationStep, Prm::ExtrapolationHold);
    Bsc::CompositeCommand others;
    flat.vSetValueCommand(0.75, 3.0f, others);
    name.vSetValueCommand("first", 1.0f, others);
    name.vSetDefaultValueCommand("new", others);
    others.doIt();
    EXPECT_EQ(flat.staticValue(), 0.75);
    EXPECT_EQ(name.value(1.5f, nullptr), "first");
    EXPECT_EQ(name.defaultValue(), "new");
    EXPECT_EQ(name.staticValue(), "static");
    others.undoIt();
    EXPECT_EQ(flat.staticValue(), 0.25);
    EXPECT_EQ(flat.keyframeCount(), 0u);
    EXPECT_EQ(name.keyframeCount(), 0u);
    EXPECT_EQ(name.defaultValue(), "static");
}

TEST(EditValue, RecordsWhenRunNotWhenMade)
{
    Curve parameter = curveOf({});
    parameter.vSetValue(1.0, 4.0f);
    Bsc::CompositeCommand composite;
    parameter.vSetValueCommand(2.0, 4.0f, composite);
    parameter.vSetValueCommand(3.0, 4.0f, composite);
    parameter.vSetValue(9.0, 4.0f); // after making, before running: this is what the first edit records
    composite.doIt();
    EXPECT_EQ(parameter.value(4.0f, nullptr), 3.0);
    composite.undoIt();
    EXPECT_EQ(parameter.value(4.0f, nullptr), 9.0);
    EXPECT_EQ(parameter.keyframeCount(), 1u);

    // A second run applies again from the first record.
    parameter.vSetValue(5.0, 4.0f);
    composite.doIt();
    composite.undoIt();
    EXPECT_EQ(parameter.value(4.0f, nullptr), 9.0);
}

TEST(EditValue, ValueIsLimitedWhenTheEditRuns)
{
    Prm::NumericParameter<int> count(true, "Count", 0, 0, 5, Prm::InterpolationStep, Prm::ExtrapolationHold);
    Bsc::CompositeCommand composite;
    count.vSetValueCommand(9, 1.0f, composite);
    count.vSetDoubleValueCommand(7.9, 2.0f, composite);
    count.vSetDoubleValueCommand(3.9, 3.0f, composite);
    count.vSetDoubleValueCommand(-2.5, 4.0f, composite);
    Prm::NumericParameter<bool> flag(true, "Flag", false, false, true, Prm::InterpolationStep,
                                     Prm::ExtrapolationHold);
    flag.vSetDoubleValueCommand(0.5, 0.0f, composite);
    composite.doIt();
    EXPECT_EQ(keysOf(count), (Keys<decltype(count)>{{1.0f, 5}, {2.0f, 5}, {3.0f, 3}, {4.0f, 0}}));
    EXPECT_TRUE(flag.value(0.0f, nullptr));
    composite.undoIt();
    EXPECT_EQ(count.keyframeCount(), 0u);
}

TEST(EditValue, InterpolationAndExtrapolationEditsUndo)
{
    Curve parameter = curveOf({{0.0f, 0.0}, {10.0f, 10.0}, {20.0f, 0.0}});
    Bsc::CompositeCommand composite;
    parameter.vSetInterpolationCommand(Prm::InterpolationStep, 10.0f, composite);
    Prm::IType bezier = parameter.interpolationData(0);
    std::tie(bezier.eType, bezier.dOutTime, bezier.dOutValue) = std::make_tuple(Prm::InterpolationBezier, 2.0, 4.0);
    parameter.vSetInterpolationDataCommand(bezier, 0, composite);
    parameter.vSetExtrapolationBeforeCommand(Prm::ExtrapolationLinear, composite);
    // A rule of its own per end, so that an edit of the wrong end shows.
    parameter.vSetExtrapolationAfterCommand(Prm::ExtrapolationCustomFirst, composite);
    parameter.vSetInterpolationCommand(Prm::InterpolationStep, 15.0f, composite); // no key there
    EXPECT_EQ(composite.size(), 5u);

    composite.doIt();
    EXPECT_EQ(parameter.interpolation(1u), Prm::InterpolationStep);
    EXPECT_EQ(parameter.value(15.0f, nullptr), 10.0);
    EXPECT_EQ(parameter.interpolationData(0).eType, Prm::InterpolationBezier);
    EXPECT_EQ(parameter.interpolationData(0).dOutValue, 4.0);
    EXPECT_EQ(parameter.extrapolationBefore(), Prm::ExtrapolationLinear);
    EXPECT_EQ(parameter.extrapolationAfter(), Prm::ExtrapolationCustomFirst);

    composite.undoIt();
    EXPECT_EQ(parameter.interpolation(1u), Prm::InterpolationLinear);
    EXPECT_EQ(parameter.value(15.0f, nullptr), 5.0);
    EXPECT_EQ(parameter.interpolationData(0).eType, Prm::InterpolationLinear);
    EXPECT_EQ(parameter.extrapolationBefore(), Prm::ExtrapolationHold);
    EXPECT_EQ(parameter.extrapolationAfter(), Prm::ExtrapolationHold);
    EXPECT_EQ(parameter.value(-10.0f, nullptr), 0.0);

    composite.doIt();
    EXPECT_EQ(parameter.interpolationData(0).dOutTime, 2.0);
    EXPECT_EQ(parameter.extrapolationBefore(), Prm::ExtrapolationLinear);
    EXPECT_EQ(parameter.extrapolationAfter(), Prm::ExtrapolationCustomFirst);
}
