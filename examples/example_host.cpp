// An example host: what an application's interface or engine does with the library.
//
// It keeps a module's settings in a parameter set, animates them with undoable edits, saves the set as
// text and loads it into a fresh set, shows what a damaged project line does, and asks the clip and
// colour side for a film back, pulldown arithmetic and a lookup table.
#include "tq.h"

#include <QTextStream>

#include <cstdio>
#include <string>

namespace {

/// A module's settings: how a host declares its own set. Parameters are members, registered in `init`
/// in the order of the text; the copy constructor registers the copies again.
class GradeSettings : public Prm::ParameterSet {
public:
    GradeSettings() : Prm::ParameterSet("Grade", nullptr),
        Gain(true, "Gain", 1.0f, 0.0f, 4.0f, Prm::InterpolationLinear, Prm::ExtrapolationHold),
        Offset(true, "Offset", 0.0, -1.0, 1.0, Prm::InterpolationBezier, Prm::ExtrapolationHold),
        Label(false, "Label", QString("main grade"), Prm::InterpolationStep, Prm::ExtrapolationHold),
        Bypass(true, "Bypass", false, Prm::InterpolationStep, Prm::ExtrapolationHold)
    {
        init();
    }

    Prm::NumericParameter<float> Gain;
    Prm::NumericParameter<double> Offset;
    Prm::Parameter<QString> Label;
    Prm::Parameter<bool> Bypass;

private:
    void init()
    {
        addParameter(&Gain);
        addParameter(&Offset);
        addParameter(&Label);
        addParameter(&Bypass);
    }
};

void vPrintCurve(char const* title, GradeSettings const& set)
{
    std::printf("%s\n  frame   Gain   Offset\n", title);
    for (float frame = 0; frame <= 40; frame += 5)
        std::printf("  %5.0f  %5.3f  %7.4f\n", frame, set.Gain.value(frame, nullptr),
                    set.Offset.value(frame, nullptr));
}

void vAnimate(GradeSettings& set)
{
    // Every ...Command call adds one edit; nothing changes until the host runs the composite.
    Bsc::CompositeCommand edits;
    set.Gain.vSetValueCommand(0.5f, 0.0f, edits);
    set.Gain.vSetValueCommand(2.0f, 20.0f, edits);
    set.Gain.vSetValueCommand(9.0f, 30.0f, edits); // clamped to the maximum of 4 when read
    set.Offset.vSetValueCommand(-0.25, 10.0f, edits);
    set.Offset.vSetValueCommand(0.25, 30.0f, edits);
    edits.doIt();
    vPrintCurve("After the edits:", set);

    edits.undoIt();
    std::printf("Undone: %d Gain keys, Gain at frame 20 = %.3f\n", set.Gain.keyframeCount(),
                set.Gain.value(20.0f, nullptr));
    edits.doIt();
    std::printf("Redone: %d Gain keys\n\n", set.Gain.keyframeCount());
}

void vSaveAndLoad(GradeSettings& set)
{
    Prm::ParameterTextDocument const writer(set);
    QString const text = writer.qstrWrite();
    std::printf("Saved text:\n%s\n", qPrintable(text));

    GradeSettings loaded;
    Prm::ParameterTextDocument reader(loaded);
    int const taken = reader.iRead(text);
    std::printf("Loaded %d lines; Gain at frame 25 = %.3f (saved set: %.3f)\n\n", taken,
                loaded.Gain.value(25.0f, nullptr), set.Gain.value(25.0f, nullptr));

    // A damaged project: a key line cut short (its key loads, its handles are logged as lost), a
    // misspelt parameter and a line that names nothing. The rest still loads.
    QString damaged = text;
    damaged.replace("BezierKey( 10, -0.25, 2, 0.05, -2, -0.05 )", "BezierKey( 10, -0.25, 2 )");
    damaged.replace(".Label", ".Lable");
    damaged += "Grade.Nothing.value=1\n";
    GradeSettings repaired;
    Prm::ParameterTextDocument damagedReader(repaired);
    damagedReader.iRead(damaged);
    std::printf("Damaged text: %d lines not taken\n", int(damagedReader.unreadLines().size()));
    for (auto const& line : damagedReader.unreadLines())
        std::printf("  line %d: %s\n", line.iLineNumber, qPrintable(line.qstrText));
    std::printf("  Gain at frame 25 still %.3f; Offset keys: %d\n\n", repaired.Gain.value(25.0f, nullptr),
                repaired.Offset.keyframeCount());
}

void vDescribeClip()
{
    TQ_BaseClipInfo clip;
    clip.FrameWidth = 1920;
    clip.FrameHeight = 1080;
    clip.setFilmType(TQ_FilmTypeFactory::bestMatchForSize(QSize(1920, 1080), false));
    clip.setNumImageFilesInClip(100);
    std::printf("Clip: film back \"%s\", pixel aspect %.4f, %u frames from 100 files\n",
                qPrintable(clip.getFilmType().name), clip.PixelAspectRatio, clip.getClipLength());

    unsigned char gamma[256];
    if (gbCreate8BitGammaLookup(8, 2.2f, gamma, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr))
        std::printf("Gamma 2.2 table: 0->%d 64->%d 128->%d 255->%d\n", gamma[0], gamma[64], gamma[128],
                    gamma[255]);
    std::printf("\n");
}

} // namespace

int main()
{
    std::printf("libtq example host\n\n");
    // The library logs through one sink; a host sends the lines wherever its own log goes.
    Bsc::Logger::instance().setSink([](std::string const& line) { std::printf("  [log] %s\n", line.c_str()); });
    GradeSettings settings;
    vAnimate(settings);
    vSaveAndLoad(settings);
    vDescribeClip();
    return 0;
}
