#include "camera/CameraParameterSet.h"
#include "camera/Fixtures.h"
#include "gandalf/Image.h"
#include "gandalf/LineFeature.h"
#include "prm/Fixtures.h"
#include "prm/ParameterTable.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>
#include <tuple>
#include <utility>
#include <vector>

namespace {

using Frames = QList<unsigned int>;

/// An image provider that records its calls and hands out one image for each of clips 7 and 8.
struct Provider {
    using Call = std::tuple<unsigned int, unsigned int, unsigned int, int>;
    std::vector<Call> calls;
    boost::shared_ptr<Gan_Image> direct = boost::make_shared<Gan_Image>();
    boost::shared_ptr<Gan_Image> inverse = boost::make_shared<Gan_Image>();

    /// Makes `set` a map lens on clips 7 and 8, with this provider when `bProvide`.
    void vInstall(TQ_CameraParameterSet& set, bool bProvide = true)
    {
        set.Type.vSetValue(GAN_DISTORTION_MAP, 0.0f);
        set.directSTMapClipID.vSetValue(7, 0.0f);
        set.inverseSTMapClipID.vSetValue(8, 0.0f);
        if (!bProvide)
            return;
        set.imageProvider = [this](unsigned int clipId, unsigned int frame, unsigned int zero, _TQ_PROXY_SCALE scale) {
            calls.emplace_back(clipId, frame, zero, int(scale));
            return clipId == 7 ? direct : clipId == 8 ? inverse : boost::shared_ptr<Gan_Image>();
        };
    }
    /// Calls since the last look, cleared.
    std::size_t uiTaken() { return std::exchange(calls, {}).size(); }
};

} // namespace

TEST(CameraParameterSet, ParameterTableAndLineParameters)
{
    TQ_CameraParameterSet set;
    EXPECT_EQ("Camera", set.qstrScriptName());
    TQTest::expectParameterTable(set,
#include "data/CameraParameterSet.table"
    );
    EXPECT_TRUE(set.imageProvider.empty() && set.lineParameters.isEmpty() && set.cameras.isEmpty());

    // Line parameters are found, or created on request.
    EXPECT_EQ(nullptr, set.getLineParameters(5, false));
    TQ_LineParameters* created = set.getLineParameters(5, true);
    ASSERT_NE(nullptr, created);
    EXPECT_TRUE(created->lineFeatureMap == nullptr && created->reference == -1);
    EXPECT_TRUE(created == set.getLineParameters(5, false) && created == set.getLineParameters(5, true));
    EXPECT_EQ(1, set.lineParameters.size());
}

TEST(CameraParameterSet, CacheHoldsOneCameraPerClipFieldOrAnimatedFrame)
{
    // A static lens: one entry, or one per field parity for field clips; the folded frame keeps the parity. Per
    // mode: the entries, and the shift of an odd and of an even frame.
    for (auto [mode, expected, dOddShift, dEvenShift] :
         {std::tuple{TQ_INTERLACE_NONE, Frames{0}, 0.0, 0.0}, {TQ_INTERLACE_FIELDS_1, Frames{0, 1}, 0.5, 0.0},
          {TQ_INTERLACE_FIELDS_2, Frames{0, 1}, 0.0, 0.5}, {TQ_INTERLACE_PULLDOWN_FIRST, Frames{0}, 0.0, 0.0}}) {
        TQ_CameraParameterSet set;
        set.FocalDistance.vSetValue(50.0f, 3.0f); // one key does not animate
        TQ_BaseClipInfo const info = clipOf(mode);
        for (unsigned int frame = 0; frame < 100; ++frame)
            set.getCamera(frame, &info);
        EXPECT_EQ(expected, set.cameras.keys()) << "mode " << mode;
        EXPECT_EQ(576.0 + dOddShift, set.getCamera(21, &info).y0) << "mode " << mode;
        EXPECT_EQ(576.0 + dEvenShift, set.getCamera(20, &info).y0) << "mode " << mode;
        EXPECT_EQ(50.0 * 2048 / 24.0, set.getCamera(99, &info).fx);
    }

    // Degenerate clips give degenerate cameras, not failures; a missing clip reads as a default one.
    TQ_CameraParameterSet set;
    set.Type.vSetValue(GAN_XY_DISTORTION_4, 0.0f);
    TQ_BaseClipInfo const empty;
    for (TQ_BaseClipInfo const* info : {&empty, static_cast<TQ_BaseClipInfo const*>(nullptr)})
        EXPECT_TRUE(set.getCamera(5, info).zh == 0.0 && set.getCamera(5, info).type == GAN_XY_DISTORTION_4);
    EXPECT_EQ(Frames({0}), set.cameras.keys());

    // An animated lens: one entry per frame, bounded by the clip's length however often it is asked.
    set.Type.vSetValue(GAN_RADIAL_DISTORTION_1, 0.0f);
    set.RadialK1.vSetValue(0.1f, 0.0f);
    set.RadialK1.vSetValue(0.3f, 40.0f);
    TQ_BaseClipInfo info = clipOf();
    EXPECT_FLOAT_EQ(0.15f, float(set.getCamera(10, &info).d[0]));
    EXPECT_FLOAT_EQ(0.2f, float(set.getCamera(20, &info).d[0]));
    for (int pass = 0; pass < 2; ++pass)
        for (unsigned int frame = 0; frame < 48; ++frame)
            set.getCamera(frame, &info);
    EXPECT_EQ(48, set.cameras.size());

    // The hash covers the lens values and the clip: a change of either is seen at once.
    set.RadialK1.vSetValue(0.5f, 40.0f);
    EXPECT_FLOAT_EQ(0.2f, float(set.getCamera(10, &info).d[0]));
    info.PixelAspectRatio = 2.0;
    EXPECT_EQ(2.0 * set.getCamera(10, &info).fx, set.getCamera(10, &info).fy);
    info.FrameWidth = 1024;
    EXPECT_EQ(512.0, set.getCamera(10, &info).zh);
    EXPECT_EQ(48, set.cameras.size());
    // Only the hash decides: a camera removed behind a matching hash reads back as a default one.
    set.cameras.remove(10);
    EXPECT_TRUE(set.getCamera(10, &info).fx == 0.0 && set.cameras.value(10).focalDistance == 0.0f);
}

