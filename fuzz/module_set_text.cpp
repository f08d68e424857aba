// Reads arbitrary lines into each module set as a project file would, old moved names included, then
// copies, assigns, rescales, forgets every clip, shows the frame ranges and writes the sets back out: any
// text must be survived without undefined behaviour.
#include "clip/BaseClipInfo.h"
#include "clip/BaseClipInfoContainer.h"
#include "modules/ColourParameterSet.h"
#include "modules/InsertParameterSet.h"
#include "modules/LayerParameterSet.h"
#include "modules/MatteParameterSet.h"
#include "modules/RemoveParameterSet.h"
#include "modules/StabilizeParameterSet.h"
#include "modules/TrackingParameterSet.h"
#include "modules/WarperParameterSet.h"

#include <QString>
#include <QStringList>
#include <QTextStream>

#include <cstddef>
#include <cstdint>

namespace {

struct FirstClip : TQ_BaseClipInfoContainer {
    TQ_BaseClipInfo* baseClipInfo(unsigned int) override { return &clip; }
    TQ_BaseClipInfo clip;
};

template <class S>
void vExercise(S& set, QStringList const& lines)
{
    for (QString const& line : lines)
        set.bStreamIn(line);
    S copy(set);
    copy = set;
    copy.rescale(2.0f, 0.5f);
    copy.removeReferencesToClip(0);
    copy.forEachParameter([](Prm::ParameterWithoutType* parameter) { parameter->valueString(0.0f, nullptr); }, true);
    QString written;
    QTextStream out(&written);
    copy.bStreamOut(out, QString(), true);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size)
{
    QStringList const lines =
        QString::fromUtf8(reinterpret_cast<char const*>(data), static_cast<int>(size)).split(QLatin1Char('\n'));
    FirstClip clips;
    clips.clip.FirstFrameOffset = -7;
    TQ_TrackingParameterSet tracking;
    TQ_LayerParameterSet layer(&clips);
    TQ_MatteParameterSet matte;
    TQ_RemoveParameterSet remove(&clips);
    TQ_StabilizeParameterSet stabilize(&clips);
    vExercise(tracking, lines);
    vExercise(layer, lines);
    vExercise(matte, lines);
    vExercise(remove, lines);
    vExercise(stabilize, lines);
    // The insert set reaches its seven children; the colour set tells its four same-named bands apart by
    // the order of their lines.
    TQ_InsertParameterSet insert(&clips);
    TQ_WarperParameterSet warper;
    TQ_ColourParameterSet colour;
    vExercise(insert, lines);
    vExercise(warper, lines);
    vExercise(colour, lines);
    for (Prm::NumericParameterWithoutType* roi : {static_cast<Prm::NumericParameterWithoutType*>(&insert.ROI.ROIX1),
                                                  static_cast<Prm::NumericParameterWithoutType*>(&insert.ROI.ROIY2)})
        roi->value2DisplayAsDouble(roi->valueAsDouble(0.0f, nullptr), 0.0f);
    return 0;
}
