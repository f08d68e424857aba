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
#include "prm/KeyframeData.h"
#include "prm/NumericParameter.h"
#include "prm/NumericParameterWithoutType.h"
#include "prm/Parameter.h"
#include "prm/ParameterChange.h"
#include "prm/ParameterWithoutType.h"
#include "prm/ValueConversion.h"
#include "prm/basic/BasicParameter.h"
#include "prm/basic/MovedParameter.h"
#include "prm/basic/StaticParameter.h"
#include "prm/basic/VirtualParameter.h"
#include "prm/curve/Cache.h"
#include "prm/curve/CubeRoots.h"
#include "prm/curve/Interpolate.h"
#include "prm/curve/Interpolation.h"
#include "prm/curve/ParamInterpolator.h"
#include "prm/edit/ConstraintEdits.h"
#include "prm/edit/MoveChangeKeyframeEdit.h"
#include "prm/edit/ParameterAddConstrainedParameterEdit.h"
#include "prm/edit/ParameterCurveEdits.h"
#include "prm/edit/ParameterEdit.h"
#include "prm/edit/ParameterKeyEdits.h"
#include "prm/edit/ParameterValueEdits.h"
#include "prm/set/ParameterSet.h"
#include "prm/set/ParameterTree.h"
#include "prm/text/CurveTypeNames.h"
#include "prm/text/ParameterLine.h"
#include "prm/text/ParameterLineRouter.h"
#include "prm/text/ParameterTextDocument.h"
#include "prm/text/StreamOperators.h"
#include "prm/text/ValueText.h"

// --- support
#include "support/BlendMode.h"
#include "support/Enumerations.h"
#include "support/EnumerationParameters.h"
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
#include "camera/CameraTypeParameter.h"
#include "camera/FilmType.h"
#include "camera/FilmTypeFactory.h"

// --- modules
