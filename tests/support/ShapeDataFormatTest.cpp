#include "support/ShapeDataFormat.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <tuple>

// One test on purpose: the registry only fills, so its steps depend on what was built before them.
TEST(ShapeDataFormat, RegistryFillsLazilyAndListsInLabelOrder)
{
    QString const combustion = QStringLiteral("Combustion GMask Script (*.gmask)");
    TQ_ShapeDataFormat::Map& all = TQ_ShapeDataFormat::MAP_ALL();
    EXPECT_EQ(&all, &TQ_ShapeDataFormat::_formatsByName());
    ASSERT_EQ(all.count(combustion), 0u) << "nothing else in this program may build the formats";

    // Before its function runs, a label is unknown and falls back to Shake Rotoshape, which that builds.
    int const countBefore = TQ_ShapeDataFormat::enumCount;
    EXPECT_EQ(TQ_ShapeDataFormat::byName(combustion).fileTypeFilter, "Shake Rotoshape (*.ssf)");
    EXPECT_EQ(TQ_ShapeDataFormat::byName(QString()).fileTypeFilter, "Shake Rotoshape (*.ssf)");

    // Built once, whatever the number of calls; the counter rises once and numbers it.
    int const countAfterFallback = TQ_ShapeDataFormat::enumCount;
    TQ_ShapeDataFormat& format = TQ_ShapeDataFormat::COMBUSTION_GMASK_SCRIPT(); // a host's plain reference
    EXPECT_EQ(&TQ_ShapeDataFormat::COMBUSTION_GMASK_SCRIPT(), &format);
    EXPECT_EQ(TQ_ShapeDataFormat::enumCount, countAfterFallback + 1);
    EXPECT_EQ(TQ_ShapeDataFormat::byName(combustion).iEnumValue, countAfterFallback);

    // All ten, in label order (QString order: upper case before lower case).
    using Record = std::tuple<QString, QString, bool, QString>;
    std::pair<TQ_ShapeDataFormat const&, Record> const rows[] = {
        {TQ_ShapeDataFormat::COMBUSTION_GMASK_SCRIPT(), {combustion, ".gmask", false, "combustion"}},
        {TQ_ShapeDataFormat::FLAME_BATCH_SCRIPT(), {"Flame Action Script (*.action)", ".action", false, "ifffse"}},
        {TQ_ShapeDataFormat::FLAME_GMASK_SCRIPT(), {"Flame GMask Script (*.gmask)", ".gmask", false, "ifffse"}},
        {TQ_ShapeDataFormat::NUKE_ROTO_PAINT(), {"Nuke Roto Paint (*.nk)", ".nk", true, "nuke"}},
        {TQ_ShapeDataFormat::NUKE_ROTO(), {"Nuke v6.2 Roto (*.nk)", ".nk", true, "nuke"}},
        {TQ_ShapeDataFormat::SHAKE_SSF_SCRIPT(), {"Shake Rotoshape (*.ssf)", ".ssf", true, "shake"}},
        {TQ_ShapeDataFormat::SHAKE_ROTOSHAPE_SCRIPT(), {"Shake Script (*.shk)", ".shk", false, "shake"}},
        {TQ_ShapeDataFormat::VANTREL_SHAPE_SCRIPT(), {"Vantrel Layer Script (*.layer)", ".layer", false, "generic"}},
        {TQ_ShapeDataFormat::AE_LUMBA_SHAPE(), {"lumba shape data for AE", ".shape4ae", true, "aftereffects"}},
        {TQ_ShapeDataFormat::FC_LUMBA_SHAPE(), {"lumba shape data for Final Cut", ".xml", true, "finalcut"}}};
    QStringList labels, expectedLabels;
    for (auto const& [format, record] : rows) {
        EXPECT_EQ(Record(format.fileTypeFilter, format.extension, format.bFlag, format.hostTag), record);
        expectedLabels << std::get<0>(record);
    }
    for (auto const& entry : all) {
        EXPECT_EQ(entry.first, entry.second.fileTypeFilter);
        labels << entry.first;
    }
    EXPECT_EQ(labels, expectedLabels);
    EXPECT_EQ(TQ_ShapeDataFormat::enumCount, countBefore + 10);

    // A format constructed under a taken label is numbered but leaves the registered one in place.
    TQ_ShapeDataFormat const impostor(combustion, QStringLiteral(".x"), true, QStringLiteral("other"));
    EXPECT_EQ(impostor.iEnumValue, countBefore + 10);
    EXPECT_EQ(all.size(), 10u);
    EXPECT_EQ(TQ_ShapeDataFormat::byName(combustion).extension, QStringLiteral(".gmask"));
}
