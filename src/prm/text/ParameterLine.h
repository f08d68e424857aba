#pragma once
/// The parts of one line of a parameter's text: the field word that opens it, the text behind `=`, and
/// the entries of a key line. Stateless functions; none fails or throws.
#include <QString>
#include <QStringList>
#include <QStringRef>
#include <QVarLengthArray>

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

/// Whether "BezierKey" occurs anywhere in the line, case-sensitively: what makes a key line a Bezier block.
bool bHasBezierBlockWord(QString const& line);

/// Section 1 of the line split at `=`, alone: it ends at a second `=`.
QString qstrFieldText(QString const& line);

/// Everything behind the first `=` (section 1 to the last): further `=` signs stay.
QString qstrValueText(QString const& line);

/// A flag line's text read as a base-10 integer: true when not 0 (unparsable text is 0).
bool bFlagOfLine(QString const& line);

/// Splits a key line ("keyframes.append( Key( 1, 0.5, Linear ) )" or its "BezierKey" form, in any case)
/// into the arguments of the inner call: entry 0 the time, entry 1 the value, then the interpolation name or
/// the four Bezier numbers. The arguments start after the last opening parenthesis in front of the first
/// comma and end at the parenthesis that closes that call (or at the end of the line). Commas and
/// parentheses between double quotes do not count, so a quoted text value may hold them. A value entry that
/// opens with a double quote but whose quotes do not pair up as written (a text holding `"`, or `a"b, c`)
/// runs to the last double quote of the line, as long as at least one entry follows it; so every text
/// without a line break comes back whole. Each entry is trimmed of blanks outside its quotes. A line
/// without an opening parenthesis in front of its first comma gives no entries; no line makes this fail or
/// throw.
QStringList parseKeyframeDeclaration(QString line);

/// The entries of a key line as `parseKeyframeDeclaration` gives them, as views into `line`.
using KeyframeEntries = QVarLengthArray<QStringRef, 8>;

/// The same entries without a copy each, for the reader: they live as long as `line` is unchanged.
void vKeyframeDeclarationEntries(QString const& line, KeyframeEntries& entries);

} // namespace Prm
