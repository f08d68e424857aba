// The example host: the road of one value, from a project file to warped points.
//
//   tq_example_host [output-folder] [project]
//
// It reads a project (by default examples/project/shot.tqp), hands each line to the set its first word
// names, asks the lens set for the camera of every frame of the clip, warps the frame's corners and a
// grid through a frame warp, makes one undoable edit, saves and reloads the project, and writes
// report.txt, curve.svg and distortion-grid.svg into the output folder (by default
// build/example-output). The report is printed as well.
//
// In the project, "Warp.HomograpyZX" comes twice: the frame warp saves row 3, column 1 and row 3, column 3
// under that one name, and its set hands the second block of lines to the second entry.
#include "SvgPicture.h"
#include "tq.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

namespace {

/// The host owns its clips and lends them to the library by id; this project has one clip, id 1.
class Clips : public TQ_BaseClipInfoContainer {
public:
    TQ_BaseClipInfo* baseClipInfo(unsigned int clipId) override { return clipId == 1 ? &clip : nullptr; }
    TQ_BaseClipInfo clip;
};

/// Everything a project holds: one root set per first word of a line ("Core", "Camera", "Track", "Warp").
struct Project {
    Project() { warp.setScriptName(QStringLiteral("Warp")); } // a frame warp has no name of its own

    QVector<Prm::ParameterSet*> roots() { return {&clips.clip, &lens, &tracking, &warp}; }

    Clips clips;
    TQ_CameraParameterSet lens;
    TQ_TrackingParameterSet tracking;
    TQ::ParameterisedFrameWarp warp;
};

struct LoadResult {
    QMap<QString, int> linesPerSet;
    QStringList unread; // "line N: text"
};

/// Offers each line of `text` to the root set named by its first word, without that word. A line that
/// no set takes is reported with its number; it costs nothing else, since every line stands alone.
LoadResult load(Project& project, QString const& text)
{
    LoadResult result;
    QStringList const lines = text.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        QString const line = lines[i].trimmed();
        if (line.isEmpty())
            continue;
        QString const root = line.section(QLatin1Char('.'), 0, 0);
        bool bTaken = false;
        for (Prm::ParameterSet* set : project.roots()) {
            if (set->qstrScriptName() == root) {
                bTaken = set->bStreamIn(line.mid(root.size() + 1));
                break;
            }
        }
        if (bTaken)
            ++result.linesPerSet[root];
        else
            result.unread << QStringLiteral("line %1: %2").arg(i + 1).arg(line);
    }
    return result;
}

QString save(Project& project)
{
    QString text;
    QTextStream out(&text);
    for (Prm::ParameterSet* set : project.roots())
        Prm::ParameterTextDocument(*set).bWrite(out);
    out.flush();
    return text;
}

/// The warp of `frame`: the lens-free camera takes a pixel to a ray, `homography` moves the ray, and the
/// lens camera of that frame puts it back on the image, distorted.
TQ::FrameWarp frameWarp(Project const& project, unsigned int frame, Gan_Matrix33 const& homography)
{
    TQ_BaseClipInfo const& clip = project.clips.clip;
    TQ::Camera straight = project.lens.getCameraDefinition(frame);
    straight.distortionActive = false;
    TQ::FrameWarp warp;
    warp.vSetAttributes(1, -1, 0, 0, true, straight.toGanCamera(frame, clip), nullptr, homography, true,
                        project.lens.getCamera(frame, &clip), nullptr);
    return warp;
}

QPointF warped(TQ::FrameWarp const& warp, QPointF const& p)
{
    double x = p.x(), y = p.y();
    warp.vWarpPoint(x, y);
    return {x, y};
}

QString number(double d, int iDecimals = 4)
{
    return QString::number(d, 'f', iDecimals);
}

/// Table of the lens values and the Gandalf camera of every eighth frame and the last one.
void vReportCameras(Project const& project, QTextStream& report)
{
    TQ_BaseClipInfo const& clip = project.clips.clip;
    unsigned int const uiLast = clip.getClipLength() - 1;
    report << "frame  FocalDistance  RadialK1         Fx         Fy        X0        Y0\n";
    for (unsigned int frame = 0; frame <= uiLast; ++frame) {
        // Every frame is asked for, as an engine would; the cache keeps one camera per distinct lens.
        Gan_Camera const camera = project.lens.getCamera(frame, &clip);
        if (frame % 8 != 0 && frame != uiLast)
            continue;
        report << QStringLiteral("%1  %2  %3  %4  %5  %6  %7\n")
                      .arg(frame, 5)
                      .arg(number(project.lens.FocalDistance.value(float(frame), nullptr)), 13)
                      .arg(number(project.lens.RadialK1.value(float(frame), nullptr)), 8)
                      .arg(number(camera.fx), 9)
                      .arg(number(camera.fy), 9)
                      .arg(number(camera.x0, 2), 8)
                      .arg(number(camera.y0, 2), 8);
    }
    report << project.lens.cameras.size() << " cameras cached for " << uiLast + 1 << " frames.\n";
}

