#include "TableCheck.h"
#include "modules/ColourFilterParameterSet.h"
#include "modules/ColourParameterSet.h"
#include "modules/InsertBlurParameterSet.h"
#include "modules/InsertCompositeParameterSet.h"
#include "modules/InsertEdgeParameterSet.h"
#include "modules/InsertParameterSet.h"
#include "modules/LuminanceEffectsParameterSet.h"
#include "modules/WarperParameterSet.h"

#include <functional>
#include <memory>

namespace {

struct SetRow {
    char const* table;
    char const* name;
    std::function<std::unique_ptr<Prm::ParameterSet>()> make;
    int iMoved;
    QStringList children;
};

template <class S, class... A>
std::function<std::unique_ptr<Prm::ParameterSet>()> maker(A... arguments)
{
    return [=] { return std::unique_ptr<Prm::ParameterSet>(new S(arguments...)); };
}

QStringList const insertChildren{"ROI", "Composite", "Blur", "Offset", "Edge", "Luminance", "ColourFilter"};
QStringList const bands{"ColourBand", "ColourBand", "ColourBand", "ColourBand"};

std::vector<SetRow> const sets{
    {"InsertParameterSet", "Insert", maker<TQ_InsertParameterSet>(nullptr), 1, insertChildren},
    {"InsertROIParameterSet", "ROI", maker<TQ_InsertROIParameterSet>(nullptr, nullptr), 0, {}},
    {"InsertCompositeParameterSet", "Composite", maker<TQ_InsertCompositeParameterSet>(), 0, {}},
    {"InsertBlurParameterSet", "Blur", maker<TQ_InsertBlurParameterSet>(), 0, {}},
    {"InsertOffsetParameterSet", "Offset", maker<TQ_InsertOffsetParameterSet>(), 0, {}},
    {"InsertEdgeParameterSet", "Edge", maker<TQ_InsertEdgeParameterSet>(), 0, {}},
    {"ColourFilterParameterSet", "ColourFilter", maker<TQ_ColourFilterParameterSet>(), 0, {}},
    {"LuminanceEffectsParameterSet", "Luminance", maker<TQ_LuminanceEffectsParameterSet>(), 0, {}},
    {"WarperParameterSet", "Warper", maker<TQ_WarperParameterSet>(), 1, {}},
    {"ColourParameterSet", "Colour", maker<TQ_ColourParameterSet>(), 0, bands},
    {"ColourParams", "ColourBand", maker<TQ_ColourParams>(), 0, {}},
};

} // namespace

TEST(ModuleSetTables, EveryParameterAsTabledWithMovedParametersAndChildrenInTextOrder)
{
    for (SetRow const& row : sets) {
        SCOPED_TRACE(row.table);
        std::unique_ptr<Prm::ParameterSet> const set = row.make();
        EXPECT_EQ(set->qstrScriptName(), row.name);
        EXPECT_EQ(set->qstrDisplayName(), row.name);
        TableCheck::vExpectTable(*set, row.table);
        ASSERT_EQ(set->basicParameterList().size(), row.iMoved);
        if (row.iMoved) {
            EXPECT_EQ(set->basicParameterList().at(0)->scriptName(), "Render");
        }
        EXPECT_EQ(TableCheck::childNames(*set), row.children);
    }
}

TEST(ModuleSetTables, TextRoundTripOfEverySetWithItsChildren)
{
    for (SetRow const& row : sets) {
        SCOPED_TRACE(row.table);
        std::unique_ptr<Prm::ParameterSet> const source = row.make();
        std::unique_ptr<Prm::ParameterSet> const target = row.make();
        QString const text = TableCheck::qstrRoundTrip(*source, *target);
        if (row.iMoved) {
            EXPECT_FALSE(text.contains(".Render.")) << "a moved parameter writes nothing";
            EXPECT_TRUE(target->bStreamIn("Render.value=0")) << "but still takes its old line";
        }
    }
}

TEST(ModuleSetTables, CopiesStartWithTheFixedNameAndBindTheirOwnParameters)
{
    TQ_InsertParameterSet insert(nullptr);
    insert.setScriptName("Renamed");
    insert.Blur.setScriptName("Soft");
    TQ_InsertParameterSet const copy(insert);
    EXPECT_EQ(copy.qstrScriptName(), "Insert");
    EXPECT_EQ(copy.Blur.qstrScriptName(), "Blur");
    EXPECT_EQ(copy.parameterList().at(0), &copy.InputClipID);
    EXPECT_EQ(copy.childSetList().at(2), &copy.Blur);
    EXPECT_EQ(copy.Blur.parameterList().at(0), &copy.Blur.SmoothedInsertClipID);

    TQ_WarperParameterSet warper;
    warper.setScriptName("Bent");
    TQ_WarperParameterSet target;
    target = warper;
    EXPECT_EQ(target.qstrScriptName(), "Bent");
    EXPECT_EQ(target.parameterList().size(), 589);
    EXPECT_EQ(target.basicParameterList().at(0), warper.Render.get()) << "the moved parameter is shared";
}
