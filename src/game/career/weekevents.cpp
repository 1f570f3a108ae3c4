#include "weekevents.h"

#include "stadium/television.h"
#include "stadium/works.h"
#include "transfers/bids.h"
#include "transfers/offers.h"
#include "transfers/rivalsquad.h"

namespace game {

WeekEvents WeekEvents::standard(Context context)
{
    WeekEvents events;
    events.set(Step::RivalSquad, [context](const std::optional<Fixture> &fixture) { RivalSquad(context).prepare(fixture); });
    events.set(Step::Offers, [context](const std::optional<Fixture> &) { Offers(context).settleDue(); });
    events.set(Step::Stadium, [context](const std::optional<Fixture> &) { Works(context).runWeek(); });
    events.set(Step::Bids, [context](const std::optional<Fixture> &) { Bids(context).run(); });
    // A week's events on their own cannot keep the channel for the player's OK: the week binds
    // this step to itself (see Week), so the fee is only ever booked from there.
    events.set(Step::Television, [context](const std::optional<Fixture> &fixture) { Television(context).run(fixture); });
    return events;
}

} // namespace game
