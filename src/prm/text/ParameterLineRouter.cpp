#include "prm/text/ParameterLineRouter.h"

namespace Prm {

int ParameterLineRouter::iChoose(QString const& name, int candidateCount, TextField field)
{
    if (candidateCount <= 1)
        return 0;
    return iAdvance(cursors[name], candidateCount, 0, field);
}

int ParameterLineRouter::iChooseSet(QString const& name, int candidateCount, int position, TextField field)
{
    if (candidateCount <= 1)
        return 0;
    return iAdvance(setCursors[name], candidateCount, position, field);
}

int ParameterLineRouter::iAdvance(Cursor& cursor, int candidateCount, int position, TextField field)
{
    if (cursor.iCandidate >= candidateCount)
        cursor = Cursor();
    if (position < 0 || (position == cursor.iLastPosition && field == TextField::Unknown))
        return cursor.iCandidate;
    bool const bFits = position > cursor.iLastPosition
                       || (position == cursor.iLastPosition
                           && (static_cast<int>(field) > static_cast<int>(cursor.eLast)
                               || (field == TextField::Keyframes && cursor.eLast == TextField::Keyframes)));
    if (!bFits) {
        cursor.iCandidate = (cursor.iCandidate + 1) % candidateCount;
        cursor.eLast = TextField::Unknown;
    }
    cursor.iLastPosition = position;
    cursor.eLast = field;
    return cursor.iCandidate;
}

} // namespace Prm
