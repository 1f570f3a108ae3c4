#pragma once

#include "transfers/terms.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QObject>
#include <QString>

class QAbstractButton;
class QScrollBar;
class QTimer;
class QVBoxLayout;

namespace ui {

// How a money box shows its sum: the digits, a blank and the euro sign. An empty text stays
// empty, and a text that reads so already comes back the same.
QString moneyText(const QString &text);

// A box for a sum of euros on the offer and contract screens. Only digits can be typed; a box
// left without a digit, emptied or pasted over, holds "1 €" again at once, so a sum is never
// missing; and a box that is left shows its sum in the game's way, "36150 €".
class MoneyBox : public QLineEdit
{
    Q_OBJECT

public:
    // What one tick of a held step button adds or takes.
    static constexpr int kStep = 54;

    explicit MoneyBox(const char *name, QWidget *parent = nullptr);

    void stepUp();
    // Only a sum above 1 is lowered. The result keeps its digits alone, so a sum below 54
    // loses its minus sign: 10 lowered shows 44 €.
    void stepDown();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void step(qint64 change);
};

// The step buttons beside the money boxes. A button held down steps its box at each tick of a
// 50 ms timer, the first tick one interval after the press, so a very short click may change
// nothing; letting go of any of them stops the timer.
class Stepper : public QObject
{
    Q_OBJECT

public:
    static constexpr int kInterval = 50;

    explicit Stepper(QWidget *screen);

    // A box under its caption with its raising and lowering buttons beside it.
    QWidget *field(const QString &caption, MoneyBox *box, const char *up, const char *down);

    // One tick: the box of the button held down takes one step.
    void step();
    QTimer *timer() const { return m_timer; }

private:
    void hold(MoneyBox *box, bool up);

    QTimer *m_timer;
    MoneyBox *m_box = nullptr;
    bool m_up = true;
};

// The box of the contract's years ("txtaños") with its bar ("HScroll4"). The bar gives 1 to 5
// years; a number typed by hand may also be 6, and anything else puts "1" in the box.
class YearsBox : public QLineEdit
{
    Q_OBJECT

public:
    static constexpr int kFewest = game::kFewestContractYears;
    static constexpr int kMostOnTheBar = 5;

    explicit YearsBox(QWidget *parent = nullptr);

    QScrollBar *bar() const { return m_bar; }
    // Puts the years on the bar and in the box.
    void setYears(int years);
    // The box and its bar side by side under "AÑOS".
    QWidget *field(const QString &caption);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void check(const QString &text);

    QScrollBar *m_bar;
};

// The terms of a contract as the offer and contract screens ask for them, one under another:
// the clause ("txtclausula") and the annual wage ("txtficha") with their step buttons, the
// years, and two promises, "Libertad por Descenso" ("Check1") and "Casa y Coche" ("Check2").
// The game shows the promises and never reads them: a ticked box makes the same offer as an
// empty one. The offer puts its sum for the club above the clause, as `lead`.
class TermsBox : public QGroupBox
{
    Q_OBJECT

public:
    TermsBox(const QString &title, Stepper *stepper, QWidget *lead = nullptr, QWidget *parent = nullptr);

    MoneyBox *clausula() const { return m_clausula; }
    MoneyBox *ficha() const { return m_ficha; }
    YearsBox *years() const { return m_years; }

    // A line below the promises, such as the rules a renewal must keep.
    void addNote(QWidget *note);

private:
    QVBoxLayout *m_layout;
    MoneyBox *m_clausula;
    MoneyBox *m_ficha;
    YearsBox *m_years;
};

} // namespace ui
