#pragma once

#include "gandalf/Common.h"
#include "prm/set/ParameterSet.h"
#include "support/Enumerations.h"

#include <cstddef>

class QTextStream;

/// How a clip's stored pixel values relate to linear light (a power curve, the logarithmic film curve or
/// the Panalog curve), and the lookup tables built from that description.
///
/// A parameter set named "Colorspace" that registers no parameters: the clip that embeds it exposes the
/// fields through its own virtual parameters. The object owns its nine tables; each is null until
/// `TQ_ClipInfo::CreateLUTs` allocates and fills it, and is freed with the object. Copies and assigned
/// objects hold tables of their own, never shared ones. Nothing here throws or fails.
class TQ_ColourspaceParameters : public Prm::ParameterSet
{
public:
    /// Entries of the tables indexed by an 8-bit value (`lut8To16`, `lut8ToFloat`).
    static std::size_t const uiEntries8 = 256;
    /// Entries of every other table, the two-segment float-input tables included.
    static std::size_t const uiEntries16 = 65536;

    /// Named "Colorspace", gamma 1 with the film defaults (white 685, black 95, no soft clip); no tables.
    TQ_ColourspaceParameters();
    /// Copies every field; each table of `other` is duplicated. The base names are not copied.
    TQ_ColourspaceParameters(TQ_ColourspaceParameters const& other);
    /// Frees the tables.
    ~TQ_ColourspaceParameters() override;
    /// Takes every field and a private copy of each table of `other`: a table `other` lacks is freed, an
    /// existing allocation is reused. Copies both names of the set.
    TQ_ColourspaceParameters& operator=(TQ_ColourspaceParameters const& other);

    /// Does nothing: the fields are registered by the embedding clip.
    void init();
    /// True when every description field and both groups of segment floats are exactly equal (a NaN never
    /// is). `tolerance` is ignored: the comparison is always exact. The tables are not compared.
    bool equals(TQ_ColourspaceParameters const& other, float tolerance) const;
    /// True when pixel values need a table on the way in or out: a gamma away from 1 by more than 1e-06,
    /// the log or Panalog curve, or float data.
    bool bConversionRequired() const;

    bool bStreamOut(QTextStream& out, QString const& prefix, bool bQualify) override;
    bool bStreamIn(QString const& line) override;

    /// 0 power curve, 1 logarithmic film curve, 2 Panalog.
    _TQ_COLORSPACE colourspace;
    _TQ_BOOL floatFormat;
    _TQ_BOOL eightBitFormat;
    Gan_Type nativePixelType;
    /// Power of the curve; also the density gamma of the log curve.
    float gamma;
    /// Code value (0 to 1024 scale) that falls on table index 0 of the log curve.
    float offset;
    float refWhite;
    float refBlack;
    /// Width of the log curve's soft shoulder in code values; 0 for none.
    float softClip;

    unsigned short* lut16To16Forward;  ///< 65536 entries, or null.
    unsigned short* lut16To16Inverse;  ///< 65536 entries, or null.
    unsigned short* lut8To16;          ///< 256 entries, or null.
    unsigned char* lut16To8;           ///< 65536 entries, or null.
    float* lut16ToFloat;               ///< 65536 entries, or null.
    unsigned short* lutFloatTo16;      ///< Two segments of 32768, looked up through floatTo16Segments.
    /// lowScale, lowOffset, split, highScale, highOffset of `lutFloatTo16`.
    float floatTo16Segments[5];
    float* lut8ToFloat;                ///< 256 entries, or null.
    unsigned char* lutFloatTo8;        ///< Two segments of 32768, looked up through floatTo8Segments.
    /// lowScale, lowOffset, split, highScale, highOffset of `lutFloatTo8`.
    float floatTo8Segments[5];
    /// 65536 entries indexed by the bit pattern of a half; built for the power curve only.
    float* lutHalfToFloat;

    /// Frees every table and sets its pointer null; the segment floats are kept.
    void vFreeTables();

private:
    void vCopyFields(TQ_ColourspaceParameters const& other);
    /// Calls `function(ownTable, otherTable, entries)` for each of the nine tables in field order.
    template <class Function>
    void vForEachTable(TQ_ColourspaceParameters const& other, Function function);
};