void vReportCorners(Project const& project, unsigned int frame, QTextStream& report)
{
    TQ::FrameWarp keyed;
    project.warp.populateFrameWarp(keyed, float(frame));
    Gan_Matrix33 const& h = keyed.tHomography;
    report << "Homography at frame " << frame << ": [" << h.xx << " " << h.xy << " " << h.xz << "; " << h.yx
           << " " << h.yy << " " << h.yz << "; " << h.zx << " " << h.zy << " " << h.zz << "]\n";
    TQ::FrameWarp const warp = frameWarp(project, frame, h);
    double const w = project.clips.clip.FrameWidth, hgt = project.clips.clip.FrameHeight;
    for (QPointF const& corner : {QPointF(0, 0), QPointF(w, 0), QPointF(0, hgt), QPointF(w, hgt)}) {
        QPointF const p = warped(warp, corner);
        report << "corner (" << corner.x() << ", " << corner.y() << ") -> (" << number(p.x()) << ", "
               << number(p.y()) << ")\n";
    }
}

/// "RadialK1" over the clip, its keys marked.
bool bDrawCurve(Prm::NumericParameter<float> const& parameter, unsigned int uiLength, QString const& path)
{
    double const left = 70, top = 40, width = 560, height = 260;
    float lo = parameter.value(0.0f, nullptr), hi = lo;
    for (float t = 0; t <= uiLength - 1; t += 0.25f) {
        lo = std::min(lo, parameter.value(t, nullptr));
        hi = std::max(hi, parameter.value(t, nullptr));
    }
    float const pad = std::max(0.1f * (hi - lo), 1e-3f);
    lo -= pad;
    hi += pad;
    auto const at = [&](double t, double v) {
        return QPointF(left + width * t / (uiLength - 1), top + height * (hi - v) / (hi - lo));
    };
    SvgPicture svg(660, 340);
    svg.vText({left, 24}, parameter.qstrScriptName() + QStringLiteral(" over frames 0 to %1").arg(uiLength - 1));
    svg.vPolyline({at(0, hi), at(0, lo), at(uiLength - 1, lo)}, QStringLiteral("black"), 1);
    for (unsigned int frame = 0; frame < uiLength; frame += 8)
        svg.vText(at(frame, lo) + QPointF(0, 18), QString::number(frame), QStringLiteral("middle"));
    for (int i = 0; i <= 4; ++i) {
        double const v = lo + (hi - lo) * i / 4;
        svg.vText(at(0, v) + QPointF(-6, 4), number(v, 3), QStringLiteral("end"));
    }
    QVector<QPointF> curve;
    for (float t = 0; t <= uiLength - 1; t += 0.25f)
        curve << at(t, parameter.value(t, nullptr));
    svg.vPolyline(curve, QStringLiteral("#1f5fbf"), 2);
    for (unsigned int i = 0; i < parameter.keyframeCount(); ++i) {
        float const t = parameter.keyframeTime(i);
        svg.vDot(at(t, parameter.value(t, nullptr)), 5, QStringLiteral("#d0402a"));
    }
    return svg.bSave(path);
}

/// A straight grid over the frame (grey) and the same grid through the lens of `frame` (blue).
bool bDrawDistortionGrid(Project const& project, unsigned int frame, QString const& path)
{
    double const w = project.clips.clip.FrameWidth, h = project.clips.clip.FrameHeight;
    double const scale = 600 / w, margin = 30;
    TQ::FrameWarp const lensOnly = frameWarp(project, frame, gan_mat33_ident_s());
    SvgPicture svg(int(w * scale + 2 * margin), int(h * scale + 2 * margin + 30));
    svg.vText({margin, 22}, QStringLiteral("Lens distortion at frame %1 (RadialK1 %2)")
                                .arg(frame).arg(number(project.lens.RadialK1.value(float(frame), nullptr), 3)));
    auto const draw = [&](QPointF from, QPointF to) {
        QVector<QPointF> straight, bent;
        for (int i = 0; i <= 32; ++i) {
            QPointF const p = from + (to - from) * (i / 32.0);
            straight << p * scale + QPointF(margin, margin + 20);
            bent << warped(lensOnly, p) * scale + QPointF(margin, margin + 20);
        }
        svg.vPolyline(straight, QStringLiteral("#bbbbbb"), 1);
        svg.vPolyline(bent, QStringLiteral("#1f5fbf"), 1.5);
    };
    for (int i = 0; i <= 16; ++i)
        draw({w * i / 16, 0}, {w * i / 16, h});
    for (int i = 0; i <= 9; ++i)
        draw({0, h * i / 9}, {w, h * i / 9});
    svg.vText({margin, h * scale + margin + 42},
              QStringLiteral("grey: a straight grid over the %1 x %2 frame; blue: the same grid through the lens")
                  .arg(w).arg(h));
    return svg.bSave(path);
}

