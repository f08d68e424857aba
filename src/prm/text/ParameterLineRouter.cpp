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
    auto found = cursors.find(name);
    // The key is kept: a deep copy, as `name` may borrow a caller's characters.
    if (found == cursors.end())
        found = cursors.insert(QString(name.constData(), name.size()), Cursor());
    Cursor& cursor = *found;
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
