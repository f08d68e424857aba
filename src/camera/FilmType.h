#pragma once

#include <QSize>
#include <QString>

namespace TQ {

/// A camera's film back: the gate (width by height, in millimetres for film formats and as a plain 16:9
/// ratio for the high-definition ones) and up to three standard pixel sizes of footage in that format.
/// A plain value, freely copied. A default-constructed value is the invalid value that failed lookups
/// return; only the ratio of the gate's width to its height is used for matching.
class FilmType
{
public:
    /// Null name, all numbers zero, not anamorphic: the invalid value.
    FilmType();
    /// One row of the format table. The six ints are the width slots 1 to 3, then the height slots 1 to 3.
    FilmType(QString const& name, double filmBackWidth, double filmBackHeight, int width1, int width2,
             int width3, int height1, int height2, int height3, bool anamorphic);
    /// A custom film back: named "Custom", with no standard pixel sizes.
    FilmType(double filmBackWidth, double filmBackHeight);

    /// filmBackWidth / filmBackHeight, unguarded.
    double getFilmBackAspectRatio() const;
    /// Pixel aspect ratio of footage of `size` on this gate. A zero width gives an infinite or NaN result.
    double pixelAspectRatio(QSize const& size) const;
    /// As above, added to itself when `doubled` (`size` then holds one field of an interlaced frame).
    double pixelAspectRatio(QSize const& size, bool doubled) const;
    /// Pixel aspect ratio of the first standard size; 0.0 when that slot has no width or no height.
    double defPixelAspectRatio() const;
    /// False when the gate has a zero width or height.
    bool isValid() const;
    /// Standard size `index` (0 is the first slot); 0 by 0 for an index above 2.
    QSize uiSize(unsigned long index) const;
    /// True when the name is the factory's custom name; false for the invalid value.
    bool isCustom() const;

    QString name;
    double filmBackWidth;
    double filmBackHeight;
    int filmWidth[3];
    int filmHeight[3];
    /// Carried for the host; the matching never reads it.
    bool anamorphic;
};

} // namespace TQ

/// True when one of the three height slots of `film` equals `height`.
bool filmTypeMatchesHeight(TQ::FilmType const& film, unsigned int height);
/// True when one slot of `film` has exactly the width and the height of `size`.
bool filmTypeMatchesSize(TQ::FilmType const& film, QSize const& size);
