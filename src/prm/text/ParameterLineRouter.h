#pragma once
#include "prm/text/ParameterLine.h"

#include <QHash>
#include <QString>
#include <QStringView>
#include <QVector>
#include <array>
#include <cstring>

namespace Prm {

/// Where the lines of one script name may go: positions in a set's list of added parameters, of basic
/// parameters and of child sets, each in list order.
struct LineTargets {
    QVector<int> parameters;
    QVector<int> basicParameters;
    QVector<int> childSets;
};

/// Finds the parameters and child sets a line names, and chooses which of several parameters that share
/// a script name takes it, so that each gets back the lines it wrote.
///
/// The name index is built from the set's three lists and rebuilt only when they may have changed: when a
/// list's length changed, or when any parameter, basic parameter or set anywhere was created, destroyed
/// or renamed since (`vNamesChanged`). A line naming something unknown never rebuilds it. A subclass that
/// renames a basic parameter by writing its field directly calls `vNamesChanged` itself.
///
/// Each parameter sharing a name wrote one block of lines in field order (`TextField`). A line goes to the
/// current block while it still fits that order, where only key lines may repeat; a field that arrives
/// again or out of order closes the block and the line goes to the next parameter of that name. After the
/// last one the choice starts again at the first, so that the same text can be read a second time. Names
/// that only one parameter carries keep no state. Owned by value by its set; not copied with it.
class ParameterLineRouter {
public:
    enum List { Parameters = 0, BasicParameters = 1, ChildSets = 2 };

    ParameterLineRouter() = default;
    // It points into its own index.
    ParameterLineRouter(ParameterLineRouter const&) = delete;
    ParameterLineRouter& operator=(ParameterLineRouter const&) = delete;

    /// Index, among `candidateCount` parameters named `name` in set order, of the one that takes a line
    /// of `field`. A line of unknown field goes to the current block and changes nothing. `name` may
    /// borrow its characters (`QString::fromRawData`): nothing keeps it.
    int iChoose(QString const& name, int candidateCount, TextField field);

    /// The same for child sets that share a script name (`name` may borrow
    /// its characters as above): each wrote one block of lines in the order of
    /// its own text, and a line's place in that order is `position` (where the name after the set's
    /// name stands in the child, -1 when unknown), then `field`. A line that does not come after the
    /// previous one closes the block; a line of unknown place goes to the current block.
    int iChooseSet(QString const& name, int candidateCount, int position, TextField field);

    /// The targets of `name` among lists of `counts` entries, where `nameOf(list, position)` gives an
    /// entry's name (null for an entry that is gone). The reference lives until the next call. Nothing
    /// keeps `name`.
    template <class NameOf>
    LineTargets const& targetsOf(QStringView name, std::array<int, 3> const& counts, NameOf nameOf);

    /// Marks every name index of every set out of date. Thread-safe.
    static void vNamesChanged();

private:
    static unsigned int uiNamesGeneration();
    /// Exact equality, inline: names are short and compared on every line.
    static bool bSameText(QStringView a, QStringView b)
    {
        return a.size() == b.size() && std::memcmp(a.data(), b.data(), size_t(a.size()) * sizeof(QChar)) == 0;
    }
    template <class NameOf>
    bool bStillNamed(LineTargets const& targets, QStringView name, NameOf nameOf) const;

    struct Cursor {
        int iCandidate = 0;
        int iLastPosition = -1;
        TextField eLast = TextField::Unknown;
    };
    static int iAdvance(Cursor& cursor, int candidateCount, int position, TextField field);
    /// The cursor of `name`, made with a deep copy of the name when there is none yet.
    static Cursor& cursorOf(QHash<QString, Cursor>& cursors, QString const& name);

    QHash<QString, Cursor> cursors;
    QHash<QString, LineTargets> nameIndex;
    // The entry of `nameIndex` found last and its name (a copy, kept for its capacity); null when none.
    QString lastName;
    // The name being looked up, as the index's key type; kept for its capacity.
    QString lookupName;
    LineTargets const* pLastTargets = nullptr;
    std::array<int, 3> indexedCounts = {{-1, -1, -1}};
    unsigned int uiIndexedGeneration = 0;
    QHash<QString, Cursor> setCursors;
};

template <class NameOf>
bool ParameterLineRouter::bStillNamed(LineTargets const& targets, QStringView name, NameOf nameOf) const
{
    QVector<int> const* lists[3] = {&targets.parameters, &targets.basicParameters, &targets.childSets};
    for (int list = 0; list < 3; ++list) {
        for (int position : *lists[list]) {
            QString const* current = nameOf(list, position);
            if (!current || !bSameText(*current, name))
                return false;
        }
    }
    return true;
}

template <class NameOf>
LineTargets const& ParameterLineRouter::targetsOf(QStringView name, std::array<int, 3> const& counts,
                                                  NameOf nameOf)
{
    static LineTargets const none;
    unsigned int const generation = uiNamesGeneration();
    if (counts == indexedCounts && generation == uiIndexedGeneration) {
        // A parameter's lines come together: the name of the line before is tried first.
        if (pLastTargets && bSameText(lastName, name) && bStillNamed(*pLastTargets, name, nameOf))
            return *pLastTargets;
        lookupName.setUnicode(name.data(), int(name.size()));
        auto const found = nameIndex.constFind(lookupName);
        if (found == nameIndex.constEnd())
            return none;
        // An entry replaced in place keeps the list's length: look before trusting the index.
        if (bStillNamed(*found, name, nameOf)) {
            lastName.setUnicode(name.data(), int(name.size()));
            pLastTargets = &*found;
            return *found;
        }
    }
    pLastTargets = nullptr;
    nameIndex.clear();
    for (int list = 0; list < 3; ++list) {
        for (int position = 0; position < counts[list]; ++position) {
            QString const* current = nameOf(list, position);
            if (!current)
                continue;
            LineTargets& targets = nameIndex[*current];
            (list == Parameters ? targets.parameters
                                : list == BasicParameters ? targets.basicParameters : targets.childSets)
                .append(position);
        }
    }
    indexedCounts = counts;
    uiIndexedGeneration = generation;
    lookupName.setUnicode(name.data(), int(name.size()));
    auto const found = nameIndex.constFind(lookupName);
    return found == nameIndex.constEnd() ? none : *found;
}

} // namespace Prm
