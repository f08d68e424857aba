#pragma once
/// Umbrella header: includes every public header of bsc, gandalf and tq.

// --- bsc
#include "bsc/AbstractData.h"
#include "bsc/Command.h"
#include "bsc/FSPercentEscapedString.h"
#include "bsc/Hash.h"
#include "bsc/IsNear.h"
#include "bsc/Logger.h"

// --- gandalf
#include "gandalf/gandalf.h"

// --- prm
#include "prm/BasicParameter.h"
#include "prm/Cache.h"
#include "prm/CubeRoots.h"
#include "prm/Interpolate.h"
#include "prm/Interpolation.h"
#include "prm/KeyframeData.h"
#include "prm/NumericParameter.h"
#include "prm/NumericParameterWithoutType.h"
#include "prm/ParamInterpolator.h"
#include "prm/Parameter.h"
#include "prm/ParameterChange.h"
#include "prm/ParameterSet.h"
#include "prm/ParameterTree.h"
#include "prm/ParameterWithoutType.h"
#include "prm/ValueConversion.h"
#include "prm/CurveTypeNames.h"
#include "prm/KeyframeDeclaration.h"
#include "prm/ParameterTextDocument.h"
#include "prm/StreamOperators.h"
#include "prm/ValueText.h"
#include "prm/ConstraintEdits.h"
#include "prm/MoveChangeKeyframeEdit.h"
#include "prm/MovedParameter.h"
#include "prm/ParameterAddConstrainedParameterEdit.h"
#include "prm/ParameterCurveEdits.h"
#include "prm/ParameterEdit.h"
#include "prm/ParameterKeyEdits.h"
#include "prm/ParameterValueEdits.h"
#include "prm/StaticParameter.h"
#include "prm/VirtualParameter.h"

// --- support
#include "support/BlendMode.h"
#include "support/Enumerations.h"
#include "support/Exception.h"
#include "support/GandalfFailure.h"
#include "support/ShapeDataFormat.h"
#include "support/Strings.h"
#include "support/XMLErrorHandler.h"

// --- clip
#include "clip/BaseClipInfo.h"
#include "clip/BaseClipInfoContainer.h"
#include "clip/FrameOffsetParameter.h"
#include "clip/IBaseClip.h"
#include "clip/LookupTableHelperMethods.h"

// --- camera
#include "camera/FilmType.h"
#include "camera/FilmTypeFactory.h"

// --- modules
#include "modules/Camera3DParameterSet.h"
#include "modules/ClipBoundParameterSet.h"
#include "modules/ColourFilterParameterSet.h"
#include "modules/ColourParameterSet.h"
#include "modules/CopyDepartures.h"
#include "modules/InsertBlurParameterSet.h"
#include "modules/InsertCompositeParameterSet.h"
#include "modules/InsertEdgeParameterSet.h"
#include "modules/InsertOffsetParameterSet.h"
#include "modules/InsertParameterSet.h"
#include "modules/InsertROIParameterSet.h"
#include "modules/Layer3DParameterSet.h"
#include "modules/LuminanceEffectsParameterSet.h"
#include "modules/NullObject3DParameterSet.h"
#include "modules/WarperParameterSet.h"
#include "modules/XYZParameterSet.h"
