#pragma once
#include "bsc/Hash.h"
#include "camera/Camera.h"
#include "camera/LineParameters.h"
#include "clip/ClipBoundParameterSet.h"
#include "prm/NumericParameter.h"
#include "prm/Parameter.h"
#include "camera/CameraTypeParameter.h"
#include "support/EnumerationParameters.h"

#include <QMap>
#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

struct Gan_Image;
class TQ_BaseClipInfo;

namespace TQ {

/// The members of the lens module's set that travel with its copies and assignments: its parameters, with
/// the defaults, limits and curve rules they start with, and the calibration lines. Gathered here so that
/// the set's copy and assignment are this struct's own.
struct CameraSetMembers {
    Prm::Parameter<unsigned int> InputClipID
        {false, "InputClipID", 1u, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> CalibrationClipID
        {false, "CalibrationClipID", 1u, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> UndistortedClipID
        {false, "UndistortedClipID", 0u, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> DistortedClipID
        {false, "DistortedClipID", 0u, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> directSTMapClipID
        {false, "directSTMapClipID", 0u, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> inverseSTMapClipID
        {false, "inverseSTMapClipID", 0u, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<Gan_CameraType> Type
        {false, "Type", GAN_LINEAR_CAMERA, Prm::InterpolationStep, Prm::ExtrapolationHold};
    /// Hidden.
    Prm::NumericParameter<float> FocalDistance
        {true, "FocalDistance", 25.0f, 0.001f, 10000000.0f, Prm::InterpolationLinear, Prm::ExtrapolationLinear};
    Prm::NumericParameter<float> ImageCentreX
        {true, "ImageCentreX", 0.5f, -10.0f, 10.0f, Prm::InterpolationLinear, Prm::ExtrapolationLinear};
    Prm::NumericParameter<float> ImageCentreY
        {true, "ImageCentreY", 0.5f, -10.0f, 10.0f, Prm::InterpolationLinear, Prm::ExtrapolationLinear};
    /// Stored for the application; the camera does not read it.
    Prm::Parameter<bool> ApplyDistortion
        {false, "ApplyDistortion", false, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<bool> DistortionActive
        {false, "DistortionActive", true, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::NumericParameter<float> RadialK1
        {true, "RadialK1", 0.0f, -100.0f, 100.0f, Prm::InterpolationLinear, Prm::ExtrapolationLinear};
    Prm::NumericParameter<float> RadialK2
        {true, "RadialK2", 0.0f, -100.0f, 100.0f, Prm::InterpolationLinear, Prm::ExtrapolationLinear};
    Prm::NumericParameter<float> CXX
        {true, "CXX", 0.0f, -100.0f, 100.0f, Prm::InterpolationLinear, Prm::ExtrapolationLinear};
    Prm::NumericParameter<float> CXY
        {true, "CXY", 0.0f, -100.0f, 100.0f, Prm::InterpolationLinear, Prm::ExtrapolationLinear};
    Prm::NumericParameter<float> CYX
        {true, "CYX", 0.0f, -100.0f, 100.0f, Prm::InterpolationLinear, Prm::ExtrapolationLinear};
    Prm::NumericParameter<float> CYY
        {true, "CYY", 0.0f, -100.0f, 100.0f, Prm::InterpolationLinear, Prm::ExtrapolationLinear};
    Prm::Parameter<double> SceneToCameraTranslationX
        {true, "SceneToCamera Translation X", 0.0, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<double> SceneToCameraTranslationY
        {true, "SceneToCamera Translation Y", 0.0, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<double> SceneToCameraRotation
        {true, "SceneToCamera Rotation", 0.0, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<double> SceneToCameraScale
        {true, "SceneToCamera Scale", 1.0, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<double> SceneToCameraShearX
        {true, "SceneToCamera Shear X", 0.0, Prm::InterpolationStep, Prm::ExtrapolationHold};
    /// Defaults to 1, unlike the shear in x.
    Prm::Parameter<double> SceneToCameraShearY
        {true, "SceneToCamera Shear Y", 1.0, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<double> SceneToCameraPerspectiveX
        {true, "SceneToCamera Perspective X", 0.0, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<double> SceneToCameraPerspectiveY
        {true, "SceneToCamera Perspective Y", 0.0, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<_DISTORTION_ALGORITHM> Algorithm
        {false, "Algorithm", DISTORTION_ALGORITHM_DEFAULT, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<bool> VariableImageCentre
        {false, "VariableImageCentre", false, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<bool> EquidistantLines
        {false, "EquidistantLines", false, Prm::InterpolationStep, Prm::ExtrapolationHold};
    Prm::Parameter<unsigned int> LineLengthThreshold
        {false, "LineLengthThreshold", 20u, Prm::InterpolationStep, Prm::ExtrapolationHold};

    /// Calibration lines by key; what a key stands for is the application's.
    QMap<unsigned int, TQ_LineParameters> lineParameters;
};

} // namespace TQ

/// The lens module's parameters: the clips it reads, the lens model with its keyframed coefficients, the
/// scene-to-camera transform and the calibration lines per key. Script name "Camera".
///
/// `getCamera` gives a frame's Gandalf camera and caches the clip-independent TQ::Camera per frame behind a
/// SHA-1 hash of everything it depends on (the lens values at that frame and the clip's geometry), so a
/// repeated call costs one hash. A lens with no animated value folds every frame onto 0, or onto 0 and 1
/// (field parity) for field-based clips, so it caches one or two cameras. Otherwise the caches hold one
/// entry per distinct frame asked for, and are never trimmed: over one clip they are bounded by its
/// length. Neither cache, nor `imageProvider`, travels with a copy or an assignment, nor with the text.
///
/// Not thread-safe: `getCamera` is const but fills the caches, so calls on one object must be serialised.
/// Nothing here throws, but `imageProvider` may, and its exceptions pass through.
class TQ_CameraParameterSet : public TQ::ClipBoundParameterSet, public TQ::CameraSetMembers
{
public:
    /// The application's images: (clip id, frame, a number passed as 0, proxy scale) to an image, which
    /// may be null. The distortion map model asks it for the clips named by "directSTMapClipID" and
    /// "inverseSTMapClipID", at proxy scale 3.
    using ImageProvider = boost::function4<boost::shared_ptr<Gan_Image>, unsigned int, unsigned int, unsigned int,
                                           _TQ_PROXY_SCALE>;

    TQ_CameraParameterSet();
    /// Copies the parameters and the lines; the copy has no image provider and empty caches.
    TQ_CameraParameterSet(TQ_CameraParameterSet const& other);
    ~TQ_CameraParameterSet() override;
    /// Assigns the parameters (limits included), the lines and the names; `imageProvider` and the caches
    /// stay this object's own (the hash keeps the cache right).
    TQ_CameraParameterSet& operator=(TQ_CameraParameterSet const& other);

    /// The lens at `frame`, with every limited value clamped again. The distortion map model's images come
    /// from `imageProvider`; without one, or for another model, there are none.
    TQ::Camera getCameraDefinition(unsigned int frame) const;
    /// The Gandalf camera of `frame` of `clip` (see the class comment for the cache). The result points at
    /// the cached camera's images, which stay alive until that entry is rebuilt or this set is destroyed.
    /// A null `clip` reads as a default clip: zero size, progressive.
    Gan_Camera getCamera(unsigned int frame, TQ_BaseClipInfo const* clip) const;
    /// The lines of `key`; when there are none, a new empty entry (no map, reference -1) if `create` is
    /// set, else null. The pointer is valid until `lineParameters` changes.
    TQ_LineParameters* getLineParameters(unsigned int key, bool create);
    /// Resets each of the six clip references that names `clipId` (every one for 0) to its default.
    void removeReferencesToClip(unsigned int clipId) override;

    /// Set by the application; empty by default.
    ImageProvider imageProvider;
    /// The caches of `getCamera`, by folded frame: the content hash each camera was built for, and the
    /// camera. Open to the application for inspection. Only the hash decides whether an entry is
    /// rebuilt: a camera removed while its hash stays is read back as a default TQ::Camera.
    mutable QMap<unsigned int, Bsc::Hash> cameraHashes;
    mutable QMap<unsigned int, TQ::Camera> cameras;

private:
    void init();
    /// Whether any lens value has more than one key, so that the camera depends on the frame.
    bool bLensAnimated() const;
    /// The SHA-1 of the values the camera of `frame` of `clip` depends on.
    Bsc::Hash contentHash(unsigned int frame, TQ_BaseClipInfo const& clip) const;
    boost::shared_ptr<Gan_Image> mapImage(Prm::Parameter<unsigned int> const& clipId, unsigned int frame) const;
};
