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

// The fields the constructor fills, with the default functions' addresses.
#define TQ_DEFAULT(n, name) {n, reinterpret_cast<void*>(&TQ_CallbackStruct::_default##name)}
std::map<int, void*> const defaults = {TQ_DEFAULT(15, CacheOriginalClip), TQ_DEFAULT(23, vGLLines),
    TQ_DEFAULT(24, vGLConvexPolygon), TQ_DEFAULT(25, vGLGeneralPolygon), TQ_DEFAULT(26, vGLSetAlpha),
    TQ_DEFAULT(27, vGLGetColour), TQ_DEFAULT(28, vGLEnable), TQ_DEFAULT(29, vGLDisable),
    TQ_DEFAULT(60, ObGetNumberOfProcessors)};
#undef TQ_DEFAULT

// What the stubs of the check return; -1 for the stubs that return nothing.
std::map<int, int> const stubResults = {
    {1, 1}, {2, 1}, {3, 0}, {4, 0}, {5, 0}, {6, 1}, {7, 1}, {11, 1}, {13, 1}, {14, 1}, {18, 0}, {19, 1},
    {31, -1}, {32, -1}, {39, -1}, {40, -1}, {41, -1}, {42, -1}, {43, 0},
};

} // namespace

TEST(CallbackStruct, DefaultsAndTheCheckThatFillsOnlyNullStubFields)
{
    TQ_CallbackStruct callbacks;
    for (int n = 1; n <= 68; ++n)
        EXPECT_EQ(defaults.count(n) ? defaults.at(n) : nullptr, pField(callbacks, n)) << n;
    // The defaults: a cache that reports success, one processor, a colour left as it was, no handles.
    EXPECT_EQ(1, callbacks.pfnCacheOriginalClip(nullptr));
    EXPECT_EQ(1, callbacks.pfnObGetNumberOfProcessors(nullptr));
    float red = 0.1f, green = 0.2f, blue = 0.3f, alpha = 0.4f;
    callbacks.pfnGLGetColour(red, green, blue, alpha);
    EXPECT_TRUE(red == 0.1f && green == 0.2f && blue == 0.3f && alpha == 0.4f);
    QVector<TQ::VertexInfo> const vertices(3);
    for (TQ::RenderHandle const& handle : {callbacks.pfnGLLines(vertices), callbacks.pfnGLConvexPolygon(vertices),
                                           callbacks.pfnGLGeneralPolygon({vertices, vertices})})
        EXPECT_TRUE(!handle && handle.use_count() == 0);

    callbacks.callback01 = [] { return 7; };
    vCheckCallbackStruct(&callbacks);
    vCheckCallbackStruct(nullptr);
    EXPECT_TRUE(callbacks.imageProvider.empty());
    EXPECT_EQ(7, callbacks.callback01());
    for (int n = 2; n <= 68; ++n) {
        void* const field = pField(callbacks, n);
        auto const stub = stubResults.find(n);
        if (defaults.count(n))
            EXPECT_EQ(defaults.at(n), field) << n;
        else if (stub == stubResults.end())
            EXPECT_EQ(nullptr, field) << n;
        else if (stub->second >= 0)
            EXPECT_EQ(stub->second, reinterpret_cast<int (*)()>(field)()) << n;
        else
            EXPECT_NE(nullptr, field) << n;
    }

    // Cleared fields get the check's own stubs: a cache callback that reports 0, styles that do nothing.
    callbacks.pfnCacheOriginalClip = nullptr, callbacks.pfnGLEnable = nullptr, callbacks.pfnGLDisable = nullptr;
    callbacks.pfnGLLines = nullptr, callbacks.pfnObGetNumberOfProcessors = nullptr;
    vCheckCallbackStruct(&callbacks);
    EXPECT_EQ(0, callbacks.pfnCacheOriginalClip(nullptr));
    EXPECT_TRUE(callbacks.pfnGLEnable && reinterpret_cast<void*>(callbacks.pfnGLEnable) != defaults.at(28));
    EXPECT_TRUE(callbacks.pfnGLDisable && reinterpret_cast<void*>(callbacks.pfnGLDisable) != defaults.at(29));
    callbacks.pfnGLEnable(_TQ_RENDER_STYLE(0));
    EXPECT_TRUE(!callbacks.pfnGLLines && !callbacks.pfnObGetNumberOfProcessors);
}

TEST(RenderSuite, HasTheOneSlot)
{
    QMetaObject const& meta = TQ::RenderSuite::staticMetaObject;
    EXPECT_STREQ("TQ::RenderSuite", meta.className());
    ASSERT_EQ(1, meta.methodCount() - meta.methodOffset());
    EXPECT_EQ(QMetaMethod::Slot, meta.method(meta.methodOffset()).methodType());
    EXPECT_EQ("destroyResources()", meta.method(meta.methodOffset()).methodSignature());
}

TEST(AutoLock, TakesNoLock)
{
    QMutex mutex;
    mutex.lock();
    // A real lock would wait for ever here.
    TQ_AutoLock const lock(&mutex, __func__);
    mutex.unlock();
    EXPECT_TRUE(mutex.tryLock());
    mutex.unlock();
}
