#include "support/AutoLock.h"
#include "support/CallbackStruct.h"
#include "support/RenderSuite.h"

#include <gtest/gtest.h>

#include <QMetaMethod>
#include <QMutex>

#include <cstring>
#include <map>

namespace {

// Field `n` (1 to 68) read by its place in the record, as a host that numbers the fields sees it.
void* pField(TQ_CallbackStruct const& callbacks, int n)
{
    void* pointer = nullptr;
    std::memcpy(&pointer, reinterpret_cast<char const*>(&callbacks) + sizeof(TQ_ImageProvider)
                              + (n - 1) * sizeof(void*), sizeof pointer);
    return pointer;
}

template <class F>
void* pAddress(F function)
{
    void* pointer = nullptr;
    std::memcpy(&pointer, &function, sizeof pointer);
    return pointer;
}

int iCallInt(void* field)
{
    int (*function)() = nullptr;
    std::memcpy(&function, &field, sizeof function);
    return function();
}

std::map<int, void*> const& constructorDefaults()
{
    static std::map<int, void*> const defaults = {
        {15, pAddress(&TQ_CallbackStruct::_defaultCacheOriginalClip)},
        {23, pAddress(&TQ_CallbackStruct::_defaultvGLLines)},
        {24, pAddress(&TQ_CallbackStruct::_defaultvGLConvexPolygon)},
        {25, pAddress(&TQ_CallbackStruct::_defaultvGLGeneralPolygon)},
        {26, pAddress(&TQ_CallbackStruct::_defaultvGLSetAlpha)},
        {27, pAddress(&TQ_CallbackStruct::_defaultvGLGetColour)},
        {28, pAddress(&TQ_CallbackStruct::_defaultvGLEnable)},
        {29, pAddress(&TQ_CallbackStruct::_defaultvGLDisable)},
        {60, pAddress(&TQ_CallbackStruct::_defaultObGetNumberOfProcessors)},
    };
    return defaults;
}

// What the stubs of the check return; -1 for the stubs that return nothing.
std::map<int, int> const stubResults = {
    {1, 1}, {2, 1}, {3, 0}, {4, 0}, {5, 0}, {6, 1}, {7, 1}, {11, 1}, {13, 1}, {14, 1}, {18, 0}, {19, 1},
    {31, -1}, {32, -1}, {39, -1}, {40, -1}, {41, -1}, {42, -1}, {43, 0},
};

int iSeven()
{
    return 7;
}

class PlainSuite : public TQ::RenderSuite
{
public:
    void vBeginFrame(int, int) override {}
    void vEndFrame() override {}
    void vSetColour(float, float, float, float) override {}
    void vGetColour(float&, float&, float&, float&) const override {}
    void vSetAlpha(float) override {}
    void vSetLineWidth(float) override {}
    void vSetPointSize(float) override {}
    void vEnable(_TQ_RENDER_STYLE) override {}
    void vDisable(_TQ_RENDER_STYLE) override {}
    void vDrawPoints(QVector<TQ::VertexInfo> const&) override {}
    void vDrawLines(QVector<TQ::VertexInfo> const&) override {}
    void vDrawLineStrip(QVector<TQ::VertexInfo> const&) override {}
    void vDrawLineLoop(QVector<TQ::VertexInfo> const&) override {}
    void vDrawConvexPolygon(QVector<TQ::VertexInfo> const&) override {}
    void vDrawGeneralPolygon(QList<QVector<TQ::VertexInfo>> const&) override {}
    void vDrawImage(Gan_Image const*, float, float) override {}
    void vPushTransform() override {}
    void vPopTransform() override {}
    void vTranslate(float, float) override {}
    void vScale(float, float) override {}
    void vRotate(float) override {}
};

} // namespace

