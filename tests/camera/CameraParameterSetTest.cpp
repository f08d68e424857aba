#include "camera/CameraParameterSet.h"
#include "camera/Clips.h"
#include "camera/ParameterTable.h"
#include "gandalf/Image.h"
#include "gandalf/LineFeature.h"
#include "prm/Fixtures.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>
#include <tuple>
#include <vector>

namespace {

using Prm::ExtrapolationHold;
using Prm::ExtrapolationLinear;
using Prm::InterpolationLinear;
using Prm::InterpolationStep;
using Frames = QList<unsigned int>;

TQ_BaseClipInfo clip(_TQ_INTERLACE_MODE mode = TQ_INTERLACE_NONE)
{
    return clipOf(2048, 1152, mode);
}

/// An image provider that records its calls and hands out one image per clip id.
struct Provider {
    using Call = std::tuple<unsigned int, unsigned int, unsigned int, int>;
    std::vector<Call> calls;
    boost::shared_ptr<Gan_Image> direct = boost::make_shared<Gan_Image>();
    boost::shared_ptr<Gan_Image> inverse = boost::make_shared<Gan_Image>();

    void vInstall(TQ_CameraParameterSet& set)
    {
        set.imageProvider = [this](unsigned int clipId, unsigned int frame, unsigned int zero, _TQ_PROXY_SCALE scale) {
            calls.emplace_back(clipId, frame, zero, int(scale));
            return clipId == 7 ? direct : clipId == 8 ? inverse : boost::shared_ptr<Gan_Image>();
        };
    }
    /// Calls since the last look, cleared.
    std::size_t uiTaken()
    {
        std::size_t const n = calls.size();
        calls.clear();
        return n;
    }
};

void vMapLens(TQ_CameraParameterSet& set)
{
    set.Type.vSetValue(GAN_DISTORTION_MAP, 0.0f);
    set.directSTMapClipID.vSetValue(7, 0.0f);
    set.inverseSTMapClipID.vSetValue(8, 0.0f);
}

} // namespace

TEST(CameraParameterSet, ParameterTable)
{
    auto const clipRow = [](char const* name, char const* value) {
        return ParameterRow{name, false, value, dNoLimit, dNoLimit, InterpolationStep, ExtrapolationHold};
    };
    auto const lensRow = [](char const* name, char const* value, double dMinimum, double dMaximum) {
        return ParameterRow{name, true, value, dMinimum, dMaximum, InterpolationLinear, ExtrapolationLinear};
    };
    auto const transformRow = [](char const* name, char const* value) {
        return ParameterRow{name, true, value, dNoLimit, dNoLimit, InterpolationStep, ExtrapolationHold};
    };
    std::vector<ParameterRow> const rows = {
        clipRow("InputClipID", "1"), clipRow("CalibrationClipID", "1"), clipRow("UndistortedClipID", "0"),
        clipRow("DistortedClipID", "0"), clipRow("directSTMapClipID", "0"), clipRow("inverseSTMapClipID", "0"),
        clipRow("Type", "0"), lensRow("FocalDistance", "25", double(0.001f), 10000000.0),
        lensRow("ImageCentreX", "0.5", -10.0, 10.0), lensRow("ImageCentreY", "0.5", -10.0, 10.0),
        clipRow("ApplyDistortion", "0"), clipRow("DistortionActive", "1"), lensRow("RadialK1", "0", -100.0, 100.0),
        lensRow("RadialK2", "0", -100.0, 100.0), lensRow("CXX", "0", -100.0, 100.0), lensRow("CXY", "0", -100.0, 100.0),
        lensRow("CYX", "0", -100.0, 100.0), lensRow("CYY", "0", -100.0, 100.0),
        transformRow("SceneToCamera Translation X", "0"), transformRow("SceneToCamera Translation Y", "0"),
        transformRow("SceneToCamera Rotation", "0"), transformRow("SceneToCamera Scale", "1"),
        transformRow("SceneToCamera Shear X", "0"), transformRow("SceneToCamera Shear Y", "1"),
        transformRow("SceneToCamera Perspective X", "0"), transformRow("SceneToCamera Perspective Y", "0"),
        clipRow("Algorithm", "0"), clipRow("VariableImageCentre", "0"), clipRow("EquidistantLines", "0"),
        clipRow("LineLengthThreshold", "20")};
    TQ_CameraParameterSet const set;
    EXPECT_EQ("Camera", set.qstrScriptName());
    expectParameterTable(set, rows);
    EXPECT_EQ(0.001f, set.FocalDistance.minimum()); // the float 0x3A83126F
    for (Prm::ParameterWithoutType const* parameter : set.parameterList())
        EXPECT_EQ(parameter == &set.FocalDistance, parameter->isHidden()) << parameter->qstrScriptName().toStdString();
    EXPECT_TRUE(set.imageProvider.empty());
    EXPECT_TRUE(set.lineParameters.isEmpty());
    EXPECT_TRUE(set.cameras.keys().isEmpty());
}

