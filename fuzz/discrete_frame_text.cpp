// Reads arbitrary lines into a clip as a project file would, frame lines and parameter lines mixed, then
// copies, assigns and writes the clip back out, discrete and numbered: any text must be survived without
// undefined behaviour or a leak, whatever the list holds and whoever shares it.
#include "clip/ClipInfo.h"

#include <QString>
#include <QStringList>
#include <QTextStream>

#include <cstddef>
#include <cstdint>

namespace {

void vWrite(TQ_ClipInfo& clip)
{
    QString written;
    QTextStream out(&written);
    clip.bStreamOut(out, QStringLiteral("P."), true);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size)
{
    QString const text = QString::fromUtf8(reinterpret_cast<char const*>(data), static_cast<int>(size));
    TQ_ClipInfo clip;
    TQ_ClipInfo shared;
    for (QString const& line : text.split(QLatin1Char('\n'))) {
        clip.bStreamIn(line);
        // Copies taken part way share or duplicate the list by the clip's state at that moment.
        if (line.endsWith(QLatin1Char('!')))
            shared = clip;
    }
    clip.firstFileName();
    clip.vRebuildDataTypeOfFile();

    TQ_ClipInfo copy(clip);
    vWrite(copy);
    copy.DiscreteFrames = copy.DiscreteFrames == TQ_TRUE ? TQ_FALSE : TQ_TRUE;
    vWrite(copy);
    shared = copy;
    copy = clip;
    vWrite(clip);
    for (QString const& line : text.split(QLatin1Char('\n')))
        copy.bStreamIn(line);
    return 0;
}