TEST(CallbackStruct, ConstructorDefaults)
{
    TQ_CallbackStruct const callbacks;
    EXPECT_TRUE(callbacks.imageProvider.empty());
    for (int n = 1; n <= 68; ++n) {
        auto const found = constructorDefaults().find(n);
        EXPECT_EQ(found == constructorDefaults().end() ? nullptr : found->second, pField(callbacks, n)) << n;
    }
    EXPECT_EQ(1, callbacks.pfnCacheOriginalClip(nullptr));
    EXPECT_EQ(1, callbacks.pfnObGetNumberOfProcessors(nullptr));
    float red = 0.1f, green = 0.2f, blue = 0.3f, alpha = 0.4f;
    callbacks.pfnGLGetColour(red, green, blue, alpha);
    EXPECT_TRUE(red == 0.1f && green == 0.2f && blue == 0.3f && alpha == 0.4f);
    QVector<TQ::VertexInfo> const vertices(3);
    TQ::RenderHandle const handles[] = {callbacks.pfnGLLines(vertices), callbacks.pfnGLConvexPolygon(vertices),
                                        callbacks.pfnGLGeneralPolygon({vertices, vertices})};
    for (TQ::RenderHandle const& handle : handles)
        EXPECT_TRUE(!handle && handle.use_count() == 0);
}

TEST(CallbackStruct, CheckFillsOnlyNullStubFields)
{
    TQ_CallbackStruct callbacks;
    callbacks.callback01 = iSeven;
    vCheckCallbackStruct(&callbacks);
    vCheckCallbackStruct(nullptr);
    EXPECT_TRUE(callbacks.imageProvider.empty());
    EXPECT_EQ(7, callbacks.callback01());
    for (int n = 2; n <= 68; ++n) {
        void* const field = pField(callbacks, n);
        auto const defaulted = constructorDefaults().find(n);
        auto const stub = stubResults.find(n);
        if (defaulted != constructorDefaults().end())
            EXPECT_EQ(defaulted->second, field) << n;  // 15, 28 and 29 are not null, so kept
        else if (stub == stubResults.end())
            EXPECT_EQ(nullptr, field) << n;
        else if (stub->second >= 0)
            EXPECT_EQ(stub->second, iCallInt(field)) << n;
        else
            EXPECT_NE(nullptr, field) << n;
    }
    EXPECT_EQ(1, callbacks.pfnCacheOriginalClip(nullptr));

    // Cleared fields get the check's own stubs: a cache callback that reports 0, styles that do nothing.
    callbacks.pfnCacheOriginalClip = nullptr;
    callbacks.pfnGLEnable = nullptr;
    callbacks.pfnGLDisable = nullptr;
    callbacks.pfnGLLines = nullptr;
    callbacks.pfnObGetNumberOfProcessors = nullptr;
    vCheckCallbackStruct(&callbacks);
    EXPECT_EQ(0, callbacks.pfnCacheOriginalClip(nullptr));
    EXPECT_TRUE(callbacks.pfnGLEnable && callbacks.pfnGLDisable);
    EXPECT_TRUE(pAddress(callbacks.pfnGLEnable) != constructorDefaults().at(28)
                && pAddress(callbacks.pfnGLDisable) != constructorDefaults().at(29));
    callbacks.pfnGLEnable(_TQ_RENDER_STYLE(0));
    EXPECT_TRUE(!callbacks.pfnGLLines && !callbacks.pfnObGetNumberOfProcessors);
}

TEST(RenderSuite, MetaObjectAndDestroyResources)
{
    QMetaObject const& meta = TQ::RenderSuite::staticMetaObject;
    EXPECT_STREQ("TQ::RenderSuite", meta.className());
    ASSERT_EQ(1, meta.methodCount() - meta.methodOffset());
    QMetaMethod const slot = meta.method(meta.methodOffset());
    EXPECT_EQ(QMetaMethod::Slot, slot.methodType());
    EXPECT_EQ("destroyResources()", slot.methodSignature());

    // The base's slot is there to be called and does nothing.
    PlainSuite plain;
    EXPECT_TRUE(QMetaObject::invokeMethod(&plain, "destroyResources"));
}

TEST(AutoLock, TakesNoLock)
{
    QMutex mutex;
    mutex.lock();
    // A real lock would wait for ever here.
    TQ_AutoLock const lock(&mutex, __func__);
    EXPECT_FALSE(mutex.tryLock());
    mutex.unlock();
    EXPECT_TRUE(mutex.tryLock());
    mutex.unlock();
}
