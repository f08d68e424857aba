#pragma once
/// Texts that the library exports for the host's interface and files. The library never reads them
/// itself. Each array is indexed by the value of its enumeration; all texts are static and never freed.

/// By _TQ_CLIP_MODE: what a clip shows outside its own range.
extern char const* const _TQ_CLIP_MODE_NAME[4];
/// The keyer's sampling tools, for the user interface.
extern char const* const _TQ_PRIMATTE_SAMPLEOP_NAME[14];
/// Ways to hand a result over to another application; the two arrays run in parallel.
extern char const* const _TQ_KOLBEDATA_FORMAT_NAME[3];
extern char const* const _TQ_KOLBEDATA_FORMAT_EXTENSION[3];
extern char const* const _TQ_TIMECODEFORMAT_NAME[4];
/// Label and extension of the layer script, shared with the shape format VANTREL_SHAPE_SCRIPT.
extern char const* const _TQ_LayerDataFormatName;
extern char const* const _TQ_LayerDataFormatExtension;

namespace TQ {
/// Module names as the host shows and saves them.
namespace Strings {
extern char const* const MODULESTRING_CLIP;
extern char const* const MODULESTRING_CAMERA;
extern char const* const MODULESTRING_LENS;
extern char const* const MODULESTRING_TRACK2D;
extern char const* const MODULESTRING_ADJUSTTRACK;
extern char const* const MODULESTRING_REMOVE;
extern char const* const MODULESTRING_STABILIZE;
extern char const* const MODULESTRING_INSERT;
extern char const* const MODULESTRING_WARPER;
extern char const* const MODULESTRING_CAMERASOLVE;
/// Name of a matte clip; %1 is the name of the clip it belongs to.
extern char const* const MATTE_CLIP_PREFIX_FORMAT;
} // namespace Strings
} // namespace TQ
