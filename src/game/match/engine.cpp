#include "engine.h"

#include "money.h"
#include "random.h"

namespace game {

namespace {

// The commentary's phrases.
const QString kGoal = QStringLiteral("Gol de ");
const QString kSave = QStringLiteral("Parada de ");
const QString kMissed = QStringLiteral("Lanzamiento fallado por ");
const QString kStop = QStringLiteral(" para el Lanzamiento de ");
const QString kSevenMetreGoal = QStringLiteral("Gol de 7m. de ");
const QString kSevenMetreStop = QStringLiteral(" para 7m de ");

} // namespace

QString MatchEngine::Row::entry(int index) const
{
    switch (index) {
    case 0:
        return name;
    case 1:
        return position;
    case 2:
        return QString::number(rating);
    default:
        return QStringLiteral("%1/%2").arg(goals).arg(shots);
    }
}

const std::array<const char *, MatchEngine::kRows> &MatchEngine::rowNames()
{
    static const std::array<const char *, kRows> names{"lblPo",  "lblEI",  "lblED",  "lblLI",  "lblLD",
                                                        "lblPI",  "lblCE",  "lblSu1", "lblSu2", "lblSu3",
                                                        "lblSu4", "lblSu5", "lblSu6", "lblSu7"};
    return names;
}

QString MatchEngine::placeCaption(int row)
{
    static const char *const captions[kStarters] = {"PORTERO:", "EXTREMO IZQUIERDO:", "EXTREMO DERECHO:",
                                                   "LATERAL IZQUIERDO:", "LATERAL DERECHO:", "PIVOTE:", "CENTRAL:"};
    return row < kStarters ? QString::fromLatin1(captions[row]) : QStringLiteral("SUPLENTE:");
}

MatchEngine::MatchEngine(Random &random, Setup setup) : m_random(random), m_setup(std::move(setup))
{
    // The rival's court players, in the order of their places; the goalkeeper never shoots.
    for (int i = 0; i < int(m_setup.rival.size()); ++i) {
        if (!m_setup.rival[std::size_t(i)].goalkeeper)
            m_rivalShooters.push_back(i);
    }
    if (!m_setup.system.isEmpty())
        announceSystem(m_setup.system);
}

QString MatchEngine::goalsText(int side) const
{
    return QStringLiteral("%1/%2").arg(m_score[std::size_t(side)]).arg(m_shots[std::size_t(side)]);
}

void MatchEngine::start()
{
    if (!canStart())
        return;
    m_phase = m_phase == Phase::Ready ? Phase::FirstHalf : Phase::SecondHalf;
    play();
}

void MatchEngine::tick()
{
    if (running())
        play();
}

void MatchEngine::play()
{
    // The ball goes to either club with even chance, whatever their strength.
    const bool ownAttack = m_random.draw(2) == 1;
    int shooterRow = -1;
    QString shooter;
    int rating = 0;
    if (ownAttack) {
        // One of the six court rows; the goalkeeper and the substitutes never shoot.
        shooterRow = m_random.draw(6);
        const Row &row = m_setup.rows[std::size_t(shooterRow)];
        shooter = row.name;
        rating = row.rating;
    } else if (!m_rivalShooters.empty()) {
        const int pick = m_random.draw(int(m_rivalShooters.size())) - 1;
        const RivalPlayer &player = m_setup.rival[std::size_t(m_rivalShooters[std::size_t(pick)])];
        shooter = player.name;
        rating = player.rating;
    }

    // The clock moves on two actions in three.
    if (m_random.draw(3) != 1) {
        ++m_minute;
        m_minuteShown = m_minute;
    }
    // The action that reaches half time or full time is dropped: its shot is never taken.
    if (m_minute == kHalfTime) {
        m_phase = Phase::HalfTime;
        addLine(QStringLiteral("(%1)-> Descanso :%2-%3").arg(m_minute).arg(m_score[0]).arg(m_score[1]), Line::Kind::Period);
        m_minute = kHalfTime + 1;
        return;
    }
    if (m_minute == kFullTime) {
        m_phase = Phase::Finished;
        addLine(QStringLiteral("(%1)-> Final :%2-%3").arg(m_minute).arg(m_score[0]).arg(m_score[1]), Line::Kind::Period);
        return;
    }

    const int side = ownAttack ? userSide() : rivalSide();
    shoot(ownAttack, shooterRow, shooter, rating);
    ++m_actions;
    ++m_attacks[std::size_t(side)];
    const int share = int(roundHalfEven(qint64(m_attacks[std::size_t(side)]) * 100, m_actions));
    m_possession[std::size_t(side)] = share;
    m_possession[std::size_t(1 - side)] = 100 - share;
}

void MatchEngine::shoot(bool ownAttack, int shooterRow, const QString &shooter, int rating)
{
    const int side = ownAttack ? userSide() : rivalSide();
    const Line::Kind kind = ownAttack ? Line::Kind::User : Line::Kind::Rival;
    Row *row = ownAttack ? &m_setup.rows[std::size_t(shooterRow)] : nullptr;
    ++m_shots[std::size_t(side)];
    if (row)
        ++row->shots;

    // A rating r scores with the chance r/155 on every shot.
    if (rating >= m_random.draw(kShotRange)) {
        ++m_score[std::size_t(side)];
        if (row) {
            ++row->goals;
            ++m_scorers[row->playerId];
        }
        // Half the goals are told as 7 m goals: it is only a way of telling it.
        const bool sevenMetres = m_random.draw(2) == 2;
        addLine(QStringLiteral("(%1)->").arg(m_minute) + (sevenMetres ? kSevenMetreGoal : kGoal) + shooter, kind);
        return;
    }

    // The goalkeeper facing the shot: the rival's when the user attacks, else the user's.
    const QString goalkeeper = ownAttack ? rivalGoalkeeper() : m_setup.rows[kGoalkeeperRow].name;
    QString comment;
    switch (m_random.draw(5)) {
    case 1:
        comment = kSave + goalkeeper;
        break;
    case 2:
        comment = kMissed + shooter;
        break;
    case 3:
        comment = goalkeeper + kStop + shooter;
        break;
    case 5:
        comment = goalkeeper + kSevenMetreStop + shooter;
        break;
    default:
        return; // a miss that is not told, though it counts as a shot
    }
    addLine(QStringLiteral("(%1)->").arg(m_minute) + comment, kind);
}

QString MatchEngine::rivalGoalkeeper() const
{
    for (const RivalPlayer &player : m_setup.rival) {
        if (player.goalkeeper)
            return player.name;
    }
    return {};
}

void MatchEngine::addLine(const QString &text, Line::Kind kind)
{
    m_commentary.insert(m_commentary.begin(), Line{text, kind});
}

void MatchEngine::announceSystem(const QString &system)
{
    if (system == m_system)
        return;
    addLine(QStringLiteral("(%1)-> El %2 Cambia la Táctica a %3").arg(m_minute).arg(m_setup.userClubName, system),
            Line::Kind::Announcement);
    m_system = system;
}

void MatchEngine::pick(int row)
{
    if (row < 0 || row >= kRows)
        return;
    if (row < kStarters) {
        m_pickedStarter = row;
        m_starterCopy = m_setup.rows[std::size_t(row)];
    } else {
        m_pickedSubstitute = row;
        m_substituteCopy = m_setup.rows[std::size_t(row)];
    }
}

bool MatchEngine::exchange()
{
    if (m_pickedStarter < 0 || m_pickedSubstitute < 0)
        return false;
    // The copies made at the pick go across, whatever a shot did to the rows since.
    m_setup.rows[std::size_t(m_pickedStarter)] = m_substituteCopy;
    m_setup.rows[std::size_t(m_pickedSubstitute)] = m_starterCopy;
    m_pickedStarter = -1;
    m_pickedSubstitute = -1;
    return true;
}

} // namespace game
