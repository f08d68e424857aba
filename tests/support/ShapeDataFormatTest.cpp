#include "support/ShapeDataFormat.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace {

QString const kCombustion = QStringLiteral("Combustion GMask Script (*.gmask)");
QString const kShakeSsf = QStringLiteral("Shake Rotoshape (*.ssf)");

void expectFormat(TQ_ShapeDataFormat const& format, char const* filter, char const* extension, bool bFlag,
                  char const* hostTag)
{
    SCOPED_TRACE(filter);
    EXPECT_EQ(format.fileTypeFilter, QString::fromLatin1(filter));
    EXPECT_EQ(format.extension, QString::fromLatin1(extension));
    EXPECT_EQ(format.bFlag, bFlag);
    EXPECT_EQ(format.hostTag, QString::fromLatin1(hostTag));
}

} // namespace

// One test on purpose: the registry only fills, so its steps depend on what was built before them.
TEST(ShapeDataFormat, RegistryFillsLazilyAndListsInLabelOrder)
{
    TQ_ShapeDataFormat::Map& all = TQ_ShapeDataFormat::MAP_ALL();
    EXPECT_EQ(&all, &TQ_ShapeDataFormat::_formatsByName());
    ASSERT_EQ(all.count(kCombustion), 0u) << "nothing else in this program may build the formats";

    // Before its function runs, a label is unknown and falls back to Shake Rotoshape, which that builds.
    int const countBefore = TQ_ShapeDataFormat::enumCount;
    EXPECT_EQ(TQ_ShapeDataFormat::byName(kCombustion).fileTypeFilter, kShakeSsf);
    EXPECT_EQ(TQ_ShapeDataFormat::byName(QString()).fileTypeFilter, kShakeSsf);

    // Built once, whatever the number of calls; the counter rises once and numbers it.
    int const countAfterFallback = TQ_ShapeDataFormat::enumCount;
    TQ_ShapeDataFormat& combustion = TQ_ShapeDataFormat::COMBUSTION_GMASK_SCRIPT(); // a host's plain reference
    EXPECT_EQ(&TQ_ShapeDataFormat::COMBUSTION_GMASK_SCRIPT(), &combustion);
    EXPECT_EQ(TQ_ShapeDataFormat::enumCount, countAfterFallback + 1);
    EXPECT_EQ(TQ_ShapeDataFormat::byName(kCombustion).iEnumValue, countAfterFallback);

    // All ten, with their records.
    struct { TQ_ShapeDataFormat const& format; char const *filter, *extension; bool bFlag; char const* host; } const
        rows[] = {
            {TQ_ShapeDataFormat::COMBUSTION_GMASK_SCRIPT(), "Combustion GMask Script (*.gmask)", ".gmask", false,
             "combustion"},
            {TQ_ShapeDataFormat::NUKE_ROTO(), "Nuke v6.2 Roto (*.nk)", ".nk", true, "nuke"},
            {TQ_ShapeDataFormat::NUKE_ROTO_PAINT(), "Nuke Roto Paint (*.nk)", ".nk", true, "nuke"},
            {TQ_ShapeDataFormat::VANTREL_SHAPE_SCRIPT(), "Vantrel Layer Script (*.layer)", ".layer", false, "generic"},
            {TQ_ShapeDataFormat::FC_LUMBA_SHAPE(), "lumba shape data for Final Cut", ".xml", true, "finalcut"},
            {TQ_ShapeDataFormat::AE_LUMBA_SHAPE(), "lumba shape data for AE", ".shape4ae", true, "aftereffects"},
            {TQ_ShapeDataFormat::SHAKE_SSF_SCRIPT(), "Shake Rotoshape (*.ssf)", ".ssf", true, "shake"},
            {TQ_ShapeDataFormat::FLAME_BATCH_SCRIPT(), "Flame Action Script (*.action)", ".action", false, "ifffse"},
            {TQ_ShapeDataFormat::FLAME_GMASK_SCRIPT(), "Flame GMask Script (*.gmask)", ".gmask", false, "ifffse"},
            {TQ_ShapeDataFormat::SHAKE_ROTOSHAPE_SCRIPT(), "Shake Script (*.shk)", ".shk", false, "shake"}};
    for (auto const& r : rows)
        expectFormat(r.format, r.filter, r.extension, r.bFlag, r.host);

    QStringList labels;
    for (auto const& entry : all) {
        EXPECT_EQ(entry.first, entry.second.fileTypeFilter);
        labels << entry.first;
    }
    // QString order: upper case before lower case.
    EXPECT_EQ(labels, (QStringList{"Combustion GMask Script (*.gmask)", "Flame Action Script (*.action)",
                                   "Flame GMask Script (*.gmask)", "Nuke Roto Paint (*.nk)",
                                   "Nuke v6.2 Roto (*.nk)", "Shake Rotoshape (*.ssf)", "Shake Script (*.shk)",
                                   "Vantrel Layer Script (*.layer)", "lumba shape data for AE",
                                   "lumba shape data for Final Cut"}));
    EXPECT_EQ(TQ_ShapeDataFormat::enumCount, countBefore + 10);

    // A format constructed under a taken label is numbered but leaves the registered one in place.
    TQ_ShapeDataFormat const impostor(kCombustion, QStringLiteral(".x"), true, QStringLiteral("other"));
    EXPECT_EQ(impostor.iEnumValue, countBefore + 10);
    EXPECT_EQ(all.size(), 10u);
    EXPECT_EQ(TQ_ShapeDataFormat::byName(kCombustion).extension, QStringLiteral(".gmask"));
}
