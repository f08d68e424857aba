#pragma once

#include "gandalf/Image.h"
#include "support/Enumerations.h"
#include "support/VertexInfo.h"

#include <QList>
#include <QVector>
#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

namespace TQ {

/// What the polygon callbacks return: a handle to whatever the host drew, empty (both words null) when
/// nothing was drawn.
typedef boost::shared_ptr<void> RenderHandle;

} // namespace TQ

/// The host's image source: clip id, frame, a third number and a proxy scale in, the image out (null for
/// none). Same shape as the camera parameter set's image provider.
typedef boost::function4<boost::shared_ptr<Gan_Image>, unsigned int, unsigned int, unsigned int, _TQ_PROXY_SCALE>
    TQ_ImageProvider;
/// A host function whose meaning is agreed between the host and the engines.
typedef void (*TQ_Callback)();
typedef int (*TQ_IntCallback)();
typedef int (*TQ_CacheOriginalClipCallback)(void*);
typedef TQ::RenderHandle (*TQ_GLLinesCallback)(QVector<TQ::VertexInfo> const&);
typedef TQ::RenderHandle (*TQ_GLConvexPolygonCallback)(QVector<TQ::VertexInfo> const&);
typedef TQ::RenderHandle (*TQ_GLGeneralPolygonCallback)(QList<QVector<TQ::VertexInfo>> const&);
typedef void (*TQ_GLSetAlphaCallback)(float);
typedef void (*TQ_GLGetColourCallback)(float&, float&, float&, float&);
typedef void (*TQ_GLStyleCallback)(_TQ_RENDER_STYLE);
typedef int (*TQ_ProcessorCountCallback)(void*);

/// The table of functions through which the engines reach the host: an image provider followed by
/// fields 1 to 68, one function pointer each. The host fills it in and owns the functions; the library
/// never reads it. The constructor leaves every field null except nine drawing and housekeeping defaults;
/// `vCheckCallbackStruct` gives harmless stubs to the fields a host left null. Plain data: copying copies
/// the function object and the pointers.
struct TQ_CallbackStruct {
    /// Empty function object, every field null, then the nine defaults of the named fields.
    TQ_CallbackStruct();

    /// Returns 1.
    static int _defaultCacheOriginalClip(void*);
    /// Returns 1: one processor.
    static int _defaultObGetNumberOfProcessors(void*);
    static void _defaultvGLSetAlpha(float alpha);
    /// Leaves the four outputs as they are.
    static void _defaultvGLGetColour(float& red, float& green, float& blue, float& alpha);
    static void _defaultvGLEnable(_TQ_RENDER_STYLE style);
    static void _defaultvGLDisable(_TQ_RENDER_STYLE style);
    /// An empty handle: nothing drawn.
    static TQ::RenderHandle _defaultvGLLines(QVector<TQ::VertexInfo> const& vertices);
    static TQ::RenderHandle _defaultvGLConvexPolygon(QVector<TQ::VertexInfo> const& vertices);
    static TQ::RenderHandle _defaultvGLGeneralPolygon(QList<QVector<TQ::VertexInfo>> const& outlines);

