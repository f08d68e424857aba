#include "support/ShapeDataFormat.h"

#include "support/Strings.h"

int TQ_ShapeDataFormat::enumCount = 0;

TQ_ShapeDataFormat::TQ_ShapeDataFormat(QString const& fileTypeFilter, QString const& extension, bool bFlag,
                                       QString const& hostTag)
    : iEnumValue(enumCount++), fileTypeFilter(fileTypeFilter), hostTag(hostTag), extension(extension),
      bFlag(bFlag)
{
    _formatsByName().insert(Map::value_type(fileTypeFilter, *this));
}

TQ_ShapeDataFormat::Map& TQ_ShapeDataFormat::_formatsByName()
{
    static Map formats;
    return formats;
}

TQ_ShapeDataFormat::Map& TQ_ShapeDataFormat::MAP_ALL()
{
    return _formatsByName();
}

TQ_ShapeDataFormat TQ_ShapeDataFormat::byName(QString const& fileTypeFilter)
{
    Map const& formats = _formatsByName();
    Map::const_iterator const found = formats.find(fileTypeFilter);
    return found != formats.end() ? found->second : SHAKE_SSF_SCRIPT();
}

#define TQ_DEFINE_SHAPE_DATA_FORMAT(Function, filter, extension, bFlag, hostTag)                          \
    TQ_ShapeDataFormat& TQ_ShapeDataFormat::Function()                                                   \
    {                                                                                                    \
        static TQ_ShapeDataFormat format(QStringLiteral(filter), QStringLiteral(extension), bFlag,        \
                                         QStringLiteral(hostTag));                                       \
        return format;                                                                                   \
    }

TQ_DEFINE_SHAPE_DATA_FORMAT(NUKE_ROTO, "Nuke v6.2 Roto (*.nk)", ".nk", true, "nuke")
TQ_DEFINE_SHAPE_DATA_FORMAT(NUKE_ROTO_PAINT, "Nuke Roto Paint (*.nk)", ".nk", true, "nuke")
TQ_DEFINE_SHAPE_DATA_FORMAT(FC_LUMBA_SHAPE, "lumba shape data for Final Cut", ".xml", true, "finalcut")
TQ_DEFINE_SHAPE_DATA_FORMAT(AE_LUMBA_SHAPE, "lumba shape data for AE", ".shape4ae", true, "aftereffects")
TQ_DEFINE_SHAPE_DATA_FORMAT(SHAKE_SSF_SCRIPT, "Shake Rotoshape (*.ssf)", ".ssf", true, "shake")
TQ_DEFINE_SHAPE_DATA_FORMAT(FLAME_BATCH_SCRIPT, "Flame Action Script (*.action)", ".action", false, "ifffse")
TQ_DEFINE_SHAPE_DATA_FORMAT(FLAME_GMASK_SCRIPT, "Flame GMask Script (*.gmask)", ".gmask", false, "ifffse")
TQ_DEFINE_SHAPE_DATA_FORMAT(COMBUSTION_GMASK_SCRIPT, "Combustion GMask Script (*.gmask)", ".gmask", false,
                            "combustion")
TQ_DEFINE_SHAPE_DATA_FORMAT(SHAKE_ROTOSHAPE_SCRIPT, "Shake Script (*.shk)", ".shk", false, "shake")

// Label and extension are the layer script's own exported texts.
TQ_ShapeDataFormat& TQ_ShapeDataFormat::VANTREL_SHAPE_SCRIPT()
{
    static TQ_ShapeDataFormat format(QString::fromLatin1(_TQ_LayerDataFormatName),
                                     QString::fromLatin1(_TQ_LayerDataFormatExtension), false,
                                     QStringLiteral("generic"));
    return format;
}