/// An undoable edit: nothing changes until the host runs the composite, and undo gives the value back.
void vReportEdit(Project& project, QTextStream& report)
{
    auto& k1 = project.lens.RadialK1;
    float const before = k1.value(30.0f, nullptr);
    Bsc::CompositeCommand edits;
    k1.vSetValueCommand(-0.2f, 30.0f, edits);
    edits.doIt();
    float const edited = k1.value(30.0f, nullptr);
    edits.undoIt();
    report << "Undoable edit: RadialK1 key -0.2 at frame 30: " << number(before) << " -> " << number(edited)
           << ", undone -> " << number(k1.value(30.0f, nullptr)) << "\n";
}

void vReportSaveAndReload(Project& project, QString const& path, QTextStream& report)
{
    QString const text = save(project);
    QFile file(path);
    bool const bSaved = file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(text.toUtf8()) >= 0;
    Project reloaded;
    LoadResult const again = load(reloaded, text);
    report << "Saved " << text.count(QLatin1Char('\n')) << " lines to " << (bSaved ? path : "(nowhere)")
           << "; reloaded with " << again.unread.size() << " lines not read, RadialK1 at frame 30 "
           << number(reloaded.lens.RadialK1.value(30.0f, nullptr)) << "\n";
}

} // namespace

int main(int argc, char** argv)
{
    QString const outDir = QDir(argc > 1 ? argv[1] : "build/example-output").absolutePath();
    QString const projectPath = QFileInfo(argc > 2 ? argv[2] : TQ_EXAMPLE_PROJECT).absoluteFilePath();
    QFile projectFile(projectPath);
    if (!QDir().mkpath(outDir) || !projectFile.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s or write into %s\n", qPrintable(projectPath), qPrintable(outDir));
        return 1;
    }
    // The library logs through one sink; this host drops its lines, as the report says what matters.
    Bsc::Logger::instance().setSink([](std::string const&) {});

    QString text;
    QTextStream report(&text);
    report << "libtq example host\nProject: " << projectPath << "\nOutput:  " << outDir << "\n\n";

    Project project;
    LoadResult const loaded = load(project, QString::fromUtf8(projectFile.readAll()));
    report << "Lines read:";
    for (auto it = loaded.linesPerSet.cbegin(); it != loaded.linesPerSet.cend(); ++it)
        report << " " << it.key() << " " << it.value();
    report << "\nLines not read: " << loaded.unread.size() << "\n";
    for (QString const& line : loaded.unread)
        report << "  " << line << "\n";
    TQ_BaseClipInfo const& clip = project.clips.clip;
    report << "Clip 1: " << clip.FrameWidth << " x " << clip.FrameHeight << ", " << clip.getClipLength()
           << " frames, film back width " << clip.filmType.filmBackWidth << "\n\n";
    if (clip.getClipLength() == 0) {
        std::fprintf(stderr, "the project has no clip\n");
        return 1;
    }

    vReportCameras(project, report);
    report << "\n";
    vReportCorners(project, 30, report);
    report << "\n";
    vReportEdit(project, report);
    vReportSaveAndReload(project, outDir + "/shot-saved.tqp", report);

    bool const bDrawn = bDrawCurve(project.lens.RadialK1, clip.getClipLength(), outDir + "/curve.svg")
                        && bDrawDistortionGrid(project, 0, outDir + "/distortion-grid.svg");
    report << "\nPictures: " << outDir << "/curve.svg (RadialK1, keys marked), " << outDir
           << "/distortion-grid.svg (the lens at frame 0)\n";
    report.flush();

    QFile reportFile(outDir + "/report.txt");
    bool const bReported = reportFile.open(QIODevice::WriteOnly | QIODevice::Truncate)
                           && reportFile.write(text.toUtf8()) >= 0;
    std::fputs(qPrintable(text), stdout);
    return bDrawn && bReported ? 0 : 1;
}
