#pragma once

#include "clip/BaseClipInfo.h"
#include "clip/BaseClipInfoContainer.h"
#include "clip/ColourspaceParameters.h"

#include <gtest/gtest.h>

#include <QMap>
#include <QStringList>
#include <QTextStream>

#include <vector>

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
inline std::vector<void const*> tablesOf(TQ_ColourspaceParameters const& c)
{
    return {c.lut16To16Forward, c.lut16To16Inverse, c.lut8To16, c.lut16To8, c.lut16ToFloat, c.lutFloatTo16,
            c.lut8ToFloat, c.lutFloatTo8, c.lutHalfToFloat};
}

/// The lines a set writes, expecting the write to succeed.
inline QStringList linesOf(Prm::ParameterSet& set, QString const& prefix = QString(), bool bQualify = true)
{
    QString text;
    QTextStream out(&text);
    EXPECT_TRUE(set.bStreamOut(out, prefix, bQualify));
    out.flush();
    return text.split('\n', Qt::SkipEmptyParts);
}

/// Reads lines written by a set named "Core" into `set`: a set reads lines relative to itself.
inline void vReadLines(Prm::ParameterSet& set, QStringList const& lines)
{
    for (QString const& line : lines) {
        ASSERT_TRUE(line.startsWith("Core."));
        EXPECT_TRUE(set.bStreamIn(line.mid(5))) << line.toStdString();
    }
}

} // namespace TQTest
