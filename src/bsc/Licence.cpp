#include "bsc/Licence.h"

namespace Bsc {

Licence::Query& Licence::query()
{
    static Query hostQuery;
    return hostQuery;
}

bool Licence::bFeatureOffered(QString const& feature)
{
    Query const& hostQuery = query();
    return hostQuery.empty() || hostQuery(feature);
}

void Licence::vSetQuery(Query const& hostQuery)
{
    query() = hostQuery;
}

} // namespace Bsc
