#pragma once

#include "league/fixture.h"
#include "context.h"
#include "match/engine.h"

#include <QString>
#include <QStringList>

namespace game {

// The match of the week as the match screen opens it: the two clubs, the user's fourteen as
// the call-up left them, the rival's seven as the week's opening named them, which side is
// the user's and the defensive system he plays.
class MatchDay
{
public:
    explicit MatchDay(Context context) : m_context(context) {}

    MatchEngine::Setup setup(const Fixture &fixture);

    // The system stored on the tactics screen, as its text ("6-0").
    QString storedDefence();
    // The surnames of the fourteen, for the list of 7 m throwers that nothing reads.
    QStringList squadSurnames();

private:
    Context m_context;
};

} // namespace game
