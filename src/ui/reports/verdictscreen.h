#pragma once

#include "career/seasonclose.h"

#include <QDialog>

namespace ui {

// "Finall": the season's verdict, named by the season's years. The champion with its crest, the
// two clubs at the bottom (they go down and buy their places back, so both lists name the same
// two), and the place the user's club reached as the store keeps it: 16 for the champion, 1 for
// the last. It only shows what it is given and writes nothing.
class VerdictScreen : public QDialog
{
    Q_OBJECT

public:
    explicit VerdictScreen(const game::SeasonClose::Verdict &verdict, QWidget *parent = nullptr);

    // Only "OK" closes it: reading it settles the orders and leads to the next pre-season, so
    // Esc and the frame's close are refused, as on the television's offer.
    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;
};

} // namespace ui
