#include "support/Strings.h"

char const* const _TQ_CLIP_MODE_NAME[4] = {"Don't repeat", "Repeat", "Loop", "Ping-pong"};

char const* const _TQ_PRIMATTE_SAMPLEOP_NAME[14] = {
    "Select Background", "Clean Background", "Clean Foreground", "Fine Tuning",
    "Matte Sponge",      "Spill Sponge",     "Make FG Transparent", "Restore Detail",
    "Spill +",           "Spill -",          "Matte +",          "Matte -",
    "Detail +",          "Detail -"};

char const* const _TQ_KOLBEDATA_FORMAT_NAME[3] = {"Result clips", "Shake script using pre-rendered clips",
                                                  "Shake script using lufex plugins"};
char const* const _TQ_KOLBEDATA_FORMAT_EXTENSION[3] = {".txt", ".shk", ".shk"};

char const* const _TQ_TIMECODEFORMAT_NAME[4] = {"30 fps non-drop", "30 fps drop-frame", "25 fps", "24 fps"};

char const* const _TQ_LayerDataFormatName = "Vantrel Layer Script (*.layer)";
char const* const _TQ_LayerDataFormatExtension = ".layer";

namespace TQ {
namespace Strings {
char const* const MODULESTRING_CLIP = "Clip";
char const* const MODULESTRING_CAMERA = "Camera";
char const* const MODULESTRING_LENS = "Lens";
// The constant names and the texts differ on purpose: the texts are what files hold.
char const* const MODULESTRING_TRACK2D = "Track";
char const* const MODULESTRING_ADJUSTTRACK = "AdjustTrack";
char const* const MODULESTRING_REMOVE = "Remove";
char const* const MODULESTRING_STABILIZE = "Stabilize";
char const* const MODULESTRING_INSERT = "Insert";
char const* const MODULESTRING_WARPER = "Warp";
char const* const MODULESTRING_CAMERASOLVE = "Camera Solve";
char const* const MATTE_CLIP_PREFIX_FORMAT = "Matte for %1";
} // namespace Strings
} // namespace TQ
