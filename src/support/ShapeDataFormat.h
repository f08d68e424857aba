#pragma once
/// The formats in which shape data goes out to other applications. Each is a record only (label for the
/// file dialog, extension, tag of the receiving application family, one flag); the export code is not
/// part of the library. A format is told apart by its label, never by its extension.
///
/// The ten named formats are built lazily, each on the first call of its function, and every format
/// built enters the registry then. So the registry holds only the formats asked for so far, and
/// iEnumValue follows the order of first use (it is not saved anywhere). First calls must not race;
/// afterwards the registry is read-only. Everything lives until the library unloads.

#include <QString>
#include <map>

class TQ_ShapeDataFormat {
public:
    using Map = std::map<QString, TQ_ShapeDataFormat>;

    /// Takes the next enumCount as iEnumValue and enters a copy under `fileTypeFilter`, unless the
    /// registry already holds a format with that label (the first one stays).
    TQ_ShapeDataFormat(QString const& fileTypeFilter, QString const& extension, bool bFlag,
                       QString const& hostTag);

    /// The named formats; each reference is to a static object built on the first call. The reference is
    /// not const so that a host may bind a plain reference; the registry keeps its own copy, so changing
    /// the object does not change what `byName` and `MAP_ALL` give.
    static TQ_ShapeDataFormat& NUKE_ROTO();
    static TQ_ShapeDataFormat& NUKE_ROTO_PAINT();
    static TQ_ShapeDataFormat& VANTREL_SHAPE_SCRIPT();
    static TQ_ShapeDataFormat& FC_LUMBA_SHAPE();
    static TQ_ShapeDataFormat& AE_LUMBA_SHAPE();
    static TQ_ShapeDataFormat& SHAKE_SSF_SCRIPT();
    static TQ_ShapeDataFormat& FLAME_BATCH_SCRIPT();
    static TQ_ShapeDataFormat& FLAME_GMASK_SCRIPT();
    static TQ_ShapeDataFormat& COMBUSTION_GMASK_SCRIPT();
    static TQ_ShapeDataFormat& SHAKE_ROTOSHAPE_SCRIPT();

    /// The registry itself, created empty on first use; the library's own access to it.
    static Map& _formatsByName();
    /// The same registry for callers: the formats built so far, in label (QString) order. Complete only
    /// once all ten were asked for.
    static Map& MAP_ALL();
    /// A copy of the format with that label; an unknown label silently gives SHAKE_SSF_SCRIPT(), which
    /// is built (and so registered) if it was not yet.
    static TQ_ShapeDataFormat byName(QString const& fileTypeFilter);

    int iEnumValue;
    QString fileTypeFilter;
    QString hostTag;
    QString extension;
    bool bFlag;

    /// Number of formats constructed so far (copies excluded); only grows.
    static int enumCount;
};
