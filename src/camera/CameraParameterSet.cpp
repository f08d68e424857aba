#include "camera/CameraParameterSet.h"

#include "clip/BaseClipInfo.h"

#include <QtGlobal>
#include <cstring>

namespace {

using Prm::NumericParameter;

_TQ_PROXY_SCALE const eMapProxyScale = static_cast<_TQ_PROXY_SCALE>(3);

/// The value at `time`, within the limits. The members read here are exactly of this type, whose `value`
/// already clamps to `minimum()` and `maximum()`, so that clamp is the one the camera needs; the calls are
/// bound statically, since `getCamera` makes a dozen such reads per frame.
float fLimitedValue(NumericParameter<float> const& parameter, float time)
{
    return parameter.NumericParameter<float>::value(time, nullptr);
}

/// Keyframed with more than one key. The count is asked first: a static lens has at most one key each.
template <class P>
bool bAnimated(P const& parameter)
{
    return parameter.P::keyframeCount() > 1 && parameter.P::isKeyframed();
}

bool bFieldBased(_TQ_INTERLACE_MODE mode)
{
    return mode == TQ_INTERLACE_FIELDS_1 || mode == TQ_INTERLACE_FIELDS_2;
}

TQ_BaseClipInfo const& defaultClip()
{
    static TQ_BaseClipInfo const clip;
    return clip;
}

static_assert(sizeof(Gan_CameraType) == 4 && sizeof(_TQ_INTERLACE_MODE) == 4, "hashed as 4 bytes");
static_assert(sizeof(bool) == 1, "hashed as 1 byte");

/// Fixed-layout bytes of the hash: each value as its bytes in memory, in the order fed.
class HashBytes {
public:
    template <class T>
    void vAppend(T const& value)
    {
        Q_ASSERT(m_size + sizeof(T) <= sizeof(m_bytes));
        std::memcpy(m_bytes + m_size, &value, sizeof(T));
        m_size += sizeof(T);
    }
    void vFeed(Bsc::Hash& hash) const { hash.update(m_bytes, m_size); }

private:
    // 89 bytes of values and two 8-byte image pointers.
    unsigned char m_bytes[89 + 2 * sizeof(void*)];
    std::size_t m_size = 0;
};

} // namespace

TQ_CameraParameterSet::TQ_CameraParameterSet() : TQ::ClipBoundParameterSet(QStringLiteral("Camera"))
{
    init();
}

TQ_CameraParameterSet::TQ_CameraParameterSet(TQ_CameraParameterSet const& other)
    : TQ::ClipBoundParameterSet(QStringLiteral("Camera")), TQ::CameraSetMembers(other)
{
    init();
}

TQ_CameraParameterSet::~TQ_CameraParameterSet() = default;

TQ_CameraParameterSet& TQ_CameraParameterSet::operator=(TQ_CameraParameterSet const& other)
{
    if (this == &other)
        return *this;
    Prm::ParameterSet::operator=(other);
    TQ::CameraSetMembers::operator=(other);
    // The base's assignment took the display name; the script name goes through the virtual setter.
    setScriptName(other.qstrScriptName());
    return *this;
}

void TQ_CameraParameterSet::init()
{
    vAddParameters({&InputClipID, &CalibrationClipID, &UndistortedClipID, &DistortedClipID, &directSTMapClipID,
                    &inverseSTMapClipID, &Type, &FocalDistance, &ImageCentreX, &ImageCentreY, &ApplyDistortion,
                    &DistortionActive, &RadialK1, &RadialK2, &CXX, &CXY, &CYX, &CYY, &SceneToCameraTranslationX,
                    &SceneToCameraTranslationY, &SceneToCameraRotation, &SceneToCameraScale, &SceneToCameraShearX,
                    &SceneToCameraShearY, &SceneToCameraPerspectiveX, &SceneToCameraPerspectiveY, &Algorithm,
                    &VariableImageCentre, &EquidistantLines, &LineLengthThreshold});
    FocalDistance.hide(true);
}

boost::shared_ptr<Gan_Image> TQ_CameraParameterSet::mapImage(Prm::Parameter<unsigned int> const& clipId,
                                                              unsigned int frame) const
{
    return imageProvider(clipId.staticValue(), frame, 0u, eMapProxyScale);
}