TEST(CameraParameterSet, StaticLensBuildsOncePerClipOrOncePerField)
{
    struct Row {
        _TQ_INTERLACE_MODE mode;
        Frames expected;
        double dOddShift, dEvenShift;
    };
    Row const rows[] = {{TQ_INTERLACE_NONE, {0}, 0.0, 0.0},
                        {TQ_INTERLACE_FIELDS_1, {0, 1}, 0.5, 0.0},
                        {TQ_INTERLACE_FIELDS_2, {0, 1}, 0.0, 0.5},
                        {TQ_INTERLACE_PULLDOWN_FIRST, {0}, 0.0, 0.0}};
    for (Row const& row : rows) {
        TQ_CameraParameterSet set;
        set.FocalDistance.vSetValue(50.0f, 3.0f); // one key does not animate
        TQ_BaseClipInfo const info = clip(row.mode);
        for (unsigned int frame = 0; frame < 100; ++frame)
            set.getCamera(frame, &info);
        EXPECT_EQ(row.expected, set.cameras.keys()) << "mode " << row.mode;
        // The folded frame keeps the field parity.
        EXPECT_EQ(576.0 + row.dOddShift, set.getCamera(21, &info).y0) << "mode " << row.mode;
        EXPECT_EQ(576.0 + row.dEvenShift, set.getCamera(20, &info).y0) << "mode " << row.mode;
        EXPECT_EQ(50.0 * 2048 / 24.0, set.getCamera(99, &info).fx);
    }

    // Degenerate clips give degenerate cameras, not failures; a missing clip reads as a default one.
    TQ_CameraParameterSet set;
    set.Type.vSetValue(GAN_XY_DISTORTION_4, 0.0f);
    TQ_BaseClipInfo const empty;
    for (TQ_BaseClipInfo const* info : {&empty, static_cast<TQ_BaseClipInfo const*>(nullptr)}) {
        Gan_Camera const camera = set.getCamera(5, info);
        EXPECT_EQ(0.0, camera.zh);
        EXPECT_EQ(GAN_XY_DISTORTION_4, camera.type);
    }
    EXPECT_EQ(Frames({0}), set.cameras.keys());
}

TEST(CameraParameterSet, AnimatedLensHasOneEntryPerFrameAndRebuildsOnChange)
{
    TQ_CameraParameterSet set;
    set.Type.vSetValue(GAN_RADIAL_DISTORTION_1, 0.0f);
    set.RadialK1.vSetValue(0.1f, 0.0f);
    set.RadialK1.vSetValue(0.3f, 40.0f);
    TQ_BaseClipInfo info = clip();
    EXPECT_FLOAT_EQ(0.15f, float(set.getCamera(10, &info).d[0]));
    EXPECT_FLOAT_EQ(0.2f, float(set.getCamera(20, &info).d[0]));
    set.getCamera(10, &info);
    EXPECT_EQ(Frames({10, 20}), set.cameras.keys());

    // A whole clip, twice over: bounded by its length.
    for (int pass = 0; pass < 2; ++pass)
        for (unsigned int frame = 0; frame < 48; ++frame)
            set.getCamera(frame, &info);
    EXPECT_EQ(48, set.cameras.keys().size());

    // The hash covers the lens values and the clip: a change of either is seen at once.
    set.RadialK1.vSetValue(0.5f, 40.0f);
    EXPECT_FLOAT_EQ(0.2f, float(set.getCamera(10, &info).d[0]));
    info.PixelAspectRatio = 2.0;
    EXPECT_EQ(2.0 * set.getCamera(10, &info).fx, set.getCamera(10, &info).fy);
    info.FrameWidth = 1024;
    EXPECT_EQ(512.0, set.getCamera(10, &info).zh);
    EXPECT_EQ(48, set.cameras.keys().size());
}

