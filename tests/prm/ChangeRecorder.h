#pragma once
#include "prm/ParameterWithoutType.h"

#include <QList>
#include <utility>
#include <vector>

/// Collects every `changed` signal of one parameter as (kind, index) pairs; a list change is kept with its
/// indices copied, since the list dies with the signal.
class ChangeRecorder {
public:
    explicit ChangeRecorder(Prm::ParameterWithoutType& parameter)
    {
        QObject::connect(&parameter, &Prm::ParameterWithoutType::changed, [this](Prm::ParameterChange& change) {
            events.emplace_back(change.kind(), change.index());
            if (change.indices())
                lists.push_back(*change.indices());
        });
    }

    using Event = std::pair<Prm::ParameterChange::ParameterChanges, unsigned int>;
    std::vector<Event> events;
    std::vector<QList<unsigned int>> lists;
};
