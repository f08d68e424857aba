#pragma once

#include "support/Enumerations.h"
#include "support/VertexInfo.h"

#include <QList>
#include <QObject>
#include <QVector>

struct Gan_Image;

namespace TQ {

/// The drawing interface a host implements so that the engines can draw overlays into its view. The
/// library declares it and never calls it. Coordinates are image pixels; colours and alpha run from 0 to 1.
/// A subclass lives as a QObject of the host; the suite owns nothing it is handed.
class RenderSuite : public QObject
{
    Q_OBJECT

public:
    ~RenderSuite() override = default;

    /// Starts drawing into a view of `width` by `height` pixels.
    virtual void vBeginFrame(int width, int height) = 0;
    /// Ends the drawing started by vBeginFrame.
    virtual void vEndFrame() = 0;
    virtual void vSetColour(float red, float green, float blue, float alpha) = 0;
    virtual void vGetColour(float& red, float& green, float& blue, float& alpha) const = 0;
    virtual void vSetAlpha(float alpha) = 0;
    virtual void vSetLineWidth(float width) = 0;
    virtual void vSetPointSize(float size) = 0;
    virtual void vEnable(_TQ_RENDER_STYLE style) = 0;
    virtual void vDisable(_TQ_RENDER_STYLE style) = 0;
    /// Draws a point at each vertex.
    virtual void vDrawPoints(QVector<VertexInfo> const& vertices) = 0;
    /// Draws a segment between each pair of vertices.
    virtual void vDrawLines(QVector<VertexInfo> const& vertices) = 0;
    /// Draws one open polyline through the vertices.
    virtual void vDrawLineStrip(QVector<VertexInfo> const& vertices) = 0;
    /// Draws one closed polyline through the vertices.
    virtual void vDrawLineLoop(QVector<VertexInfo> const& vertices) = 0;
    virtual void vDrawConvexPolygon(QVector<VertexInfo> const& vertices) = 0;
    /// Fills a polygon given as outlines, the first the outside and the rest holes.
    virtual void vDrawGeneralPolygon(QList<QVector<VertexInfo>> const& outlines) = 0;
    /// Draws `image` with its top left corner at (x, y); the image stays the caller's.
    virtual void vDrawImage(Gan_Image const* image, float x, float y) = 0;
    /// Saves the current transform.
    virtual void vPushTransform() = 0;
    /// Restores the transform saved last.
    virtual void vPopTransform() = 0;
    virtual void vTranslate(float x, float y) = 0;
    virtual void vScale(float x, float y) = 0;
    /// Rotates by `degrees`, counter-clockwise.
    virtual void vRotate(float degrees) = 0;

public slots:
    /// Releases what the suite holds for drawing (textures, buffers); the base holds nothing.
    virtual void destroyResources();
};

} // namespace TQ
