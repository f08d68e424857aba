#include "prm/text/ParameterLineRouter.h"

#include <atomic>

namespace Prm {

namespace {

// Objects are made and renamed on any thread; only the count is shared.
std::atomic<unsigned int> namesGeneration{1};

} // namespace

void ParameterLineRouter::vNamesChanged()
{
    namesGeneration.fetch_add(1, std::memory_order_relaxed);
}

unsigned int ParameterLineRouter::uiNamesGeneration()
{
    return namesGeneration.load(std::memory_order_relaxed);
}

int ParameterLineRouter::iChoose(QString const& name, int candidateCount, TextField field)
{
    if (candidateCount <= 1)
        return 0;
    return iAdvance(cursorOf(cursors, name), candidateCount, 0, field);
}

int ParameterLineRouter::iChooseSet(QString const& name, int candidateCount, int position, TextField field)
{
    if (candidateCount <= 1)
        return 0;
    return iAdvance(cursorOf(setCursors, name), candidateCount, position, field);
}

ParameterLineRouter::Cursor& ParameterLineRouter::cursorOf(QHash<QString, Cursor>& cursors, QString const& name)
{
    auto found = cursors.find(name);
    // The key is kept: a deep copy, as `name` may borrow a caller's characters.
    if (found == cursors.end())
        found = cursors.insert(QString(name.constData(), name.size()), Cursor());
    return *found;
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
