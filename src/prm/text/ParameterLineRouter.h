#pragma once
#include "prm/text/ParameterLine.h"

#include <QHash>
#include <QString>

namespace Prm {

/// Chooses which of several parameters that share a script name takes a line, so that each gets back the
/// lines it wrote.
///
/// Each such parameter wrote one block of lines in field order (`TextField`). A line goes to the current
/// block while it still fits that order, where only key lines may repeat; a field that arrives again or
/// out of order closes the block and the line goes to the next parameter of that name. After the last
/// one the choice starts again at the first, so that the same text can be read a second time. Names that
/// only one parameter carries keep no state. Owned by value by its set; not copied with it.
class ParameterLineRouter {
public:
    /// Index, among `candidateCount` parameters named `name` in set order, of the one that takes a line
    /// of `field`. A line of unknown field goes to the current block and changes nothing.
    int iChoose(QString const& name, int candidateCount, TextField field);

    /// The same for child sets that share a script name: each wrote one block of lines in the order of
    /// its own text, and a line's place in that order is `position` (where the name after the set's
    /// name stands in the child, -1 when unknown), then `field`. A line that does not come after the
    /// previous one closes the block; a line of unknown place goes to the current block.
    int iChooseSet(QString const& name, int candidateCount, int position, TextField field);

private:
    struct Cursor {
        int iCandidate = 0;
        int iLastPosition = -1;
        TextField eLast = TextField::Unknown;
    };
    static int iAdvance(Cursor& cursor, int candidateCount, int position, TextField field);

    QHash<QString, Cursor> cursors;
    QHash<QString, Cursor> setCursors;
};

} // namespace Prm
