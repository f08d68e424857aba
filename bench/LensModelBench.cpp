// Projection and back-projection per point for each lens model, on 32 x 32 points spread over a
// 1920 x 1080 frame, corners included. Each row reports "ns_per_point", "ratio" against the linear
// projection timed the same way in the same run, and "worst_px", the worst round trip (back-projection
// then projection) over its points in pixels. When OpenCV was found at configure time, the same distorted
// points with the same three radial coefficients also go through cv::undistortPoints, with its default
// criteria and with a criterion tight enough for 1e-9 pixel; the "ours" row to compare with is
// Backproject/radial_3.
#include "gandalf/gandalf.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <memory>
#include <string>
#include <vector>

#ifdef TQ_BENCH_WITH_OPENCV
#include <opencv2/calib3d.hpp>
#endif

namespace {

constexpr int kiSide = 32;
constexpr unsigned long kulWidth = 1920, kulHeight = 1080;
constexpr double kdFocal = 1500;
constexpr double kdK1 = -0.2, kdK2 = 0.05, kdK3 = 0.02;  // barrel; the OpenCV rows use the same three
constexpr std::size_t kCalls = 200000;

struct Model {
    char const* name;
    Gan_CameraType type;
    double d[4];
};

Model const kModels[] = {
    {"linear", GAN_LINEAR_CAMERA, {}},
    {"radial_1", GAN_RADIAL_DISTORTION_1, {kdK1}},
    {"radial_2", GAN_RADIAL_DISTORTION_2, {kdK1, kdK2}},
    {"radial_3", GAN_RADIAL_DISTORTION_3, {kdK1, kdK2, kdK3}},
    {"inverse_radial_1", GAN_RADIAL_DISTORTION_1_INV, {0.3}},
    {"inverse_radial_2", GAN_RADIAL_DISTORTION_2_INV, {0.25, 0.05}},
    {"stereographic", GAN_STEREOGRAPHIC_CAMERA, {}},
    {"equidistant", GAN_EQUIDISTANT_CAMERA, {}},
    {"sine_law", GAN_SINE_LAW_CAMERA, {}},
    {"equi_solid_angle", GAN_EQUI_SOLID_ANGLE_CAMERA, {}},
    {"anamorphic", GAN_XY_DISTORTION_4, {-0.1, -0.05, 0.08, -0.12}},
    {"bspline", GAN_CUBIC_BSPLINE_CAMERA, {}},
    {"bspline_inverse", GAN_CUBIC_BSPLINE_CAMERA_INV, {}},
    {"distortion_map", GAN_DISTORTION_MAP, {}},
};

using ImagePtr = std::unique_ptr<Gan_Image, void (*)(Gan_Image*)>;

/// A map that scales pixels about the frame centre; its values are exact in float.
ImagePtr scaleMap(double scale)
{
    ImagePtr image(gan_image_alloc(GAN_VECTOR_FIELD_2D, GAN_FLOAT, kulHeight, kulWidth), gan_image_free);
    for (unsigned long row = 0; row < kulHeight; ++row)
        for (unsigned long col = 0; col < kulWidth; ++col) {
            auto* pixel = static_cast<float*>(gan_image_get_pixptr(image.get(), row, col));
            pixel[0] = float(kulWidth / 2.0 + (col + 0.5 - kulWidth / 2.0) * scale);
            pixel[1] = float(kulHeight / 2.0 + (row + 0.5 - kulHeight / 2.0) * scale);
        }
    return image;
}

/// One model's camera, with the points it maps: distorted pixels and their rays, for the pixels whose
/// back-projection succeeds.
struct Rig {
    explicit Rig(Model const& model)
    {
        camera.type = model.type;
        bool const bFishEye = model.type >= GAN_STEREOGRAPHIC_CAMERA && model.type <= GAN_EQUI_SOLID_ANGLE_CAMERA;
        camera.fx = camera.fy = bFishEye ? 1200 : kdFocal;  // keeps the frame inside the sine law's half sphere
        camera.x0 = kulWidth / 2.0;
        camera.y0 = kulHeight / 2.0;
        camera.zh = kulWidth / 2.0;
        std::copy(model.d, model.d + 4, camera.d);
        for (int i = 0; i < 17; ++i)
            for (int j = 0; j < 17; ++j) {
                double const x = (j - 8) / 8.0, y = (i - 8) / 8.0, r2 = x * x + y * y;
                weights.weight[i][j] = {-40 * x * r2, -40 * y * r2};
            }
        camera.weights = &weights;
        if (model.type == GAN_DISTORTION_MAP) {
            camera.map.direct = direct.get();
            camera.map.inverse = inverse.get();
        }
        gan_camera_internalize(&camera);
        for (int i = 0; i < kiSide; ++i)
            for (int j = 0; j < kiSide; ++j) {
                Gan_Vector3 const pixel{double(kulWidth) * j / (kiSide - 1), double(kulHeight) * i / (kiSide - 1),
                                        camera.zh};
                Gan_Vector3 ray{};
                if (camera.point_backproject(&camera, &pixel, &ray, nullptr, nullptr)) {
                    pixels.push_back(pixel);
                    rays.push_back(ray);
                }
            }
    }

    double dWorstRoundTrip() const
    {
        double worst = 0;
        for (std::size_t i = 0; i < pixels.size(); ++i) {
            Gan_Vector3 p = pixels[i];
            if (!camera.point_backproject(&camera, &p, &p, nullptr, nullptr) ||
                !camera.point_project(&camera, &p, &p, nullptr, nullptr, nullptr, nullptr))
                return INFINITY;
            worst = std::max({worst, std::fabs(p.x - pixels[i].x), std::fabs(p.y - pixels[i].y)});
        }
        return worst;
    }

