#include "ModuleSetTable.h"
#include "modules/ColourParameterSet.h"
#include "modules/InsertParameterSet.h"
#include "prm/text/ParameterTextDocument.h"

#include <gtest/gtest.h>

namespace {

char const* const colourBandTable =
#include "tables/ColourBand.table"
    ;

/// Every parameter of the set and of its children, depth first.
QVector<Prm::ParameterWithoutType*> everyParameter(Prm::ParameterSet const& set)
{
    QVector<Prm::ParameterWithoutType*> all;
    set.forEachParameter([&all](Prm::ParameterWithoutType* parameter) { all << parameter; }, true);
    return all;
}

/// Mutates everything in `source`, writes it, reads the text into `target` and expects every line taken
/// and every parameter, children's included, to hold what the source's holds.
template <class S>
void vExpectWholeRoundTrip(S& source, S& target)
{
    int seed = 0;
    for (Prm::ParameterWithoutType* parameter : everyParameter(source))
        vMutate(*parameter, ++seed % 3 + 1);
    QString const text = Prm::ParameterTextDocument(source).qstrWrite();
    Prm::ParameterTextDocument document(target);
    EXPECT_EQ(document.iRead(text), text.count('\n'));
    EXPECT_TRUE(document.unreadLines().isEmpty());
    QVector<Prm::ParameterWithoutType*> const sources = everyParameter(source);
    QVector<Prm::ParameterWithoutType*> const targets = everyParameter(target);
    ASSERT_EQ(targets.size(), sources.size());
    for (int i = 0; i < sources.size(); ++i)
        EXPECT_EQ(factsOf(*targets[i]), factsOf(*sources[i])) << sources[i]->extendedName().toStdString();
}

} // namespace

TEST(ChildSets, ColourBandsFollowTheirTable)
{
    SetTable const table{QString::fromUtf8(colourBandTable)};
    TQ_ColourParameterSet colour;
    for (TQ_ColourParams const& band : colour.bands) {
        EXPECT_EQ(band.qstrScriptName(), table.name);
        QVector<Prm::ParameterWithoutType*> const parameters = band.parameterList();
        ASSERT_EQ(parameters.size(), table.rows.size());
        for (int i = 0; i < parameters.size(); ++i)
            EXPECT_EQ(factsOf(*parameters[i]) + looksOf(*parameters[i]), expectedFacts(*parameters[i], table.rows[i]))
                << table.rows[i].name.toStdString();
    }
}

TEST(ChildSets, WholeTextRoundTripReachesEveryChild)
{
    TQ_InsertParameterSet insertSource(nullptr);
    TQ_InsertParameterSet insertTarget(nullptr);
    vExpectWholeRoundTrip(insertSource, insertTarget);
    TQ_ColourParameterSet colourSource;
    TQ_ColourParameterSet colourTarget;
    vExpectWholeRoundTrip(colourSource, colourTarget);
}

TEST(ChildSets, CopiesOfChildrenStartWithTheirFixedNamesAndBindTheirOwnParameters)
{
    TQ_InsertParameterSet insert(nullptr);
    insert.Blur.setScriptName("Soft");
    TQ_InsertParameterSet const copy(insert);
    EXPECT_EQ(copy.Blur.qstrScriptName(), "Blur");
    EXPECT_EQ(copy.childSetList().at(2), &copy.Blur);
    EXPECT_EQ(copy.Blur.parameterList().at(0), &copy.Blur.SmoothedInsertClipID);
    TQ_ColourParams band;
    band.setScriptName("Renamed");
    TQ_ColourParams const bandCopy(band);
    EXPECT_EQ(bandCopy.qstrScriptName(), "ColourBand");
    EXPECT_EQ(bandCopy.parameterList().at(5), &bandCopy.Brightness);
}
