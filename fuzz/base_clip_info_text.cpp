// Reads arbitrary lines into a clip as a project file would, then runs everything that derives from the
// read values (film matching, aspect ratios, frame counts) and writes the clip back out: any text must be
// survived without undefined behaviour.
#include "camera/FilmTypeFactory.h"
#include "clip/BaseClipInfo.h"

#include <QString>
#include <QStringList>
#include <QTextStream>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size)
{
    QString const text = QString::fromUtf8(reinterpret_cast<char const*>(data), static_cast<int>(size));
    TQ_BaseClipInfo clip;
    for (QString const& line : text.split(QLatin1Char('\n')))
        clip.bStreamIn(line);

    QSize const frameSize = clip.getFrameSize();
    bool const bDoubled = clip.eInterlaceMode == 1 || clip.eInterlaceMode == 2;
    clip.setFilmType(TQ_FilmTypeFactory::bestMatchForSize(frameSize, bDoubled));
    clip.setFilmType(TQ_FilmTypeFactory::bestMatchForPAR(clip.PixelAspectRatio, frameSize, bDoubled));
    clip.setNumImageFilesInClip(clip.CropTop);
    clip.uiGetNumberOfPulldownFiles(clip.CropLeft);

    TQ_BaseClipInfo copy(clip);
    copy = clip;
    QString written;
    QTextStream out(&written);
    copy.bStreamOut(out, QString(), true);
    return 0;
}