    Gan_Camera camera{};
    Gan_CubicBSplineWeights weights{};
    ImagePtr direct = scaleMap(2), inverse = scaleMap(0.5);
    std::vector<Gan_Vector3> pixels, rays;
};

double dThreadNanoseconds()
{
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return double(t.tv_sec) * 1e9 + double(t.tv_nsec);
}

/// Mean processor time of one call of `map` over `calls` calls, in nanoseconds: the machine may be
/// shared, so wall time would count other processes.
template <class Map>
double dNanosecondsPerCall(std::size_t calls, Map map)
{
    double const start = dThreadNanoseconds();
    double sink = 0;
    for (std::size_t i = 0; i < calls; ++i)
        sink += map(i);
    benchmark::DoNotOptimize(sink);
    return (dThreadNanoseconds() - start) / double(calls);
}

double dProjectOne(Rig const& rig, std::size_t i)
{
    Gan_Vector3 p = rig.rays[i % rig.rays.size()];
    rig.camera.point_project(&rig.camera, &p, &p, nullptr, nullptr, nullptr, nullptr);
    return p.x;
}

double dBackprojectOne(Rig const& rig, std::size_t i)
{
    Gan_Vector3 p = rig.pixels[i % rig.pixels.size()];
    rig.camera.point_backproject(&rig.camera, &p, &p, nullptr, nullptr);
    return p.x;
}

/// Times `perPoint` (which gives nanoseconds per point) against the linear projection, alternately and
/// five times each, and reports the fastest of each with the worst round trip.
template <class PerPoint>
void vReport(benchmark::State& state, PerPoint perPoint, double worst)
{
    static Rig const linear(kModels[0]);
    double ns = INFINITY, baseline = INFINITY;
    for (int i = 0; i < 5; ++i) {
        ns = std::min(ns, perPoint());
        baseline = std::min(baseline, dNanosecondsPerCall(kCalls, [](std::size_t k) { return dProjectOne(linear, k); }));
    }
    state.counters["ns_per_point"] = ns;
    state.counters["baseline_ns"] = baseline;
    state.counters["ratio"] = ns / baseline;
    state.counters["worst_px"] = worst;
}

void BM_Lens(benchmark::State& state, Model const& model, bool bProject)
{
    Rig const rig(model);
    auto const one = [&rig, bProject](std::size_t i) { return bProject ? dProjectOne(rig, i) : dBackprojectOne(rig, i); };
    std::size_t i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(one(i++));
    state.counters["points"] = double(rig.pixels.size());
    vReport(state, [&] { return dNanosecondsPerCall(kCalls, one); }, rig.dWorstRoundTrip());
}

#ifdef TQ_BENCH_WITH_OPENCV
/// cv::undistortPoints on the distorted pixels of the radial_3 rig; the worst round trip projects its
/// answers with the textbook radial polynomial.
void BM_OpenCVUndistort(benchmark::State& state, bool bTight)
{
    Rig const rig(kModels[3]);
    std::vector<cv::Point2d> distorted, undistorted;
    for (Gan_Vector3 const& p : rig.pixels)
        distorted.emplace_back(p.x, p.y);
    cv::Matx33d const k(kdFocal, 0, rig.camera.x0, 0, kdFocal, rig.camera.y0, 0, 0, 1);
    std::vector<double> const coefficients{kdK1, kdK2, 0, 0, kdK3};
    // Stops at 1e-10 pixel of reprojection error; the default stops after 5 iterations.
    cv::TermCriteria const tight(cv::TermCriteria::COUNT | cv::TermCriteria::EPS, 100, 1e-10);
    auto const run = [&] {
        if (bTight)
            cv::undistortPoints(distorted, undistorted, k, coefficients, cv::noArray(), cv::noArray(), tight);
        else
            cv::undistortPoints(distorted, undistorted, k, coefficients);
    };
    for (auto _ : state)
        run();
    double worst = 0;
    for (std::size_t i = 0; i < distorted.size(); ++i) {
        double const x = undistorted[i].x, y = undistorted[i].y, r2 = x * x + y * y;
        double const f = 1 + r2 * (kdK1 + r2 * (kdK2 + r2 * kdK3));
        worst = std::max({worst, std::fabs(kdFocal * x * f + rig.camera.x0 - distorted[i].x),
                          std::fabs(kdFocal * y * f + rig.camera.y0 - distorted[i].y)});
    }
    std::size_t const batches = kCalls / distorted.size() + 1;
    auto const perPoint = [&] {
        return dNanosecondsPerCall(batches, [&](std::size_t) {
                   run();
                   return undistorted[0].x;
               }) / double(distorted.size());
    };
    state.counters["points"] = double(distorted.size());
    vReport(state, perPoint, worst);
}
#endif

}  // namespace

int main(int argc, char** argv)
{
    for (Model const& model : kModels) {
        benchmark::RegisterBenchmark((std::string("Project/") + model.name).c_str(), BM_Lens, model, true);
        benchmark::RegisterBenchmark((std::string("Backproject/") + model.name).c_str(), BM_Lens, model, false);
    }
#ifdef TQ_BENCH_WITH_OPENCV
    benchmark::RegisterBenchmark("OpenCVUndistortPoints/default_criteria", BM_OpenCVUndistort, false);
    benchmark::RegisterBenchmark("OpenCVUndistortPoints/tight_criteria", BM_OpenCVUndistort, true);
#endif
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
