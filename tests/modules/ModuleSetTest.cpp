#include "ModuleSetTable.h"
#include "modules/ColourParameterSet.h"
#include "modules/InsertParameterSet.h"
#include "modules/LayerParameterSet.h"
#include "modules/MatteParameterSet.h"
#include "modules/RemoveParameterSet.h"
#include "modules/StabilizeParameterSet.h"
#include "modules/TrackingParameterSet.h"
#include "modules/WarperParameterSet.h"
#include "prm/Fixtures.h"
#include "prm/text/ParameterTextDocument.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

/// Each set with its data file.
template <class S>
struct Module;
template <>
struct Module<TQ_TrackingParameterSet> {
    static char const* table() { return
#include "tables/Tracking.table"
        ; }
};
template <>
struct Module<TQ_LayerParameterSet> {
    static char const* table() { return
#include "tables/Layer.table"
        ; }
};
template <>
struct Module<TQ_MatteParameterSet> {
    static char const* table() { return
#include "tables/Matte.table"
        ; }
};
template <>
struct Module<TQ_RemoveParameterSet> {
    static char const* table() { return
#include "tables/Remove.table"
        ; }
};
template <>
struct Module<TQ_StabilizeParameterSet> {
    static char const* table() { return
#include "tables/Stabilize.table"
        ; }
};
template <>
struct Module<TQ_InsertParameterSet> {
    static char const* table() { return
#include "tables/Insert.table"
        ; }
};
template <>
struct Module<TQ_InsertROIParameterSet> {
    static char const* table() { return
#include "tables/ROI.table"
        ; }
};
template <>
struct Module<TQ_InsertCompositeParameterSet> {
    static char const* table() { return
#include "tables/Composite.table"
        ; }
};
template <>
struct Module<TQ_InsertBlurParameterSet> {
    static char const* table() { return
#include "tables/Blur.table"
        ; }
};
template <>
struct Module<TQ_InsertOffsetParameterSet> {
    static char const* table() { return
#include "tables/Offset.table"
        ; }
};
template <>
struct Module<TQ_InsertEdgeParameterSet> {
    static char const* table() { return
#include "tables/Edge.table"
        ; }
};
template <>
struct Module<TQ_ColourFilterParameterSet> {
    static char const* table() { return
#include "tables/ColourFilter.table"
        ; }
};
template <>
struct Module<TQ_LuminanceEffectsParameterSet> {
    static char const* table() { return
#include "tables/Luminance.table"
        ; }
};
template <>
struct Module<TQ_WarperParameterSet> {
    static char const* table() { return
#include "tables/Warper.table"
        ; }
};
template <>
struct Module<TQ_ColourParameterSet> {
    static char const* table() { return
#include "tables/Colour.table"
        ; }
};

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

QStringList basicNames(Prm::ParameterSet const& set)
{
    QStringList names;
    for (Prm::BasicParameter const* basic : set.basicParameterList())
        names << basic->scriptName();
    return names;
}

template <class S>
class ModuleSet : public ::testing::Test
{
protected:
    SetTable const table{QString::fromUtf8(Module<S>::table())};
    OneClipContainer clips;

    std::unique_ptr<S> mutated(int seed, TQ_BaseClipInfoContainer* container)
    {
        std::unique_ptr<S> set = newSet<S>(container);
        for (Prm::ParameterWithoutType* parameter : set->parameterList())
            vMutate(*parameter, seed);
        return set;
    }
};

using Sets = ::testing::Types<TQ_TrackingParameterSet, TQ_LayerParameterSet, TQ_MatteParameterSet,
                              TQ_RemoveParameterSet, TQ_StabilizeParameterSet, TQ_InsertParameterSet,
                              TQ_InsertROIParameterSet, TQ_InsertCompositeParameterSet, TQ_InsertBlurParameterSet,
                              TQ_InsertOffsetParameterSet, TQ_InsertEdgeParameterSet, TQ_ColourFilterParameterSet,
                              TQ_LuminanceEffectsParameterSet, TQ_WarperParameterSet, TQ_ColourParameterSet>;
TYPED_TEST_SUITE(ModuleSet, Sets);

