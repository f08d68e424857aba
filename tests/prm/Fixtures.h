#pragma once
#include "bsc/Logger.h"
#include "prm/NumericParameter.h"
#include "prm/ParameterWithoutType.h"
#include "prm/text/StreamOperators.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QList>
#include <QTextStream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

/// Collects every `changed` signal of one parameter as (kind, index) pairs; a list change is kept with its
/// indices copied, since the list dies with the signal. The connection ends with the recorder, so a parameter
/// may outlive it.
class ChangeRecorder : public QObject {
public:
    explicit ChangeRecorder(Prm::ParameterWithoutType& parameter)
    {
        connect(&parameter, &Prm::ParameterWithoutType::changed, this, [this](Prm::ParameterChange& change) {
            events.emplace_back(change.kind(), change.index());
            if (change.indices())
                lists.push_back(*change.indices());
        });
    }

    using Event = std::pair<Prm::ParameterChange::ParameterChanges, unsigned int>;
    std::vector<Event> events;
    std::vector<QList<unsigned int>> lists;
};
using Events = std::vector<ChangeRecorder::Event>;

/// Sends the logger's lines here while alive.
class LogCapture {
public:
    LogCapture() { Bsc::Logger::instance().setSink([this](std::string const& line) { lines.push_back(line); }); }
    ~LogCapture() { Bsc::Logger::instance().setSink(nullptr); }
    std::vector<std::string> lines;
};

template <class P>
using ValueOf = std::decay_t<decltype(std::declval<P const&>().staticValue())>;
template <class P>
using Keys = std::vector<std::pair<float, ValueOf<P>>>;

/// The parameter's state on one line: the static value, then each key as time:value followed by its curve
/// kind's initial (a custom kind by its number), e.g. "0.5 | 0:0L 10:10S".
template <class P>
std::string state(P const& parameter)
{
    QString text;
    QTextStream out(&text);
    out << parameter.staticValue() << " |";
    for (unsigned int i = 0; i < parameter.keyframeCount(); ++i) {
        int const kind = parameter.interpolation(i);
        out << ' ' << parameter.keyframeTime(i) << ':' << parameter.keyframeValue(i);
        kind < 4 ? out << "USLB"[kind] : out << kind;
    }
    out.flush();
    return text.toStdString();
}

/// The text of the data file `tests/prm/data/<name>`, empty (and a failure) if it does not open.
inline QString qstrDataFile(QString const& name)
{
    QFile file(QStringLiteral(TQ_TEST_FOLDER "/../prm/data/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return QString::fromUtf8(file.readAll());
}

/// Sets one key per (time, value) row.
template <class P>
P& withKeys(P& parameter, Keys<P> const& keys)
{
    for (auto const& key : keys)
        parameter.vSetValue(key.second, key.first);
    return parameter;
}

/// Expects `value(time)` to equal each row's value exactly.
template <class P>
void expectReads(P const& parameter, Keys<P> const& rows)
{
    for (auto const& row : rows)
        EXPECT_EQ(parameter.value(row.first, nullptr), row.second) << "at time " << row.first;
}

/// What `bStreamOut` writes, expecting it to succeed.
template <class P>
QString qstrStreamed(P&& parameter, QString const& prefix, bool bQualify = true)
{
    QString text;
    QTextStream out(&text);
    EXPECT_TRUE(parameter.bStreamOut(out, prefix, bQualify));
    out.flush();
    return text;
}

using Curve = Prm::NumericParameter<double>;

/// A linear, held double curve limited to [-100, 100] with one key per row.
inline Curve curveOf(Keys<Curve> const& keys, char const* name = "Curve")
{
    Curve parameter(true, name, 0.5, -100.0, 100.0, Prm::InterpolationLinear, Prm::ExtrapolationHold);
    return withKeys(parameter, keys);
}
