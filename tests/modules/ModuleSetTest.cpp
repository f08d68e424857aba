#include "ModuleSetTable.h"
#include "clip/Fixtures.h"
#include "tq.h"

#include <memory>

namespace {

template <class S>
std::unique_ptr<S> newSet(TQ_BaseClipInfoContainer* container)
{
    if constexpr (std::is_same<S, TQ_InsertROIParameterSet>::value)
        return std::make_unique<S>(nullptr, container);
    else if constexpr (std::is_constructible<S, TQ_BaseClipInfoContainer*>::value)
        return std::make_unique<S>(container);
    else
        return std::make_unique<S>();
}

template <class S, class = void>
struct HasContainer : std::false_type {};
template <class S>
struct HasContainer<S, std::void_t<decltype(std::declval<S>().clipContainer)>> : std::true_type {};

/// For each parameter of `everyParameter`, the name that the table's assignment rule goes by: its own
/// script name for the set's parameters, its child set's name for a child's.
QStringList keptKeys(Prm::ParameterSet const& set)
{
    QStringList keys;
    for (Prm::ParameterWithoutType const* parameter : set.parameterList())
        keys << parameter->qstrScriptName();
    for (Prm::ParameterSet const* child : set.childSetList())
        for (int i = everyParameter(*child).size(); i > 0; --i)
            keys << child->qstrScriptName();
    return keys;
}

/// The facts of every parameter, children's included.
QVector<QStringList> everything(Prm::ParameterSet const& set)
{
    QVector<QStringList> all;
    for (Prm::ParameterWithoutType* parameter : everyParameter(set))
        all << factsOf(*parameter);
    return all;
}

template <class S>
class ModuleSet : public ::testing::Test
{
protected:
    ModuleSet() { clips.clips[1].FirstFrameOffset = 10; }
    std::unique_ptr<S> mutated(int seed, TQ_BaseClipInfoContainer* container)
    {
        std::unique_ptr<S> set = newSet<S>(container);
        vMutate(*set, seed);
        return set;
    }
    TQTest::Clips clips;
    SetTable const table{newSet<S>(nullptr)->qstrScriptName()};
};

using Sets = ::testing::Types<TQ_TrackingParameterSet, TQ_LayerParameterSet, TQ_MatteParameterSet,
                              TQ_RemoveParameterSet, TQ_StabilizeParameterSet, TQ_InsertParameterSet,
                              TQ_InsertROIParameterSet, TQ_InsertCompositeParameterSet, TQ_InsertBlurParameterSet,
                              TQ_InsertOffsetParameterSet, TQ_InsertEdgeParameterSet, TQ_ColourFilterParameterSet,
                              TQ_LuminanceEffectsParameterSet, TQ_WarperParameterSet, TQ_ColourParameterSet,
                              TQ_ColourParams>;
TYPED_TEST_SUITE(ModuleSet, Sets);

TYPED_TEST(ModuleSet, FollowsItsTableRowByRow)
{
    vExpectTable(*newSet<TypeParam>(&this->clips), this->table);
}

TYPED_TEST(ModuleSet, CopyTakesEverythingAndAssignmentAllButWhatTheTableKeeps)
{
    std::unique_ptr<TypeParam> source = this->mutated(1, &this->clips);
    for (Prm::ParameterWithoutType* parameter : source->parameterList()) {
        vVisit(*parameter, [](auto& typed) { // a wider range, which no stored value notices
            using T = std::decay_t<decltype(typed.staticValue())>;
            if constexpr (std::is_arithmetic<T>::value)
                if (auto* numeric = dynamic_cast<Prm::NumericParameter<T>*>(&typed))
                    numeric->vSetMinimum(std::numeric_limits<T>::lowest());
        });
        parameter->setDisplayName("Renamed " + parameter->qstrScriptName());
        parameter->hide(!parameter->isHidden());
    }
    source->setScriptName("Renamed");
    TypeParam const copy(*source);
    std::unique_ptr<TypeParam> target = this->mutated(2, nullptr);
    QVector<QStringList> const before = everything(*target), sources = everything(*source),
                               initial = everything(*newSet<TypeParam>(nullptr));
    *target = *source;
    EXPECT_EQ(copy.qstrScriptName(), this->table.name) << "a copy starts afresh with the fixed name";
    EXPECT_EQ(target->qstrScriptName(), "Renamed");
    EXPECT_EQ(copy.basicParameterList(), source->basicParameterList()) << "moved parameters are shared";
    EXPECT_EQ(target->basicParameterList(), source->basicParameterList());
    QVector<Prm::ParameterWithoutType*> const copies = everyParameter(copy), targets = everyParameter(*target);
    QVector<QStringList> const copied = everything(copy), assigned = everything(*target);
    QStringList const keys = keptKeys(*source);
    ASSERT_EQ(copied.size(), sources.size());
    ASSERT_EQ(assigned.size(), sources.size());
    for (int i = 0; i < sources.size(); ++i) {
        auto const* bytes = reinterpret_cast<char const*>(copies[i]);
        EXPECT_TRUE(bytes >= reinterpret_cast<char const*>(&copy) && bytes < reinterpret_cast<char const*>(&copy + 1))
            << keys[i].toStdString() << " " << i << ": a copy registers its own members";
        QStringList expected = sources[i]; // what init sets comes from init, the rest from the source
        if (i < this->table.rows.size() && !this->table.rows[i][DisplayName].isEmpty())
            expected[DisplayName] = initial[i][DisplayName];
        if (this->table.flagsByInit.contains("*") || this->table.flagsByInit.contains(keys[i]))
            expected[Hidden] = initial[i][Hidden];
        EXPECT_EQ(copied[i], expected) << keys[i].toStdString() << " " << i;
        EXPECT_EQ(assigned[i], this->table.bKept(keys[i]) ? before[i] : sources[i]) << keys[i].toStdString() << i;
        if (auto const* offset = dynamic_cast<PrmFrameOffset const*>(targets[i])) {
            EXPECT_EQ(dynamic_cast<PrmFrameOffset const*>(copies[i])->clipContainer, &this->clips);
            EXPECT_EQ(offset->value2Display(5, 0.0f), 15u) << "shown in the first clip's numbering";
        }
    }
    if constexpr (HasContainer<TypeParam>::value) {
        EXPECT_EQ(copy.clipContainer, &this->clips);
        EXPECT_EQ(target->clipContainer, this->table.bKept("clipContainer") ? nullptr : &this->clips);
    }
}

TYPED_TEST(ModuleSet, ForgetsAndRescalesOnlyTheTabledParametersInOrder)
{
    if constexpr (std::is_base_of<TQ::ClipBoundParameterSet, TypeParam>::value) {
        std::unique_ptr<TypeParam> set = this->mutated(1, &this->clips);
        QStringList announced;
        QVector<Prm::Parameter<unsigned int>*> references;
        for (Prm::ParameterWithoutType* parameter : everyParameter(*set))
            if (parameter->qstrScriptName().endsWith("ClipID")) {
                references << dynamic_cast<Prm::Parameter<unsigned int>*>(parameter);
                QObject::connect(parameter, &Prm::ParameterWithoutType::changed, [&announced](Prm::ParameterChange& c) {
                    if (c.kind() == Prm::ParameterChange::StaticValueChanged && c.index() == 0)
                        announced << c.parameter()->qstrScriptName();
                });
            }
        for (unsigned int const clipId : {3u, 7u, 0u}) {
            for (Prm::Parameter<unsigned int>* reference : references)
                reference->vSetValue(7, 0.0f);
            announced.clear();
            set->removeReferencesToClip(clipId);
            EXPECT_EQ(announced, clipId == 3 ? QStringList() : this->table.forgets) << "forgetting " << clipId;
            for (Prm::Parameter<unsigned int> const* reference : references) {
                bool const bForgotten = clipId != 3 && this->table.forgets.contains(reference->qstrScriptName());
                EXPECT_EQ(reference->staticValue(), bForgotten ? reference->defaultValue() : 7u)
                    << reference->qstrScriptName().toStdString() << " forgetting " << clipId;
            }
        }
        std::unique_ptr<TypeParam> const fresh = newSet<TypeParam>(nullptr);
        for (TypeParam* each : {set.get(), fresh.get()}) {
            QVector<QStringList> const before = everything(*each);
            each->rescale(2.0f, 3.0f); // the second factor is ignored: keys at 1 and 2 above the default double
            QVector<Prm::ParameterWithoutType*> const parameters = everyParameter(*each);
            for (int i = 0; i < parameters.size(); ++i) {
                auto* numeric = dynamic_cast<Prm::NumericParameterWithoutType*>(parameters[i]);
                bool const bScaled = this->table.rescales.contains(parameters[i]->qstrScriptName());
                double const dFloor = std::floor(before[i][Default].toDouble());
                for (unsigned int k = 0; bScaled && k < parameters[i]->keyframeCount(); ++k)
                    EXPECT_EQ(numeric->keyframeValueAsDouble(k), 2 * (k + 1 + dFloor));
                if (!bScaled || parameters[i]->keyframeCount() == 0) {
                    EXPECT_EQ(factsOf(*parameters[i]), before[i]) << i;
                }
            }
        }
    }
}

TYPED_TEST(ModuleSet, TextRoundTripRestoresEveryParameterAndTakesMovedNames)
{
    std::unique_ptr<TypeParam> source = this->mutated(1, &this->clips);
    source->parameterList().first()->hide(!source->parameterList().first()->isHidden());
    QString text = Prm::ParameterTextDocument(*source).qstrWrite();
    for (QString const& moved : this->table.moved)
        text += this->table.name + "." + moved + ".value=1\n"; // as older projects still have them
    std::unique_ptr<TypeParam> target = newSet<TypeParam>(&this->clips);
    Prm::ParameterTextDocument document(*target);
    EXPECT_EQ(document.iRead(text), text.count('\n'));
    EXPECT_TRUE(document.unreadLines().isEmpty());
    EXPECT_EQ(everything(*target), everything(*source));
}

TEST(ModuleSets, AMovedParameterLivesWhileAnySetHoldsItAndIsFreedOnce)
{
    auto* source = new TQ_TrackingParameterSet;
    TQ_TrackingParameterSet const copy(*source);
    TQ_TrackingParameterSet target;
    target = *source; // the target's own moved parameter has no other holder and goes now
    TQ_TrackingParameterSet& alias = target;
    target = alias;
    EXPECT_EQ(target.Render.use_count(), 3);
    delete source; // the moved parameter lives on in the two others, and still takes its old line
    EXPECT_EQ(copy.Render.use_count(), 2);
    EXPECT_EQ(target.basicParameterList(), QVector<Prm::BasicParameter*>{copy.Render.get()});
    EXPECT_TRUE(target.bStreamIn(QStringLiteral("Render.value=1")));
}

TEST(ModuleSets, UnusedFlagsAreNeitherCopiedNorAssigned)
{
    auto const check = [](auto& source, auto& target) {
        source.UnusedFlag.vSetValue(true, 0.0f);
        target.UnusedFlag.vSetValue(true, 4.0f);
        auto const copy(source);
        target = source;
        EXPECT_EQ(state(copy.UnusedFlag), "0 |");
        EXPECT_EQ(state(target.UnusedFlag), "0 | 4:1U");
    };
    TQ_RemoveParameterSet removeSource(nullptr), removeTarget(nullptr);
    check(removeSource, removeTarget);
    TQ_WarperParameterSet warperSource, warperTarget;
    check(warperSource, warperTarget);
}

} // namespace
