// Reads arbitrary lines into a keyframed frame warp as a project file would, evaluates it into warps at a
// few times, makes their cameras ready, sets them again and maps points through them, then writes the set
// back out: any text, any matrix and any camera it yields must be survived without undefined behaviour.
#include "camera/ParameterisedFrameWarp.h"
#include "prm/text/ParameterTextDocument.h"

#include <QString>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size)
{
    QString const text = QString::fromUtf8(reinterpret_cast<char const*>(data), static_cast<int>(size));
    TQ::ParameterisedFrameWarp set;
    Prm::ParameterTextDocument document(set);
    document.iRead(text);

    for (float const time : {-1.0f, 0.0f, 2.5f, 1e6f}) {
        TQ::FrameWarp warp;
        set.populateFrameWarp(warp, time);
        Gan_Vector3 p{12.5, -3.0, warp.tBackprojectionCamera.zh};
        warp.vWarpPoint(p);
        // Grid cameras need a table before they are read; the warp's own buffers serve.
        warp.vSetAttributes(warp.uiClipID, warp.iLayerID, 0, 0, warp.bUseBackprojectionCamera,
                            warp.tBackprojectionCamera, nullptr, warp.tHomography, warp.bUseProjectionCamera,
                            warp.tProjectionCamera, nullptr);
        set.populateFrameWarp(warp, time);
        gan_camera_internalize(&warp.tBackprojectionCamera);
        gan_camera_internalize(&warp.tProjectionCamera);
        TQ::FrameWarp const copy(warp);
        float xy[2] = {100.0f, 50.0f};
        copy.vWarpPoint(xy);
        copy.vUnwarpPoint(xy[0], xy[1]);
        copy.getPointWarped(QPointF(xy[0], xy[1]));
        set.setFromFrameWarp(copy, time + 1.0f);
    }
    Prm::ParameterTextDocument(set).qstrWrite();
    return 0;
}
