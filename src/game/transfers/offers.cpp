#include "offers.h"

#include "league/careerrow.h"
#include "dialogs.h"
#include "stadium/ledger.h"
#include "store/gamestore.h"
#include "transfers/terms.h"

#include <QHash>
#include <QObject>
#include <QRegularExpression>

#include <limits>
#include <vector>

namespace game {

namespace {

constexpr qint64 kLargestSum = std::numeric_limits<qint32>::max();

// The order that moves the player, as it is stored with the offer: numbers only, written by
// the game itself.
QString orderText(int club, int shirt, const Offers::Terms &terms, int player)
{
    return QStringLiteral("update jugadores set idequipo=%1, dorsal=%2, ficha=%3, clausula_recision=%4, venta=0 ,"
                          " años_contrato=%5 where idjugador=%6")
        .arg(club)
        .arg(shirt)
        .arg(terms.ficha)
        .arg(terms.clausula)
        .arg(terms.years)
        .arg(player);
}

// Carries out a stored order: its numbers are read back and written with bound values.
// False when the text is not an order the game wrote.
bool applyOrder(GameStore &store, const QString &order)
{
    static const QRegularExpression assignment(QStringLiteral("([^\\s,=]+)=(\\d+)"));
    QHash<QString, qint64> values;
    for (auto match = assignment.globalMatch(order); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        values.insert(found.captured(1).toLower(), found.captured(2).toLongLong());
    }
    const QStringList needed{QStringLiteral("idequipo"), QStringLiteral("dorsal"), QStringLiteral("ficha"),
                             QStringLiteral("clausula_recision"), QStringLiteral("años_contrato"),
                             QStringLiteral("idjugador")};
    for (const QString &key : needed) {
        if (!values.contains(key))
            return false;
    }
    store.execute("update jugadores set idequipo = ?, Dorsal = ?, Ficha = ?, Clausula_Recision = ?, venta = 0,"
                  " \"Años_Contrato\" = ? where idjugador = ?",
                  values.value(needed[0]), values.value(needed[1]), values.value(needed[2]), values.value(needed[3]),
                  values.value(needed[4]), values.value(needed[5]));
    return true;
}

} // namespace

std::optional<Offers::Terms> Offers::termsFrom(const QString &oferta, const QString &clausula, const QString &ficha,
                                               const QString &years, Dialogs &dialogs)
{
    const std::optional<qint64> sums[] = {sumOfBox(oferta), sumOfBox(clausula), sumOfBox(ficha)};
    for (const std::optional<qint64> &sum : sums) {
        if (!sum || *sum > kLargestSum) {
            dialogs.tell(QObject::tr("Las cantidades no pueden pasar de 2147483647 €. Corrige la oferta."),
                         Dialogs::Icon::Exclamation);
            return std::nullopt;
        }
    }
    Terms terms;
    terms.oferta = int(*sums[0]);
    terms.clausula = int(*sums[1]);
    terms.ficha = int(*sums[2]);
    terms.years = yearsOfBox(years);
    return terms;
}

bool Offers::make(int player, const Terms &terms)
{
    GameStore &store = m_context.store;
    const Result written = store.run([&] {
        const CareerRow career = CareerRow::read(store);
        // The shirt is fixed now: the next number after the highest of the squad.
        const int shirt = int(store.integer("select max(Dorsal) from jugadores where idequipo = ?", career.club)) + 1;
        store.execute("insert into selects (\"select\", jornada, oferta, clausula, ficha, jugador, observaciones, pago)"
                      " values (?, ?, ?, ?, ?, ?, ' ', ' ')",
                      orderText(career.club, shirt, terms, player), career.week, terms.oferta, terms.clausula,
                      terms.ficha, player);
    });
    if (!written)
        m_context.dialogs.tell(written.message(), Dialogs::Icon::Exclamation);
    return bool(written);
}

Offers::Settled Offers::settleDue()
{
    return settle(false);
}

Offers::Settled Offers::settleAllAtClose()
{
    return settle(true);
}

Offers::Settled Offers::settle(bool seasonClose)
{
    GameStore &store = m_context.store;
    Settled settled;
    struct Due
    {
        QString order;
        int oferta;
        int clausula;
        int ficha;
        int player;
    };
    const Result done = store.run([&] {
        const CareerRow career = CareerRow::read(store);
        // Read first, so that no read of selects is open while its rows go. During the season
        // the offers made three weeks ago are due; at its close every offer is, however young.
        std::vector<Due> due;
        {
            GameStore::Query rows = seasonClose
                ? store.query("select \"select\", oferta, clausula, ficha, jugador from selects where oferta <> 0"
                              " order by rowid")
                : store.query("select \"select\", oferta, clausula, ficha, jugador from selects where jornada = ?"
                              " and oferta <> 0 order by rowid",
                              career.week - kWeeksToAnswer);
            while (rows.next())
                due.push_back({rows.text(0), rows.integer(1), rows.integer(2), rows.integer(3), rows.integer(4)});
        }
        for (const Due &offer : due) {
            // Each offer is judged on the player's terms of this moment, which an offer
            // answered just before may have changed, and on the club that holds him now.
            QString nombre;
            QString club;
            qint64 clause = 0;
            qint64 wage = 0;
            bool found = false;
            {
                GameStore::Query player = store.query(
                    "select j.Nombre, j.Clausula_Recision, j.Ficha, e.NombreEquipo from jugadores j"
                    " left join equipos e on e.idequipo = j.idequipo where j.idjugador = ?",
                    offer.player);
                if ((found = player.next())) {
                    nombre = player.text(0);
                    clause = player.integer64(1);
                    wage = player.integer64(2);
                    club = player.text(3);
                }
            }
            if (found) {
                bool acceptable = true;
                if (clause > offer.oferta) {
                    m_context.dialogs.tell(QStringLiteral("El ") + club + QStringLiteral(" Ha rechazado su Oferta"),
                                           Dialogs::Icon::Information);
                    acceptable = false;
                } else if (wage > offer.ficha) {
                    m_context.dialogs.tell(nombre
                                           + QStringLiteral(" Ha rechazado su Oferta porque no está deacuedo con su Ficha"));
                    acceptable = false;
                } else if (2 * clause < offer.clausula) {
                    m_context.dialogs.tell(
                        nombre + QStringLiteral(" Ha rechazado su Oferta porque no está deacuedo con su Clausula de Rescisión"));
                    acceptable = false;
                }
                if (acceptable) {
                    m_context.dialogs.tell(QStringLiteral("Has Fichado a ") + nombre + QStringLiteral(" del ") + club,
                                           Dialogs::Icon::Information);
                    store.attempt([&] { applyOrder(store, offer.order); });
                    // In the season the week's row pays; at its close the ledger is gone and
                    // the budget pays.
                    store.attempt([&] {
                        if (seasonClose)
                            store.execute("update infoteams set presupuesto = presupuesto - ? where idequipo = ?",
                                          offer.oferta, career.club);
                        else
                            Ledger(store).postSigning(career.week, offer.oferta);
                    });
                    ++settled.signings;
                } else {
                    ++settled.refusals;
                }
            }
            // Answered, yes or no: the first order that matches goes, and a twin stays for
            // its own turn.
            store.attempt([&] {
                store.execute("delete from selects where rowid = (select rowid from selects where jugador = ?"
                              " and oferta = ? and ficha = ? and clausula = ? order by rowid limit 1)",
                              offer.player, offer.oferta, offer.ficha, offer.clausula);
            });
        }
    });
    if (!done)
        m_context.dialogs.tell(done.message(), Dialogs::Icon::Exclamation);
    return settled;
}

} // namespace game
