#pragma once
/// All of the vision primitives.
#include "gandalf/BSpline.h"
#include "gandalf/Camera.h"
#include "gandalf/CameraType.h"
#include "gandalf/Common.h"
#include "gandalf/Error.h"
#include "gandalf/Image.h"
#include "gandalf/LineFeature.h"
#include "gandalf/List.h"
#include "gandalf/Matrix.h"
