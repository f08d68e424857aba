// Runs the example host on its shipped project and checks its report against figures worked out by hand
// (data/report.txt). Deliberately not linked to the library.
#include <gtest/gtest.h>

#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

QString readAll(QString const& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// A line's numbers, and its words with every number as '#'.
struct Shape {
    explicit Shape(QString line)
    {
        static QRegularExpression const number(QStringLiteral(R"(-?\d+(\.\d+)?)"));
        for (auto it = number.globalMatch(line); it.hasNext();)
            numbers << it.next().captured().toDouble();
        words = line.replace(number, QStringLiteral("#")).simplified();
    }
    QString words;
    QVector<double> numbers;
};

/// The number of elements named `name` in a well-formed picture with an "svg" root.
int iCountInSvg(QString const& path, QString const& name)
{
    QXmlStreamReader xml(readAll(path));
    EXPECT_TRUE(xml.readNextStartElement() && xml.name() == QLatin1String("svg")) << qPrintable(path);
    int count = 0;
    while (!xml.atEnd())
        count += xml.readNext() == QXmlStreamReader::StartElement && xml.name() == name;
    EXPECT_FALSE(xml.hasError()) << qPrintable(path) << ": " << qPrintable(xml.errorString());
    return count;
}

TEST(ExampleHost, ReportMatchesTheShippedProjectWorkedOutByHand)
{
    QTemporaryDir out;
    QProcess host;
    host.start(QStringLiteral(TQ_EXAMPLE_HOST), {out.path(), QStringLiteral(TQ_EXAMPLE_PROJECT)});
    ASSERT_TRUE(host.waitForFinished(60000));
    ASSERT_EQ(host.exitCode(), 0) << host.readAllStandardError().constData();
    QVector<Shape> report, expected;
    for (QString const& line : readAll(out.path() + "/report.txt").split('\n'))
        report << Shape(line);
    for (QString const& line : readAll(QStringLiteral(TQ_EXPECTED_REPORT)).split('\n', Qt::SkipEmptyParts))
        if (!line.startsWith('#'))
            expected << Shape(line);
    ASSERT_FALSE(expected.isEmpty());
    QMap<QString, int> seen;
    for (Shape const& wanted : expected) {
        QVector<Shape> found; // the report's lines of this shape, in order
        for (Shape const& each : report)
            if (each.words.endsWith(wanted.words))
                found << each;
        auto const same = [&](Shape const& each) { return each.words == wanted.words; };
        ASSERT_EQ(found.size(), std::count_if(expected.begin(), expected.end(), same)) << qPrintable(wanted.words);
        QVector<double> const& numbers = found[seen[wanted.words]++].numbers;
        for (int i = 0; i < wanted.numbers.size(); ++i)
            EXPECT_NEAR(numbers[numbers.size() - wanted.numbers.size() + i], wanted.numbers[i], 2e-3)
                << qPrintable(wanted.words);
    }
    EXPECT_EQ(iCountInSvg(out.path() + "/curve.svg", "circle"), 3) << "a dot for each key of RadialK1";
    EXPECT_GT(iCountInSvg(out.path() + "/distortion-grid.svg", "polyline"), 0);
}

} // namespace