TEST(CameraParameterSet, HashFeedsTheLensAndClipValuesInOrderAsTheirBytes)
{
    // The map model's image addresses follow the 89 bytes only when there is a provider to give them.
    struct Row {
        Gan_CameraType type;
        bool bProvider;
        bool bAddresses;
    };
    Row const rows[] = {{GAN_RADIAL_DISTORTION_2, true, false},
                        {GAN_DISTORTION_MAP, false, false},
                        {GAN_DISTORTION_MAP, true, true}};
    for (Row const& row : rows) {
        TQ_CameraParameterSet set;
        vMapLens(set);
        set.Type.vSetValue(row.type, 0.0f);
        set.FocalDistance.vSetValue(35.0f, 0.0f);
        set.FocalDistance.vSetValue(45.0f, 10.0f); // animated: frame 5 stays frame 5
        set.ImageCentreX.vSetValue(0.25f, 0.0f);
        set.RadialK2.vSetValue(50.0f, 0.0f);
        set.RadialK2.vSetMaximum(20.0f); // hashed as read, within the limits
        set.CYY.vSetValue(-3.0f, 0.0f);
        set.DistortionActive.vSetValue(false, 0.0f);
        Provider provider;
        if (row.bProvider)
            provider.vInstall(set);
        TQ_BaseClipInfo const info = clipOf(2048, 1152, TQ_INTERLACE_FIELDS_2, 24.0, 1.5);
        set.getCamera(5, &info);

        Bsc::Hash expected;
        auto const feed = [&expected](auto const& value) { expected.update(&value, sizeof value); };
        feed(row.type);
        feed(info.FrameWidth);
        feed(info.FrameHeight);
        feed(info.eInterlaceMode);
        feed(info.filmType.filmBackWidth);
        feed(info.filmType.filmBackHeight);
        feed(info.eInterlaceMode); // twice
        feed(info.AspectRatio);
        feed(info.PixelAspectRatio);
        for (float const value : {40.0f, 0.25f, 0.5f})
            feed(value);
        feed(false);
        for (float const value : {0.0f, 20.0f, 0.0f, 0.0f, 0.0f, -3.0f})
            feed(value);
        if (row.bAddresses) {
            feed(provider.direct.get());
            feed(provider.inverse.get());
        }
        ASSERT_EQ(Frames({5}), set.cameraHashes.keys()) << row.type;
        EXPECT_EQ(expected.digest(), set.cameraHashes.value(5).digest()) << row.type;
        EXPECT_EQ(40.0f, set.cameras.value(5).focalDistance);
    }
}

