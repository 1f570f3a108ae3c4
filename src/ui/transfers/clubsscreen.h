#pragma once

#include "context.h"

#include <QWidget>

class QLabel;
class QListWidget;

namespace ui {

class PlayerGrid;

// "Fichar" (heading "OFERTAS"): from a country to its clubs, from a club to its squad, so
// that any player of any club can be made an offer, whether his club sells him or not.
class ClubsScreen : public QWidget
{
    Q_OBJECT

public:
    explicit ClubsScreen(game::Context context, QWidget *parent = nullptr);

signals:
    // A row of the squad was picked: an offer for that player.
    void playerPicked(int player);
    void closeRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *buildCountries();
    QWidget *buildSquad();
    void chooseCountry(int code, const QString &caption);
    void chooseClub(const QString &name);

    game::Context m_context;
    QLabel *m_countryChosen;
    QLabel *m_countryHovered;
    QListWidget *m_clubs;
    QLabel *m_clubChosen;
    QLabel *m_squadHint;
    PlayerGrid *m_squad;
};

} // namespace ui
