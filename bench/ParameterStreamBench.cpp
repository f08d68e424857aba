// Stream-in and stream-out of a large set through the whole-text reader and writer, each against a floor
// measured in the same run:
// - stream-in against reading the same lines with QTextStream::readLine alone ("ratio");
// - the same text with 1% of its lines naming no parameter against the clean text ("damaged_ratio");
// - stream-out against writing the same lines through QTextStream alone ("ratio");
// and the heap bytes per parameter and per key of the loaded set.
// The floors run first and leave their time per text in shared variables.
#include "bsc/Logger.h"
#include "prm/NumericParameter.h"
#include "prm/set/ParameterSet.h"
#include "prm/text/ParameterTextDocument.h"

#include <benchmark/benchmark.h>

#include <QStringList>
#include <QTextStream>
#include <ctime>
#include <malloc.h>
#include <map>
#include <memory>
#include <vector>

namespace {

int const keysPerParameter = 50;

class LargeSet : public Prm::ParameterSet {
public:
    explicit LargeSet(int count) : Prm::ParameterSet("Warper", nullptr)
    {
        names.reserve(count);
        for (int i = 0; i < count; ++i) {
            names.push_back(QStringLiteral("Param%1").arg(i).toLatin1());
            parameters.push_back(std::make_unique<Prm::NumericParameter<double>>(
                true, names.back().constData(), 0.0, -1e9, 1e9, Prm::InterpolationLinear, Prm::ExtrapolationHold));
            addParameter(parameters.back().get());
        }
    }
    std::vector<QByteArray> names;
    std::vector<std::unique_ptr<Prm::NumericParameter<double>>> parameters;
};

void vFill(LargeSet& set)
{
    for (auto& parameter : set.parameters) {
        for (int k = 0; k < keysPerParameter; ++k)
            parameter->vSetValue(k * 0.37, static_cast<float>(k * 10));
        parameter->vSetInterpolation(Prm::InterpolationBezier, 30.0f);
    }
}

struct Texts {
    QString clean;
    QString damaged;
};

// The clean text of a filled set, and a copy whose every hundredth line names a parameter the set lacks.
Texts const& texts(int count)
{
    static std::map<int, Texts> cache;
    auto found = cache.find(count);
    if (found != cache.end())
        return found->second;
    LargeSet set(count);
    vFill(set);
    Texts made;
    made.clean = Prm::ParameterTextDocument(set).qstrWrite();
    QStringList lines = made.clean.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); i += 100)
        lines[i].replace(QLatin1String("Warper.Param"), QLatin1String("Warper.Unknown"));
    made.damaged = lines.join(QLatin1Char('\n'));
    return cache.emplace(count, made).first->second;
}

std::map<int, double> readLinesSeconds;
std::map<int, double> cleanStreamInSeconds;
std::map<int, double> writeLinesSeconds;

// The thread's processor time, so that other work on a shared machine does not skew the ratios.
double dThreadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

template <class Body>
double dSecondsPerRun(benchmark::State& state, Body body)
{
    double total = 0.0;
    for (auto _ : state) {
        double const start = dThreadSeconds();
        body();
        total += dThreadSeconds() - start;
    }
    return total / static_cast<double>(state.iterations());
}

void BM_ReadLinesOnly(benchmark::State& state)
{
    int const count = int(state.range(0));
    QString text = texts(count).clean;
    readLinesSeconds[count] = dSecondsPerRun(state, [&text] {
        QTextStream in(&text, QIODevice::ReadOnly);
        int lines = 0;
        QString line;
        while (in.readLineInto(&line))
            ++lines;
        benchmark::DoNotOptimize(lines);
    });
    state.counters["lines"] = text.count(QLatin1Char('\n'));
}

void BM_StreamIn(benchmark::State& state, bool bDamaged)
{
    Bsc::Logger::instance().setSink([](std::string const&) {});
    int const count = int(state.range(0));
    QString const& text = bDamaged ? texts(count).damaged : texts(count).clean;
    LargeSet set(count);
    int unread = 0;
    double const perText = dSecondsPerRun(state, [&] {
        Prm::ParameterTextDocument document(set);
        benchmark::DoNotOptimize(document.iRead(text));
        unread = document.unreadLines().size();
    });
    state.counters["unread"] = unread;
    state.counters["ratio"] = readLinesSeconds.count(count) ? perText / readLinesSeconds[count] : 0.0;
    if (!bDamaged)
        cleanStreamInSeconds[count] = perText;
    else if (cleanStreamInSeconds.count(count))
        state.counters["damaged_ratio"] = perText / cleanStreamInSeconds[count];
    Bsc::Logger::instance().setSink(nullptr);
}

void BM_WriteLinesOnly(benchmark::State& state)
{
    int const count = int(state.range(0));
    QStringList const lines = texts(count).clean.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    writeLinesSeconds[count] = dSecondsPerRun(state, [&lines] {
        QString text;
        QTextStream out(&text, QIODevice::WriteOnly);
        for (QString const& line : lines)
            out << line << '\n';
        out.flush();
        benchmark::DoNotOptimize(text.size());
    });
}

void BM_StreamOut(benchmark::State& state)
{
    int const count = int(state.range(0));
    LargeSet set(count);
    vFill(set);
    double const perText = dSecondsPerRun(state, [&set] {
        benchmark::DoNotOptimize(Prm::ParameterTextDocument(set).qstrWrite().size());
    });
    state.counters["ratio"] = writeLinesSeconds.count(count) ? perText / writeLinesSeconds[count] : 0.0;
}

// Heap bytes that a set of `count` parameters takes once built, and once its text is loaded into it.
void BM_LoadedBytes(benchmark::State& state)
{
    Bsc::Logger::instance().setSink([](std::string const&) {});
    int const count = int(state.range(0));
    QString const& text = texts(count).clean;
    double perParameter = 0.0;
    double perKey = 0.0;
    for (auto _ : state) {
        auto const before = mallinfo2().uordblks;
        auto set = std::make_unique<LargeSet>(count);
        auto const built = mallinfo2().uordblks;
        Prm::ParameterTextDocument(*set).iRead(text);
        auto const loaded = mallinfo2().uordblks;
        perParameter = double(built - before) / count;
        perKey = double(loaded - built) / (double(count) * keysPerParameter);
    }
    state.counters["bytes_per_parameter"] = perParameter;
    state.counters["bytes_per_key"] = perKey;
    Bsc::Logger::instance().setSink(nullptr);
}

} // namespace

BENCHMARK(BM_ReadLinesOnly)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK_CAPTURE(BM_StreamIn, clean, false)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK_CAPTURE(BM_StreamIn, damaged, true)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_WriteLinesOnly)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_StreamOut)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_LoadedBytes)->Arg(20000)->Unit(benchmark::kMillisecond)->Iterations(1);

BENCHMARK_MAIN();
