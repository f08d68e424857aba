#include "prm/text/StreamOperators.h"

#include <QTextStream>

QTextStream& operator<<(QTextStream& stream, bool const& value)
{
    return stream << (value ? '1' : '0');
}

QTextStream& operator<<(QTextStream& stream, unsigned char const& value)
{
    return stream << static_cast<unsigned int>(value);
}

namespace {

bool bIsWordChar(QChar c, bool bFirst)
{
    return c.isLetterOrNumber() || (bFirst && (c == QLatin1Char('-') || c == QLatin1Char('+')));
}

// Reads characters of one word; the first character that does not belong is put back.
QString qstrReadWord(QTextStream& stream)
{
    QString word;
    while (!stream.atEnd()) {
        qint64 const pos = stream.pos();
        QString const c = stream.read(1);
        if (c.isEmpty())
            break;
        if (!bIsWordChar(c.at(0), word.isEmpty())) {
            stream.seek(pos);
            break;
        }
        word += c;
    }
    return word;
}

} // namespace

QTextStream& operator>>(QTextStream& stream, bool& value)
{
    value = false;
    stream.skipWhiteSpace();
    QString const word = qstrReadWord(stream);
    if (word.isEmpty()) {
        stream.setStatus(stream.atEnd() ? QTextStream::ReadPastEnd : QTextStream::ReadCorruptData);
        return stream;
    }
    if (word.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0) {
        value = true;
        return stream;
    }
    if (word.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
        return stream;
    bool bOk = false;
    qlonglong const number = word.toLongLong(&bOk);
    if (bOk)
        value = number != 0;
    else
        stream.setStatus(QTextStream::ReadCorruptData);
    return stream;
}

QTextStream& operator>>(QTextStream& stream, unsigned char& value)
{
    int number = 0;
    stream >> number;
    value = static_cast<unsigned char>(number & 0xff);
    return stream;
}
