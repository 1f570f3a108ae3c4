#include "weekevents.h"

#include "transfers/rivalsquad.h"

namespace game {

WeekEvents WeekEvents::standard(Context context)
{
    WeekEvents events;
    events.set(Step::RivalSquad, [context](const std::optional<Fixture> &fixture) { RivalSquad(context).prepare(fixture); });
    return events;
}

} // namespace game
