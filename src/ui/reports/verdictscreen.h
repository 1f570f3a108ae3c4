#pragma once

#include "career/seasonclose.h"

#include <QDialog>

namespace ui {

// "Finall": the season's verdict. The champion with its crest, the two clubs at the bottom
// (they go down and buy their places back, so both lists name the same two), and the place the
// user's club reached as the store keeps it: 16 for the champion, 1 for the last. It only
// shows what it is given and writes nothing.
class VerdictScreen : public QDialog
{
    Q_OBJECT

public:
    explicit VerdictScreen(const game::SeasonClose::Verdict &verdict, QWidget *parent = nullptr);

    // Esc and the frame's close read the verdict as "OK" does: the season goes on either way.
    void reject() override;
};

} // namespace ui
