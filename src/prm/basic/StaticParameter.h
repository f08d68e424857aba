#pragma once
#include "prm/basic/BasicParameter.h"
#include "prm/text/ValueText.h"
#include "prm/text/StreamOperators.h"

#include <QString>
#include <QTextStream>

namespace Prm {

/// A named value without keys or undo that writes itself as one `value=` line.
///
/// Abstract: it holds no value, a subclass says where the value lives (`doSetValue`, `value`). Lives on the
/// heap, reached through a set's `basicParameters`; the owner of that list deletes it. No signal but
/// `valueChanged`, raised only by reading a line.
template <class T>
class StaticParameter : public BasicParameter {
public:
    /// Keeps a copy of `scriptName`; the QObject parent is null.
    explicit StaticParameter(QString const& scriptName);
    ~StaticParameter() override;

    /// Writes one line: `prefix` + script name + ".value=" + value when `bQualify`, else `prefix` +
    /// "value=" + value. An empty script name is not tested for. Always true.
    bool bStreamOut(QTextStream& out, QString const& prefix, bool bQualify) const override;
    /// Takes a line that starts with "value" in any case (false otherwise): parses everything behind
    /// the first `=`, stores it through `doSetValue` and raises `valueChanged`. A value that does not
    /// parse stores what the reader left (zero for numbers) and still counts as read.
    bool bStreamIn(QString const& line) override;
    QString const& scriptName() const override;
    virtual void doSetValue(T const& value) = 0;
    virtual T value() const = 0;

    /// The `QString` reader: a copy of `text` without one leading and one trailing double quote when it
    /// has both, else an unchanged copy.
    static QString fromString(QString& text);

protected:
    QString qstrName;
};

template <class T>
StaticParameter<T>::StaticParameter(QString const& scriptName) : BasicParameter(), qstrName(scriptName)
{
}

template <class T>
StaticParameter<T>::~StaticParameter() = default;

template <class T>
bool StaticParameter<T>::bStreamOut(QTextStream& out, QString const& prefix, bool bQualify) const
{
    out << prefix;
    if (bQualify)
        out << qstrName << ".value=";
    else
        out << "value=";
    StaticValueText<T>::vWrite(out, value());
    out << Qt::endl;
    return true;
}

template <class T>
bool StaticParameter<T>::bStreamIn(QString const& line)
{
    if (!line.startsWith(QLatin1String("value"), Qt::CaseInsensitive))
        return false;
    QString text = line.section(QLatin1Char('='), 1);
    doSetValue(StaticValueText<T>::tRead(text));
    emit valueChanged();
    return true;
}

template <class T>
QString const& StaticParameter<T>::scriptName() const
{
    return qstrName;
}

template <class T>
QString StaticParameter<T>::fromString(QString& text)
{
    return StaticValueText<QString>::tRead(text);
}

} // namespace Prm
