// Runs the example host on its shipped project and checks its report against figures worked out here
// from the project text alone, with the interpolation, camera and warp formulas written out by hand.
// Deliberately not linked to the library.
#include <gtest/gtest.h>

#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <cmath>

namespace {

using Keys = QMap<double, double>; // time to value

QString readAll(QString const& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The shipped project as this test reads it: "value=" lines as one key at time 0, key lines as keys.
/// The second "HomograpyZX" block belongs to row 3, column 3, under the name "HomograpyZZ" here.
struct ShippedProject {
    explicit ShippedProject(QString const& text) : lines(text.split(QLatin1Char('\n')))
    {
        QRegularExpression const value(QStringLiteral(R"(^(\w+)\.(\w+)\.value=([-\d.e+]+)$)"));
        QRegularExpression const key(
            QStringLiteral(R"(^(\w+)\.(\w+)\.keyframes\.append\( Key\( ([-\d.e+]+), ([-\d.e+]+), Linear \) \)$)"));
        for (QString const& line : lines) {
            auto const v = value.match(line);
            auto const k = key.match(line);
            if (v.hasMatch())
                vAdd(v.captured(1) + "." + v.captured(2), 0, v.captured(3).toDouble(), true);
            else if (k.hasMatch())
                vAdd(k.captured(1) + "." + k.captured(2), k.captured(3).toDouble(), k.captured(4).toDouble(), false);
        }
    }

    /// Linear between the keys (the frames asked for lie between the first and the last key).
    double at(QString const& name, double t) const
    {
        Keys const& keys = curves[name];
        auto next = keys.lowerBound(t);
        if (next == keys.cend())
            return (--next).value();
        if (next.key() == t || next == keys.cbegin())
            return next.value();
        auto const prev = std::prev(next);
        return prev.value() + (next.value() - prev.value()) * (t - prev.key()) / (next.key() - prev.key());
    }

    QStringList lines;
    QMap<QString, Keys> curves;

private:
    void vAdd(QString name, double t, double v, bool bStatic)
    {
        if (name == "Warp.HomograpyZX" && bStatic && curves.contains(name))
            name = "Warp.HomograpyZZ";
        curves[name][t] = v;
    }
};

struct Pixel {
    double x, y;
};

/// The warp of one frame by hand: the lens-free camera takes a pixel to a ray, the homography moves the
/// ray, the one-coefficient radial lens projects it, with Fx = focal * width / film back width.
Pixel warpedByHand(ShippedProject const& p, double frame, Pixel in)
{
    double const w = p.at("Core.FrameWidth", 0), h = p.at("Core.FrameHeight", 0);
    double const fx = float(p.at("Camera.FocalDistance", frame)) * w / p.at("Core.FilmBackWidth", 0);
    double const fy = fx * p.at("Core.PixelAspectRatio", 0), x0 = 0.5 * w, y0 = 0.5 * h;
    double const xu = (in.x - x0) / fx, yu = (in.y - y0) / fy;
    auto const row = [&](char r) {
        return p.at(QStringLiteral("Warp.Homograpy%1X").arg(r), frame) * xu
               + p.at(QStringLiteral("Warp.Homograpy%1Y").arg(r), frame) * yu
               + p.at(QStringLiteral("Warp.Homograpy%1Z").arg(r), frame);
    };
    double const c = row('Z'), X = row('X') / c, Y = row('Y') / c;
    double const factor = 1 + float(p.at("Camera.RadialK1", frame)) * (X * X + Y * Y);
    return {fx * X * factor + x0, fy * Y * factor + y0};
}

/// Well-formed XML with an "svg" root; returns the number of elements named `name`.
int iCountInSvg(QString const& path, QString const& name)
{
    QXmlStreamReader xml(readAll(path));
    int count = 0;
    bool bRootIsSvg = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        bRootIsSvg = bRootIsSvg || (count == 0 && xml.name() == QLatin1String("svg"));
        count += xml.name() == name;
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(path) << ": " << qPrintable(xml.errorString());
    EXPECT_TRUE(bRootIsSvg) << qPrintable(path);
    return count;
}

TEST(ExampleHost, ReportMatchesTheShippedProjectWorkedOutByHand)
{
    QTemporaryDir out;
    ASSERT_TRUE(out.isValid());
    QProcess host;
    host.start(QStringLiteral(TQ_EXAMPLE_HOST), {out.path(), QStringLiteral(TQ_EXAMPLE_PROJECT)});
    ASSERT_TRUE(host.waitForFinished(60000));
    ASSERT_EQ(host.exitCode(), 0) << host.readAllStandardError().constData();
    QString const report = readAll(out.path() + "/report.txt");
    ASSERT_FALSE(report.isEmpty());
    ShippedProject const project(readAll(QStringLiteral(TQ_EXAMPLE_PROJECT)));

    // One damaged line, named with its number; every other line is read by the set its first word names.
    auto const unread = QRegularExpression(QStringLiteral(R"(line (\d+): (.*))")).match(report);
    ASSERT_TRUE(unread.hasMatch());
    EXPECT_TRUE(report.contains("Lines not read: 1\n"));
    EXPECT_EQ(project.lines.value(unread.captured(1).toInt() - 1), unread.captured(2));
    QMap<QString, int> perSet;
    for (QString const& line : project.lines)
        perSet[line.section('.', 0, 0)] += !line.isEmpty() && line != unread.captured(2);
    for (QString const set : {"Core", "Camera", "Track", "Warp"})
        EXPECT_TRUE(report.contains(QStringLiteral(" %1 %2").arg(set).arg(perSet[set]))) << qPrintable(set);

    // The camera table: the lens values at each frame and the Gandalf camera made from them.
    QRegularExpression const row(QStringLiteral(
        R"(^ *(\d+) +([-\d.]+) +([-\d.]+) +([-\d.]+) +([-\d.]+) +([-\d.]+) +([-\d.]+)$)"),
                                 QRegularExpression::MultilineOption);
    double const w = project.at("Core.FrameWidth", 0), h = project.at("Core.FrameHeight", 0);
    QList<int> frames;
    for (auto it = row.globalMatch(report); it.hasNext();) {
        auto const m = it.next();
        double const frame = m.captured(1).toDouble();
        double const focal = project.at("Camera.FocalDistance", frame);
        double const fx = focal * w / project.at("Core.FilmBackWidth", 0);
        frames << int(frame);
        EXPECT_NEAR(m.captured(2).toDouble(), focal, 1e-4) << frame;
        EXPECT_NEAR(m.captured(3).toDouble(), project.at("Camera.RadialK1", frame), 1e-4) << frame;
        EXPECT_NEAR(m.captured(4).toDouble(), fx, 1e-3) << frame;
        EXPECT_NEAR(m.captured(5).toDouble(), fx * project.at("Core.PixelAspectRatio", 0), 1e-3) << frame;
        EXPECT_NEAR(m.captured(6).toDouble(), 0.5 * w, 0.01);
        EXPECT_NEAR(m.captured(7).toDouble(), 0.5 * h, 0.01);
    }
    EXPECT_EQ(frames, (QList<int>{0, 8, 16, 24, 32, 40, 47}));

    // The four corners of frame 30 through the keyed homography and the lens of that frame.
    QRegularExpression const corner(QStringLiteral(R"(corner \(([-\d.]+), ([-\d.]+)\) -> \(([-\d.]+), ([-\d.]+)\))"));
    int corners = 0;
    for (auto it = corner.globalMatch(report); it.hasNext(); ++corners) {
        auto const m = it.next();
        Pixel const expected = warpedByHand(project, 30, {m.captured(1).toDouble(), m.captured(2).toDouble()});
        EXPECT_NEAR(m.captured(3).toDouble(), expected.x, 2e-3) << qPrintable(m.captured(0));
        EXPECT_NEAR(m.captured(4).toDouble(), expected.y, 2e-3) << qPrintable(m.captured(0));
    }
    EXPECT_EQ(corners, 4);

    // The edit is undone and the saved project reads back whole, with the same value.
    QString const k1At30 = QString::number(project.at("Camera.RadialK1", 30), 'f', 4);
    EXPECT_TRUE(report.contains(QStringLiteral(": %1 -> -0.2000, undone -> %1\n").arg(k1At30))) << qPrintable(k1At30);
    EXPECT_TRUE(report.contains(QStringLiteral("0 lines not read, RadialK1 at frame 30 %1\n").arg(k1At30)));

    // Both pictures are well-formed; the curve marks each key of "RadialK1" with a dot.
    EXPECT_EQ(iCountInSvg(out.path() + "/curve.svg", "circle"), project.curves["Camera.RadialK1"].size());
    EXPECT_GT(iCountInSvg(out.path() + "/distortion-grid.svg", "polyline"), 0);
}

} // namespace
