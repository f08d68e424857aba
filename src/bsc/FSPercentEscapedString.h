#pragma once
#include <QString>

namespace Bsc {

/// A string that is meant to become part of a file name. It holds the plain text; `escaped()` gives the
/// form safe for a file system, with '%' and the characters that file systems reserve written as "%XX"
/// (upper-case hex of the UTF-8 byte), and `fromEscaped` reverses it. A '%' not followed by two hex digits
/// is kept as it stands.
class FSPercentEscapedString {
public:
    FSPercentEscapedString() = default;
    explicit FSPercentEscapedString(QString const& text) : m_qstr(text) {}

    /// The plain text. Parameters bind to this string, so its address is stable for the object's life.
    QString& string() { return m_qstr; }
    QString const& string() const { return m_qstr; }

    QString escaped() const;
    static FSPercentEscapedString fromEscaped(QString const& escaped);

    bool operator==(FSPercentEscapedString const& other) const { return m_qstr == other.m_qstr; }
    bool operator!=(FSPercentEscapedString const& other) const { return m_qstr != other.m_qstr; }

private:
    QString m_qstr;
};

} // namespace Bsc