TEST(CameraParameterSet, HashFeedsTheLensAndClipValuesInOrderAsTheirBytes)
{
    // The map model's image addresses follow the 89 bytes only when there is a provider to give them.
    for (auto [type, bProvider, bAddresses] : {std::tuple{GAN_RADIAL_DISTORTION_2, true, false},
                                               {GAN_DISTORTION_MAP, false, false}, {GAN_DISTORTION_MAP, true, true}}) {
        TQ_CameraParameterSet set;
        Provider provider;
        provider.vInstall(set, bProvider);
        set.Type.vSetValue(type, 0.0f);
        set.FocalDistance.vSetValue(35.0f, 0.0f);
        set.FocalDistance.vSetValue(45.0f, 10.0f); // animated: frame 5 stays frame 5
        set.ImageCentreX.vSetValue(0.25f, 0.0f);
        set.RadialK2.vSetValue(50.0f, 0.0f);
        set.RadialK2.vSetMaximum(20.0f); // hashed as read, within the limits
        set.CYY.vSetValue(-3.0f, 0.0f);
        set.DistortionActive.vSetValue(false, 0.0f);
        TQ_BaseClipInfo const info = clipOf(TQ_INTERLACE_FIELDS_2, 1.5);
        set.getCamera(5, &info);

        Bsc::Hash expected;
        auto const feed = [&expected](auto const&... values) { (expected.update(&values, sizeof values), ...); };
        // The interlace mode goes in twice; the lens values as read, within their limits.
        feed(type, info.FrameWidth, info.FrameHeight, info.eInterlaceMode, info.filmType.filmBackWidth,
             info.filmType.filmBackHeight, info.eInterlaceMode, info.AspectRatio, info.PixelAspectRatio);
        feed(40.0f, 0.25f, 0.5f, false, 0.0f, 20.0f, 0.0f, 0.0f, 0.0f, -3.0f);
        if (bAddresses)
            feed(provider.direct.get(), provider.inverse.get());
        ASSERT_EQ(Frames({5}), set.cameraHashes.keys()) << type;
        EXPECT_EQ(expected.digest(), set.cameraHashes.value(5).digest()) << type;
        EXPECT_EQ(40.0f, set.cameras.value(5).focalDistance);
    }
}

TEST(CameraParameterSet, ImageProviderIsAskedForTheHashAndForEachRebuild)
{
    TQ_CameraParameterSet set;
    Provider provider;
    provider.vInstall(set);
    TQ_BaseClipInfo info = clipOf(TQ_INTERLACE_FIELDS_1);
    Gan_Camera const first = set.getCamera(13, &info);
    using Call = Provider::Call;
    // Hash, then the rebuild: direct then inverse, at the folded frame, a zero and proxy scale 3.
    EXPECT_EQ(std::vector<Call>({Call{7, 1, 0, 3}, Call{8, 1, 0, 3}, Call{7, 1, 0, 3}, Call{8, 1, 0, 3}}),
              provider.calls);
    EXPECT_TRUE(first.map.direct == provider.direct.get() && first.map.inverse == provider.inverse.get());
    provider.uiTaken();
    struct {
        char const* what;
        std::function<void()> change;
        std::size_t uiCalls;
    } const steps[] = {
        {"cached", [] {}, 2},
        {"ApplyDistortion is not hashed", [&] { set.ApplyDistortion.vSetValue(true, 0.0f); }, 2},
        {"aspect ratio is hashed", [&] { info.AspectRatio = 1.5; }, 4},
        {"a new image is hashed", [&] { provider.direct = boost::make_shared<Gan_Image>(); }, 4},
        {"cached again", [] {}, 2},
    };
    for (auto const& step : steps) {
        step.change();
        Gan_Camera const camera = set.getCamera(13, &info);
        EXPECT_EQ(step.uiCalls, provider.uiTaken()) << step.what;
        EXPECT_EQ(provider.direct.get(), camera.map.direct) << step.what;
    }

    // Another model does not ask; without a provider, or with a null image, there are no maps.
    set.Type.vSetValue(GAN_RADIAL_DISTORTION_2, 0.0f);
    set.getCamera(13, &info);
    EXPECT_EQ(0u, provider.uiTaken());
    set.Type.vSetValue(GAN_DISTORTION_MAP, 0.0f);
    set.directSTMapClipID.vSetValue(99, 0.0f); // a clip the provider does not know
    EXPECT_EQ(nullptr, set.getCamera(13, &info).map.direct);
    set.imageProvider.clear();
    EXPECT_EQ(nullptr, set.getCameraDefinition(13).inverseMap);
    EXPECT_EQ(nullptr, set.getCamera(13, &info).map.inverse);
}

