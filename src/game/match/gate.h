#pragma once

#include "league/fixture.h"
#include "context.h"

#include <QString>

namespace game {

// The crowd of a match and what it pays, settled once as the match screen opens, before
// play. A big match (clubs of the same class, or next to each other in the table) fills the
// house; any other draws a random crowd. Only a home match of the user's club pays into the
// ledger: tickets and hoardings, and twice the crowd when the club has cafeterias. The
// prices are always the user's, also in the rival's stadium.
//
//   const Gate::Report gate = Gate(context).draw(fixture);
//   Gate(context).post(gate);
//   label->setText(gate.attendanceText());
class Gate
{
public:
    static constexpr int kHoardings = 30;

    explicit Gate(Context context) : m_context(context) {}

    struct Report
    {
        bool hasStadium = false;   // the home club has a stadium row
        QString stadium;           // its name
        int capacity = 0;
        int attendance = 0;
        int attendancePercent = 0;
        qint64 gateTakings = 0;
        int hoardings = 0;         // hoardings sold, 10 to 30
        int hoardingsPercent = 0;
        qint64 hoardingsTakings = 0;
        bool fullHouse = false;
        bool userAtHome = false;

        // The texts of the gate box, as the match screen shows them.
        QString capacityText() const;        // "AFORO: 3000 Espectadores"
        QString attendanceText() const;      // "ENTRADA: 2500 Espectadores"
        QString attendancePercentText() const; // "83%"
        QString gateTakingsText() const;     // "RECAUDACIÓN: 25000 €"
        static QString hoardingsCaption();   // "VALLAS CONTRATADAS:"
        QString hoardingsPercentText() const; // "70%"
        QString hoardingsTakingsText() const; // "RECAUDACIÓN: 10500 €"
    };

    // Draws the crowd of the week's match: who comes and what they pay. Writes nothing.
    Report draw(const Fixture &fixture);
    // At a home match of the user's club, posts the takings to the week's ledger row, in one
    // transaction. False when that failed (the player has been told and nothing was written);
    // true also when there was nothing to post.
    bool post(const Report &report);

private:
    Context m_context;
};

} // namespace game
