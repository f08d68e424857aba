#include "clip/ColourspaceParameters.h"

#include <algorithm>
#include <cmath>

namespace {

template <class T>
void vFreeTable(T*& table)
{
    delete[] table;
    table = nullptr;
}

// Gives `table` the shape of `source`: null with it, allocated when it has one, the allocation reused
// when both have one; then copies the entries.
template <class T>
void vAssignTable(T*& table, T const* source, std::size_t entries)
{
    if (!source) {
        vFreeTable(table);
        return;
    }
    if (!table)
        table = new T[entries];
    std::copy(source, source + entries, table);
}

} // namespace

TQ_ColourspaceParameters::TQ_ColourspaceParameters()
    : Prm::ParameterSet("Colorspace", nullptr), colourspace(TQ_COLORSPACE_GAMMA), floatFormat(TQ_FALSE),
      eightBitFormat(TQ_FALSE), nativePixelType(GAN_UNDEFINED_TYPE), gamma(1.0f), offset(0.0f),
      refWhite(685.0f), refBlack(95.0f), softClip(0.0f), lut16To16Forward(nullptr), lut16To16Inverse(nullptr),
      lut8To16(nullptr), lut16To8(nullptr), lut16ToFloat(nullptr), lutFloatTo16(nullptr),
      floatTo16Segments{}, lut8ToFloat(nullptr), lutFloatTo8(nullptr), floatTo8Segments{},
      lutHalfToFloat(nullptr)
{
}

TQ_ColourspaceParameters::TQ_ColourspaceParameters(TQ_ColourspaceParameters const& other)
    : TQ_ColourspaceParameters()
{
    vCopyFields(other);
    vForEachTable(other, [](auto*& table, auto const* source, std::size_t entries) {
        vAssignTable(table, source, entries);
    });
}

TQ_ColourspaceParameters::~TQ_ColourspaceParameters()
{
    vFreeTables();
}

TQ_ColourspaceParameters& TQ_ColourspaceParameters::operator=(TQ_ColourspaceParameters const& other)
{
    if (this == &other)
        return *this;
    vCopyFields(other);
    vForEachTable(other, [](auto*& table, auto const* source, std::size_t entries) {
        vAssignTable(table, source, entries);
    });
    // Only the names are taken from the base; its own assignment is not used here.
    Prm::ParameterSet::setDisplayName(other.qstrDisplayName());
    setScriptName(other.qstrScriptName());
    return *this;
}

template <class Function>
void TQ_ColourspaceParameters::vForEachTable(TQ_ColourspaceParameters const& other, Function function)
{
    function(lut16To16Forward, other.lut16To16Forward, uiEntries16);
    function(lut16To16Inverse, other.lut16To16Inverse, uiEntries16);
    function(lut8To16, other.lut8To16, uiEntries8);
    function(lut16To8, other.lut16To8, uiEntries16);
    function(lut16ToFloat, other.lut16ToFloat, uiEntries16);
    function(lutFloatTo16, other.lutFloatTo16, uiEntries16);
    function(lut8ToFloat, other.lut8ToFloat, uiEntries8);
    function(lutFloatTo8, other.lutFloatTo8, uiEntries16);
    function(lutHalfToFloat, other.lutHalfToFloat, uiEntries16);
}

void TQ_ColourspaceParameters::vCopyFields(TQ_ColourspaceParameters const& other)
{
    colourspace = other.colourspace;
    floatFormat = other.floatFormat;
    eightBitFormat = other.eightBitFormat;
    nativePixelType = other.nativePixelType;
    gamma = other.gamma;
    offset = other.offset;
    refWhite = other.refWhite;
    refBlack = other.refBlack;
    softClip = other.softClip;
    std::copy(other.floatTo16Segments, other.floatTo16Segments + 5, floatTo16Segments);
    std::copy(other.floatTo8Segments, other.floatTo8Segments + 5, floatTo8Segments);
}

void TQ_ColourspaceParameters::vFreeTables()
{
    vForEachTable(*this, [](auto*& table, auto const*, std::size_t) { vFreeTable(table); });
}

void TQ_ColourspaceParameters::init()
{
}

bool TQ_ColourspaceParameters::equals(TQ_ColourspaceParameters const& other, float) const
{
    if (int(colourspace) != int(other.colourspace) || int(floatFormat) != int(other.floatFormat)
        || int(eightBitFormat) != int(other.eightBitFormat) || int(nativePixelType) != int(other.nativePixelType))
        return false;
    // Exact on purpose: a NaN on either side compares unequal.
    float const mine[] = {gamma, offset, refWhite, refBlack, softClip};
    float const theirs[] = {other.gamma, other.offset, other.refWhite, other.refBlack, other.softClip};
    return std::equal(mine, mine + 5, theirs) && std::equal(floatTo16Segments, floatTo16Segments + 5,
                                                            other.floatTo16Segments)
        && std::equal(floatTo8Segments, floatTo8Segments + 5, other.floatTo8Segments);
}

bool TQ_ColourspaceParameters::bConversionRequired() const
{
    return double(std::fabs(1.0f - gamma)) > 1e-06 || colourspace == TQ_COLORSPACE_LOGARITHMIC
        || colourspace == TQ_COLORSPACE_PANALOG || floatFormat == TQ_TRUE;
}

bool TQ_ColourspaceParameters::bStreamOut(QTextStream& out, QString const& prefix, bool bQualify)
{
    return Prm::ParameterSet::bStreamOut(out, prefix, bQualify);
}

bool TQ_ColourspaceParameters::bStreamIn(QString const& line)
{
    return Prm::ParameterSet::bStreamIn(line);
}
