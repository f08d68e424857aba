#pragma once
#include "modules/ParameterTable.h"

namespace TQ::Table {

/// The matte module's members in text order: clips, smoothness and thresholds, the subtype, and last
/// the solver's settings, which are neither keyed nor limited.
struct MatteParameters {
    Parameter<unsigned int> InputClipID = clipReference("InputClipID", 1);
    Parameter<unsigned int> BackgroundClipID = clipReference("BackgroundClipID", 0);
    Parameter<unsigned int> CleanplateClipID = clipReference("CleanplateClipID", 0);
    Parameter<unsigned int> OutputClipID = clipReference("OutputClipID", 0);
    Parameter<unsigned int> CompositeBackgroundClipID = clipReference("CompositeBackgroundClipID", 0);
    Moved Render = moved("Render");
    Numeric<double> SmoothnessHueSat{Keyed, "SmoothnessHueSat", 2, 0, LargestDouble, Linear, Hold};
    Numeric<double> SmoothnessRGB{Keyed, "SmoothnessRGB", 0.4, 0, LargestDouble, Linear, Hold};
    Numeric<double> SmoothnessAlpha{Keyed, "SmoothnessAlpha", 0.01, 0, LargestDouble, Linear, Hold};
    Numeric<double> ThresholdForeground{Keyed, "ThresholdForeground", 0.5, 0, LargestDouble, Linear, Hold};
    Numeric<double> ThresholdBackground{Keyed, "ThresholdBackground", 0.5, 0, LargestDouble, Linear, Hold};
    Parameter<bool> AutoEstimateColorThreshold{Unkeyed, "AutoEstimateColorThreshold", true, Step, Hold};
    Parameter<TQ_MATTE_SUBTYPE> MatteSubtype{Unkeyed, "MatteSubtype", TQ_MATTE_SUBTYPE_DEFAULT, Step, Hold};
    Numeric<unsigned int> BorderWidth{Keyed, "BorderWidth", 1, 0, LargestUInt, Linear, Hold};
    Numeric<unsigned int> GaussRadius{Keyed, "GaussRadius", 0, 0, LargestUInt, Linear, Hold};
    Parameter<bool> AutoEstimateMaxNumNeighbourFramesToUse{Keyed, "AutoEstimateMaxNumNeighbourFramesToUse", false,
                                                           Step, Hold};
    Numeric<unsigned int> MaxNumNeighbourFramesToUse{Unkeyed, "MaxNumNeighbourFramesToUse", 2, 0, LargestUInt,
                                                     Linear, Hold};
    Numeric<unsigned int> FillGapThreshold{Keyed, "FillGapThreshold", 100, 0, LargestUInt, Linear, Hold};
    Numeric<unsigned int> RemoveClusterThreshold{Keyed, "RemoveClusterThreshold", 4, 0, LargestUInt, Linear, Hold};
    Numeric<double> InnerColorSuppression{Keyed, "InnerColorSuppression", 0, 0, LargestDouble, Linear, Hold};
    Numeric<double> EdgeColorSuppression{Keyed, "EdgeColorSuppression", 0, 0, LargestDouble, Linear, Hold};
    Parameter<bool> UseEdge{Unkeyed, "UseEdge", false, Step, Hold};
    Numeric<double> EdgeMatteGlobalWidth{Keyed, "EdgeMatteGlobalWidth", 10, 0, LargestDouble, Linear, Hold};
    Parameter<double> MaxDiscr{Unkeyed, "MaxDiscr", 0, Step, Hold};
    Parameter<double> A1{Unkeyed, "A1", 1, Step, Hold};
    Parameter<double> A2{Unkeyed, "A2", 2, Step, Hold};
    Parameter<double> A3{Unkeyed, "A3", 0.4, Step, Hold};
    Parameter<double> LambdaStart{Unkeyed, "LambdaStart", 0.1, Step, Hold};
    Parameter<double> LambdaFactor{Unkeyed, "LambdaFactor", 0.1, Step, Hold};
    Parameter<unsigned int> NoLevels{Unkeyed, "NoLevels", 5, Step, Hold};
    Parameter<unsigned int> NoIterations{Unkeyed, "NoIterations", 10, Step, Hold};
    Parameter<unsigned int> MinNumControlPointsInSpline{Unkeyed, "MinNumControlPointsInSpline", 3, Step, Hold};
    Parameter<unsigned int> MaxNumControlPointsInSpline{Unkeyed, "MaxNumControlPointsInSpline", 20, Step, Hold};
    Parameter<int> ShrinkExpand{Unkeyed, "ShrinkExpand", 0, Step, Hold};
    Parameter<unsigned int> EdgeWidth{Unkeyed, "EdgeWidth", 3, Step, Hold};
    Parameter<bool> ColorCorrectRGBEdge{Unkeyed, "ColorCorrectRGBEdge", false, Step, Hold};
    Parameter<bool> UseCleanPlates{Unkeyed, "UseCleanPlates", true, Step, Hold};
};

} // namespace TQ::Table

/// Settings of the matte module, named "Matte". Copies and assignments cover every member and share the
/// moved "Render" with their source.
class TQ_MatteParameterSet : public TQ::ClipBoundParameterSet, public TQ::Table::MatteParameters
{
public:
    TQ_MatteParameterSet();
    TQ_MatteParameterSet(TQ_MatteParameterSet const& other);
    TQ_MatteParameterSet& operator=(TQ_MatteParameterSet const& other);
    ~TQ_MatteParameterSet() override;

    /// Forgets `clipId` in the five clip references.
    void removeReferencesToClip(unsigned int clipId) override;

private:
    void init();
};
