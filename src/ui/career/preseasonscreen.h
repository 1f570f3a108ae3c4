#pragma once

#include "career/career.h"

#include <QWidget>

class QLabel;
class QListWidget;
class QPushButton;

namespace ui {

// "Pretemporada": the five friendlies of August, chosen among the clubs of eighteen
// countries or declined, then on to the first week of the season.
class PreseasonScreen : public QWidget
{
    Q_OBJECT

public:
    explicit PreseasonScreen(game::Career &career, QWidget *parent = nullptr);

signals:
    void backToMenu();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *buildCountries();
    QWidget *buildSlots();
    void chooseCountry(int code, const QString &caption);
    void chooseClub(const QString &name);
    void showSlots();

    game::Career &m_career;
    game::Preseason &m_planner;
    QLabel *m_countryChosen;
    QLabel *m_countryHovered;
    QLabel *m_clubChosen;
    QListWidget *m_clubs;
    QPushButton *m_decline;
};

} // namespace ui
