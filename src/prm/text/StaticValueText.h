#pragma once
#include <QString>
#include <QTextStream>

namespace Prm {

/// How one value of a static parameter prints and parses.
///
/// Numbers use QTextStream's own operators; `bool`, `unsigned char` and the enumerations use the free
/// stream operators declared beside their types, which must be visible where this is instantiated.
template <class T>
struct StaticValueText {
    static void vWrite(QTextStream& out, T const& value) { out << value; }

    /// Reads one value from `text` through a read-write stream on it. Unparsable text gives what the
    /// reader leaves, starting from the zero value.
    static T tRead(QString& text)
    {
        QTextStream in(&text, QIODevice::ReadWrite);
        T value{};
        in >> value;
        return value;
    }
};

/// Text is written between double quotes with nothing escaped, and read back as it stands, losing one
/// pair of enclosing quotes when it has both.
template <>
struct StaticValueText<QString> {
    static void vWrite(QTextStream& out, QString const& value) { out << '"' << value << '"'; }

    static QString tRead(QString& text)
    {
        QLatin1Char const quote('"');
        // A lone quote both starts and ends the text: it reads as empty.
        if (text.startsWith(quote) && text.endsWith(quote))
            return text.size() < 2 ? QString() : text.mid(1, text.size() - 2);
        return text;
    }
};

} // namespace Prm