TQ::Camera TQ_CameraParameterSet::getCameraDefinition(unsigned int frame) const
{
    float const time = static_cast<float>(frame);
    TQ::Camera camera;
    camera.type = Type.value(time, nullptr);
    camera.focalDistance = fLimitedValue(FocalDistance, time);
    camera.imageCentreX = fLimitedValue(ImageCentreX, time);
    camera.imageCentreY = fLimitedValue(ImageCentreY, time);
    camera.distortionActive = DistortionActive.value(time, nullptr);
    camera.radialK1 = fLimitedValue(RadialK1, time);
    camera.radialK2 = fLimitedValue(RadialK2, time);
    camera.cxx = fLimitedValue(CXX, time);
    camera.cxy = fLimitedValue(CXY, time);
    camera.cyx = fLimitedValue(CYX, time);
    camera.cyy = fLimitedValue(CYY, time);
    if (camera.type == GAN_DISTORTION_MAP && !imageProvider.empty()) {
        camera.directMap = mapImage(directSTMapClipID, frame);
        camera.inverseMap = mapImage(inverseSTMapClipID, frame);
    }
    return camera;
}

bool TQ_CameraParameterSet::bLensAnimated() const
{
    return bAnimated(FocalDistance) || bAnimated(ImageCentreX) || bAnimated(ImageCentreY)
           || bAnimated(DistortionActive) || bAnimated(RadialK1) || bAnimated(RadialK2) || bAnimated(CXX)
           || bAnimated(CXY) || bAnimated(CYX) || bAnimated(CYY);
}

Bsc::Hash TQ_CameraParameterSet::contentHash(unsigned int frame, TQ_BaseClipInfo const& clip) const
{
    float const time = static_cast<float>(frame);
    Gan_CameraType const type = Type.value(time, nullptr);
    HashBytes bytes;
    bytes.vAppend(type);
    bytes.vAppend(clip.FrameWidth);
    bytes.vAppend(clip.FrameHeight);
    bytes.vAppend(clip.eInterlaceMode);
    bytes.vAppend(clip.filmType.filmBackWidth);
    bytes.vAppend(clip.filmType.filmBackHeight);
    bytes.vAppend(clip.eInterlaceMode);
    bytes.vAppend(clip.AspectRatio);
    bytes.vAppend(clip.PixelAspectRatio);
    for (NumericParameter<float> const* parameter : {&FocalDistance, &ImageCentreX, &ImageCentreY})
        bytes.vAppend(fLimitedValue(*parameter, time));
    bytes.vAppend(DistortionActive.value(time, nullptr));
    for (NumericParameter<float> const* parameter : {&RadialK1, &RadialK2, &CXX, &CXY, &CYX, &CYY})
        bytes.vAppend(fLimitedValue(*parameter, time));
    if (type == GAN_DISTORTION_MAP && !imageProvider.empty()) {
        // Only the addresses: an image freed and another allocated in its place reads as unchanged.
        bytes.vAppend(mapImage(directSTMapClipID, frame).get());
        bytes.vAppend(mapImage(inverseSTMapClipID, frame).get());
    }
    Bsc::Hash hash;
    bytes.vFeed(hash);
    return hash;
}

Gan_Camera TQ_CameraParameterSet::getCamera(unsigned int frame, TQ_BaseClipInfo const* clip) const
{
    TQ_BaseClipInfo const& clipInfo = clip ? *clip : defaultClip();
    if (!bLensAnimated())
        frame = bFieldBased(clipInfo.eInterlaceMode) ? (frame & 1u) : 0u;
    Bsc::Hash const hash = contentHash(frame, clipInfo);
    auto const known = cameraHashes.constFind(frame);
    if (known == cameraHashes.constEnd() || !(*known == hash)) {
        cameraHashes.insert(frame, hash);
        cameras.insert(frame, getCameraDefinition(frame));
    }
    // A matching hash vouches for the entry; one the application removed comes back as a default camera.
    return cameras[frame].toGanCamera(frame, clipInfo);
}

TQ_LineParameters* TQ_CameraParameterSet::getLineParameters(unsigned int key, bool create)
{
    auto const found = lineParameters.find(key);
    if (found != lineParameters.end())
        return &*found;
    if (!create)
        return nullptr;
    TQ_LineParameters const fresh;
    return &*lineParameters.insert(key, fresh);
}

void TQ_CameraParameterSet::removeReferencesToClip(unsigned int clipId)
{
    for (Prm::Parameter<unsigned int>* reference : {&InputClipID, &CalibrationClipID, &UndistortedClipID,
                                                    &DistortedClipID, &directSTMapClipID, &inverseSTMapClipID})
        forgetClip(*reference, clipId);
}
