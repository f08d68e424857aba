#include "support/CallbackStruct.h"

namespace {

int iReturnOne()
{
    return 1;
}

int iReturnZero()
{
    return 0;
}

void vDoNothing()
{
}

// The check's own stub for a cleared style field, apart from the constructor's defaults.
void vStyleNothing(_TQ_RENDER_STYLE)
{
}

// A cleared cache callback reports 0, unlike the constructor's default.
int iCacheNothing(void*)
{
    return 0;
}

template <class F>
void vFillWhenNull(F& field, F stub)
{
    if (!field)
        field = stub;
}

} // namespace

TQ_CallbackStruct::TQ_CallbackStruct()
    : pfnCacheOriginalClip(_defaultCacheOriginalClip), pfnGLLines(_defaultvGLLines),
      pfnGLConvexPolygon(_defaultvGLConvexPolygon), pfnGLGeneralPolygon(_defaultvGLGeneralPolygon),
      pfnGLSetAlpha(_defaultvGLSetAlpha), pfnGLGetColour(_defaultvGLGetColour), pfnGLEnable(_defaultvGLEnable),
      pfnGLDisable(_defaultvGLDisable), pfnObGetNumberOfProcessors(_defaultObGetNumberOfProcessors)
{
}

int TQ_CallbackStruct::_defaultCacheOriginalClip(void*)
{
    return 1;
}

int TQ_CallbackStruct::_defaultObGetNumberOfProcessors(void*)
{
    return 1;
}

void TQ_CallbackStruct::_defaultvGLSetAlpha(float)
{
}

void TQ_CallbackStruct::_defaultvGLGetColour(float&, float&, float&, float&)
{
}

void TQ_CallbackStruct::_defaultvGLEnable(_TQ_RENDER_STYLE)
{
}

void TQ_CallbackStruct::_defaultvGLDisable(_TQ_RENDER_STYLE)
{
}

TQ::RenderHandle TQ_CallbackStruct::_defaultvGLLines(QVector<TQ::VertexInfo> const&)
{
    return TQ::RenderHandle();
}

TQ::RenderHandle TQ_CallbackStruct::_defaultvGLConvexPolygon(QVector<TQ::VertexInfo> const&)
{
    return TQ::RenderHandle();
}

TQ::RenderHandle TQ_CallbackStruct::_defaultvGLGeneralPolygon(QList<QVector<TQ::VertexInfo>> const&)
{
    return TQ::RenderHandle();
}

void vCheckCallbackStruct(TQ_CallbackStruct* callbacks)
{
    if (!callbacks)
        return;
    TQ_CallbackStruct& c = *callbacks;
    for (TQ_IntCallback* field : {&c.callback01, &c.callback02})
        vFillWhenNull(*field, iReturnOne);
    for (TQ_IntCallback* field : {&c.callback03, &c.callback04, &c.callback05})
        vFillWhenNull(*field, iReturnZero);
    for (TQ_IntCallback* field : {&c.callback07, &c.callback06, &c.callback11, &c.callback13, &c.callback14})
        vFillWhenNull(*field, iReturnOne);
    vFillWhenNull<TQ_CacheOriginalClipCallback>(c.pfnCacheOriginalClip, iCacheNothing);
    vFillWhenNull(c.callback18, iReturnZero);
    vFillWhenNull(c.callback19, iReturnOne);
    vFillWhenNull<TQ_GLStyleCallback>(c.pfnGLEnable, vStyleNothing);
    vFillWhenNull<TQ_GLStyleCallback>(c.pfnGLDisable, vStyleNothing);
    for (TQ_Callback* field : {&c.callback31, &c.callback32, &c.callback39, &c.callback40, &c.callback41,
                               &c.callback42})
        vFillWhenNull(*field, vDoNothing);
    vFillWhenNull(c.callback43, iReturnZero);
}
