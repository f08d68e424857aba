#include "modules/InsertEdgeParameterSet.h"

TQ_InsertEdgeParameterSet::TQ_InsertEdgeParameterSet() : TQ::ClipBoundParameterSet(QStringLiteral("Edge"))
{
    init();
}

TQ_InsertEdgeParameterSet::TQ_InsertEdgeParameterSet(TQ_InsertEdgeParameterSet const& other)
    : TQ::ClipBoundParameterSet(QStringLiteral("Edge")), TQ::Table::InsertEdgeParameters(other)
{
    init();
}

TQ_InsertEdgeParameterSet& TQ_InsertEdgeParameterSet::operator=(TQ_InsertEdgeParameterSet const& other)
{
    bAssignSet<TQ::Table::InsertEdgeParameters>(other, {});
    return *this;
}

TQ_InsertEdgeParameterSet::~TQ_InsertEdgeParameterSet() = default;

void TQ_InsertEdgeParameterSet::init()
{
    vAddParameters({&EdgeWidthBottom, &EdgeWidthTop, &EdgeWidthLeft, &EdgeWidthRight});
}
