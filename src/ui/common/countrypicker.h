#pragma once

#include <QGroupBox>
#include <QStringList>

#include <functional>

class QGridLayout;
class QLabel;
class QListWidget;
class QVBoxLayout;

namespace ui {

// The countries of the game as flags over the clubs of the one chosen: the planner picks its
// rivals from it, the market the club whose squad it shows. The country under the pointer is
// named below the flags, a flag pressed lists its country's clubs, and a club pressed is
// reported.
//
//   auto *picker = new CountryPicker({tr("PAÍSES"), 5, true}, [&](int code) { return market.clubsOf(code); });
//   connect(picker, &CountryPicker::clubPicked, this, &ClubsScreen::chooseClub);
class CountryPicker : public QGroupBox
{
    Q_OBJECT

public:
    struct Options
    {
        QString title;
        int flagsPerRow = 6;
        // Norway stands among the flags of the market, though no club of the game is Norwegian:
        // its flag names the country under the pointer and does nothing when pressed.
        bool withNorway = false;
    };
    // The clubs of a country by its code; 0 asks for every club of the game.
    using ClubsOf = std::function<QStringList(int code)>;

    CountryPicker(const Options &options, ClubsOf clubsOf, QWidget *parent = nullptr);

    // Lists the clubs of a country without choosing it.
    void listClubs(int code);
    // The name of the country chosen ("lblPaisSel").
    QLabel *chosen() const { return m_chosen; }
    // The picker's column, for what a screen adds below the clubs.
    QVBoxLayout *column() const { return m_column; }

signals:
    void clubPicked(const QString &name);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addFlag(const QString &name, const QString &caption, int flag);

    ClubsOf m_clubsOf;
    int m_flagsPerRow;
    int m_flags = 0;
    QVBoxLayout *m_column;
    QGridLayout *m_grid;
    QLabel *m_chosen;
    QLabel *m_hovered;
    QListWidget *m_clubs;
};

} // namespace ui