TYPED_TEST(ModuleSet, ParametersFollowTheTableRowByRow)
{
    std::unique_ptr<TypeParam> set = newSet<TypeParam>(&this->clips);
    EXPECT_EQ(set->qstrScriptName(), this->table.name);
    EXPECT_EQ(set->qstrDisplayName(), this->table.name);
    EXPECT_EQ(basicNames(*set), this->table.moved);
    QStringList children;
    for (Prm::ParameterSet const* child : set->childSetList())
        children << child->qstrScriptName();
    EXPECT_EQ(children, this->table.children) << "child sets in the order of the text";
    QVector<Prm::ParameterWithoutType*> const parameters = set->parameterList();
    ASSERT_EQ(parameters.size(), this->table.rows.size());
    for (int i = 0; i < parameters.size(); ++i) {
        TableRow const& row = this->table.rows[i];
        EXPECT_EQ(parameters[i]->qstrScriptName(), row.name) << "row " << i;
        EXPECT_EQ(factsOf(*parameters[i]) + looksOf(*parameters[i]), expectedFacts(*parameters[i], row))
            << row.name.toStdString();
    }
}

TYPED_TEST(ModuleSet, CopiesShareMovedParametersAndAssignmentKeepsOnlyWhatTheTableSays)
{
    std::unique_ptr<TypeParam> source = this->mutated(1, &this->clips);
    for (Prm::ParameterWithoutType* parameter : source->parameterList()) {
        vWidenLimits(*parameter);
        parameter->setDisplayName("Renamed " + parameter->qstrScriptName());
        parameter->hide(!parameter->isHidden());
    }
    source->setScriptName("Renamed");
    TypeParam const copy(*source);
    std::unique_ptr<TypeParam> target = this->mutated(2, nullptr);
    std::vector<QStringList> before;
    for (Prm::ParameterWithoutType* parameter : target->parameterList())
        before.push_back(factsOf(*parameter));
    *target = *source;

    EXPECT_EQ(copy.qstrScriptName(), this->table.name) << "a copy starts afresh with the fixed name";
    EXPECT_EQ(target->qstrScriptName(), "Renamed");
    EXPECT_EQ(copy.basicParameterList(), source->basicParameterList()) << "moved parameters are shared";
    EXPECT_EQ(target->basicParameterList(), source->basicParameterList());
    std::unique_ptr<TypeParam> const fresh = newSet<TypeParam>(nullptr);
    QVector<Prm::ParameterWithoutType*> const sources = source->parameterList();
    QVector<Prm::ParameterWithoutType*> const copies = copy.parameterList();
    QVector<Prm::ParameterWithoutType*> const targets = target->parameterList();
    ASSERT_EQ(copies.size(), sources.size());
    ASSERT_EQ(targets.size(), sources.size());
    for (int i = 0; i < sources.size(); ++i) {
        std::string const name = sources[i]->qstrScriptName().toStdString();
        auto const* bytes = reinterpret_cast<char const*>(copies[i]);
        EXPECT_TRUE(bytes >= reinterpret_cast<char const*>(&copy) && bytes < reinterpret_cast<char const*>(&copy + 1))
            << name << ": a copy registers its own members";
        EXPECT_EQ(factsOf(*copies[i]), factsOf(*sources[i])) << name;
        QStringList looks = looksOf(*sources[i]);
        QStringList const initial = looksOf(*fresh->parameterList()[i]);
        if (!this->table.rows[i].displayName.isEmpty())
            looks[0] = initial[0];
        if (this->table.flagsByInit.contains("*") || this->table.flagsByInit.contains(sources[i]->qstrScriptName()))
            looks[1] = initial[1];
        EXPECT_EQ(looksOf(*copies[i]), looks) << name << ": what init sets comes from init, the rest from the source";
        bool const bKept = this->table.bKept(sources[i]->qstrScriptName());
        EXPECT_EQ(factsOf(*targets[i]), bKept ? before[i] : factsOf(*sources[i])) << name;
        if (!bKept) {
            EXPECT_EQ(looksOf(*targets[i]), looksOf(*sources[i])) << name;
        }
        if (auto const* offset = dynamic_cast<PrmFrameOffset const*>(targets[i])) {
            EXPECT_EQ(offset->clipContainer, &this->clips) << name;
            EXPECT_EQ(dynamic_cast<PrmFrameOffset const*>(copies[i])->clipContainer, &this->clips) << name;
            EXPECT_EQ(offset->value2Display(5, 0.0f), 15u) << name << ": shown in the first clip's numbering";
        }
    }
    if constexpr (HasContainer<TypeParam>::value) {
        EXPECT_EQ(copy.clipContainer, &this->clips);
        EXPECT_EQ(target->clipContainer, this->table.bKept("clipContainer") ? nullptr : &this->clips);
    }
}

