#pragma once
#include "prm/curve/Interpolation.h"

#include <QString>
#include <QStringRef>

namespace Prm {

/// Text names of interpolation kinds and extrapolation rules, as the key lines and the `before=` and
/// `after=` lines carry them.
///
/// Interpolation: 0 "Unset", 1 "Step", 2 "Linear", 3 "Bezier", 4 + n "Custom n".
/// Extrapolation: 0 "Unset", 1 "Hold", 2 "Linear", 3 + n "Custom n".
/// A negative value (only a damaged record holds one) is written as its number, which no reader accepts.
QString qstrInterpolationTypeString(Interpolation interpolation);
QString qstrExtrapolationTypeString(Extrapolation extrapolation);

/// The readers trim blanks and closing parentheses (a key line's last entry may keep them) and ignore
/// case. On a text that names no kind they return false and leave `out` alone.
bool bStringToInterpolationType(QString const& text, Interpolation& out);
bool bStringToExtrapolationType(QString const& text, Extrapolation& out);
/// `bStringToInterpolationType` on a part of a line, without copying it.
bool bInterpolationOfEntry(QStringRef const& text, Interpolation& out);

} // namespace Prm
