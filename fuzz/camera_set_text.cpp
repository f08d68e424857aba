// Reads arbitrary lines into a lens set, a Gandalf camera set and a clip, as a project file would, then asks
// for cameras over a few frames and moves them between the forms: any values the text can hold (NaN, huge,
// negative, unknown lens models, zero-sized clips) must be survived without undefined behaviour.
#include "camera/CameraParameterSet.h"
#include "camera/ParameterisedGanCamera.h"
#include "clip/BaseClipInfo.h"
#include "prm/text/ParameterTextDocument.h"

#include <QString>
#include <QTextStream>
#include <boost/make_shared.hpp>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size)
{
    QString const text = QString::fromUtf8(reinterpret_cast<char const*>(data), static_cast<int>(size));
    TQ_CameraParameterSet lens;
    TQ_ParameterisedGanCamera stored;
    TQ_BaseClipInfo clip;
    Prm::ParameterTextDocument(lens).iRead(text);
    Prm::ParameterTextDocument(stored).iRead(text);
    for (QString const& line : text.split(QLatin1Char('\n')))
        clip.bStreamIn(line);
    auto const image = boost::make_shared<Gan_Image>();
    lens.imageProvider = [&image](unsigned int clipId, unsigned int, unsigned int, _TQ_PROXY_SCALE) {
        return clipId % 2 ? image : boost::shared_ptr<Gan_Image>();
    };

    Gan_CubicBSplineWeights weights = {};
    for (unsigned int frame : {0u, 1u, 7u, 0xFFFFFFFFu}) {
        Gan_Camera camera = lens.getCamera(frame, &clip);
        TQ::Camera definition = lens.getCameraDefinition(frame);
        definition.update(&camera, frame, &clip);
        camera.weights = &weights;
        stored.setFromGanCamera(camera, float(frame));
        stored.populateGanCamera(camera, float(frame) + 0.5f);
        gan_camera_internalize(&camera);
    }
    lens.removeReferencesToClip(clip.MasterTimelineClipID);
    TQ_CameraParameterSet copy(lens);
    copy = lens;
    Prm::ParameterTextDocument(copy).qstrWrite();
    return 0;
}
