#pragma once

#include "clip/BaseClipInfo.h"
#include "clip/BaseClipInfoContainer.h"
#include "clip/ColourspaceParameters.h"
#include "prm/Fixtures.h"

#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QStringList>
#include <QVector>

namespace TQTest {

/// A container of clips keyed by identity, as the application would keep them; unknown ids give null.
class Clips : public TQ_BaseClipInfoContainer
{
public:
    TQ_BaseClipInfo* baseClipInfo(unsigned int clipId) override
    {
        return clips.contains(clipId) ? &clips[clipId] : nullptr;
    }
    QMap<unsigned int, TQ_BaseClipInfo> clips;
};

/// The nine table pointers of a colourspace in field order, as addresses for comparison.
inline QVector<void const*> tablesOf(TQ_ColourspaceParameters const& c)
{
    return {c.lut16To16Forward, c.lut16To16Inverse, c.lut8To16, c.lut16To8, c.lut16ToFloat, c.lutFloatTo16,
            c.lut8ToFloat, c.lutFloatTo8, c.lutHalfToFloat};
}

/// The lines a set writes, expecting the write to succeed.
inline QStringList linesOf(Prm::ParameterSet& set, QString const& prefix = QString(), bool bQualify = true)
{
    return qstrStreamed(set, prefix, bQualify).split('\n', Qt::SkipEmptyParts);
}

/// Reads lines into `set`, each expected to be accepted. Lines written by a set named "Core" lose that
/// qualifier first: a set reads lines relative to itself.
inline void vReadLines(Prm::ParameterSet& set, QStringList const& lines)
{
    for (QString const& line : lines)
        EXPECT_TRUE(set.bStreamIn(line.startsWith("Core.") ? line.mid(5) : line)) << line.toStdString();
}

/// The non-empty lines of one section of the clip tests' texts (from its "[name]" line to the next section),
/// each behind `prefix`.
inline QStringList textOf(QString const& section, QString const& prefix = "Core.")
{
    QFile file(TQ_TEST_FOLDER "/../clip/data/Texts.txt");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text));
    QStringList const lines = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
    int const from = lines.indexOf("[" + section + "]") + 1;
    EXPECT_GT(from, 0) << section.toStdString();
    QStringList text = lines.mid(from, lines.indexOf(QRegularExpression("\\[.*\\]"), from) - from);
    return text.replaceInStrings(QRegularExpression("^"), prefix);
}

} // namespace TQTest