TEST(CameraParameterSet, CopyHasNoProviderNorCacheAndAssignmentKeepsThem)
{
    TQ_CameraParameterSet source;
    source.FocalDistance.vSetMaximum(80.0f);
    source.FocalDistance.vSetValue(35.0f, 2.0f);
    Provider provider;
    provider.vInstall(source);
    TQ_BaseClipInfo const info = clipOf();
    source.getCamera(0, &info);
    Gan_LineFeatureMap* map = gan_line_feature_map_alloc(10, 20);
    gan_line_feature_map_add_line(map, {1, 2}, {3, 4}, 0.5, 1);
    source.getLineParameters(4, true)->lineFeatureMap = map;
    source.getLineParameters(4, false)->reference = 9;

    TQ_CameraParameterSet copy(source);
    EXPECT_TRUE(copy.imageProvider.empty() && copy.cameras.isEmpty());
    EXPECT_EQ(nullptr, copy.getCamera(0, &info).map.direct);
    EXPECT_TRUE(copy.FocalDistance.value(0.0f, nullptr) == 35.0f && copy.FocalDistance.maximum() == 80.0f);
    TQ_LineParameters const* lines = copy.getLineParameters(4, false);
    ASSERT_TRUE(lines && lines->lineFeatureMap);
    EXPECT_NE(source.getLineParameters(4, false)->lineFeatureMap, lines->lineFeatureMap) << "deep copy";
    EXPECT_TRUE(lines->lineFeatureMap->nline == 1 && lines->reference == 9);

    TQ_CameraParameterSet assigned;
    Provider own;
    own.vInstall(assigned);
    assigned.getCamera(3, &info);
    assigned.setScriptName("Lens2");
    assigned = source;
    EXPECT_EQ("Camera", assigned.qstrScriptName());
    EXPECT_EQ(Frames({0}), assigned.cameras.keys()) << "the cache stays, and the hash keeps it right";
    own.uiTaken();
    EXPECT_EQ(own.direct.get(), assigned.getCamera(0, &info).map.direct);
    EXPECT_EQ(4u, own.uiTaken()) << "the map lens is new to this cache: rebuilt with this set's provider";
    EXPECT_EQ(80.0f, assigned.FocalDistance.maximum());
    EXPECT_EQ(1u, assigned.lineParameters.value(4).lineFeatureMap->nline);
}

TEST(CameraParameterSet, RemoveReferencesResetsMatchingClipsAndAnnouncesRealChanges)
{
    // Stored: Input 7, Calibration 1, Undistorted 7, Distorted 0, direct 3, inverse 7; a reference announces
    // a change only when its value moved. Then: the clip removed, and the six references after it.
    std::vector<unsigned int> const before{7, 1, 7, 0, 3, 7};
    for (auto const& [uiRemoved, after] : {std::pair{7u, std::vector<unsigned int>{1, 1, 0, 0, 3, 0}},
                                           {3u, {7, 1, 7, 0, 0, 7}}, {1u, before}, {0u, {1, 1, 0, 0, 0, 0}}}) {
        TQ_CameraParameterSet set;
        Prm::Parameter<unsigned int>* const references[] = {&set.InputClipID, &set.CalibrationClipID,
                                                            &set.UndistortedClipID, &set.DistortedClipID,
                                                            &set.directSTMapClipID, &set.inverseSTMapClipID};
        std::vector<std::unique_ptr<ChangeRecorder>> recorders;
        for (int i = 0; i < 6; ++i) {
            references[i]->vSetValue(before[i], 0.0f);
            recorders.push_back(std::make_unique<ChangeRecorder>(*references[i]));
        }
        set.removeReferencesToClip(uiRemoved);
        for (int i = 0; i < 6; ++i) {
            EXPECT_EQ(after[i], references[i]->staticValue()) << "removing " << uiRemoved << " ref " << i;
            EXPECT_EQ(after[i] != before[i], !recorders[i]->events.empty()) << "removing " << uiRemoved << " ref " << i;
        }
    }
}
