#include "camera/LineParameters.h"

#include "gandalf/LineFeature.h"

TQ_LineParameters::TQ_LineParameters() : lineFeatureMap(nullptr), reference(-1) {}

TQ_LineParameters::TQ_LineParameters(TQ_LineParameters const& other)
    : lineFeatureMap(other.lineFeatureMap ? gan_line_feature_map_copy(other.lineFeatureMap) : nullptr),
      reference(other.reference)
{
}

TQ_LineParameters::~TQ_LineParameters()
{
    if (lineFeatureMap)
        gan_line_feature_map_free(lineFeatureMap);
}

TQ_LineParameters& TQ_LineParameters::operator=(TQ_LineParameters const& other)
{
    if (this == &other)
        return *this;
    // The old map is deliberately not freed: see the class comment.
    lineFeatureMap = other.lineFeatureMap ? gan_line_feature_map_copy(other.lineFeatureMap) : nullptr;
    reference = other.reference;
    return *this;
}