    /// Field 0.
    TQ_ImageProvider imageProvider;
    /// Field 1; `vCheckCallbackStruct` fills it with a function returning 1.
    TQ_IntCallback callback01 = nullptr;
    /// Field 2; `vCheckCallbackStruct` fills it with a function returning 1.
    TQ_IntCallback callback02 = nullptr;
    /// Field 3; `vCheckCallbackStruct` fills it with a function returning 0.
    TQ_IntCallback callback03 = nullptr;
    /// Field 4; `vCheckCallbackStruct` fills it with a function returning 0.
    TQ_IntCallback callback04 = nullptr;
    /// Field 5; `vCheckCallbackStruct` fills it with a function returning 0.
    TQ_IntCallback callback05 = nullptr;
    /// Field 6; `vCheckCallbackStruct` fills it with a function returning 1.
    TQ_IntCallback callback06 = nullptr;
    /// Field 7; `vCheckCallbackStruct` fills it with a function returning 1.
    TQ_IntCallback callback07 = nullptr;
    TQ_Callback callback08 = nullptr;
    TQ_Callback callback09 = nullptr;
    TQ_Callback callback10 = nullptr;
    /// Field 11; `vCheckCallbackStruct` fills it with a function returning 1.
    TQ_IntCallback callback11 = nullptr;
    TQ_Callback callback12 = nullptr;
    /// Field 13; `vCheckCallbackStruct` fills it with a function returning 1.
    TQ_IntCallback callback13 = nullptr;
    /// Field 14; `vCheckCallbackStruct` fills it with a function returning 1.
    TQ_IntCallback callback14 = nullptr;
    /// Field 15. Caches the original clip; `_defaultCacheOriginalClip` by default.
    TQ_CacheOriginalClipCallback pfnCacheOriginalClip = nullptr;
    TQ_Callback callback16 = nullptr;
    TQ_Callback callback17 = nullptr;
    /// Field 18; `vCheckCallbackStruct` fills it with a function returning 0.
    TQ_IntCallback callback18 = nullptr;
    /// Field 19; `vCheckCallbackStruct` fills it with a function returning 1.
    TQ_IntCallback callback19 = nullptr;
    TQ_Callback callback20 = nullptr;
    TQ_Callback callback21 = nullptr;
    TQ_Callback callback22 = nullptr;
    /// Field 23. Draws line segments between vertex pairs; `_defaultvGLLines` by default.
    TQ_GLLinesCallback pfnGLLines = nullptr;
    /// Field 24. Draws a convex polygon; `_defaultvGLConvexPolygon` by default.
    TQ_GLConvexPolygonCallback pfnGLConvexPolygon = nullptr;
    /// Field 25. Draws a polygon with holes, one outline per vector; `_defaultvGLGeneralPolygon` by default.
    TQ_GLGeneralPolygonCallback pfnGLGeneralPolygon = nullptr;
    /// Field 26. Sets the drawing alpha; `_defaultvGLSetAlpha` by default.
    TQ_GLSetAlphaCallback pfnGLSetAlpha = nullptr;
    /// Field 27. Reads the drawing colour (red, green, blue, alpha); `_defaultvGLGetColour` by default.
    TQ_GLGetColourCallback pfnGLGetColour = nullptr;
    /// Field 28. Turns a render style on; `_defaultvGLEnable` by default.
    TQ_GLStyleCallback pfnGLEnable = nullptr;
    /// Field 29. Turns a render style off; `_defaultvGLDisable` by default.
    TQ_GLStyleCallback pfnGLDisable = nullptr;
    TQ_Callback callback30 = nullptr;
    /// Field 31; `vCheckCallbackStruct` fills it with a function doing nothing.
    TQ_Callback callback31 = nullptr;
    /// Field 32; `vCheckCallbackStruct` fills it with a function doing nothing.
    TQ_Callback callback32 = nullptr;
    TQ_Callback callback33 = nullptr;
    TQ_Callback callback34 = nullptr;
    TQ_Callback callback35 = nullptr;
    TQ_Callback callback36 = nullptr;
    TQ_Callback callback37 = nullptr;
    TQ_Callback callback38 = nullptr;
    /// Field 39; `vCheckCallbackStruct` fills it with a function doing nothing.
    TQ_Callback callback39 = nullptr;
    /// Field 40; `vCheckCallbackStruct` fills it with a function doing nothing.
    TQ_Callback callback40 = nullptr;
    /// Field 41; `vCheckCallbackStruct` fills it with a function doing nothing.
    TQ_Callback callback41 = nullptr;
    /// Field 42; `vCheckCallbackStruct` fills it with a function doing nothing.
    TQ_Callback callback42 = nullptr;
    /// Field 43; `vCheckCallbackStruct` fills it with a function returning 0.
    TQ_IntCallback callback43 = nullptr;
    TQ_Callback callback44 = nullptr;
    TQ_Callback callback45 = nullptr;
    TQ_Callback callback46 = nullptr;
    TQ_Callback callback47 = nullptr;
    TQ_Callback callback48 = nullptr;
    TQ_Callback callback49 = nullptr;
    TQ_Callback callback50 = nullptr;
    TQ_Callback callback51 = nullptr;
    TQ_Callback callback52 = nullptr;
    TQ_Callback callback53 = nullptr;
    TQ_Callback callback54 = nullptr;
    TQ_Callback callback55 = nullptr;
    TQ_Callback callback56 = nullptr;
    TQ_Callback callback57 = nullptr;
    TQ_Callback callback58 = nullptr;
    TQ_Callback callback59 = nullptr;
    /// Field 60. Number of processors the engines may use; `_defaultObGetNumberOfProcessors` by default.
    TQ_ProcessorCountCallback pfnObGetNumberOfProcessors = nullptr;
    TQ_Callback callback61 = nullptr;
    TQ_Callback callback62 = nullptr;
    TQ_Callback callback63 = nullptr;
    TQ_Callback callback64 = nullptr;
    TQ_Callback callback65 = nullptr;
    TQ_Callback callback66 = nullptr;
    TQ_Callback callback67 = nullptr;
    TQ_Callback callback68 = nullptr;
};

static_assert(sizeof(TQ_CallbackStruct) == sizeof(TQ_ImageProvider) + 68 * sizeof(void*),
              "the callback record is a function object followed by 68 pointer-sized fields");

/// Gives each null field that has a stub its stub: fields 1 to 7, 11, 13, 14, 18, 19 and 43 a function
/// returning 0 or 1, field 15 one returning 0 (unlike its constructor default, which returns 1), fields 28
/// and 29 and 31, 32, 39 to 42 one doing nothing. Touches nothing else; null is ignored.
void vCheckCallbackStruct(TQ_CallbackStruct* callbacks);
