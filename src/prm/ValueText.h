#pragma once
#include "prm/StaticValueText.h"
#include "prm/StreamOperators.h"
#include "support/Enumerations.h"

#include <QMetaType>
#include <QString>
#include <QTextStream>
#include <QVariant>
#include <type_traits>

namespace Prm {

/// How one value of a keyframed parameter prints and parses, beyond the line form shared with static
/// parameters (`vWrite`, `tRead`).
///
/// Stateless; every function builds its own stream, except `vWrite`, which writes to the caller's stream
/// with that stream's settings.
template <class T>
struct ValueText : StaticValueText<T> {
    /// The line form through a fresh string stream at default settings (six significant digits).
    static QString qstrWritten(T const& value)
    {
        // A fresh stream prints numbers as QString::number does (six significant digits for reals);
        // building the stream would cost more than the rest of a key line.
        if constexpr (std::is_same<T, double>::value || std::is_same<T, float>::value)
            return QString::number(static_cast<double>(value), 'g', 6);
        if constexpr (std::is_same<T, int>::value || std::is_same<T, unsigned int>::value)
            return QString::number(value);
        QString text;
        QTextStream out(&text, QIODevice::WriteOnly);
        StaticValueText<T>::vWrite(out, value);
        out.flush();
        return text;
    }

    /// What `valueString` shows; for `QString` the text without quotes.
    static QString qstrDisplay(T const& value) { return qstrWritten(value); }

    /// Reads one value through a read-only stream on a copy of `text`; true only when the stream's status
    /// stays Ok. `value` is written either way.
    static bool bReadWord(QString text, T& value)
    {
        QTextStream in(&text, QIODevice::ReadOnly);
        in >> value;
        return in.status() == QTextStream::Ok;
    }

    /// The Qt type id that carries this value type in a `QVariant`; the enumerations register theirs on
    /// first use (support/Enumerations.h).
    static int iMetaType() { return qMetaTypeId<T>(); }

    static QVariant variant(T const& value) { return QVariant(iMetaType(), &value); }

    /// False, leaving `value` alone, when `variant` cannot convert to this type. Otherwise the held value,
    /// or after Qt's conversion, and the zero value when that conversion fails.
    static bool bFromVariant(QVariant const& variant, T& value)
    {
        int const type = iMetaType();
        if (!variant.canConvert(type))
            return false;
        if (variant.userType() == type) {
            value = *static_cast<T const*>(variant.constData());
            return true;
        }
        QVariant converted(variant);
        value = converted.convert(type) ? *static_cast<T const*>(converted.constData()) : T();
        return true;
    }
};

template <>
inline QString ValueText<QString>::qstrDisplay(QString const& value)
{
    return value;
}

} // namespace Prm