TEST(CameraParameterSet, ImageProviderIsAskedForTheHashAndForEachRebuild)
{
    TQ_CameraParameterSet set;
    vMapLens(set);
    Provider provider;
    provider.vInstall(set);
    TQ_BaseClipInfo info = clip(TQ_INTERLACE_FIELDS_1);

    Gan_Camera const first = set.getCamera(13, &info);
    using Call = Provider::Call;
    // Hash, then the rebuild: direct then inverse, at the folded frame, a zero and proxy scale 3.
    EXPECT_EQ(std::vector<Call>({Call{7, 1, 0, 3}, Call{8, 1, 0, 3}, Call{7, 1, 0, 3}, Call{8, 1, 0, 3}}),
              provider.calls);
    EXPECT_EQ(provider.direct.get(), first.map.direct);
    EXPECT_EQ(provider.inverse.get(), first.map.inverse);
    provider.uiTaken();
    struct Step {
        char const* what;
        std::function<void()> change;
        std::size_t uiCalls;
    };
    Step const steps[] = {
        {"cached", [] {}, 2},
        {"ApplyDistortion is not hashed", [&] { set.ApplyDistortion.vSetValue(true, 0.0f); }, 2},
        {"a scene transform is not hashed", [&] { set.SceneToCameraScale.vSetValue(3.0, 1.0f); }, 2},
        {"film back height is hashed", [&] { info.filmType.filmBackHeight = 20.0; }, 4},
        {"aspect ratio is hashed", [&] { info.AspectRatio = 1.5; }, 4},
        {"a new image is hashed", [&] { provider.direct = boost::make_shared<Gan_Image>(); }, 4},
        {"cached again", [] {}, 2},
    };
    for (Step const& step : steps) {
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
    vMapLens(source);
    source.FocalDistance.vSetMaximum(80.0f);
    source.FocalDistance.vSetValue(35.0f, 2.0f);
    Provider provider;
    provider.vInstall(source);
    TQ_BaseClipInfo const info = clip();
    source.getCamera(0, &info);
    Gan_LineFeatureMap* map = gan_line_feature_map_alloc(10, 20);
    gan_line_feature_map_add_line(map, {1, 2}, {3, 4}, 0.5, 1);
    source.getLineParameters(4, true)->lineFeatureMap = map;
    source.getLineParameters(4, false)->reference = 9;

    TQ_CameraParameterSet copy(source);
    EXPECT_TRUE(copy.imageProvider.empty());
    EXPECT_TRUE(copy.cameras.keys().isEmpty());
    EXPECT_EQ(nullptr, copy.getCamera(0, &info).map.direct);
    EXPECT_EQ(35.0f, copy.FocalDistance.value(0.0f, nullptr));
    EXPECT_EQ(80.0f, copy.FocalDistance.maximum());
    TQ_LineParameters const* lines = copy.getLineParameters(4, false);
    ASSERT_NE(nullptr, lines);
    ASSERT_NE(nullptr, lines->lineFeatureMap);
    EXPECT_NE(source.getLineParameters(4, false)->lineFeatureMap, lines->lineFeatureMap) << "deep copy";
    EXPECT_EQ(1u, lines->lineFeatureMap->nline);
    EXPECT_EQ(9, lines->reference);

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

TEST(CameraParameterSet, LineParametersAreFoundOrCreated)
{
    TQ_CameraParameterSet set;
    EXPECT_EQ(nullptr, set.getLineParameters(5, false));
    EXPECT_TRUE(set.lineParameters.isEmpty());
    TQ_LineParameters* created = set.getLineParameters(5, true);
    ASSERT_NE(nullptr, created);
    EXPECT_EQ(nullptr, created->lineFeatureMap);
    EXPECT_EQ(-1, created->reference);
    EXPECT_EQ(created, set.getLineParameters(5, false));
    EXPECT_EQ(created, set.getLineParameters(5, true));
    EXPECT_EQ(1, set.lineParameters.size());
}

TEST(CameraParameterSet, RemoveReferencesResetsMatchingClipsAndAnnouncesRealChanges)
{
    struct Row {
        unsigned int uiRemoved;
        std::vector<unsigned int> expected; // the six references after the removal
        std::vector<bool> announced;
    };
    // Stored: Input 7, Calibration 1, Undistorted 7, Distorted 0, direct 3, inverse 7.
    Row const rows[] = {
        {7, {1, 1, 0, 0, 3, 0}, {true, false, true, false, false, true}},
        {3, {7, 1, 7, 0, 0, 7}, {false, false, false, false, true, false}},
        {1, {7, 1, 7, 0, 3, 7}, {false, false, false, false, false, false}},
        {0, {1, 1, 0, 0, 0, 0}, {true, false, true, false, true, true}},
    };
    for (Row const& row : rows) {
        TQ_CameraParameterSet set;
        Prm::Parameter<unsigned int>* const references[] = {&set.InputClipID, &set.CalibrationClipID,
                                                            &set.UndistortedClipID, &set.DistortedClipID,
                                                            &set.directSTMapClipID, &set.inverseSTMapClipID};
        unsigned int const stored[] = {7, 1, 7, 0, 3, 7};
        std::vector<std::unique_ptr<ChangeRecorder>> recorders;
        for (int i = 0; i < 6; ++i) {
            references[i]->vSetValue(stored[i], 0.0f);
            recorders.push_back(std::make_unique<ChangeRecorder>(*references[i]));
        }
        set.removeReferencesToClip(row.uiRemoved);
        for (int i = 0; i < 6; ++i) {
            EXPECT_EQ(row.expected[i], references[i]->staticValue()) << "removing " << row.uiRemoved << " ref " << i;
            EXPECT_EQ(row.announced[i], !recorders[i]->events.empty()) << "removing " << row.uiRemoved << " ref " << i;
        }
    }
}