TYPED_TEST(ModuleSet, RemovingAClipResetsTheTabledReferencesInOrderAndAnnouncesEach)
{
    std::unique_ptr<TypeParam> set = newSet<TypeParam>(&this->clips);
    std::vector<Prm::Parameter<unsigned int>*> references;
    QStringList announced;
    for (Prm::ParameterWithoutType* parameter : set->parameterList()) {
        if (!parameter->qstrScriptName().endsWith("ClipID"))
            continue;
        references.push_back(dynamic_cast<Prm::Parameter<unsigned int>*>(parameter));
        QObject::connect(parameter, &Prm::ParameterWithoutType::changed, [&announced](Prm::ParameterChange& change) {
            if (change.kind() == Prm::ParameterChange::StaticValueChanged && change.index() == 0)
                announced << change.parameter()->qstrScriptName();
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
}

TYPED_TEST(ModuleSet, RescaleMultipliesTheTabledKeysByTheFirstFactorOnly)
{
    std::unique_ptr<TypeParam> fresh = newSet<TypeParam>(&this->clips);
    std::unique_ptr<TypeParam> keyed = this->mutated(1, &this->clips);
    for (TypeParam* set : {fresh.get(), keyed.get()}) {
        std::vector<QStringList> before;
        for (Prm::ParameterWithoutType* parameter : set->parameterList())
            before.push_back(factsOf(*parameter));
        set->rescale(2.0f, 3.0f);
        QVector<Prm::ParameterWithoutType*> const parameters = set->parameterList();
        for (int i = 0; i < parameters.size(); ++i) {
            auto* numeric = dynamic_cast<Prm::NumericParameterWithoutType*>(parameters[i]);
            if (!this->table.rescales.contains(parameters[i]->qstrScriptName()) || !numeric ||
                parameters[i]->keyframeCount() == 0) {
                EXPECT_EQ(factsOf(*parameters[i]), before[i]) << parameters[i]->qstrScriptName().toStdString();
                continue;
            }
            // Keys were set at 1 + floor(default) and 2 + floor(default).
            for (unsigned int k = 0; k < parameters[i]->keyframeCount(); ++k)
                EXPECT_EQ(numeric->keyframeValueAsDouble(k), 2 * (k + 1 + std::floor(before[i][3].toDouble())))
                    << parameters[i]->qstrScriptName().toStdString();
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
    QVector<Prm::ParameterWithoutType*> const sources = source->parameterList();
    QVector<Prm::ParameterWithoutType*> const targets = target->parameterList();
    for (int i = 0; i < sources.size(); ++i)
        EXPECT_EQ(factsOf(*targets[i]) + looksOf(*targets[i]), factsOf(*sources[i]) + looksOf(*sources[i]))
            << sources[i]->qstrScriptName().toStdString();
}

} // namespace

namespace {

TEST(RemoveParameterSet, UnusedFlagIsNeitherRegisteredNorCopiedNorAssigned)
{
    TQ_RemoveParameterSet source(nullptr);
    source.UnusedFlag.vSetValue(true, 0.0f);
    TQ_RemoveParameterSet copy(source);
    TQ_RemoveParameterSet target(nullptr);
    target.UnusedFlag.vSetValue(true, 4.0f);
    target = source;
    EXPECT_FALSE(source.parameterList().contains(&source.UnusedFlag));
    EXPECT_EQ(copy.UnusedFlag.keyframeCount(), 0u);
    EXPECT_EQ(copy.UnusedFlag.qstrDisplayName(), "Not Set");
    ASSERT_EQ(target.UnusedFlag.keyframeCount(), 1u);
    EXPECT_EQ(target.UnusedFlag.keyframeTime(0), 4.0f);
}

} // namespace
