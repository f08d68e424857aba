// Reads arbitrary text through every enumeration's text operator, as project lines reach them, and
// writes each value back: any number must be taken as it stands, without undefined behaviour.
#include "support/Enumerations.h"

#include <QString>
#include <QTextStream>

#include <cstddef>
#include <cstdint>

namespace {

template <typename E>
void vReadAndWrite(QTextStream& in, QTextStream& out)
{
    E value = static_cast<E>(0);
    in >> value;
    out << value << ' ';
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size)
{
    QString text = QString::fromUtf8(reinterpret_cast<char const*>(data), static_cast<int>(size));
    QString written;
    QTextStream in(&text);
    QTextStream out(&written);
    while (!in.atEnd() && in.status() == QTextStream::Ok) {
        vReadAndWrite<_TQ_CLIP_MODE>(in, out);
        vReadAndWrite<_TQ_INTERLACE_MODE>(in, out);
        vReadAndWrite<_TQ_BOOL>(in, out);
        vReadAndWrite<TQ_BlendMode>(in, out);
        vReadAndWrite<Gan_CameraType>(in, out);
        vReadAndWrite<Gan_Type>(in, out);
        vReadAndWrite<Gan_ImageFormat>(in, out);
        in.skipWhiteSpace();
    }
    return 0;
}
