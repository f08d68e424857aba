#include "bsc/FSPercentEscapedString.h"

#include <QByteArray>

namespace Bsc {

namespace {

bool bIsUnsafe(unsigned char c)
{
    static char const reserved[] = "%/\\:*?\"<>|";
    if (c < 0x20 || c == 0x7f)
        return true;
    for (char const* p = reserved; *p; ++p)
        if (c == static_cast<unsigned char>(*p))
            return true;
    return false;
}

int iHexValue(char c)
{
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

} // namespace

QString FSPercentEscapedString::escaped() const
{
    QByteArray const utf8 = m_qstr.toUtf8();
    QByteArray out;
    out.reserve(utf8.size());
    static char const hex[] = "0123456789ABCDEF";
    for (char ch : utf8) {
        auto const c = static_cast<unsigned char>(ch);
        if (bIsUnsafe(c)) {
            out += '%';
            out += hex[c >> 4];
            out += hex[c & 0xf];
        } else {
            out += ch;
        }
    }
    return QString::fromUtf8(out);
}

FSPercentEscapedString FSPercentEscapedString::fromEscaped(QString const& escaped)
{
    QByteArray const in = escaped.toUtf8();
    QByteArray out;
    out.reserve(in.size());
    for (int i = 0; i < in.size(); ++i) {
        if (in[i] == '%' && i + 2 < in.size()) {
            int const hi = iHexValue(in[i + 1]);
            int const lo = iHexValue(in[i + 2]);
            if (hi >= 0 && lo >= 0) {
                out += static_cast<char>(hi * 16 + lo);
                i += 2;
                continue;
            }
        }
        out += in[i];
    }
    return FSPercentEscapedString(QString::fromUtf8(out));
}

} // namespace Bsc
