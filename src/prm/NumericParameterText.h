#pragma once
/// Definitions of Prm::NumericParameter<T>'s text operations. Included only where it is instantiated.
#include "prm/NumericParameter.h"
#include "prm/ParameterText.h"

#include <QTextStream>

namespace Prm {

template <class T>
QString NumericParameter<T>::keyframeSuffixString(float time) const
{
    return Parameter<T>::keyframeSuffixString(time);
}

template <class T>
QString NumericParameter<T>::valueString(float time, Cache* cache) const
{
    return ValueText<T>::qstrDisplay(this->value(time, cache));
}

template <class T>
bool NumericParameter<T>::bStreamOut(QTextStream& out, QString const& prefix, bool bQualify) const
{
    Parameter<T>::bStreamOut(out, prefix, bQualify);
    return true;
}

template <class T>
bool NumericParameter<T>::bStreamIn(QString const& line)
{
    if (this->streamInValue(line, boost::function<QString(QString const&)>()))
        return true;
    // Repairs what a failed key line leaves behind: the flag cleared, signals on.
    this->bStreamingIn = true;
    this->blockSignals(true);
    this->bStreamingIn = false;
    this->blockSignals(false);
    return false;
}

} // namespace Prm
