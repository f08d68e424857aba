#pragma once
#include <QString>
#include <boost/function.hpp>

namespace Bsc {

/// The licence query: whether a feature the licence governs is offered on this installation. The host sets
/// the query; without one every feature is offered. Callers may keep what they learn (the camera types
/// fill their table once), so the host sets the query before the first question. Setting it is not
/// synchronised with asking: do both from one thread, or set it before other threads start.
class Licence {
public:
    /// Answers for one feature name. A query that throws lets the exception through to the asker.
    using Query = boost::function<bool(QString const& feature)>;

    /// Whether `feature` is offered: the host's answer, or true when no query is set.
    static bool bFeatureOffered(QString const& feature);
    /// Replaces the query; an empty function restores the default, which offers everything.
    static void vSetQuery(Query const& query);

private:
    static Query& query();
};

} // namespace Bsc
