#include "prm/text/ParameterLineRouter.h"

namespace Prm {

int ParameterLineRouter::iChoose(QString const& name, int candidateCount, TextField field)
{
    if (candidateCount <= 1)
        return 0;
    Cursor& cursor = cursors[name];
    if (cursor.iCandidate >= candidateCount)
        cursor = Cursor();
    if (field == TextField::Unknown)
        return cursor.iCandidate;
    bool const bFits = static_cast<int>(field) > static_cast<int>(cursor.eLast)
                       || (field == TextField::Keyframes && cursor.eLast == TextField::Keyframes);
    if (!bFits) {
        cursor.iCandidate = (cursor.iCandidate + 1) % candidateCount;
        cursor.eLast = TextField::Unknown;
    }
    cursor.eLast = field;
    return cursor.iCandidate;
}

} // namespace Prm
