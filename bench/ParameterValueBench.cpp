// value() of a keyframed numeric parameter against a bare binary search plus lerp over plain arrays of the
// same keys. Each run reports "ratio" = parameter ns per read / baseline ns per read, both timed the same way
// in the same process. Bezier rows also report "floor_ratio" against a fair floor: the same search plus the
// same cubic solve and evaluation (Prm::detail::bBezierAt) over plain arrays of keys and handles.
#include "prm/curve/Interpolate.h"
#include "prm/NumericParameter.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <random>
#include <vector>

using namespace Prm;

namespace {

constexpr std::size_t kQueries = 4096;

struct Curve {
    explicit Curve(Interpolation kind) : parameter(true, "Bench", 0.0, -1e9, 1e9, kind, ExtrapolationHold) {}
    NumericParameter<double> parameter;
    std::vector<float> times;
    std::vector<double> values;
    std::vector<IType> records;
    std::vector<float> queries;
};

void vFill(Curve& curve, int keys)
{
    for (int i = 0; i < keys; ++i) {
        float const time = float(i) * 2.0f;
        double const value = std::sin(i * 0.37) * 100.0;
        curve.parameter.vSetValue(value, time);
        curve.times.push_back(time);
        curve.values.push_back(value);
    }
    for (int i = 0; i < keys; ++i)
        curve.records.push_back(curve.parameter.interpolationData(static_cast<unsigned int>(i)));
    std::mt19937 random(12345);
    std::uniform_real_distribution<float> spread(0.0f, curve.times.back());
    for (std::size_t i = 0; i < kQueries; ++i)
        curve.queries.push_back(spread(random));
}

double dBaseline(std::vector<float> const& times, std::vector<double> const& values, float t)
{
    if (t <= times.front())
        return values.front();
    if (t >= times.back())
        return values.back();
    std::size_t const i = std::size_t(std::upper_bound(times.begin(), times.end(), t) - times.begin()) - 1;
    return values[i] + (double(t) - times[i]) * (values[i + 1] - values[i]) / (double(times[i + 1]) - times[i]);
}

double dBezierFloor(Curve const& curve, float t)
{
    std::vector<float> const& times = curve.times;
    if (t <= times.front())
        return curve.values.front();
    if (t >= times.back())
        return curve.values.back();
    std::size_t const i = std::size_t(std::upper_bound(times.begin(), times.end(), t) - times.begin()) - 1;
    double result = 0.0;
    detail::bBezierAt(times[i], curve.values[i], times[i + 1], curve.values[i + 1], curve.records[i], t, result);
    return result;
}

template <class Read>
double dNanosecondsPerRead(Curve const& curve, std::size_t reads, Read read)
{
    // The thread's processor time, so that other work on a shared machine does not skew the ratios.
    auto const now = [] {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return double(time.tv_sec) * 1e9 + double(time.tv_nsec);
    };
    double const start = now();
    double sink = 0.0;
    for (std::size_t i = 0; i < reads; ++i)
        sink += read(curve.queries[i % kQueries]);
    benchmark::DoNotOptimize(sink);
    return (now() - start) / double(reads);
}

void BM_ParameterValue(benchmark::State& state, Interpolation kind)
{
    Curve curve(kind);
    vFill(curve, int(state.range(0)));
    std::size_t q = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(curve.parameter.value(curve.queries[q++ % kQueries], nullptr));

    std::size_t const reads = 400000;
    auto const baseline = [&curve](float t) { return dBaseline(curve.times, curve.values, t); };
    auto const parameter = [&curve](float t) { return curve.parameter.value(t, nullptr); };
    double const baseNs = dNanosecondsPerRead(curve, reads, baseline);
    double const paramNs = dNanosecondsPerRead(curve, reads, parameter);
    state.counters["baseline_ns"] = baseNs;
    state.counters["parameter_ns"] = paramNs;
    state.counters["ratio"] = paramNs / baseNs;
    if (kind == InterpolationBezier) {
        double const floorNs =
            dNanosecondsPerRead(curve, reads, [&curve](float t) { return dBezierFloor(curve, t); });
        state.counters["floor_ns"] = floorNs;
        state.counters["floor_ratio"] = paramNs / floorNs;
    }
}

/// Object sizes, not times: the warper and camera sets hold nearly 600 parameters each. The QObject's
/// private part and the shared name and key data live on the heap and are not counted.
void BM_ParameterBytes(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(state.iterations());
    state.counters["double_numeric_bytes"] = double(sizeof(NumericParameter<double>));
    state.counters["float_numeric_bytes"] = double(sizeof(NumericParameter<float>));
    state.counters["uint_plain_bytes"] = double(sizeof(Parameter<unsigned int>));
    state.counters["string_plain_bytes"] = double(sizeof(Parameter<QString>));
}

} // namespace

BENCHMARK(BM_ParameterBytes)->Iterations(1);
BENCHMARK_CAPTURE(BM_ParameterValue, step, InterpolationStep)->Arg(2)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000);
BENCHMARK_CAPTURE(BM_ParameterValue, linear, InterpolationLinear)->Arg(2)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000);
BENCHMARK_CAPTURE(BM_ParameterValue, bezier, InterpolationBezier)->Arg(2)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000);

BENCHMARK_MAIN();
