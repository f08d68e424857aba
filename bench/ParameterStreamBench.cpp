// Stream-in of a large text (a set with hundreds of keyed parameters) through the whole-text reader,
// against reading the same lines with QTextStream::readLine alone. BM_ReadLinesOnly runs first and leaves
// its time per text in a shared variable; BM_StreamIn reports its own time over that as "ratio".
#include "bsc/Logger.h"
#include "prm/NumericParameter.h"
#include "prm/set/ParameterSet.h"
#include "prm/text/ParameterTextDocument.h"

#include <benchmark/benchmark.h>

#include <QTextStream>
#include <chrono>
#include <memory>
#include <vector>

namespace {

int const parameterCount = 400;
int const keysPerParameter = 8;

class LargeSet : public Prm::ParameterSet {
public:
    LargeSet() : Prm::ParameterSet("Warper", nullptr)
    {
        names.reserve(parameterCount);
        for (int i = 0; i < parameterCount; ++i) {
            names.push_back(QStringLiteral("Param%1").arg(i).toLatin1());
            parameters.push_back(std::make_unique<Prm::NumericParameter<double>>(
                true, names.back().constData(), 0.0, -1e9, 1e9, Prm::InterpolationLinear, Prm::ExtrapolationHold));
            addParameter(parameters.back().get());
        }
    }
    std::vector<QByteArray> names;
    std::vector<std::unique_ptr<Prm::NumericParameter<double>>> parameters;
};

QString const& largeText()
{
    static QString const text = [] {
        LargeSet set;
        for (auto& parameter : set.parameters) {
            for (int k = 0; k < keysPerParameter; ++k)
                parameter->vSetValue(k * 0.37, static_cast<float>(k * 10));
            parameter->vSetInterpolation(Prm::InterpolationBezier, 30.0f);
        }
        return Prm::ParameterTextDocument(set).qstrWrite();
    }();
    return text;
}

double baselineSecondsPerText = 0.0;

void BM_ReadLinesOnly(benchmark::State& state)
{
    QString text = largeText();
    double total = 0.0;
    for (auto _ : state) {
        auto const start = std::chrono::steady_clock::now();
        QTextStream in(&text, QIODevice::ReadOnly);
        int lines = 0;
        QString line;
        while (in.readLineInto(&line))
            ++lines;
        benchmark::DoNotOptimize(lines);
        total += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
    baselineSecondsPerText = total / static_cast<double>(state.iterations());
    state.counters["lines"] = text.count(QLatin1Char('\n'));
}

void BM_StreamIn(benchmark::State& state)
{
    Bsc::Logger::instance().setSink([](std::string const&) {});
    QString const& text = largeText();
    LargeSet set;
    double total = 0.0;
    for (auto _ : state) {
        auto const start = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(Prm::ParameterTextDocument(set).iRead(text));
        total += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
    double const perText = total / static_cast<double>(state.iterations());
    state.counters["parameters"] = parameterCount;
    state.counters["ratio"] = baselineSecondsPerText > 0.0 ? perText / baselineSecondsPerText : 0.0;
    Bsc::Logger::instance().setSink(nullptr);
}

} // namespace

BENCHMARK(BM_ReadLinesOnly)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_StreamIn)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
