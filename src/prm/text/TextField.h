#pragma once
#include <QString>

namespace Prm {

/// The field words that open a parameter's lines, in the order a parameter writes them; the value is
/// that order (a static value and key lines are never written together, both come first).
enum class TextField : int {
    Unknown = -1,
    Value = 0,
    Keyframes = 1,
    Hidden = 2,
    Keyframed = 3,
    Before = 4,
    After = 5,
    MasterParameterId = 6
};

/// The field of a line that starts at its field word. A prefix test in any case, tried in the order
/// "keyframes", "value", "hidden", "keyframed", "before", "after", "MasterParameterId": a made-up word
/// that merely begins with one of them is taken for it.
TextField eTextField(QString const& line);

/// Section 1 of the line split at `=`, alone: it ends at a second `=`.
QString qstrFieldText(QString const& line);

/// Everything behind the first `=` (section 1 to the last): further `=` signs stay.
QString qstrValueText(QString const& line);

/// A flag line's text read as a base-10 integer: true when not 0 (unparsable text is 0).
bool bFlagOfLine(QString const& line);

} // namespace Prm
